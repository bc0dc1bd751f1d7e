// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/WidgetsExport.h>
#include <Tavrin/pdf/HostPDFDestination.h>
#include <Tavrin/pdf/HostPDFSelection.h>

namespace Tavrin
{

class SpecPDFViewer;

/// Hears what the reader points at.
class TAVRIN_WIDGETS_EXPORT SpecPDFViewerDelegate
{
public:
    virtual ~SpecPDFViewerDelegate() = default;

    virtual void viewerClicked(SpecPDFViewer &viewer, const HostPDFDestination &place) = 0;
    virtual void viewerSelected(SpecPDFViewer &viewer, const HostPDFSelection &selection) = 0;
};

} // namespace Tavrin
