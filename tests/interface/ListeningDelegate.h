// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include <Tavrin/interface/sidebars/SpecPDFSourceList.h>
#include <pdfspec/PDFFixture.h>

namespace Tavrin::Testing
{

/// Writes down what it hears.
class ListeningDelegate : public SpecPDFSourceListDelegate
{
public:
    void sourceListChose(const HostPDFDestination &destination) override
    {
        chosen.push_back(*place(destination));
    }

    std::vector<Place> chosen;
};

} // namespace Tavrin::Testing
