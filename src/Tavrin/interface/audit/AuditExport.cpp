// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/audit/AuditExport.h>

#include <QFileDialog>
#include <QFileInfo>
#include <QUrl>

#include <vector>

#include <Tavrin/audit/PDFSpecAuditor.h>
#include <Tavrin/interface/toolkit/BackgroundWork.h>
#include <Tavrin/interface/toolkit/ProgressSheet.h>
#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

struct Format {
    QString suffix;
    QString name;
    AuditFormat format = AuditFormat::HTML;

    QString filter() const { return name + u" (*."_s + suffix + u')'; }
};

/// The first is offered first.
std::vector<Format> formats()
{
    return {
        {u"html"_s, localized("Web page", "audit format"), AuditFormat::HTML},
        {u"rtf"_s, localized("Rich text", "audit format"), AuditFormat::RTF},
        {u"csv"_s, localized("Table", "audit format"), AuditFormat::CSV},
        {u"json"_s, localized("JSON", "audit format"), AuditFormat::JSON},
        {u"xml"_s, localized("JUnit test results", "audit format"), AuditFormat::JUnit},
    };
}

QString suffixOfFilter(const QString &filter)
{
    for (const Format &one : formats()) {
        if (one.filter() == filter)
            return one.suffix;
    }
    return {};
}

/// What the name of the file says.
AuditFormat formatOf(const QUrl &url)
{
    const QString suffix = QFileInfo(url.toLocalFile()).suffix().toLower();
    for (const Format &one : formats()) {
        if (one.suffix == suffix)
            return one.format;
    }
    return AuditFormat::HTML;
}

std::unique_ptr<QFileDialog> makeDialog(QWidget &window)
{
    auto dialog = std::make_unique<QFileDialog>(&window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(localized("Export Audit", "audit export title"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    QStringList filters;
    for (const Format &one : formats())
        filters += one.filter();
    dialog->setNameFilters(filters);
    dialog->setDefaultSuffix(formats().front().suffix);
    QObject::connect(dialog.get(), &QFileDialog::filterSelected, dialog.get(),
                     [shown = dialog.get()](const QString &filter) {
                         shown->setDefaultSuffix(suffixOfFilter(filter));
                     });
    return dialog;
}

} // namespace

AuditExport::AuditExport(std::shared_ptr<PDFSpecification> specification, QStringList references)
    : m_specification(std::move(specification)), m_references(std::move(references))
{
}

AuditExport::~AuditExport()
{
    delete m_dialog;
    delete m_sheet;
}

void AuditExport::begin(QWidget &window)
{
    if (m_dialog || m_work)
        return;
    m_dialog = makeDialog(window).release();
    // Told by every kind of dialog; that a URL was chosen is told by those of the desktop alone.
    // Later, when the dialog has left the screen to the sheet.
    connect(
        m_dialog, &QFileDialog::fileSelected, this,
        [this, shown = QPointer<QWidget>(&window)](const QString &path) {
            if (shown)
                write(*shown, QUrl::fromLocalFile(path));
        },
        Qt::QueuedConnection);
    m_dialog->open();
}

void AuditExport::write(QWidget &window, const QUrl &url)
{
    m_sheet = ProgressSheet::begin(window, localized("Writing the audit…", "audit export sheet"),
                                   ProgressSheet::Kind::Determinate);
    m_work = std::make_unique<BackgroundWork>();
    connect(m_work.get(), &BackgroundWork::progressed, m_sheet, &ProgressSheet::setValue);
    connect(m_work.get(), &BackgroundWork::finished, this,
            [this, shown = QPointer<QWidget>(&window)](const QString &error) {
                m_work.release()->deleteLater();
                if (shown)
                    finish(*shown, error);
            });
    m_work->start([auditor = PDFSpecAuditor(m_specification).detached(), references = m_references,
                   url](const BackgroundWork::Progress &progress) {
        const auto lock = auditor.spec()->readingLock();
        std::vector<AuditReference> cited;
        for (const QString &reference : references)
            cited.push_back({reference, {}, {}});
        PDFSpecAuditor::write(auditor.report(cited), formatOf(url), url, progress);
    });
}

void AuditExport::finish(QWidget &window, const QString &error)
{
    if (m_sheet)
        m_sheet->end(error.isEmpty() ? QDialog::Accepted : QDialog::Rejected);
    if (!error.isEmpty())
        Sheet::showMessage(
            window, localized("The audit could not be written.", "audit export error"), error);
}

} // namespace Tavrin
