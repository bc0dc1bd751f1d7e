// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/enhance/LinkPairing.h>

#include <algorithm>
#include <deque>

#include <Tavrin/enhance/EntryOrder.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
#include <Tavrin/platform/StandardError.h>
#include <Tavrin/platform/TerminalStyle.h>

namespace Tavrin::LinkPairing
{

using namespace Qt::StringLiterals;

namespace
{

using Type = SpecificationEntryType;

/// Sections and chapters share their links.
Type bucket(Type type)
{
    return type == Type::Chapter ? Type::Section : type;
}

class Pairing
{
public:
    Pairing(const EntryTable &entries, const Markers &markers) : m_markers(markers)
    {
        for (const auto &any : entries) {
            if (const auto entry = std::dynamic_pointer_cast<PDFSpecification::Entry>(any))
                m_outstanding[bucket(entry->type())].push_back(entry);
        }
        for (auto &list : m_outstanding)
            sortByNumber(list);
    }

    void add(const QString &link)
    {
        const auto contained = [&link](const QString &marker) { return link.contains(marker); };
        if (!std::all_of(m_markers.required.begin(), m_markers.required.end(), contained) ||
            std::any_of(m_markers.ignored.begin(), m_markers.ignored.end(), contained))
            return;
        const auto type = typeOf(link);
        if (!type) {
            standardError(u"Invalid internal link: "_s + link);
            return;
        }
        auto &entries = m_outstanding[bucket(*type)];
        if (entries.empty()) {
            standardError(red(u"No current entry for "_s + description(bucket(*type))));
            return;
        }
        m_mapping.insert(entries.front()->label(), link);
        entries.pop_front();
    }

    PDFXMLEnhancer::LabelLinkMapping finish() const
    {
        const bool isOneToOne = std::all_of(m_outstanding.begin(), m_outstanding.end(),
                                            [](const auto &entries) { return entries.empty(); });
        if (!isOneToOne) {
            standardError(yellow(u"The mapping between internal links and entries wasn't "
                                 "one-to-one -- there may be some mismatched entries."_s));
        }
        return m_mapping;
    }

private:
    std::optional<Type> typeOf(const QString &link) const
    {
        for (auto marker = m_markers.types.begin(); marker != m_markers.types.end(); ++marker) {
            if (link.contains(marker.key()))
                return marker.value();
        }
        return std::nullopt;
    }

    const Markers &m_markers;
    QMap<Type, std::deque<std::shared_ptr<PDFSpecification::Entry>>> m_outstanding;
    PDFXMLEnhancer::LabelLinkMapping m_mapping;
};

} // namespace

PDFXMLEnhancer::LabelLinkMapping
pair(const EntryTable &entries,
     const std::vector<std::vector<PDFXMLEnhancer::NamedPlace>> &linksByPage,
     const Markers &markers)
{
    Pairing pairing(entries, markers);
    for (const auto &links : linksByPage) {
        for (const auto &[name, place] : links)
            pairing.add(name);
    }
    return pairing.finish();
}

} // namespace Tavrin::LinkPairing
