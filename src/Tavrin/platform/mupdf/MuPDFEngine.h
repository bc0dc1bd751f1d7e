// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/platform/PDFEngine.h>

namespace Tavrin
{

/// PDFs read by MuPDF.
class MuPDFEngine : public PDFEngine
{
public:
    std::unique_ptr<PDFEngineDocument> open(const QString &path,
                                            const QString &password) const override;
    std::unique_ptr<PDFEngineDocument> open(const QByteArray &data,
                                            const QString &password) const override;
};

} // namespace Tavrin
