// SPDX-License-Identifier: Apache-2.0
// The manager's part that looks after the files that users import.
#include <Tavrin/manager/SpecificationManager.h>

#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <utility>

#include <Tavrin/manager/AuxiliaryFileStore.h>
#include <Tavrin/manager/TavrinConstants.h>
#include <Tavrin/pdfspec/CandidateReading.h>
#include <Tavrin/platform/Logging.h>
#include <Tavrin/platform/NotificationCenter.h>
#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// Whether the file is the specification's now. An error is one more reason not to have it.
bool claims(Specification &specification, const QUrl &url)
{
    try {
        return specification.claimAuxiliaryFile(url);
    } catch (const std::exception &) {
        return false;
    }
}

using SetupError = SpecificationManager::SetupError;

SetupError::Kind kindOf(const HostPDFError &error)
{
    switch (error.kind) {
    case HostPDFError::Kind::Unreadable:
        return SetupError::Kind::UnreadableFile;
    case HostPDFError::Kind::NotAPDF:
        return SetupError::Kind::NotAPDF;
    case HostPDFError::Kind::Damaged:
        return SetupError::Kind::DamagedFile;
    case HostPDFError::Kind::PasswordNeeded:
        break;
    }
    return SetupError::Kind::PasswordNeeded;
}

QString description(SetupError::Kind kind)
{
    switch (kind) {
    case SetupError::Kind::UnassignedAuxiliaryFile:
        break;
    case SetupError::Kind::UnreadableFile:
        return localized("%@ cannot be read.", "aux file assignment error description");
    case SetupError::Kind::NotAPDF:
        return localized("%@ is not a PDF.", "aux file assignment error description");
    case SetupError::Kind::DamagedFile:
        return localized("%@ is damaged.", "aux file assignment error description");
    case SetupError::Kind::PasswordNeeded:
        return localized("%@ is protected by a password.", "aux file assignment error description");
    }
    return localized("%@ does not match any supported specifications.",
                     "aux file assignment error description");
}

/// Why none of those that were asked took the file.
SetupError setupError(const QUrl &url)
{
    if (const auto failure = CandidateReading::failure(url))
        return SetupError(url, *failure);
    // Whoever goes by its name hasn't looked at it.
    const QString path = url.toLocalFile();
    if (!path.isEmpty() && !QFileInfo::exists(path))
        return SetupError(
            url, HostPDFError(HostPDFError::Kind::Unreadable, path, qt_error_string(ENOENT)));
    return SetupError(url);
}

} // namespace

SpecificationManager::SetupError::SetupError(const QUrl &file)
    : std::runtime_error(file.toLocalFile().toStdString() +
                         ": does not match any supported specifications"),
      url(file),
      errorDescription(description(kind).replace("%@"_L1, file.fileName())),
      failureReason(errorDescription),
      recoverySuggestion(
          localized("Try another file.", "aux file assignment error recovery suggestion"))
{
}

SpecificationManager::SetupError::SetupError(const QUrl &file, const HostPDFError &reason)
    : std::runtime_error(reason.what()),
      kind(kindOf(reason)),
      url(file),
      errorDescription(description(kind).replace("%@"_L1, file.fileName())),
      failureReason(errorDescription),
      recoverySuggestion(
          localized("Try another file.", "aux file assignment error recovery suggestion"))
{
}

std::optional<QString> SpecificationManager::supportDirectory()
{
    return AuxiliaryFileStore::directory();
}

const std::vector<QUrl> &SpecificationManager::auxiliaryFiles()
{
    if (!m_auxiliaryFiles) {
        m_auxiliaryFiles = AuxiliaryFileStore::files();
        postAuxiliaryFilesChanged();
    }
    return *m_auxiliaryFiles;
}

void SpecificationManager::setAuxiliaryFiles(std::vector<QUrl> files)
{
    m_auxiliaryFiles = std::move(files);
}

