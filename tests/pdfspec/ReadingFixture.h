// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/pdf/HostPDFPage.h>

#include "PDFFixture.h"

namespace Tavrin::Testing
{

/// A printed specification in the making: entries, and pages with headings and body text.
class ReadingFixture : public PDFFixture
{
protected:
    using Entry = PDFSpecification::Entry;
    using EntryPtr = std::shared_ptr<Entry>;

    static constexpr double left = 72;
    static constexpr TextStyle body{Font::Times, 10};
    static constexpr TextStyle heading{Font::HelveticaBold, 14};

    EntryPtr add(const QString &label, const QString &title, SpecificationEntryType type,
                 const QString &link)
    {
        auto entry = std::make_shared<Entry>(specification, label, title, type, std::vector<int>());
        entry->setInternalLink(link);
        specification->add(entry);
        return entry;
    }
    EntryPtr section(const QString &label, const QString &title, int page, double y)
    {
        return add(label, title, SpecificationEntryType::Section,
                   u"destination:%1,72,%2"_s.arg(page).arg(y));
    }
    EntryPtr figure(const QString &label, const QString &title, int page, double y)
    {
        return add(label, title, SpecificationEntryType::Figure,
                   u"destination:%1,72,%2"_s.arg(page).arg(y));
    }

    /// Lines of body text, each as wide as the column and different from all others.
    QStringList lines(const QString &word, int count) const
    {
        QStringList result;
        for (int i = 0; i < count; ++i) {
            result += u"%1 line %2 of the text that fills the column from its left to "
                      "its right edge, nearly"_s.arg(word)
                          .arg(i);
        }
        return result;
    }

    /// A front page, and pages of body text to measure the print by.
    void addPages(int count)
    {
        pdf.addPage().text(200, 600, u"A Specification"_s, heading);
        for (int i = 1; i < count; ++i)
            pages.push_back(&pdf.addPage());
    }
    PDFPageBuilder &page(int index) { return *pages.at(static_cast<std::size_t>(index) - 1); }
    /// A heading with its baseline at y, and lines of text below it.
    PDFPageBuilder &printSection(int index, double y, const QString &title, const QString &word,
                                 int count)
    {
        return page(index)
            .text(left, y, title, heading)
            .column(left, y - 20, 12, lines(word, count), body);
    }

    void bind()
    {
        specification->loadPDFStructure(CachingPDFDocument::open(pdf.build()));
        m_bindingMessages = errors.messages().size();
    }
    /// What was said since the document was bound.
    QStringList messages() const { return errors.messages().mid(m_bindingMessages); }

    static QString summary(const EntryPtr &entry)
    {
        return entry->summaryText().value_or(StyledText()).string();
    }
    HostPDFDestination at(int index, double x, double y) const
    {
        return HostPDFDestination(specification->document()->page(index), {x, y});
    }

    std::shared_ptr<PDFSpecification> specification = Specification::make<PDFSpecification>();
    std::vector<PDFPageBuilder *> pages;

private:
    qsizetype m_bindingMessages = 0;
};

} // namespace Tavrin::Testing
