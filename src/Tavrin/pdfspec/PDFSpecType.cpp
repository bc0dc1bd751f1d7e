// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/model/SpecTypeDefinition.h>
#include <Tavrin/pdfspec/PDFSpecification.h>

namespace Tavrin
{

namespace
{

bool needsOnePDF(const Specification &specification)
{
    const auto &requirements = specification.auxiliaryFileRequirements();
    return requirements.size() == 1 &&
           requirements.front()->fileType == SpecificationAuxiliaryFileTypes::pdf;
}

} // namespace

SpecTypeDefinition builtinSpecTypeDefinition()
{
    return {SpecType::of<PDFSpecification>(), needsOnePDF};
}

void PDFSpecification::registerType(PDFReadingPolicy policy)
{
    const auto configure = [policy](PDFSpecification &specification) {
        specification.setReadingPolicy(policy);
    };
    Specification::registerSpecType(SpecType::of<PDFSpecification>(configure), true, needsOnePDF);
}

} // namespace Tavrin
