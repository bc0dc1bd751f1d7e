// SPDX-License-Identifier: Apache-2.0
#include "TextFlow.h"

#include <QRegularExpression>

#include <sys/ioctl.h>
#include <unistd.h>

#include <cmath>
#include <utility>

#include <Tavrin/model/SpecURL.h>
#include <Tavrin/platform/StyledTextEditing.h>

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;

namespace
{

/// Code and tables of characters: their line ends are meant.
bool isFixedPitch(const TextFont &font)
{
    static const QRegularExpression names(u"courier|mono|typewriter|cmtt|lmtt|fixed|consol"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    return names.match(font.family).hasMatch();
}

bool beginsItem(const QString &line)
{
    static const QRegularExpression item(u"^\\s*([∙•▪◦–—]|\\(?([0-9]+|[a-z]|[ivx]+)[.)])\\s"_s);
    return item.match(line).hasMatch();
}

/// What a link leads to, in short.
QString linkTarget(const QString &link)
{
    const auto components = SpecURL::components(link);
    return components && !components->isEmpty() ? components->constFirst() : link;
}

void join(QString &paragraph, const QString &line)
{
    const bool isParted = paragraph.size() > 1 && paragraph.endsWith(u'-') &&
                          paragraph[paragraph.size() - 2].isLetter() && !line.isEmpty() &&
                          line.front().isLower();
    if (isParted)
        paragraph.chop(1);
    else if (!paragraph.isEmpty())
        paragraph += u' ';
    paragraph += line;
}

} // namespace

TextFlow::TextFlow(StyledText text, const std::optional<LineLocations> &lines)
    : m_text(std::move(text)), m_places(lines.value_or(LineLocations()))
{
}

QString TextFlow::marked(TextRange range) const
{
    QString result;
    m_text.enumerateLinks(range, [&](const QString *link, TextRange run, bool &) {
        const QString words = m_text.string().mid(run.location, run.length);
        result += words;
        // A link that runs on behind the line end is marked there.
        const bool runsOn =
            link && run.end() == range.end() && m_text.attributesAt(range.end() + 1).link == *link;
        if (link && !runsOn && !words.trimmed().isEmpty())
            result += u" [→ "_s + linkTarget(*link) + u']';
    });
    return result;
}

std::vector<TextFlow::Line> TextFlow::readLines() const
{
    std::vector<Line> lines;
    TextRange range;
    const QString &string = m_text.string();
    for (; range.location < string.size(); range.location = range.end() + 1) {
        const qsizetype end = string.indexOf(u'\n', range.location);
        range.length = (end < 0 ? string.size() : end) - range.location;
        const auto font = StyledTextEditing::primaryFont(m_text, range);
        Line line{marked(range), std::nullopt, font && isFixedPitch(*font)};
        if (lines.size() < m_places.size())
            line.place = m_places[lines.size()];
        lines.push_back(std::move(line));
    }
    return lines;
}

bool TextFlow::startsParagraph(const Line &before, const Line &line, bool isSecond)
{
    if (!before.place || !line.place || line.isFixed || before.isFixed || beginsItem(line.text))
        return true;
    const Rect &above = before.place->bounds;
    const Rect &rect = line.place->bounds;
    const bool isIndented = rect.minX() > above.minX() + 3;
    if (before.place->page != line.place->page || rect.minY() > above.maxY())
        return before.text.endsWith(u'.') && isIndented;
    const bool isSameRow = rect.center().y > above.minY();
    if (isSameRow)
        return false;
    const bool isFarBelow = above.minY() - rect.maxY() > 0.5 * rect.size.height;
    const bool isOutdented = rect.minX() < above.minX() - 3 && !isSecond;
    return isFarBelow || isIndented || isOutdented;
}

QStringList TextFlow::paragraphs() const
{
    QStringList paragraphs;
    int linesSoFar = 0;
    const std::vector<Line> lines = readLines();
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i == 0 || startsParagraph(lines[i - 1], lines[i], linesSoFar == 1)) {
            paragraphs += lines[i].text;
            linesSoFar = 1;
        } else {
            join(paragraphs.back(), lines[i].text);
            ++linesSoFar;
        }
    }
    return paragraphs;
}

QStringList TextFlow::wrapped(const QString &paragraph, int width)
{
    QStringList lines;
    QString line;
    for (const QString &word : paragraph.split(u' ')) {
        if (!line.isEmpty() && line.size() + 1 + word.size() > width) {
            lines += line;
            line.clear();
        }
        if (!line.isEmpty())
            line += u' ';
        line += word;
    }
    lines += line;
    return lines;
}

int terminalWidth()
{
    winsize size{};
    const bool isKnown = ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return isKnown ? size.ws_col : 80;
}

} // namespace Tavrin::Cli
