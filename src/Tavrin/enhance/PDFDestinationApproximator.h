// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/enhance/PDFXMLEnhancer.h>

namespace Tavrin
{

/// An enhancer for PDFs whose named destinations are of no use: sections and chapters are taken
/// from the outline, those that it leaves out are looked for on the pages; figures and tables are
/// found by their captions, in the regions of the pages that break the text layout.
///
/// What `tavrin enhance` takes where the document's own names say nothing. Used as PDFXMLEnhancer
/// is, by PDFXMLEnhancer::matched.
class TAVRIN_CORE_EXPORT PDFDestinationApproximator : public PDFXMLEnhancer
{
public:
    /// As in the base class; but a document without destinations is what this class is for.
    void loadPDFStructure(const std::shared_ptr<HostPDFDocument> &document) override;

    /// Links to outline items and to points above captions. Never fails; entries that are not
    /// found, and what the outline has beside them, are told on standard error.
    LabelLinkMapping pairHumanReadableLabelsWithInternalLinks(
        const std::shared_ptr<HostPDFDocument> &document) override;
};

} // namespace Tavrin
