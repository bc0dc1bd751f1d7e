// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/StyledTextEditing.h>

#include <Tavrin/platform/LineTrimmingError.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace Tavrin::StyledTextEditing
{

namespace
{

TextRange whole(const StyledText &text)
{
    return {0, text.length()};
}

TextFont replaced(const TextFont &old, const TextFont &oldPrimary, const TextFont &font)
{
    TextFont result = old;
    result.pointSize = old.pointSize * font.pointSize / oldPrimary.pointSize;
    if (old.family == oldPrimary.family)
        result.family = font.family;
    return result;
}

} // namespace

std::optional<TextFont> primaryFont(const StyledText &text, std::optional<TextRange> range)
{
    std::vector<std::pair<TextFont, qsizetype>> counts;
    text.enumerateFonts(range.value_or(whole(text)), [&](const TextFont *font, TextRange run,
                                                         bool &) {
        if (!font)
            return;
        const auto it = std::find_if(counts.begin(), counts.end(),
                                     [font](const auto &count) { return count.first == *font; });
        if (it == counts.end())
            counts.emplace_back(*font, run.length);
        else
            it->second += run.length;
    });
    const auto most =
        std::max_element(counts.begin(), counts.end(),
                         [](const auto &a, const auto &b) { return a.second < b.second; });
    return most == counts.end() ? std::nullopt : std::optional(most->first);
}

void setPrimaryFont(StyledText &text, const TextFont &font, std::optional<TextRange> range)
{
    const TextRange part = range.value_or(whole(text));
    const auto oldPrimary = primaryFont(text, part);
    if (!oldPrimary || oldPrimary->pointSize <= 0)
        return;
    StyledText result = text.attributedSubstring({0, part.location});
    const StyledText old = text.attributedSubstring(part);
    for (StyledText::Run run : old.runs()) {
        if (run.attributes.font)
            run.attributes.font = replaced(*run.attributes.font, *oldPrimary, font);
        result.append(old.string().mid(run.range.location, run.range.length), run.attributes);
    }
    result.append(text.attributedSubstring({part.end(), text.length() - part.end()}));
    text = std::move(result);
}

void trimCharacters(StyledText &text, bool (*isInSet)(QChar))
{
    const QString &string = text.string();
    const auto kept = [isInSet](QChar c) { return !isInSet(c); };
    const auto last = std::find_if(string.rbegin(), string.rend(), kept).base();
    const auto first = std::find_if(string.begin(), last, kept);
    text = text.attributedSubstring({first - string.begin(), last - first});
}

void trimToLines(StyledText &text, LineRange range)
{
    const QStringList lines = text.string().split(u'\n');
    if (range.lower < 0 || range.upper > lines.size())
        throw LineTrimmingError();
    // A kept line keeps the line feed behind it; a dropped one takes its own along.
    StyledText result;
    qsizetype position = 0;
    for (qsizetype index = 0; index < lines.size(); ++index) {
        const qsizetype length = lines[index].size() + 1;
        if (index >= range.lower && index < range.upper)
            result.append(text.attributedSubstring({position, length}));
        position += length;
    }
    text = std::move(result);
}

} // namespace Tavrin::StyledTextEditing
