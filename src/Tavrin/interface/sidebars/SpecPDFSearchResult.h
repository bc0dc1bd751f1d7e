// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <memory>

#include <Tavrin/pdfspec/PDFSpecificationEntry.h>

namespace Tavrin
{

/// A row of the search sidebar. Main thread, but for the entry.
class SpecPDFSearchResult
{
public:
    using Entry = PDFSpecification::Entry;

    explicit SpecPDFSearchResult(std::shared_ptr<Entry> entry);

    const std::shared_ptr<Entry> &entry() const { return m_entry; }
    const QString &titleText() const { return m_entry->title(); }
    QString indexText() const { return m_entry->indexString(); }
    /// One line of summary: empty for figures and tables and while none is computed, "--" where
    /// none could be. As of the latest update.
    const QString &descriptionText() const { return m_descriptionText; }
    /// Whether that is the description for good.
    bool isDescribed() const { return m_isDescribed; }
    void updateDescription();

    /// Rows stand in descending order of it.
    float relevance = 1;
    /// In which filling of the queue it was enqueued; one row is waited for once.
    int enqueuedIn = -1;

private:
    std::shared_ptr<Entry> m_entry;
    QString m_descriptionText;
    bool m_isDescribed = false;
};

} // namespace Tavrin
