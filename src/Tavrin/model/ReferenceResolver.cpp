// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/model/ReferenceResolver.h>

#include <Tavrin/model/Specification.h>

#include <QRegularExpression>

#include <algorithm>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// "4.2.1", "A.3", "3-7", "12": an optional letter, then numbers.
constexpr auto numberPattern =
    "(?:(?<![A-Za-z])[A-Za-z](?:(?:[.-]\\d+)+|(?![A-Za-z]))|\\d+(?:[.-]\\d+)*[a-z]?)";

const QRegularExpression &referenceExpression()
{
    static const QRegularExpression expression(
        u"^\\s*(?:(?<kind>§{1,2}|[A-Za-z]+\\.?)\\s*)?(?<numbers>%1(?:\\s*(?:,|;|&|-|–|—|and|or|to|"
        "through|until)\\s*%1)*)\\s*\\.?$"_s.arg(QLatin1String(numberPattern)),
        QRegularExpression::CaseInsensitiveOption);
    return expression;
}

const QRegularExpression &itemExpression()
{
    static const QRegularExpression expression(
        u"(?<number>%1)(?:\\s*(?:–|—|-|to|through|until)\\s*(?<last>%1))?"_s.arg(
            QLatin1String(numberPattern)),
        QRegularExpression::CaseInsensitiveOption);
    return expression;
}

std::size_t depth(const SpecificationEntry &entry)
{
    return entry.index().size();
}

} // namespace

ReferenceResolver::ReferenceResolver(const Specification &specification)
{
    for (const EntryPtr &entry : specification.entries())
        m_entries.push_back(entry);
    std::stable_sort(m_entries.begin(), m_entries.end(),
                     [](const EntryPtr &a, const EntryPtr &b) { return entryPrecedes(*a, *b); });
    // Labels first: the printed number of an appendix can be that of a chapter.
    for (const bool byLabel : {true, false}) {
        for (std::size_t position = 0; position < m_entries.size(); ++position) {
            const SpecificationEntry &entry = *m_entries[position];
            const QString type = textForm(entry.type());
            const QString number = byLabel ? entry.label() : entry.indexString().section(u' ', 1);
            if (!number.isEmpty())
                add(groupForWord(type), numberKey(number), position);
        }
    }
}

void ReferenceResolver::add(Group group, const QString &key, std::size_t position)
{
    auto &numbers = m_numbers[static_cast<int>(group) - 1];
    if (!numbers.contains(key))
        numbers.insert(key, position);
}

ReferenceResolver::Group ReferenceResolver::groupForWord(const QString &word)
{
    static const QHash<QString, Group> groups{
        {u""_s, Group::Any},
        {u"§"_s, Group::Textual},
        {u"§§"_s, Group::Textual},
        {u"section"_s, Group::Textual},
        {u"sec"_s, Group::Textual},
        {u"sect"_s, Group::Textual},
        {u"clause"_s, Group::Textual},
        {u"subclause"_s, Group::Textual},
        {u"cl"_s, Group::Textual},
        {u"subsection"_s, Group::Textual},
        {u"chapter"_s, Group::Textual},
        {u"chap"_s, Group::Textual},
        {u"ch"_s, Group::Textual},
        {u"appendix"_s, Group::Textual},
        {u"appendice"_s, Group::Textual},
        {u"app"_s, Group::Textual},
        {u"annex"_s, Group::Textual},
        {u"annexe"_s, Group::Textual},
        {u"figure"_s, Group::Figure},
        {u"fig"_s, Group::Figure},
        {u"table"_s, Group::Table},
        {u"tab"_s, Group::Table},
        {u"tbl"_s, Group::Table},
    };
    QString key = word.toLower();
    if (key.endsWith(u'.'))
        key.chop(1);
    if (!groups.contains(key) && key.endsWith(u's'))
        key.chop(1);
    if (const auto it = groups.constFind(key); it != groups.constEnd())
        return *it;
    // The words that the user is shown.
    using enum SpecificationEntryType;
    for (const SpecificationEntryType type : {Section, Chapter, Figure, Table}) {
        if (description(type).compare(word, Qt::CaseInsensitive) == 0)
            return groups[textForm(type)];
    }
    return Group::Any;
}

QString ReferenceResolver::numberKey(const QString &number)
{
    return number.toLower().replace(u'-', u'.');
}

ReferenceResolver::EntryPtr ReferenceResolver::entryFor(Group group, const QString &number) const
{
    const QString key = numberKey(number);
    for (const Group candidate : {Group::Textual, Group::Figure, Group::Table}) {
        if (group != Group::Any && group != candidate)
            continue;
        const auto &numbers = m_numbers[static_cast<int>(candidate) - 1];
        if (const auto it = numbers.constFind(key); it != numbers.constEnd())
            return m_entries[*it];
    }
    return nullptr;
}

std::vector<ReferenceResolver::EntryPtr>
ReferenceResolver::rangeFor(Group group, const QString &from, const QString &to) const
{
    const EntryPtr first = entryFor(group, from);
    const EntryPtr last = entryFor(group, to);
    if (!first || !last || depth(*first) != depth(*last) || entryPrecedes(*last, *first))
        return {};
    std::vector<EntryPtr> range;
    for (const EntryPtr &entry : m_entries) {
        const bool inside = !entryPrecedes(*entry, *first) && !entryPrecedes(*last, *entry);
        if (inside && depth(*entry) == depth(*first))
            range.push_back(entry);
    }
    return range;
}

std::vector<ReferenceResolver::EntryPtr> ReferenceResolver::entriesFor(Group group,
                                                                       const QString &number) const
{
    if (EntryPtr entry = entryFor(group, number))
        return {std::move(entry)};
    // "3-7" that is no number of its own is a range.
    if (number.count(u'-') == 1)
        return rangeFor(group, number.section(u'-', 0, 0), number.section(u'-', 1));
    return {};
}

std::vector<ReferenceResolver::Reference> ReferenceResolver::resolve(const QString &text) const
{
    const auto match = referenceExpression().match(text.left(1000));
    if (!match.hasMatch())
        return {};
    const QString word = match.captured(u"kind"_s);
    const Group group = groupForWord(word);
    if (group == Group::Any && !word.isEmpty())
        return {};
    std::vector<Reference> references;
    auto items = itemExpression().globalMatch(match.captured(u"numbers"_s));
    while (items.hasNext()) {
        const auto item = items.next();
        const QString last = item.captured(u"last"_s);
        const QString number = item.captured(u"number"_s);
        references.push_back(
            {(word + u' ' + item.captured()).trimmed(),
             last.isEmpty() ? entriesFor(group, number) : rangeFor(group, number, last)});
    }
    return references;
}

} // namespace Tavrin
