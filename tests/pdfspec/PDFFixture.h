// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <support/Test.h>

#include <Tavrin/pdfspec/PDFSpecificationEntry.h>
#include <support/MapBuilder.h>
#include <support/PDFBuilder.h>
#include <support/StandardErrorCapture.h>
#include <support/TemporaryFiles.h>

namespace Tavrin::Testing
{

/// A PDF in the making, and a specification to bind it to.
class PDFFixture : public testing::Test
{
protected:
    std::shared_ptr<PDFSpecification> load(PDFReadingPolicy policy = PDFReadingPolicy::Strict)
    {
        return load(pdf.build(), policy);
    }

    std::shared_ptr<PDFSpecification> load(const QByteArray &bytes,
                                           PDFReadingPolicy policy = PDFReadingPolicy::Strict)
    {
        auto specification = Specification::make<PDFSpecification>();
        specification->setReadingPolicy(policy);
        specification->loadPDFStructure(CachingPDFDocument::open(bytes));
        return specification;
    }

    PDFBuilder pdf;
    TemporaryFiles files;
    StandardErrorCapture errors;
};

/// What a test compares: page index and point.
struct Place {
    int page = -1;
    Point point;
    friend bool operator==(const Place &, const Place &) = default;
    friend std::ostream &operator<<(std::ostream &out, const Place &place)
    {
        return out << place.page << ':' << place.point.x << ',' << place.point.y;
    }
};

inline std::optional<Place> place(const std::optional<HostPDFDestination> &destination)
{
    if (!destination)
        return std::nullopt;
    return Place{destination->page() ? destination->page()->index() : -1, destination->point()};
}

} // namespace Tavrin::Testing
