// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QUndoCommand>

#include <Tavrin/interface/tokens/TokenContent.h>

namespace Tavrin
{

class TokenEditor;

/// One part of a content replaced by another. What is typed, or erased, in one go is undone in one
/// go.
class TokenEditCommand : public QUndoCommand
{
public:
    TokenEditCommand(TokenEditor &editor, const TextRange &range, const TokenContent &replacement);

    void redo() override;
    void undo() override;
    int id() const override;
    bool mergeWith(const QUndoCommand *next) override;

private:
    bool isTyping() const;
    bool isErasing() const;

    TokenEditor &m_editor;
    qsizetype m_location;
    TokenContent m_removed;
    TokenContent m_inserted;
    qsizetype m_anchorBefore;
    qsizetype m_cursorBefore;
};

} // namespace Tavrin
