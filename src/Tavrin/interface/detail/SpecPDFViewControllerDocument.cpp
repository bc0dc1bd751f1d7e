// SPDX-License-Identifier: Apache-2.0
// The specification and its file: shown, replaced, gone, and back.
#include <Tavrin/interface/detail/CoverageComputation.h>
#include <Tavrin/interface/detail/DetailView.h>
#include <Tavrin/interface/detail/EntryHighlightPDFView.h>
#include <Tavrin/interface/detail/SpecPDFViewController.h>
#include <Tavrin/interface/detail/SpecPDFViewer.h>
#include <Tavrin/interface/toolkit/FileWatch.h>
#include <Tavrin/interface/toolkit/NoticeBar.h>
#include <Tavrin/interface/toolkit/ProgressSheet.h>
#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <algorithm>

namespace Tavrin
{

void SpecPDFViewController::setSpecification(const SpecificationPtr &specification)
{
    const bool isAnother = specification != m_specification;
    m_specification = specification;
    if (isAnother)
        m_lostLabel.reset();
    if (m_entry) {
        const auto owner = m_entry->specification();
        if (owner && owner != m_specification)
            setEntry(nullptr);
    }
    if (!isAnother || !m_detailView)
        return;
    clearMarks();
    showSpecification();
    if (m_showsReferenceCoverage && m_detailView->isVisible())
        highlightReferenceCoverage();
}

void SpecPDFViewController::showSpecification()
{
    updateLists();
    updateTitle();
    updateDocument();
    showPlaceholder();
}

void SpecPDFViewController::updateLists()
{
    if (!m_sourceViewControllers)
        return;
    const auto self = std::static_pointer_cast<SpecPDFViewController>(shared_from_this());
    for (const auto &list : *m_sourceViewControllers) {
        list->setEntry(pdfEntry());
        list->setSpecification(pdfSpecification());
        list->setDelegate(self);
    }
}

void SpecPDFViewController::updateTitle()
{
    if (!m_specification)
        return;
    const QString title = m_specification->title();
    setTitle(title.isEmpty() ? localized("Specification", "default PDF detail view title") : title);
}

void SpecPDFViewController::updateDocument()
{
    auto *view = pdfView();
    if (!view)
        return;
    const auto specification = pdfSpecification();
    const auto document = specification ? specification->document() : nullptr;
    if (document == m_viewer->document())
        return;
    m_detailView->noticeBar().clear();
    m_viewer->setDocument(document);
    const auto url = document ? specification->pdfURL() : std::nullopt;
    m_fileWatch->watch(url ? url->toLocalFile() : QString());
}

void SpecPDFViewController::showPlaceholder()
{
    auto *view = pdfView();
    if (!view)
        return;
    view->setPlaceholderText(
        m_specification
            ? localized("The document of “%1” is not there. Import its PDF file to read it here.",
                        "In a detail view without a document")
                  .arg(title())
            : localized("There is no specification to show.", "In a detail view without one"));
}

void SpecPDFViewController::clearMarks()
{
    // Places in one document mean nothing in another.
    m_coverage.reset();
    endCoverageSheet();
    if (auto *view = pdfView()) {
        view->pageRects.reset();
        m_viewer->setCoverageHighlights(std::nullopt);
    }
}

void SpecPDFViewController::showNotice(const QString &text)
{
    if (m_detailView)
        m_detailView->noticeBar().showText(text);
}

void SpecPDFViewController::setManager(SpecificationManager &manager)
{
    m_manager = ManagerPointer(manager);
}

void SpecPDFViewController::filesChanged(const SpecificationManager &manager)
{
    if (m_manager && m_manager->get() != &manager)
        return;
    const auto &known = manager.specifications();
    const bool isKnown = std::find(known.begin(), known.end(), m_specification) != known.end();
    if (m_specification && !isKnown && m_specification->specMapURL()) {
        const auto successor =
            std::find_if(known.begin(), known.end(), [this](const SpecificationPtr &other) {
                return other->specMapURL() == m_specification->specMapURL();
            });
        if (successor != known.end())
            return takeSuccessor(*successor);
    }
    if (!followDocument())
        return;
    if (m_entry)
        goToCurrentEntry();
    else
        findLostEntry();
    if (m_showsReferenceCoverage && m_detailView->isVisible())
        highlightReferenceCoverage();
}

bool SpecPDFViewController::followDocument()
{
    const auto specification = pdfSpecification();
    if (!pdfView() || !specification || specification->document() == m_viewer->document())
        return false;
    clearMarks();
    showSpecification();
    return true;
}

void SpecPDFViewController::takeSuccessor(const SpecificationPtr &successor)
{
    const auto label = m_entry ? std::optional(m_entry->label()) : m_lostLabel;
    setSpecification(successor);
    m_lostLabel = label;
    findLostEntry();
}

void SpecPDFViewController::findLostEntry()
{
    if (!m_lostLabel)
        return;
    if (const EntryPtr entry = m_specification->entry(*m_lostLabel))
        setEntry(entry);
}

} // namespace Tavrin
