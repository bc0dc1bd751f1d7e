// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <Tavrin/WidgetsExport.h>
#include <Tavrin/pdf/HostPDFDestination.h>
#include <Tavrin/pdf/HostPDFSelection.h>

namespace Tavrin
{

class SpecPDFViewer;

/// Hears what the reader points at. Places and selections are in page space. Held weakly; main
/// thread.
class TAVRIN_WIDGETS_EXPORT SpecPDFViewerDelegate
{
public:
    virtual ~SpecPDFViewerDelegate() = default;

    /// A click without a selection; links are followed by the view itself.
    virtual void viewerClicked(SpecPDFViewer &viewer, const HostPDFDestination &place) = 0;
    /// A stretch of text was selected.
    virtual void viewerSelected(SpecPDFViewer &viewer, const HostPDFSelection &selection) = 0;
};

} // namespace Tavrin