void SpecificationManager::assignExistingAuxiliaryFiles(Specification &specification)
{
    if (specification.auxiliaryFileRequirements().empty())
        return;
    // A copy, since what claims a file may change the list.
    const std::vector<QUrl> files = auxiliaryFiles();
    for (const QUrl &file : files) {
        if (!specificationBoundTo(file) && claims(specification, file))
            return;
    }
}

QUrl SpecificationManager::registerAuxiliaryFile(const QUrl &url)
{
    const CandidateReading once;
    const SpecificationPtr specification = specificationFor(url);
    QUrl stored = AuxiliaryFileStore::add(url);
    try {
        specification->claimAuxiliaryFile(stored);
    } catch (...) {
        if (stored != url)
            AuxiliaryFileStore::remove(stored);
        throw;
    }
    // Read for the first time, the list may have the copy already.
    auxiliaryFiles();
    if (std::find(m_auxiliaryFiles->begin(), m_auxiliaryFiles->end(), stored) ==
        m_auxiliaryFiles->end())
        m_auxiliaryFiles->push_back(stored);
    postAuxiliaryFilesChanged();
    return stored;
}

void SpecificationManager::registerAuxiliaryFiles(const std::vector<QUrl> &urls)
{
    for (const QUrl &url : urls)
        registerAuxiliaryFile(url);
}

void SpecificationManager::unregisterAuxiliaryFile(const QUrl &url)
{
    auxiliaryFiles();
    const auto it = std::find(m_auxiliaryFiles->begin(), m_auxiliaryFiles->end(), url);
    if (it == m_auxiliaryFiles->end()) {
        qCWarning(managerLog) << "Tried to unregister a file that isn't registered";
        return;
    }
    // What the caller gave may be the very one in the list.
    const QUrl file = std::move(*it);
    m_auxiliaryFiles->erase(it);
    AuxiliaryFileStore::remove(file);
    rebuildSpecification(file);
    postAuxiliaryFilesChanged();
}

SpecificationManager::SpecificationPtr SpecificationManager::bindAuxiliaryFile(const QUrl &url)
{
    const CandidateReading once;
    SpecificationPtr specification = specificationFor(url);
    if (!specification->claimAuxiliaryFile(url))
        throw setupError(url);
    return specification;
}

SpecificationManager::SpecificationPtr SpecificationManager::specificationFor(const QUrl &url) const
{
    const auto recognises = [&url](const SpecificationPtr &specification) {
        return specification->isAuxiliaryFileCompatible(url);
    };
    const auto it = std::find_if(m_specifications.begin(), m_specifications.end(), recognises);
    if (it == m_specifications.end())
        throw setupError(url);
    return *it;
}

SpecificationManager::SpecificationPtr
SpecificationManager::specificationBoundTo(const QUrl &file) const
{
    return specificationWhere([&file](const Specification &specification) {
        const auto &requirements = specification.auxiliaryFileRequirements();
        return std::any_of(requirements.begin(), requirements.end(),
                           [&](const auto &requirement) { return requirement->fileURL == file; });
    });
}

void SpecificationManager::rebuildSpecification(const QUrl &boundFile)
{
    const SpecificationPtr old = specificationBoundTo(boundFile);
    if (!old || !old->specMapURL())
        return;
    try {
        const SpecificationPtr fresh =
            Specification::withStructureFile(*old->specMapURL(), old->dtdURL());
        *std::find(m_specifications.begin(), m_specifications.end(), old) = fresh;
        release(*old);
        adopt(*fresh);
    } catch (const std::exception &error) {
        qCWarning(managerLog).noquote()
            << "Error re-loading the specification after deleting its auxiliary file:"
            << QString::fromUtf8(error.what());
        return;
    }
    updateOrderAndPrimary();
}

void SpecificationManager::postAuxiliaryFilesChanged()
{
    NotificationCenter::shared().post(TavrinConstants::SpecManagerAuxiliaryFilesChangedNotification,
                                      this);
}

} // namespace Tavrin
