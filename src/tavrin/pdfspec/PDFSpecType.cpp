// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/model/SpecTypeDefinition.h>
#include <Tavrin/pdfspec/PDFSpecification.h>

namespace Tavrin
{

SpecTypeDefinition builtinSpecTypeDefinition()
{
    const auto needsOnePDF = [](const Specification &specification) {
        const auto &requirements = specification.auxiliaryFileRequirements();
        return requirements.size() == 1 &&
               requirements.front()->fileType == SpecificationAuxiliaryFileTypes::pdf;
    };
    return {SpecType::of<PDFSpecification>(), needsOnePDF};
}

} // namespace Tavrin
