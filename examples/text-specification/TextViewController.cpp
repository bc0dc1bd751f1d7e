// SPDX-License-Identifier: Apache-2.0
#include "TextViewController.h"

#include <QPlainTextEdit>

#include "TextSpecification.h"

void TextViewController::setEntry(const EntryPtr &entry)
{
    m_entry = entry;
    showEntry();
}

void TextViewController::setSpecification(const SpecificationPtr &specification)
{
    m_specification = specification;
    setTitle(specification ? specification->title() : QString());
}

std::shared_ptr<Tavrin::SpecDetailViewControllerDelegate> TextViewController::delegate() const
{
    return m_delegate.lock();
}

void TextViewController::setDelegate(
    const std::weak_ptr<Tavrin::SpecDetailViewControllerDelegate> &delegate)
{
    m_delegate = delegate;
}

void TextViewController::setReferenceCoverage(
    const std::optional<Tavrin::ReferenceCoverage> &coverage)
{
    m_referenceCoverage = coverage;
}

std::unique_ptr<QWidget> TextViewController::loadView()
{
    auto text = std::make_unique<QPlainTextEdit>();
    text->setReadOnly(true);
    m_text = text.get();
    return text;
}

void TextViewController::viewDidLoad()
{
    if (const auto shown = std::dynamic_pointer_cast<TextSpecification>(m_specification))
        m_text->setPlainText(shown->text());
    showEntry();
}

void TextViewController::showEntry()
{
    const auto shown = std::dynamic_pointer_cast<TextSpecification>(m_specification);
    if (!m_text || !shown || !m_entry)
        return;
    const auto [start, end] = shown->section(*m_entry);
    QTextCursor cursor = m_text->textCursor();
    cursor.setPosition(static_cast<int>(start));
    cursor.setPosition(static_cast<int>(end), QTextCursor::KeepAnchor);
    m_text->setTextCursor(cursor);
    m_text->centerCursor();
}
