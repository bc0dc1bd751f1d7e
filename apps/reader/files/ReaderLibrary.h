// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QStringList>
#include <QUrl>

#include <vector>

#include <Tavrin/manager/ManagerPointer.h>

class QWidget;

namespace Tavrin
{
class AuxiliaryFileImport;
}

namespace Tavrin::Reader
{

/// The maps that are open, and the PDFs that come to them. What is wrong with one is said over the
/// window; what was good before it stays.
class ReaderLibrary : public QObject
{
    Q_OBJECT

public:
    ReaderLibrary(SpecificationManager &manager, QWidget &window);

    /// Registers the maps of directories, each once. Remembered for the next run.
    void openMaps(const QStringList &directories);
    /// The directories that were open in the last run.
    static QStringList rememberedMaps();
    /// Offers PDFs to the maps that are opened from now on, before what was imported.
    void offerFiles(const QStringList &paths);
    /// Binds PDFs where they lie, unless a map has taken them already.
    void bindFiles(const QStringList &paths);
    /// Imports PDFs, with a sheet over the window meanwhile.
    void importFiles(const std::vector<QUrl> &files);

    // The same, with what the user chooses.
    void chooseMaps();
    void chooseFiles();

Q_SIGNALS:
    /// Other maps are open, or other files bound.
    void changed();

private:
    SpecificationManager &m_manager;
    QWidget &m_window;
    AuxiliaryFileImport *m_import;
    QStringList m_directories;
    NotificationCenter::TokenPtr m_filesObservation;
};

} // namespace Tavrin::Reader
