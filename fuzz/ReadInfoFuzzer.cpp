// SPDX-License-Identifier: Apache-2.0
// What a map's requirement says of its file: how it is to be read, and by what it is recognised.
#include "Fuzzing.h"

#include <support/PDFBuilder.h>
#include <support/TemporaryFiles.h>

#include <cmath>

using namespace Tavrin;
using namespace Tavrin::Testing;
using namespace Qt::StringLiterals;

namespace
{

QByteArray document()
{
    PDFBuilder pdf;
    pdf.addPage().text(72, 700, u"A page"_s);
    return pdf.build();
}

std::shared_ptr<PDFSpecification> bind(const QUrl &file, const QString &readInfo)
{
    auto specification = Fuzzing::specification();
    specification->setReadingPolicy(PDFReadingPolicy::Common);
    const bool isBound =
        specification->assignAuxiliaryFile(file, {u"pdf"_s, u"A,page"_s, readInfo});
    Fuzzing::require(isBound, "read-info does not keep a file from being bound");
    return specification;
}

void writeAndReadBack(const PDFSpecification &specification, const QUrl &file)
{
    const auto requirement = specification.generateAuxiliaryFileRequirementXMLNodes().at(0);
    const QString written = requirement.attribute("read-info").value_or(QString());
    Fuzzing::require(bind(file, written)->pageBounds() == specification.pageBounds(),
                     "page bounds that were written read back the same");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const TemporaryFiles files;
    static const QUrl file = files.write(u"document.pdf"_s, document());
    const QString text = Fuzzing::text(data, size);
    const auto specification = bind(file, text);
    if (specification->pageBounds()) {
        specification->document()->page(0)->selection(*specification->pageBounds());
        writeAndReadBack(*specification, file);
    }
    specification->doesAuxiliaryFile(file, {u"pdf"_s, text, {}});
    return 0;
}
