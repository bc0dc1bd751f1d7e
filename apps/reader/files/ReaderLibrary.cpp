// SPDX-License-Identifier: Apache-2.0
#include <reader/files/ReaderLibrary.h>

#include <QFileInfo>
#include <QSettings>
#include <QWidget>

#include <algorithm>
#include <iterator>

#include <Tavrin/interface/files/AuxiliaryFileImport.h>
#include <Tavrin/platform/StringLocalizer.h>
#include <reader/files/FileChooser.h>
#include <reader/panes/Complaint.h>

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;

namespace
{

constexpr auto mapsKey = "Reader.Maps"_L1;

QUrl fileUrl(const QString &path)
{
    return QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath());
}

std::vector<QUrl> fileUrls(const QStringList &paths)
{
    std::vector<QUrl> urls;
    std::transform(paths.begin(), paths.end(), std::back_inserter(urls), fileUrl);
    return urls;
}

bool isBound(const SpecificationManager &manager, const QUrl &file)
{
    return manager.specificationWhere([&file](const Specification &specification) {
        const auto &requirements = specification.auxiliaryFileRequirements();
        return std::any_of(requirements.begin(), requirements.end(),
                           [&](const auto &requirement) { return requirement->fileURL == file; });
    }) != nullptr;
}

} // namespace

ReaderLibrary::ReaderLibrary(SpecificationManager &manager, QWidget &window)
    : QObject(&window),
      m_manager(manager),
      m_window(window),
      m_import(new AuxiliaryFileImport(this, manager)),
      m_filesObservation(ManagerPointer(manager).observeFiles([this] { Q_EMIT changed(); }))
{
    connect(m_import, &AuxiliaryFileImport::finished, this, [this](const auto &failures) {
        AuxiliaryFileImport::showFailures(&m_window, failures);
    });
}

void ReaderLibrary::openMaps(const QStringList &directories)
{
    for (const QString &named : directories) {
        // The next run may begin elsewhere.
        const QString directory = QFileInfo(named).absoluteFilePath();
        // Twice would be each map twice.
        if (m_directories.contains(directory))
            continue;
        try {
            m_manager.loadSpecInformation(QUrl::fromLocalFile(directory));
            m_directories += directory;
        } catch (const std::exception &error) {
            complain(m_window, localized("The maps could not all be read.", "alert"), error);
        }
    }
    QSettings().setValue(mapsKey, m_directories);
    Q_EMIT changed();
}

QStringList ReaderLibrary::rememberedMaps()
{
    return QSettings().value(mapsKey).toStringList();
}

void ReaderLibrary::offerFiles(const QStringList &paths)
{
    std::vector<QUrl> offered = fileUrls(paths);
    // What a map is offered first it takes, and an imported copy would take the file's place.
    const std::vector<QUrl> &imported = m_manager.auxiliaryFiles();
    offered.insert(offered.end(), imported.begin(), imported.end());
    m_manager.setAuxiliaryFiles(std::move(offered));
}

void ReaderLibrary::bindFiles(const QStringList &paths)
{
    for (const QUrl &file : fileUrls(paths)) {
        try {
            if (!isBound(m_manager, file))
                m_manager.bindAuxiliaryFile(file);
        } catch (const std::exception &error) {
            complain(m_window, localized("The file could not be opened.", "alert"), error);
        }
    }
    Q_EMIT changed();
}

void ReaderLibrary::importFiles(const std::vector<QUrl> &files)
{
    if (!files.empty())
        m_import->start(files, &m_window);
}

void ReaderLibrary::chooseMaps()
{
    FileChooser(u"Maps"_s, localized("Open Maps", "title of a dialog"), QFileDialog::Directory)
        .open(m_window, [this](const QStringList &directories) { openMaps(directories); });
}

void ReaderLibrary::chooseFiles()
{
    FileChooser(u"Import"_s, localized("Import PDF", "title of a dialog"),
                QFileDialog::ExistingFiles, localized("PDF files (*.pdf)", "filter of a dialog"))
        .open(m_window, [this](const QStringList &paths) { importFiles(fileUrls(paths)); });
}

} // namespace Tavrin::Reader
