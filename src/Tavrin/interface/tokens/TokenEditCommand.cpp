// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/tokens/TokenEditCommand.h>

#include <Tavrin/interface/tokens/TokenEditor.h>

namespace Tavrin
{

namespace
{

enum CommandId { noMerging = -1, typing = 1, erasing = 2 };

} // namespace

TokenEditCommand::TokenEditCommand(TokenEditor &editor, const TextRange &range,
                                   const TokenContent &replacement)
    : m_editor(editor),
      m_location(range.location),
      m_removed(editor.content().part(range)),
      m_inserted(replacement),
      m_anchorBefore(editor.anchor()),
      m_cursorBefore(editor.cursor())
{
}

void TokenEditCommand::redo()
{
    const qsizetype after = m_location + m_inserted.size();
    m_editor.apply({m_location, m_removed.size()}, m_inserted, after, after);
}

void TokenEditCommand::undo()
{
    m_editor.apply({m_location, m_inserted.size()}, m_removed, m_anchorBefore, m_cursorBefore);
}

bool TokenEditCommand::isTyping() const
{
    return m_removed.isEmpty() && m_inserted.tokens().isEmpty();
}

bool TokenEditCommand::isErasing() const
{
    return m_inserted.isEmpty() && m_removed.tokens().isEmpty();
}

int TokenEditCommand::id() const
{
    return isTyping() ? typing : isErasing() ? erasing : noMerging;
}

bool TokenEditCommand::mergeWith(const QUndoCommand *next)
{
    const auto &other = static_cast<const TokenEditCommand &>(*next);
    if (isTyping() && other.m_location == m_location + m_inserted.size()) {
        m_inserted.append(other.m_inserted);
        return true;
    }
    if (isErasing() && other.m_location + other.m_removed.size() == m_location) {
        TokenContent removed = other.m_removed;
        removed.append(m_removed);
        m_removed = removed;
        m_location = other.m_location;
        return true;
    }
    if (isErasing() && other.m_location == m_location) {
        m_removed.append(other.m_removed);
        return true;
    }
    return false;
}

} // namespace Tavrin
