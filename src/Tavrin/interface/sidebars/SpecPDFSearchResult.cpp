// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/sidebars/SpecPDFSearchResult.h>

#include <Tavrin/platform/CharacterSet.h>

#include <algorithm>
#include <utility>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

QString firstLine(const QString &text)
{
    const auto end = std::find_if(text.begin(), text.end(), CharacterSet::isNewline);
    return text.left(end - text.begin());
}

/// Of an entry that is computed.
QString description(const PDFSpecification::Entry &entry)
{
    if (!isTextual(entry.type()))
        return {};
    const auto summary = entry.summaryText();
    return summary ? firstLine(summary->string()) : u"--"_s;
}

} // namespace

SpecPDFSearchResult::SpecPDFSearchResult(std::shared_ptr<Entry> entry) : m_entry(std::move(entry))
{
    updateDescription();
}

void SpecPDFSearchResult::updateDescription()
{
    // Nothing is computed here: the reader is typing.
    m_isDescribed = !m_entry->needsComputeDisplay();
    m_descriptionText = m_isDescribed ? description(*m_entry) : QString();
}

} // namespace Tavrin
