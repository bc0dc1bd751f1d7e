// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <memory>

#include <Tavrin/pdfspec/PDFSpecification.h>

class QFileDialog;
class QUrl;
class QWidget;

namespace Tavrin
{

class BackgroundWork;
class ProgressSheet;

/// Asks for a file, and writes a report of references into it in the background, with a sheet over
/// the window. Dropping the object gives it up; the file then stays as it was. Main thread.
class AuditExport : public QObject
{
    Q_OBJECT

public:
    AuditExport(std::shared_ptr<PDFSpecification> specification, QStringList references);
    ~AuditExport() override;

    /// Shows the dialog; nothing while that is there, or a report is written.
    void begin(QWidget &window);

private:
    void write(QWidget &window, const QUrl &url);
    void finish(QWidget &window, const QString &error);

    std::shared_ptr<PDFSpecification> m_specification;
    QStringList m_references;
    QPointer<QFileDialog> m_dialog;
    QPointer<ProgressSheet> m_sheet;
    std::unique_ptr<BackgroundWork> m_work;
};

} // namespace Tavrin
