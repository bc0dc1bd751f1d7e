// SPDX-License-Identifier: Apache-2.0
// The keywords of PDFXMLEnhancer: how often terms stand in an entry, against the whole document.
#include <Tavrin/enhance/PDFXMLEnhancer.h>

#include <Tavrin/enhance/AssociatedEntries.h>
#include <Tavrin/enhance/EntryGraphNode.h>
#include <Tavrin/enhance/KeywordRanking.h>
#include <Tavrin/enhance/SectionOfEntry.h>
#include <Tavrin/enhance/TermCounter.h>
#include <Tavrin/platform/StandardError.h>
#include <Tavrin/platform/StandardOutput.h>
#include <Tavrin/platform/TerminalStyle.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

using Type = SpecificationEntryType;

const QString paragraphBreak = u"\n\n"_s;

} // namespace

void PDFXMLEnhancer::extractEntryKeywords()
{
    m_wordFrequencies.clear();
    m_totalFrequencies.clear();
    m_termCounter.reset();
    m_associatedEntries.reset();
    // Kept, since counting may be overridden and ask for the order anew.
    const std::vector<PDFEntryPtr> sorted = sortedEntries();
    try {
        for (std::size_t position = 0; position < sorted.size(); ++position) {
            const PDFEntryPtr &entry = sorted[position];
            if (entry->type() == Type::Chapter && !entry->index().empty()) {
                standardOutput(bold(u"Scanning chapter %1 (%2)..."_s.arg(entry->index().front())
                                        .arg(entry->label())));
            }
            if (isTextual(entry->type()))
                countSection(entry, position);
            else
                countGraphicalEntry(entry, position);
            if (m_progressHandler)
                m_progressHandler(double(position + 1) / double(sorted.size()));
        }
    } catch (const LinguisticTaggerError &error) {
        standardError(red(error.message));
    }
    assignKeywords();
    m_termCounter.reset();
    m_associatedEntries.reset();
}

void PDFXMLEnhancer::countSection(const PDFEntryPtr &entry, std::size_t position)
{
    if (auto counts = computeWordFrequencies(entry, position))
        m_wordFrequencies.insert(entry->label(), *std::move(counts));
    else
        m_wordFrequencies.remove(entry->label());
}

void PDFXMLEnhancer::countGraphicalEntry(const PDFEntryPtr &entry, std::size_t position)
{
    const auto section = sectionBefore(sortedEntries(), position);
    if (!section)
        return;
    try {
        LineLocations lines;
        const auto text = extractText(*entry, lines);
        if (!text)
            return;
        TermCounts counts = computeWordFrequencies(section->title() + u". "_s +
                                                   termCounter().healed(text->string()));
        counts.squeeze();
        m_wordFrequencies.insert(entry->label(), counts);
    } catch (const LinguisticTaggerError &) {
        throw;
    } catch (const std::exception &error) {
        standardError(u"Error extracting text from %1 \"%2\": %3"_s.arg(
            description(entry->type()), entry->label(), QString::fromUtf8(error.what())));
    }
}

std::optional<TermCounts> PDFXMLEnhancer::computeWordFrequencies(const PDFEntryPtr &entry,
                                                                 std::size_t position)
{
    const auto known = m_wordFrequencies.constFind(entry->label());
    if (known != m_wordFrequencies.constEnd())
        return *known;
    if (!isTextual(entry->type()))
        return std::nullopt;
    entry->computeDisplay();
    QString text;
    if (entry->type() == Type::Section) {
        const auto summary = entry->summaryText();
        if (!summary)
            return std::nullopt;
        text = summary->string();
    }
    TermCounts counts = text.trimmed().isEmpty() ? inheritedFrequencies(*entry, position)
                                                 : ownFrequencies(*entry, text);
    counts.squeeze();
    m_wordFrequencies.insert(entry->label(), counts);
    return counts;
}

/// What stands below counts more than once where it was itself inherited on the way: the terms of
/// deep sections weigh more in their chapter.
TermCounts PDFXMLEnhancer::inheritedFrequencies(const PDFSpecification::Entry &entry,
                                                std::size_t position)
{
    const std::vector<PDFEntryPtr> &sorted = sortedEntries();
    const std::size_t depth = entry.index().size();
    std::size_t end = position + 1;
    while (end < sorted.size() && sorted[end]->index().size() != depth)
        ++end;
    // From the back, so that what a section inherits is known before it is asked for, and the
    // recursion stays as shallow as the numbering is deep.
    std::vector<std::optional<TermCounts>> below(end - position);
    for (std::size_t index = end - 1; index > position; --index) {
        if (sorted[index]->type() == Type::Section)
            below[index - position] = computeWordFrequencies(sorted[index], index);
    }
    TermCounts total;
    for (const auto &counts : below) {
        if (counts)
            total.add(*counts);
    }
    return total;
}

TermCounts PDFXMLEnhancer::ownFrequencies(const PDFSpecification::Entry &entry, const QString &text)
{
    TermCounts counts =
        computeWordFrequencies(entry.title() + paragraphBreak + termCounter().healed(text));
    m_totalFrequencies.add(counts);
    counts.add(computeWordFrequencies(associatedTitles(entry)), associatedEntryTitleWeight());
    return counts;
}

/// The entry's title and those of the sections and chapters above and below it.
QString PDFXMLEnhancer::associatedTitles(const PDFSpecification::Entry &entry)
{
    if (!m_associatedEntries)
        m_associatedEntries = std::make_unique<AssociatedEntries>(entries());
    QString titles = entry.title();
    for (const EntryPtr &associated : m_associatedEntries->of(entry.index()))
        titles += paragraphBreak + associated->title();
    return titles;
}

TermCounts PDFXMLEnhancer::computeWordFrequencies(const QString &text)
{
    return termCounter().count(text);
}

TermCounter &PDFXMLEnhancer::termCounter()
{
    if (!m_termCounter) {
        m_termCounter = std::make_unique<TermCounter>(TermCounter::Rules{
            stopWords(), terminatorCharacters(), m_keywordClasses, m_phraseClasses});
    }
    return *m_termCounter;
}

void PDFXMLEnhancer::assignKeywords()
{
    for (auto counts = m_wordFrequencies.cbegin(); counts != m_wordFrequencies.cend(); ++counts) {
        const EntryPtr entry = entries().value(counts.key());
        if (!entry)
            continue;
        const auto keywords =
            rankKeywords(counts.value(), totalFrequencies(), entry->title(), maxKeywordCount());
        QStringList texts;
        for (const WeightedKeyword &keyword : keywords)
            texts.append(keyword.text);
        entry->setKeywords(texts);
        if (const auto node = std::dynamic_pointer_cast<EntryGraphNode>(entry))
            node->setWeightedKeywords(keywords);
    }
}

} // namespace Tavrin
