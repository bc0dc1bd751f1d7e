// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/CaptionFinder.h>

#include <Tavrin/pdfspec/TitleMatcher.h>

#include <QRegularExpression>

#include <utility>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// How many lines a title may be broken over.
constexpr std::size_t longestTitle = 6;

const QRegularExpression &figureWord()
{
    static const QRegularExpression word(u"^\\s*(figure|fig\\.?|abbildung|image)\\b[\\s.]*"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    return word;
}

const QRegularExpression &tableWord()
{
    static const QRegularExpression word(u"^\\s*(table|tab\\.?|tabelle)\\b[\\s.]*"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    return word;
}

} // namespace

bool mayBeCaption(const QString &line)
{
    return figureWord().match(line).hasMatch() || tableWord().match(line).hasMatch();
}

bool beginsLikeCaption(const QString &line, const SpecificationEntry &entry)
{
    const bool isTable = entry.type() == SpecificationEntryType::Table;
    const auto match = (isTable ? tableWord() : figureWord()).match(line);
    if (!match.hasMatch())
        return false;
    // The printed number can count otherwise than the map's, but there must be one.
    const QStringView rest = QStringView(line).mid(match.capturedEnd());
    return entry.index().empty() || (!rest.isEmpty() && rest.front().isLetterOrNumber());
}

CaptionFinder::CaptionFinder(const PDFSpecification &specification, const HostPDFPage &page,
                             const PageLines &lines)
    : m_specification(specification), m_page(page), m_lines(lines)
{
}

std::optional<CaptionFinder::Caption> CaptionFinder::find(const PDFSpecification::Entry &entry,
                                                          double top) const
{
    std::optional<Caption> found;
    std::size_t titleEnd = 0;
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        if (m_lines[i].bounds.maxY() > top)
            continue;
        const bool isCertain = beginsLikeCaption(m_lines.string(m_lines[i]), entry);
        if (!isCertain && found && i > titleEnd)
            continue;
        const std::vector<std::size_t> title = titleLines(entry, i);
        if (title.empty())
            continue;
        // Of several lines in front of one and the same title, the last begins the caption.
        titleEnd = title.back();
        found = caption(title);
        found->isCertain = isCertain;
        if (isCertain)
            break;
    }
    return found;
}

std::vector<std::size_t> CaptionFinder::titleLines(const PDFSpecification::Entry &entry,
                                                   std::size_t first) const
{
    const TitleMatcher title(entry.title());
    std::vector<std::size_t> lines{first};
    QString text = m_lines.string(m_lines[first]);
    for (;;) {
        // Where print and map differ in quotes or hyphens, the specification is asked about the
        // map's spelling.
        const QString &asked = title.isIn(text) ? entry.title() : text;
        if (m_specification.isLineStartOfLayoutBreak(asked, m_lines[first].start, entry, m_page))
            return lines;
        const bool isLongEnough = text.size() > 3 * entry.title().size() + 200;
        const auto next = following(lines.back(), m_lines[lines.back()].bounds.size.height);
        if (isLongEnough || lines.size() >= longestTitle || !next)
            return {};
        lines.push_back(*next);
        text += u' ' + m_lines.string(m_lines[*next]);
    }
}

CaptionFinder::Caption CaptionFinder::caption(std::vector<std::size_t> lines) const
{
    Caption caption{std::move(lines), Rect::null(), false};
    // A caption can say more than the title; its lines stand at the caption's own leading.
    const PageLine &title = m_lines[caption.lines.back()];
    for (auto next = following(caption.lines.back(), title.bounds.size.height / 2);
         next && m_lines[*next].font == title.font;
         next = following(*next, m_lines[*next].bounds.size.height / 2))
        caption.lines.push_back(*next);
    for (const std::size_t index : caption.lines)
        caption.bounds = caption.bounds.united(m_lines[index].bounds);
    return caption;
}

std::optional<std::size_t> CaptionFinder::following(std::size_t index, double distance) const
{
    const auto next = m_lines.next(index);
    const bool isNear =
        next && m_lines[*next].bounds.maxY() >= m_lines[index].bounds.minY() - distance;
    return isNear ? next : std::nullopt;
}

} // namespace Tavrin
