// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/mupdf/MuPDFPageLabels.h>

#include <QSet>

#include <algorithm>
#include <array>
#include <iterator>
#include <limits>
#include <utility>
#include <vector>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// Longer than any printed number; keeps a hostile count from growing a text without end.
constexpr int largestNumber = 5000;

QString roman(int number)
{
    static constexpr std::array<std::pair<int, const char *>, 13> digits{{{1000, "m"},
                                                                          {900, "cm"},
                                                                          {500, "d"},
                                                                          {400, "cd"},
                                                                          {100, "c"},
                                                                          {90, "xc"},
                                                                          {50, "l"},
                                                                          {40, "xl"},
                                                                          {10, "x"},
                                                                          {9, "ix"},
                                                                          {5, "v"},
                                                                          {4, "iv"},
                                                                          {1, "i"}}};
    QString text;
    for (const auto &[value, letters] : digits) {
        for (; number >= value; number -= value)
            text += QLatin1String(letters);
    }
    return text;
}

/// a to z, then aa to zz, and so on.
QString letters(int number)
{
    const QChar letter(u'a' + (number - 1) % 26);
    return QString((number - 1) / 26 + 1, letter);
}

QString numeral(char style, int number)
{
    if (style == 'D' || number < 1 || number > largestNumber)
        return style ? QString::number(number) : QString();
    switch (style) {
    case 'r':
        return roman(number);
    case 'R':
        return roman(number).toUpper();
    case 'a':
        return letters(number);
    case 'A':
        return letters(number).toUpper();
    default:
        return {};
    }
}

pdf_obj *get(const MuPDFSession &session, pdf_obj *dictionary, const char *key)
{
    pdf_obj *value = nullptr;
    session.run([=, &value](fz_context *context, pdf_document *) {
        value = pdf_resolve_indirect_chain(context, pdf_dict_gets(context, dictionary, key));
    });
    return value;
}

pdf_obj *get(const MuPDFSession &session, pdf_obj *array, int index)
{
    pdf_obj *value = nullptr;
    session.run([=, &value](fz_context *context, pdf_document *) {
        value = pdf_resolve_indirect_chain(context, pdf_array_get(context, array, index));
    });
    return value;
}

} // namespace

MuPDFPageLabels::MuPDFPageLabels(const MuPDFSession &session)
{
    fz_context *context = session.context();
    pdf_obj *catalog = get(session, pdf_trailer(context, session.document()), "Root");
    QSet<const pdf_obj *> visited;
    std::vector<pdf_obj *> pending{get(session, catalog, "PageLabels")};
    while (!pending.empty()) {
        pdf_obj *node = pending.back();
        pending.pop_back();
        if (!node || visited.contains(node))
            continue;
        visited.insert(node);
        readNode(session, node);
        pdf_obj *kids = get(session, node, "Kids");
        for (int index = 0; index < pdf_array_len(context, kids); ++index)
            pending.push_back(get(session, kids, index));
    }
}

void MuPDFPageLabels::readNode(const MuPDFSession &session, pdf_obj *node)
{
    fz_context *context = session.context();
    pdf_obj *numbers = get(session, node, "Nums");
    for (int index = 0; index + 1 < pdf_array_len(context, numbers); index += 2) {
        pdf_obj *values = get(session, numbers, index + 1);
        Range range;
        range.style = *pdf_to_name(context, get(session, values, "S"));
        if (pdf_obj *first = get(session, values, "St"); pdf_is_int(context, first))
            range.first = pdf_to_int(context, first);
        if (pdf_obj *prefix = get(session, values, "P"); pdf_is_string(context, prefix)) {
            const char *text = nullptr;
            session.run([=, &text](fz_context *c, pdf_document *) {
                text = pdf_to_text_string(c, prefix);
            });
            range.prefix = QString::fromUtf8(text);
        }
        m_ranges.insert_or_assign(pdf_to_int(context, get(session, numbers, index)), range);
    }
}

std::optional<QString> MuPDFPageLabels::label(int page) const
{
    const auto after = m_ranges.upper_bound(page);
    if (after == m_ranges.begin())
        return std::nullopt;
    const auto &[start, range] = *std::prev(after);
    const qint64 number = qint64(range.first) + page - start;
    constexpr qint64 largest = std::numeric_limits<int>::max();
    return range.prefix +
           numeral(range.style, static_cast<int>(std::clamp<qint64>(number, 0, largest)));
}

} // namespace Tavrin
