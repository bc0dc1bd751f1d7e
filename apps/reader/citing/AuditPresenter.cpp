// SPDX-License-Identifier: Apache-2.0
#include <reader/citing/AuditPresenter.h>

#include <Tavrin/interface/detail/SpecDetailViewController.h>
#include <Tavrin/interface/toolkit/Sheet.h>
#include <Tavrin/platform/StringLocalizer.h>
#include <reader/citing/ReferenceAudit.h>
#include <reader/files/FileChooser.h>
#include <reader/panes/Complaint.h>
#include <reader/panes/ControllerPane.h>
#include <reader/panes/ControllerWindow.h>

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;

AuditPresenter::AuditPresenter(SpecificationManager &manager, EntryFinder &finder,
                               ControllerPane &detail, QWidget &window)
    : QObject(&window), m_manager(manager), m_finder(finder), m_detail(detail), m_window(window)
{
}

void AuditPresenter::showTable(const ReferenceCoverage &references)
{
    const ReferenceAudit audit(m_finder, references);
    if (requireSpecification(audit))
        ControllerWindow::show(audit.browser(m_manager), u"Audit"_s, m_window);
}

void AuditPresenter::showMarks(const ReferenceCoverage &references)
{
    const ReferenceAudit audit(m_finder, references);
    if (!requireSpecification(audit))
        return;
    m_manager.showSpecCoverage(audit.references(), audit.specification());
    // The marks may begin hundreds of pages into the document.
    const auto detail = std::dynamic_pointer_cast<SpecDetailViewController>(m_detail.controller());
    if (detail)
        detail->setEntry(audit.firstEntry());
    m_window.raise();
    m_window.activateWindow();
}

void AuditPresenter::showFile(const QString &path)
{
    try {
        showTable(ReferenceAudit::readFile(path));
    } catch (const std::exception &error) {
        complain(m_window, localized("The references could not be read.", "alert"), error);
    }
}

void AuditPresenter::chooseFile()
{
    FileChooser(u"References"_s, localized("Audit References", "title of a dialog"),
                QFileDialog::ExistingFile)
        .open(m_window, [this](const QStringList &paths) { showFile(paths.front()); });
}

bool AuditPresenter::requireSpecification(const ReferenceAudit &audit)
{
    if (audit.specification())
        return true;
    Sheet::showMessage(
        m_window, localized("There is nothing to audit.", "alert"),
        localized("None of the references leads into a specification whose PDF is imported.",
                  "alert"));
    return false;
}

} // namespace Tavrin::Reader
