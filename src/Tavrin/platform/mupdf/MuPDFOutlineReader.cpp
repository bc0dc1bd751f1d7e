// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/mupdf/MuPDFOutlineReader.h>

#include <QSet>

namespace Tavrin::MuPDFOutlineReader
{

namespace
{

/// What one item of the file says.
struct RawItem {
    const char *title = nullptr;
    pdf_obj *destination = nullptr;
    pdf_obj *action = nullptr;
    pdf_obj *first = nullptr;
    pdf_obj *next = nullptr;
};

RawItem readRaw(const MuPDFSession &session, pdf_obj *object)
{
    RawItem item;
    session.run([object, &item](fz_context *context, pdf_document *) {
        const auto get = [context, object](pdf_obj *key) {
            return pdf_resolve_indirect_chain(context, pdf_dict_get(context, object, key));
        };
        item.first = get(PDF_NAME(First));
        item.next = get(PDF_NAME(Next));
        item.destination = get(PDF_NAME(Dest));
        item.action = get(PDF_NAME(A));
        pdf_obj *title = get(PDF_NAME(Title));
        if (pdf_is_string(context, title))
            item.title = pdf_to_text_string(context, title);
    });
    return item;
}

PDFOutlineItem item(const RawItem &raw, int depth, const MuPDFDestinations &destinations)
{
    PDFOutlineItem result;
    result.depth = depth;
    if (raw.title)
        result.label = QString::fromUtf8(raw.title);
    if (raw.destination)
        result.destination = destinations.resolve(raw.destination);
    if (raw.action)
        result.actionDestination = destinations.resolveAction(raw.action);
    return result;
}

pdf_obj *firstItem(const MuPDFSession &session)
{
    pdf_obj *first = nullptr;
    session.run([&first](fz_context *context, pdf_document *document) {
        pdf_obj *catalog = pdf_dict_get(context, pdf_trailer(context, document), PDF_NAME(Root));
        pdf_obj *outlines = pdf_dict_get(context, catalog, PDF_NAME(Outlines));
        first =
            pdf_resolve_indirect_chain(context, pdf_dict_get(context, outlines, PDF_NAME(First)));
    });
    return first;
}

} // namespace

std::vector<PDFOutlineItem> read(const MuPDFSession &session, const MuPDFDestinations &destinations)
{
    struct Pending {
        pdf_obj *object;
        int depth;
    };
    std::vector<PDFOutlineItem> items;
    QSet<const pdf_obj *> visited;
    std::vector<Pending> pending{{firstItem(session), 0}};
    while (!pending.empty()) {
        const auto [object, depth] = pending.back();
        pending.pop_back();
        if (!pdf_is_dict(session.context(), object) || visited.contains(object))
            continue;
        visited.insert(object);
        const RawItem raw = readRaw(session, object);
        items.push_back(item(raw, depth, destinations));
        // The sibling waits until all below this item is read.
        pending.push_back({raw.next, depth});
        pending.push_back({raw.first, depth + 1});
    }
    return items;
}

} // namespace Tavrin::MuPDFOutlineReader
