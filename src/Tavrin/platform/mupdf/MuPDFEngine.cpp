// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/mupdf/MuPDFEngine.h>

#include <Tavrin/platform/mupdf/MuPDFDocument.h>

namespace Tavrin
{

const PDFEngine &PDFEngine::standard()
{
    static const MuPDFEngine engine;
    return engine;
}

std::unique_ptr<PDFEngineDocument> MuPDFEngine::open(const QString &path,
                                                     const QString &password) const
{
    return std::make_unique<MuPDFDocument>(MuPDFSource{path, {}, password});
}

std::unique_ptr<PDFEngineDocument> MuPDFEngine::open(const QByteArray &data,
                                                     const QString &password) const
{
    return std::make_unique<MuPDFDocument>(MuPDFSource{{}, data, password});
}

} // namespace Tavrin
