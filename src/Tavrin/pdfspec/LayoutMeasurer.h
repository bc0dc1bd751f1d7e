// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/pdf/CachingPDFDocument.h>

/// The two numbers from which a print's structure is read: the size and the left margin of its
/// body. Measured on a sample of pages, so that a document of thousands of pages costs a few dozen
/// readings.
namespace Tavrin::LayoutMeasurer
{

/// The pages to look at: every `interval`-th from `first` on. The title page is none of them.
struct Sample {
    int first = 1;
    int interval = 1;
};

/// The size, in points, that most characters of the sample have; the smallest of several equally
/// frequent. 0 if the sample has no text.
double textSize(const CachingPDFDocument &document, Sample sample);

/// Where most lines of the sample begin, in whole points from the left of the box; the start met
/// first among equally frequent ones, and 0 for no lines.
double leftMargin(const CachingPDFDocument &document, PDFBox box, Sample sample);

} // namespace Tavrin::LayoutMeasurer
