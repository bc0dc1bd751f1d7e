// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/files/AuxiliaryFileImport.h>

#include <Tavrin/interface/toolkit/InterfaceLog.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <chrono>
#include <utility>

namespace Tavrin
{

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

/// A window that is minimised paints no sheet; its import begins all the same.
constexpr auto longestWaitForSheet = 1s;

} // namespace

AuxiliaryFileImport::Failure::Failure(const QUrl &file, const std::exception &error) : url(file)
{
    if (const auto *setup = dynamic_cast<const SpecificationManager::SetupError *>(&error)) {
        description = setup->errorDescription;
        suggestion = setup->recoverySuggestion;
    } else {
        description = file.fileName() + u": "_s + QString::fromUtf8(error.what());
    }
}

AuxiliaryFileImport::AuxiliaryFileImport(QObject *parent, SpecificationManager &manager)
    : QObject(parent), m_manager(manager)
{
    m_turn.setSingleShot(true);
    connect(&m_turn, &QTimer::timeout, this, &AuxiliaryFileImport::importNext);
}

AuxiliaryFileImport::~AuxiliaryFileImport()
{
    endSheet();
}

void AuxiliaryFileImport::start(const std::vector<QUrl> &urls, QWidget *window)
{
    m_waiting.insert(m_waiting.end(), urls.begin(), urls.end());
    if (std::exchange(m_isRunning, true))
        return;
    if (!window) {
        m_turn.start(0ms);
        return;
    }
    m_sheet =
        ProgressSheet::begin(*window, localized("Importing…", "aux file import progress title"),
                             ProgressSheet::Kind::Indeterminate);
    m_turn.start(longestWaitForSheet);
    connect(m_sheet, &ProgressSheet::painted, &m_turn, [this] { m_turn.start(0ms); });
}

void AuxiliaryFileImport::showFailures(QWidget *window, const std::vector<Failure> &failures)
{
    if (failures.empty())
        return;
    QStringList descriptions;
    for (const Failure &failure : failures)
        descriptions += failure.description;
    if (!window) {
        qCWarning(interfaceLog).noquote() << descriptions.join(u'\n');
    } else if (failures.size() == 1) {
        Sheet::showMessage(*window, failures.front().description, failures.front().suggestion);
    } else {
        Sheet::showMessage(*window, localized("Import Errors", "aux file assignment error title"),
                           descriptions.join(u"\n\n"_s));
    }
}

void AuxiliaryFileImport::importNext()
{
    auto *manager = m_manager.get();
    if (m_waiting.empty() || !manager) {
        m_waiting.clear();
        finish();
        return;
    }
    const QUrl url = m_waiting.front();
    m_waiting.pop_front();
    try {
        // Its notification has the table read again, with the file in the row that it belongs to.
        manager->registerAuxiliaryFile(url);
    } catch (const std::exception &error) {
        m_failures.emplace_back(url, error);
    }
    m_turn.start(0ms);
}

void AuxiliaryFileImport::finish()
{
    m_isRunning = false;
    endSheet();
    Q_EMIT finished(std::exchange(m_failures, {}));
}

void AuxiliaryFileImport::endSheet()
{
    if (m_sheet)
        m_sheet->end(QDialog::Accepted);
}

} // namespace Tavrin
