// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <Tavrin/drafting/MapDraft.h>
#include <Tavrin/pdfspec/PDFSpecification.h>

namespace Tavrin
{

/// A specification whose map is written with its own title. Others take that of the document
/// information, which many files leave empty.
class DraftedSpecification : public PDFSpecification
{
public:
    /// The draft's entries, bound to the document. Throws ParseError.
    static std::shared_ptr<PDFSpecification>
    fromDraft(const MapDraft &draft, const std::shared_ptr<CachingPDFDocument> &document);

protected:
    HostXMLElement generateRootXMLElement() const override;
};

} // namespace Tavrin
