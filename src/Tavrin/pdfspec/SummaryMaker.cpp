// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/SummaryMaker.h>

#include <Tavrin/pdfspec/BulletText.h>
#include <Tavrin/pdfspec/EntryExtractionError.h>
#include <Tavrin/platform/CharacterSet.h>
#include <Tavrin/platform/LineTrimmingError.h>
#include <Tavrin/platform/StandardError.h>
#include <Tavrin/platform/SystemFont.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

SummaryMaker::SummaryMaker(const PDFSpecification &specification) : m_specification(specification)
{
}

void SummaryMaker::make(PDFSpecification::Entry &entry) const
{
    LineLocations lines;
    std::optional<StyledText> text;
    try {
        text = m_specification.extractText(entry, lines);
    } catch (const EntryExtractionError &error) {
        standardError(u"Error loading preview text for entry \"%1\": %2"_s.arg(
            entry.label(), QString::fromUtf8(error.what())));
        return;
    }
    if (!text)
        return;
    BulletText::replaceBullets(*text);
    StyledTextEditing::setPrimaryFont(*text, systemFont(smallFontSize));
    const auto parent = entry.parentEntry();
    if (entry.lineRange())
        trimToLineRange(entry, *text);
    StyledTextEditing::trimCharacters(*text, CharacterSet::isWhiteSpaceOrNewline);
    entry.setSummaryText(*text);
    const bool isPart = entry.lineRange() && parent;
    entry.setLineLocations(
        isPart ? m_specification.lineLocations(*entry.lineRange(), *parent).value_or(lines)
               : lines);
}

void SummaryMaker::trimToLineRange(const PDFSpecification::Entry &entry, StyledText &text) const
{
    const StyledTextEditing::LineRange range = *entry.lineRange();
    try {
        StyledTextEditing::trimToLines(text, range);
    } catch (const LineTrimmingError &) {
        standardError(u"Line range %1..<%2 out of bounds for %3"_s.arg(range.lower)
                          .arg(range.upper)
                          .arg(text.string()));
    }
}

} // namespace Tavrin
