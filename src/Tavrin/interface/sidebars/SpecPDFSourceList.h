// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <Tavrin/WidgetsExport.h>
#include <Tavrin/pdf/HostPDFDestination.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>

namespace Tavrin
{

/// Hears of the place that a reader chose in a list. Held weakly; main thread.
class TAVRIN_WIDGETS_EXPORT SpecPDFSourceListDelegate
{
public:
    virtual ~SpecPDFSourceListDelegate() = default;
    /// The document is to go there.
    virtual void sourceListChose(const HostPDFDestination &destination) = 0;
};

/// A list beside a document that leads into it. Main thread.
///
/// A host that has a list of its own, bookmarks for example, derives from this and ViewController,
/// and adds it to the sidebar of a SpecPDFViewController before the view is loaded.
class TAVRIN_WIDGETS_EXPORT SpecPDFSourceList
{
public:
    virtual ~SpecPDFSourceList() = default;

    /// The current entry of the detail view; null if there is none.
    virtual std::shared_ptr<PDFSpecification::Entry> entry() const = 0;
    /// Told whenever another entry is chosen by the host; null for none.
    virtual void setEntry(const std::shared_ptr<PDFSpecification::Entry> &entry) = 0;
    virtual std::shared_ptr<PDFSpecification> specification() const = 0;
    /// Told when another is shown, or its document is another; null for none.
    virtual void setSpecification(const std::shared_ptr<PDFSpecification> &specification) = 0;
    /// Not kept alive.
    virtual std::shared_ptr<SpecPDFSourceListDelegate> delegate() const = 0;
    virtual void setDelegate(const std::weak_ptr<SpecPDFSourceListDelegate> &delegate) = 0;

    /// The reader is at this place of the document now, by scrolling or by a jump. Told a few times
    /// a second at most. A list may follow; it doesn't answer by choosing a place.
    virtual void showsPlace(const HostPDFDestination &) {}
};

} // namespace Tavrin
