// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/StyledText.h>

#include <algorithm>
#include <utility>

namespace Tavrin
{

namespace
{

/// A run by its end alone: its start is the end of the one before.
struct Stretch {
    qsizetype end = 0;
    TextAttributes attributes;
    friend bool operator==(const Stretch &, const Stretch &) = default;
};
using Stretches = std::vector<Stretch>;

/// Puts a stretch behind others, merged with the last if it looks the same.
void push(Stretches &stretches, qsizetype end, const TextAttributes &attributes)
{
    const qsizetype start = stretches.empty() ? 0 : stretches.back().end;
    if (end <= start)
        return;
    if (!stretches.empty() && stretches.back().attributes == attributes)
        stretches.back().end = end;
    else
        stretches.push_back({end, attributes});
}

} // namespace

class StyledText::Data : public QSharedData
{
public:
    QString string;
    Stretches stretches;

    TextRange clamped(TextRange range) const
    {
        const qsizetype from = std::clamp<qsizetype>(range.location, 0, string.size());
        const qsizetype length = std::clamp<qsizetype>(range.length, 0, string.size() - from);
        return {from, length};
    }

    /// The stretch that holds a character.
    Stretches::const_iterator at(qsizetype index) const
    {
        return std::upper_bound(stretches.begin(), stretches.end(), index,
                                [](qsizetype i, const Stretch &s) { return i < s.end; });
    }

    /// Calls back for the part of each stretch that lies inside the range, until told to stop.
    template <class Callback>
    void forEach(TextRange range, Callback callback) const
    {
        const TextRange inside = clamped(range);
        qsizetype from = inside.location;
        for (auto it = at(from); it != stretches.end() && from < inside.end(); ++it) {
            const qsizetype to = std::min(it->end, inside.end());
            if (!callback(it->attributes, TextRange{from, to - from}))
                return;
            from = to;
        }
    }

    /// Rewrites the attributes of a range, splitting and merging stretches as needed.
    template <class Change>
    void change(TextRange range, Change apply)
    {
        const TextRange inside = clamped(range);
        if (inside.length == 0)
            return;
        Stretches result;
        result.reserve(stretches.size() + 2);
        const auto copy = [&result](const TextAttributes &attributes, TextRange part) {
            push(result, part.end(), attributes);
            return true;
        };
        forEach({0, inside.location}, copy);
        forEach(inside, [&](TextAttributes attributes, TextRange part) {
            apply(attributes);
            return copy(attributes, part);
        });
        forEach({inside.end(), string.size() - inside.end()}, copy);
        stretches = std::move(result);
    }

    /// Merges the parts of adjacent stretches that `member` makes equal.
    template <class Value, class Callback>
    void enumerate(TextRange range, std::optional<Value> TextAttributes::*member,
                   const Callback &callback) const
    {
        const std::optional<Value> *value = nullptr;
        TextRange pending;
        bool stop = false;
        const auto flush = [&] {
            if (value)
                callback(*value ? &**value : nullptr, pending, stop);
            return !stop;
        };
        forEach(range, [&](const TextAttributes &attributes, TextRange part) {
            if (value && *value == attributes.*member) {
                pending.length += part.length;
                return true;
            }
            const bool goOn = flush();
            value = &(attributes.*member);
            pending = part;
            return goOn;
        });
        if (!stop)
            flush();
    }
};

StyledText::StyledText() : d(new Data) {}

StyledText::StyledText(const QString &string, const TextAttributes &attributes) : d(new Data)
{
    append(string, attributes);
}

StyledText::StyledText(const StyledText &) = default;
StyledText::StyledText(StyledText &&) noexcept = default;
StyledText &StyledText::operator=(const StyledText &) = default;
StyledText &StyledText::operator=(StyledText &&) noexcept = default;
StyledText::~StyledText() = default;

const QString &StyledText::string() const
{
    return d->string;
}

qsizetype StyledText::length() const
{
    return d->string.size();
}

std::vector<StyledText::Run> StyledText::runs() const
{
    std::vector<Run> result;
    result.reserve(d->stretches.size());
    qsizetype start = 0;
    for (const Stretch &stretch : d->stretches) {
        result.push_back({{start, stretch.end - start}, stretch.attributes});
        start = stretch.end;
    }
    return result;
}

const TextAttributes &StyledText::attributesAt(qsizetype index) const
{
    static const TextAttributes none;
    const auto it = index < 0 ? d->stretches.end() : d->at(index);
    return it == d->stretches.end() ? none : it->attributes;
}

StyledText StyledText::attributedSubstring(TextRange range) const
{
    const TextRange inside = d->clamped(range);
    StyledText result;
    result.d->string = d->string.mid(inside.location, inside.length);
    Stretches &stretches = result.d->stretches;
    d->forEach(inside, [&](const TextAttributes &attributes, TextRange part) {
        push(stretches, part.end() - inside.location, attributes);
        return true;
    });
    return result;
}

void StyledText::enumerateFonts(
    TextRange range, const std::function<void(const TextFont *, TextRange, bool &)> &callback) const
{
    d->enumerate(range, &TextAttributes::font, callback);
}

void StyledText::enumerateLinks(
    TextRange range, const std::function<void(const QString *, TextRange, bool &)> &callback) const
{
    d->enumerate(range, &TextAttributes::link, callback);
}

void StyledText::setFont(const TextFont &font, TextRange range)
{
    d->change(range, [&font](TextAttributes &attributes) { attributes.font = font; });
}

void StyledText::setForegroundColor(QRgb color, TextRange range)
{
    d->change(range, [color](TextAttributes &attributes) { attributes.foregroundColor = color; });
}

void StyledText::setLink(const QString &link, TextRange range)
{
    d->change(range, [&link](TextAttributes &attributes) { attributes.link = link; });
}

void StyledText::setAttachment(const QVariant &attachment, TextRange range)
{
    d->change(range, [&](TextAttributes &attributes) { attributes.attachment = attachment; });
}

void StyledText::setAttributes(const TextAttributes &attributes, TextRange range)
{
    d->change(range, [&attributes](TextAttributes &old) { old = attributes; });
}

void StyledText::deleteCharacters(TextRange range)
{
    replaceCharacters(range, {});
}

void StyledText::replaceCharacters(TextRange range, const StyledText &replacement)
{
    const TextRange inside = d->clamped(range);
    StyledText result = attributedSubstring({0, inside.location});
    result.append(replacement);
    result.append(attributedSubstring({inside.end(), length() - inside.end()}));
    *this = std::move(result);
}

void StyledText::append(const StyledText &text)
{
    // A copy keeps the runs alive when a text is appended to itself.
    const QSharedDataPointer<Data> other = text.d;
    const qsizetype offset = length();
    d->string += other->string;
    for (const Stretch &stretch : other->stretches)
        push(d->stretches, offset + stretch.end, stretch.attributes);
}

void StyledText::append(const QString &text, const TextAttributes &attributes)
{
    d->string += text;
    push(d->stretches, d->string.size(), attributes);
}

bool operator==(const StyledText &a, const StyledText &b)
{
    return a.d == b.d || (a.d->string == b.d->string && a.d->stretches == b.d->stretches);
}

} // namespace Tavrin
