// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/drafting/NumberResolver.h>

#include <Tavrin/drafting/TextKey.h>

#include <QSet>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace Tavrin
{

namespace
{

/// What stands before and behind the chapters, and is never counted among them.
bool isMatter(const QString &title)
{
    static const QSet<QString> names{
        u"contents"_s,         u"tableofcontents"_s, u"index"_s,           u"bibliography"_s,
        u"references"_s,       u"preface"_s,         u"foreword"_s,        u"abstract"_s,
        u"acknowledgements"_s, u"acknowledgments"_s, u"glossary"_s,        u"listoffigures"_s,
        u"listoftables"_s,     u"copyright"_s,       u"titlepage"_s,       u"cover"_s,
        u"dedication"_s,       u"revisionhistory"_s, u"colophon"_s,        u"inhaltsverzeichnis"_s,
        u"literatur"_s,        u"vorwort"_s,         u"tabledesmatières"_s};
    return names.contains(TextKey::fold(title));
}

bool isNext(const HeadingNumber &a, const HeadingNumber &b)
{
    const auto x = a.ranks();
    const auto y = b.ranks();
    return x.size() == y.size() && std::equal(x.begin(), x.end() - 1, y.begin()) &&
           x.back() + 1 == y.back();
}

bool isBelow(const HeadingNumber &child, const HeadingNumber &parent)
{
    return child.parts.size() == parent.parts.size() + 1 &&
           std::equal(parent.parts.begin(), parent.parts.end(), child.parts.begin());
}

/// Whether the number goes on from one that another heading has.
bool isBelowAny(const HeadingNumber &number, const QSet<QString> &known)
{
    return number.parts.size() > 1 &&
           known.contains(number.parts.mid(0, number.parts.size() - 1).join(QLatin1Char('.')));
}

HeadingNumber numberBelow(const DraftItem *parent, int position)
{
    HeadingNumber number;
    if (parent)
        number.parts = parent->number->parts;
    number.parts.append(QString::number(position));
    return number;
}

bool isDigits(const HeadingNumber &number)
{
    return number.parts.front().front().isDigit();
}

} // namespace

NumberResolver::NumberResolver(std::vector<DraftItem> &items) : m_items(items), m_groups(items) {}

void NumberResolver::forEachGroup(
    const std::function<void(const std::vector<int> &, const DraftItem *)> &visit)
{
    visit(m_groups.top(), nullptr);
    // Parents come before their children, so what was decided above is known below.
    for (size_t i = 0; i < m_items.size(); ++i) {
        if (!m_groups.children[i].empty())
            visit(m_groups.children[i], &m_items[i]);
    }
}

void NumberResolver::dropNumber(DraftItem &item) const
{
    item.number.reset();
    item.source = DraftItem::Source::None;
    item.title = item.label;
}

bool NumberResolver::isConfirmed(size_t index, const Neighbours &neighbours) const
{
    const auto &number = m_items[index].number;
    for (const int child : m_groups.children[index]) {
        const auto &below = m_items[static_cast<size_t>(child)].number;
        if (below && isBelow(*below, *number))
            return true;
    }
    const auto numberAt = [this](int i) {
        return i < 0 ? std::nullopt : m_items[static_cast<size_t>(i)].number;
    };
    const auto before = numberAt(neighbours.before[index]);
    const auto after = numberAt(neighbours.after[index]);
    return (before && isNext(*before, *number)) || (after && isNext(*number, *after));
}

NumberResolver::Neighbours NumberResolver::neighbours() const
{
    // On one level of the whole document: chapters count on from one part to the next.
    Neighbours result{std::vector<int>(m_items.size(), -1), std::vector<int>(m_items.size(), -1)};
    std::map<int, int> last;
    for (size_t i = 0; i < m_items.size(); ++i) {
        const auto [it, isFirst] = last.try_emplace(m_items[i].depth, -1);
        if (!isFirst) {
            result.before[i] = it->second;
            result.after[static_cast<size_t>(it->second)] = static_cast<int>(i);
        }
        it->second = static_cast<int>(i);
    }
    return result;
}

void NumberResolver::markRoman()
{
    forEachGroup([this](const std::vector<int> &siblings, const DraftItem *) {
        const auto isLong = [this](int i) {
            const auto &number = item(i).number;
            return number && number->parts.front().size() > 1 && !isDigits(*number);
        };
        if (std::none_of(siblings.begin(), siblings.end(), isLong))
            return;
        for (const int i : siblings) {
            auto &number = item(i).number;
            if (number && HeadingNumber::romanValue(number->parts.front()))
                number->isRoman = true;
        }
    });
}

void NumberResolver::dropFalseNumbers()
{
    markRoman();
    const Neighbours near = neighbours();
    QSet<QString> known;
    for (const DraftItem &entry : m_items) {
        if (entry.number)
            known.insert(entry.number->text());
    }
    std::vector<size_t> dropped;
    for (size_t i = 0; i < m_items.size(); ++i) {
        const auto &number = m_items[i].number;
        // A word in front, or several components that go on from another number, speak for
        // themselves.
        if (number && number->word == HeadingNumber::Word::None && !isBelowAny(*number, known) &&
            !isConfirmed(i, near))
            dropped.push_back(i);
    }
    for (const size_t index : dropped)
        dropNumber(m_items[index]);
    for (DraftItem &entry : m_items) {
        if (entry.number)
            entry.number->isAmbiguous = false;
    }
}

void NumberResolver::complete()
{
    markRoman();
    takeFromChildren();
    markParts();
    m_groups = SiblingGroups(m_items);
    completeNumbers();
    for (const DraftItem &entry : m_items) {
        const auto depth = static_cast<size_t>(entry.depth);
        if (depth >= m_numberedLevels.size())
            m_numberedLevels.resize(depth + 1);
        if (entry.number && !entry.isPart)
            m_numberedLevels[depth] = true;
    }
    forEachGroup([this](const std::vector<int> &siblings, const DraftItem *parent) {
        const auto isNumbered = [this](int i) { return item(i).number && !item(i).isPart; };
        if (std::any_of(siblings.begin(), siblings.end(), isNumbered))
            fillGaps(siblings);
        else if (!siblings.empty())
            count(siblings, parent);
    });
}

void NumberResolver::takeFromChildren()
{
    // From the end, so that what is concluded below can be concluded from above it.
    for (size_t i = m_items.size(); i-- > 0;) {
        DraftItem &entry = m_items[i];
        std::optional<HeadingNumber> prefix;
        int agreeing = 0;
        for (const int child : m_groups.children[i]) {
            const auto &number = item(child).number;
            if (!number || number->parts.size() < 2)
                continue;
            HeadingNumber above;
            above.parts = number->parts.mid(0, number->parts.size() - 1);
            if (prefix && prefix->parts != above.parts) {
                agreeing = 0;
                break;
            }
            prefix = above;
            ++agreeing;
        }
        const bool isMissing = !entry.number;
        if (agreeing == 0 || (!isMissing && (agreeing < 2 || entry.number->parts == prefix->parts)))
            continue;
        entry.number = prefix;
        entry.source = DraftItem::Source::Implied;
    }
}

void NumberResolver::markParts()
{
    bool inPart = false;
    for (size_t i = 0; i < m_items.size(); ++i) {
        DraftItem &entry = m_items[i];
        if (entry.depth == 0) {
            const auto &below = m_groups.children[i];
            const auto isChapter = [this](int child) {
                return item(child).number && item(child).number->parts.size() == 1 &&
                       isDigits(*item(child).number);
            };
            const bool holdsChapters = std::any_of(below.begin(), below.end(), isChapter);
            const bool saysPart = entry.number && entry.number->word == HeadingNumber::Word::Part;
            entry.isPart = saysPart || (holdsChapters && entry.number && !isDigits(*entry.number));
            inPart = entry.isPart && !below.empty();
        } else if (inPart) {
            --entry.depth;
        }
    }
}

void NumberResolver::completeNumbers()
{
    forEachGroup([this](const std::vector<int> &siblings, const DraftItem *parent) {
        for (const int i : siblings) {
            auto &number = item(i).number;
            if (!parent || !parent->number || parent->isPart || !number || number->parts.size() > 1)
                continue;
            number->parts = parent->number->parts + number->parts;
            number->isRoman = parent->number->isRoman;
        }
    });
}

void NumberResolver::fillGaps(const std::vector<int> &siblings)
{
    for (size_t i = 0; i + 1 < siblings.size(); ++i) {
        const auto number = item(siblings[i]).number;
        if (!number)
            continue;
        size_t next = i + 1;
        while (next < siblings.size() && !item(siblings[next]).number)
            ++next;
        if (next == i + 1 || next == siblings.size())
            continue;
        // Only where exactly so many numbers are missing as there are items without one.
        const auto from = number->ranks();
        const auto to = item(siblings[next]).number->ranks();
        if (from.size() != to.size() || to.back() - from.back() != static_cast<int>(next - i) ||
            !std::equal(from.begin(), from.end() - 1, to.begin()))
            continue;
        for (size_t k = i + 1; k < next && number->parts.back().front().isDigit(); ++k) {
            HeadingNumber missing = *number;
            missing.parts.back() = QString::number(from.back() + static_cast<int>(k - i));
            item(siblings[k]).number = missing;
            item(siblings[k]).source = DraftItem::Source::Implied;
        }
    }
}

bool NumberResolver::isLevelNumbered(int depth) const
{
    if (depth > 0)
        return m_numberedLevels[static_cast<size_t>(depth)];
    return std::find(m_numberedLevels.begin(), m_numberedLevels.end(), true) !=
           m_numberedLevels.end();
}

void NumberResolver::count(const std::vector<int> &siblings, const DraftItem *parent)
{
    if (isLevelNumbered(item(siblings.front()).depth) || (parent && !parent->number))
        return;
    int position = 0;
    for (const int index : siblings) {
        if (item(index).isPart || (!parent && isMatter(item(index).title)))
            continue;
        item(index).number = numberBelow(parent, ++position);
        item(index).source = DraftItem::Source::Counted;
        ++m_counted;
    }
}

} // namespace Tavrin
