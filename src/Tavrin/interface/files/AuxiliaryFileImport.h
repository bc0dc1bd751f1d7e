// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QUrl>

#include <deque>
#include <exception>
#include <vector>

#include <Tavrin/interface/toolkit/ProgressSheet.h>
#include <Tavrin/manager/ManagerPointer.h>
#include <Tavrin/manager/SpecificationManager.h>

namespace Tavrin
{

/// Imports files into a manager, behind a sheet that says so.
///
/// A manager is used by one thread, so each file holds up the event loop for as long as it takes.
/// The sheet is on the screen before the first begins, and events are handled between two. One that
/// is destroyed, or whose manager is, imports no more. Main thread.
///
/// Where a host imports files in a place of its own, such as a drop on its window:
///
/// \snippet citing/main.cpp import
class TAVRIN_WIDGETS_EXPORT AuxiliaryFileImport : public QObject
{
    Q_OBJECT

public:
    /// What went wrong with one file, for the user.
    struct TAVRIN_WIDGETS_EXPORT Failure {
        /// Puts an error into words: those of SpecificationManager::SetupError, or the file's name
        /// and what().
        Failure(const QUrl &file, const std::exception &error);

        QUrl url;
        QString description;
        /// What to do about it; may be empty. In the user's language.
        QString suggestion;
    };

    /// Files go to the manager; once that has ended, no more are imported.
    explicit AuxiliaryFileImport(QObject *parent = nullptr,
                                 SpecificationManager &manager = SpecificationManager::shared());
    ~AuxiliaryFileImport() override;

    /// Returns at once. Files that come while others are imported are appended to them. Without a
    /// window there is no sheet.
    ///
    /// Each file goes through SpecificationManager::registerAuxiliaryFile. finished() comes in any
    /// case, unless this is destroyed before.
    void start(const std::vector<QUrl> &urls, QWidget *window);
    bool isRunning() const { return m_isRunning; }

    /// Says what went wrong in one sheet, or in the log where there is no window. Without failures
    /// nothing happens.
    static void showFailures(QWidget *window, const std::vector<Failure> &failures);

Q_SIGNALS:
    /// All files were tried, and the sheet is gone.
    void finished(const std::vector<Tavrin::AuxiliaryFileImport::Failure> &failures);

private:
    void importNext();
    void finish();
    void endSheet();

    ManagerPointer m_manager;
    std::deque<QUrl> m_waiting;
    std::vector<Failure> m_failures;
    QPointer<ProgressSheet> m_sheet;
    QTimer m_turn;
    bool m_isRunning = false;
};

} // namespace Tavrin
