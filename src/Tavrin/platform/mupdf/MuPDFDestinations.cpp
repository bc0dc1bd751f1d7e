// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/mupdf/MuPDFDestinations.h>

#include <Tavrin/platform/mupdf/MuPDFPageTree.h>

#include <QSet>

#include <cmath>
#include <cstring>

namespace Tavrin
{

MuPDFDestinations::MuPDFDestinations(const MuPDFSession &session, int pageCount)
    : m_session(session)
{
    indexPages(pageCount);
    indexNames();
}

void MuPDFDestinations::indexPages(int pageCount)
{
    m_pages.reserve(static_cast<std::size_t>(pageCount));
    for (int page = 0; page < pageCount; ++page) {
        m_pages.push_back(MuPDFPageTree::geometry(m_session, page).value_or(PageGeometry()));
        pdf_obj *object = MuPDFPageTree::pageObject(m_session, page);
        const pdf_obj *identity = pdf_resolve_indirect_chain(m_session.context(), object);
        if (identity && !m_pageIndexes.contains(identity))
            m_pageIndexes.insert(identity, page);
    }
}

pdf_obj *MuPDFDestinations::get(pdf_obj *dictionary, const char *key) const
{
    pdf_obj *value = nullptr;
    m_session.run([=, &value](fz_context *context, pdf_document *) {
        value = pdf_resolve_indirect_chain(context, pdf_dict_gets(context, dictionary, key));
    });
    return value;
}

void MuPDFDestinations::indexNames()
{
    fz_context *context = m_session.context();
    pdf_obj *trailer = pdf_trailer(context, m_session.document());
    pdf_obj *catalog = get(trailer, "Root");
    if (pdf_obj *plain = get(catalog, "Dests"); pdf_is_dict(context, plain))
        readPlainDictionary(plain);
    if (pdf_obj *tree = get(get(catalog, "Names"), "Dests"); pdf_is_dict(context, tree))
        readNameTree(tree);
}

void MuPDFDestinations::readPlainDictionary(pdf_obj *dictionary)
{
    fz_context *context = m_session.context();
    const int count = pdf_dict_len(context, dictionary);
    for (int index = 0; index < count; ++index) {
        m_names.insert(pdf_to_name(context, pdf_dict_get_key(context, dictionary, index)),
                       pdf_dict_get_val(context, dictionary, index));
    }
}

void MuPDFDestinations::readNameTree(pdf_obj *root)
{
    fz_context *context = m_session.context();
    QSet<const pdf_obj *> visited;
    std::vector<pdf_obj *> pending{root};
    while (!pending.empty()) {
        pdf_obj *node = pending.back();
        pending.pop_back();
        if (!node || visited.contains(node))
            continue;
        visited.insert(node);
        pdf_obj *kids = get(node, "Kids");
        for (int index = pdf_array_len(context, kids); index-- > 0;) {
            pdf_obj *kid = nullptr;
            m_session.run([=, &kid](fz_context *c, pdf_document *) {
                kid = pdf_resolve_indirect_chain(c, pdf_array_get(c, kids, index));
            });
            pending.push_back(kid);
        }
        readNames(get(node, "Names"));
    }
}

void MuPDFDestinations::readNames(pdf_obj *names)
{
    fz_context *context = m_session.context();
    const int count = pdf_array_len(context, names);
    for (int index = 0; index + 1 < count; index += 2) {
        const char *bytes = nullptr;
        size_t size = 0;
        pdf_obj *value = nullptr;
        m_session.run([=, &bytes, &size, &value](fz_context *c, pdf_document *) {
            bytes = pdf_to_string(c, pdf_array_get(c, names, index), &size);
            value = pdf_array_get(c, names, index + 1);
        });
        if (bytes && value)
            m_names.insert(QByteArray(bytes, static_cast<qsizetype>(size)), value);
    }
}

std::optional<PDFPlace> MuPDFDestinations::resolve(pdf_obj *destination) const
{
    fz_context *context = m_session.context();
    pdf_obj *object = nullptr;
    m_session.run([=, &object](fz_context *c, pdf_document *) {
        object = pdf_resolve_indirect_chain(c, destination);
    });
    if (pdf_is_name(context, object) || pdf_is_string(context, object)) {
        size_t size = 0;
        const char *bytes = pdf_is_name(context, object) ? pdf_to_name(context, object)
                                                         : pdf_to_string(context, object, &size);
        if (pdf_is_name(context, object))
            size = std::strlen(bytes);
        const auto named = m_names.constFind(QByteArray(bytes, static_cast<qsizetype>(size)));
        object = named == m_names.constEnd() ? nullptr : *named;
    }
    if (pdf_is_dict(context, object))
        object = get(object, "D");
    return explicitPlace(object);
}

std::optional<PDFPlace> MuPDFDestinations::resolveAction(pdf_obj *action) const
{
    fz_context *context = m_session.context();
    pdf_obj *kind = get(action, "S");
    const bool isGoTo =
        pdf_is_name(context, kind) && std::strcmp(pdf_to_name(context, kind), "GoTo") == 0;
    return isGoTo ? resolve(get(action, "D")) : std::nullopt;
}

std::optional<PDFPlace> MuPDFDestinations::explicitPlace(pdf_obj *array) const
{
    fz_context *context = m_session.context();
    if (!pdf_is_array(context, array) || pdf_array_len(context, array) == 0)
        return std::nullopt;
    pdf_obj *target = nullptr;
    const char *mode = "";
    float numbers[4];
    m_session.run([=, &target, &mode, &numbers](fz_context *c, pdf_document *) {
        target = pdf_resolve_indirect_chain(c, pdf_array_get(c, array, 0));
        mode = pdf_to_name(c, pdf_array_get(c, array, 1));
        for (int index = 0; index < 4; ++index) {
            pdf_obj *number = pdf_array_get(c, array, index + 2);
            numbers[index] = pdf_is_number(c, number) ? pdf_to_real(c, number) : NAN;
        }
    });
    const int page =
        pdf_is_int(context, target) ? pdf_to_int(context, target) : m_pageIndexes.value(target, -1);
    if (page < 0 || static_cast<std::size_t>(page) >= m_pages.size())
        return std::nullopt;
    const QByteArray name(mode);
    const bool isBox = name == "FitR";
    const int left = name == "XYZ" || name == "FitV" || name == "FitBV" || isBox ? 0 : -1;
    const int top = name == "XYZ" ? 1 : name == "FitH" || name == "FitBH" ? 0 : isBox ? 3 : -1;
    const Rect &box = m_pages[static_cast<std::size_t>(page)].cropBox;
    const auto coordinate = [&numbers](int index, double missing) {
        const bool isGiven = index >= 0 && std::isfinite(numbers[index]);
        return isGiven ? static_cast<double>(numbers[index]) : missing;
    };
    return PDFPlace{page, {coordinate(left, box.minX()), coordinate(top, box.maxY())}};
}

} // namespace Tavrin
