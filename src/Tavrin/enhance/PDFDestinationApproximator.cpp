// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/enhance/PDFDestinationApproximator.h>

#include <Tavrin/enhance/CaptionPairing.h>
#include <Tavrin/enhance/HeadingPairing.h>
#include <Tavrin/enhance/OutlinePairing.h>
#include <Tavrin/platform/StandardOutput.h>
#include <Tavrin/platform/TerminalStyle.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

void PDFDestinationApproximator::loadPDFStructure(const std::shared_ptr<HostPDFDocument> &document)
{
    bool isUnpaired = false;
    try {
        PDFXMLEnhancer::loadPDFStructure(document);
    } catch (const ParseError &error) {
        if (error.kind != ParseError::Kind::StructureReadError)
            throw;
        isUnpaired = true;
    } catch (const EnhancerParseError &) {
        isUnpaired = true;
    }
    if (isUnpaired)
        augmentSpecEntryMetadata(document);
}

PDFXMLEnhancer::LabelLinkMapping
PDFDestinationApproximator::pairHumanReadableLabelsWithInternalLinks(
    const std::shared_ptr<HostPDFDocument> &document)
{
    standardOutput(bold(u"Inferring links from outline and layout-breaking regions..."_s));
    LabelLinkMapping mapping = OutlinePairing(*this, *document).pair();
    if (this->document())
        HeadingPairing(*this, mapping).pair();
    CaptionPairing(*this, *document, mapping).pair();
    return mapping;
}

} // namespace Tavrin
