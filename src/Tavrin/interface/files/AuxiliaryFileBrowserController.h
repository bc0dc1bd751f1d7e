// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>
#include <QStringList>
#include <QTableView>
#include <QUrl>

#include <memory>
#include <vector>

#include <Tavrin/interface/files/AuxiliaryFile.h>
#include <Tavrin/interface/toolkit/ViewController.h>
#include <Tavrin/manager/ManagerPointer.h>
#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/platform/NotificationCenter.h>

class QLabel;
class QMimeData;

namespace Tavrin
{

class AuxiliaryFileArrayController;
class AuxiliaryFileImport;
class FileDropOverlay;
class SegmentedControl;

/// The table from which users import the files of a manager's specifications, see which
/// specification each one satisfies, take files away, and open what they have.
///
/// It follows the manager's list of files. Files come by a panel or by being dropped on the view;
/// an import goes on after the call that begins it has returned. Main thread.
///
/// Most hosts get one from SpecificationManager::showAuxiliaryFileBrowser and show it in a window
/// or a Popover:
///
/// \snippet minimal/main.cpp display
///
/// A row is opened by the manager's detailViewControllerDisplayBlock.
class TAVRIN_WIDGETS_EXPORT AuxiliaryFileBrowserController : public ViewController
{
    Q_OBJECT

public:
    /// One with the library's own instruction and no accessory view.
    static std::shared_ptr<AuxiliaryFileBrowserController>
    standard(SpecificationManager &manager = SpecificationManager::shared());

    /// Shows the files of the manager; once that has ended, what it showed last.
    explicit AuxiliaryFileBrowserController(
        QObject *parent = nullptr, SpecificationManager &manager = SpecificationManager::shared());
    ~AuxiliaryFileBrowserController() override;

    /// The rows; empty before the view is loaded.
    const std::vector<AuxiliaryFilePtr> &auxiliaryFiles() const;

    /// The extensions that the panel offers and a drop is taken with, exactly as files have them.
    /// While there are none, those that some registered specification asks for.
    ///
    /// Without the dot: "pdf".
    const QStringList &allowedFileTypes() const { return m_allowedFileTypes; }
    void setAllowedFileTypes(const QStringList &types) { m_allowedFileTypes = types; }

    /// A view of the host's own below the table; null if there is none.
    QWidget *accessoryView() const { return m_accessoryView; }
    /// Replaces and deletes the former one.
    void setAccessoryView(std::unique_ptr<QWidget> view);

    /// Above the table, in the user's language. Empty hides it.
    const QString &instructionText() const { return m_instructionText; }
    void setInstructionText(const QString &text);

    // What the view consists of; null before it is loaded.
    QTableView *tableView() const { return m_tableView; }
    QWidget *accessoryContainerView() const { return m_accessoryContainerView; }
    AuxiliaryFileArrayController *arrayController() const { return m_arrayController.get(); }

    /// 0 asks for a file to import; any other removes the files of the selected rows.
    ///
    /// The files of the rows are unregistered, and their copies deleted, without asking. Nothing is
    /// asked for while the view is in no window on the screen.
    void segmentedControlButtonPressed(int segment);
    /// Shows the document of a row. A row without one leads to the prompt to import; one of a file
    /// that nothing recognised is logged.
    void viewButtonPressed(int row) { openRow(row); }
    /// As viewButtonPressed().
    void tableViewRowDoubleClicked(int row) { openRow(row); }
    /// Whether the row can be selected, so that its files can be removed.
    bool tableViewShouldSelectRow(int row) const;

    /// Imports files in turns of the event loop to come, one after the other, behind a sheet if the
    /// view has a window. Failures are told when all were tried.
    ///
    /// Returns at once; importFinished() follows. What kinds of files they are is not looked at
    /// before they are tried.
    void importFiles(const std::vector<QUrl> &urls);
    /// Whether there are files that have not been tried.
    bool isImporting() const;

Q_SIGNALS:
    /// All files were tried; a message about failures is on the screen.
    void importFinished();

protected:
    std::unique_ptr<QWidget> loadView() override;
    void viewDidLoad() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUpTable();
    void setUpControl();
    void installAccessoryView();
    void specAuxiliaryFilesChanged() { reload(); }
    void reload();
    void selectRows(const std::vector<AuxiliaryFilePtr> &rows);
    void addViewButtons();
    QWidget *makeViewButton(int row);
    void updateHint();
    void updateControl();

    QWidget *window() const;
    QStringList importableTypes() const;
    bool isImportable(const QUrl &url) const;
    std::vector<QUrl> importableUrls(const QMimeData &data) const;
    bool handleDrag(QEvent &event);
    bool handleKey(int key);

    void chooseFile();
    void removeSelection();
    std::vector<AuxiliaryFilePtr> selectedObjects() const;
    void openRow(int row);

    ManagerPointer m_manager;
    std::unique_ptr<AuxiliaryFileArrayController> m_arrayController;
    std::unique_ptr<AuxiliaryFileImport> m_import;
    QStringList m_allowedFileTypes;
    QString m_instructionText;
    QPointer<QWidget> m_accessoryView;
    QPointer<QWidget> m_accessoryContainerView;
    QPointer<QLabel> m_instructionLabel;
    QPointer<QTableView> m_tableView;
    QPointer<SegmentedControl> m_segmentedControl;
    QPointer<FileDropOverlay> m_overlay;
    NotificationCenter::TokenPtr m_observation;
};

} // namespace Tavrin
