// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/mupdf/MuPDFAnnotationReader.h>

#include <Tavrin/platform/mupdf/MuPDFPageTree.h>

namespace Tavrin::MuPDFAnnotationReader
{

namespace
{

struct RawAnnotation {
    bool isDictionary = false;
    const char *type = "";
    const char *contents = nullptr;
    const char *uri = nullptr;
    fz_rect bounds = fz_empty_rect;
    pdf_obj *destination = nullptr;
    pdf_obj *action = nullptr;
};

RawAnnotation readRaw(const MuPDFSession &session, pdf_obj *annotations, int index)
{
    RawAnnotation raw;
    session.run([=, &raw](fz_context *context, pdf_document *) {
        pdf_obj *object = pdf_array_get(context, annotations, index);
        raw.isDictionary = pdf_is_dict(context, object) != 0;
        raw.type = pdf_to_name(context, pdf_dict_get(context, object, PDF_NAME(Subtype)));
        raw.bounds = pdf_to_rect(context, pdf_dict_get(context, object, PDF_NAME(Rect)));
        raw.destination = pdf_dict_get(context, object, PDF_NAME(Dest));
        raw.action = pdf_dict_get(context, object, PDF_NAME(A));
        pdf_obj *contents = pdf_dict_get(context, object, PDF_NAME(Contents));
        if (pdf_is_string(context, contents))
            raw.contents = pdf_to_text_string(context, contents);
        pdf_obj *uri = pdf_dict_get(context, raw.action, PDF_NAME(URI));
        if (pdf_is_string(context, uri))
            raw.uri = pdf_to_text_string(context, uri);
    });
    return raw;
}

PDFAnnotationRecord record(const RawAnnotation &raw, const MuPDFDestinations &destinations)
{
    PDFAnnotationRecord result;
    result.type = QString::fromUtf8(raw.type);
    result.bounds =
        Rect::fromCorners({raw.bounds.x0, raw.bounds.y0}, {raw.bounds.x1, raw.bounds.y1});
    result.contents = QString::fromUtf8(raw.contents);
    if (raw.destination)
        result.destination = destinations.resolve(raw.destination);
    else if (raw.action)
        result.destination = destinations.resolveAction(raw.action);
    if (raw.uri)
        result.url = QUrl(QString::fromUtf8(raw.uri));
    return result;
}

} // namespace

std::vector<PDFAnnotationRecord> read(const MuPDFSession &session,
                                      const MuPDFDestinations &destinations, int page)
{
    pdf_obj *object = MuPDFPageTree::pageObject(session, page);
    pdf_obj *annotations = nullptr;
    session.run([=, &annotations](fz_context *context, pdf_document *) {
        annotations =
            pdf_resolve_indirect_chain(context, pdf_dict_get(context, object, PDF_NAME(Annots)));
    });
    std::vector<PDFAnnotationRecord> result;
    const int count = pdf_array_len(session.context(), annotations);
    for (int index = 0; index < count; ++index) {
        const RawAnnotation raw = readRaw(session, annotations, index);
        if (raw.isDictionary)
            result.push_back(record(raw, destinations));
    }
    return result;
}

} // namespace Tavrin::MuPDFAnnotationReader
