// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <mupdf/fitz.h>
#include <mupdf/pdf.h>

#include <QString>

namespace Tavrin::Benchmarks
{

/// A document opened with the engine alone: what the floors are measured with. Made for sound
/// files; the engine's failures are not caught.
class BareEngine
{
public:
    explicit BareEngine(const QString &path)
        : context(fz_new_context(nullptr, nullptr, FZ_STORE_DEFAULT)),
          document(pdf_open_document(context, path.toUtf8().constData()))
    {
    }
    ~BareEngine()
    {
        pdf_drop_document(context, document);
        fz_drop_context(context);
    }
    BareEngine(const BareEngine &) = delete;
    BareEngine &operator=(const BareEngine &) = delete;

    int pageCount() const { return pdf_count_pages(context, document); }

    /// The engine's own text of a page; to be dropped by whoever asks.
    fz_stext_page *structuredText(int index) const
    {
        pdf_page *page = pdf_load_page(context, document, index);
        fz_stext_page *text = fz_new_stext_page_from_page(context, &page->super, nullptr);
        fz_drop_page(context, &page->super);
        return text;
    }

    /// Finds the dictionary of every page; the number of pages.
    int readPageTree() const
    {
        int read = 0;
        for (int index = 0; index < pageCount(); ++index)
            read += pdf_lookup_page_obj(context, document, index) != nullptr;
        return read;
    }

    /// Page and coordinates of every named destination; how many have both.
    int readNames() const
    {
        pdf_obj *names = pdf_load_name_tree(context, document, PDF_NAME(Dests));
        int read = 0;
        for (int index = 0; index < pdf_dict_len(context, names); ++index) {
            pdf_obj *value = pdf_dict_get_val(context, names, index);
            pdf_obj *place =
                pdf_is_dict(context, value) ? pdf_dict_get(context, value, PDF_NAME(D)) : value;
            const float y = pdf_to_real(context, pdf_array_get(context, place, 3));
            read += pdf_is_dict(context, pdf_array_get(context, place, 0)) && y >= 0;
        }
        pdf_drop_obj(context, names);
        return read;
    }

    fz_context *context;
    pdf_document *document;
};

} // namespace Tavrin::Benchmarks
