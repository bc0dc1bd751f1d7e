// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/manager/SpecificationManager.h>

#include <Tavrin/manager/ManagedRegistry.h>
#include <Tavrin/model/MapReading.h>
#include <Tavrin/platform/Logging.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace Tavrin
{

using namespace Qt::StringLiterals;

SpecificationManager::DirectoryError::DirectoryError(const QString &name)
    : std::runtime_error(name.toStdString() + ": not a directory that can be listed"),
      directory(name)
{
}

SpecificationManager::SpecificationManager() : m_registry(std::make_shared<ManagedRegistry>(*this))
{
}

SpecificationManager::~SpecificationManager()
{
    m_registry->close();
}

SpecificationManager &SpecificationManager::shared()
{
    static SpecificationManager manager;
    return manager;
}

void SpecificationManager::adopt(Specification &specification)
{
    specification.setRegistry(m_registry);
}

void SpecificationManager::release(Specification &specification)
{
    // It may be held twice, and another manager may have taken it over.
    const bool isHeld = specificationWhere([&](const Specification &candidate) {
                            return &candidate == &specification;
                        }) != nullptr;
    if (!isHeld && specification.registry() == m_registry)
        specification.setRegistry(nullptr);
}

void SpecificationManager::setSpecifications(std::vector<SpecificationPtr> specifications)
{
    const auto former = std::exchange(m_specifications, std::move(specifications));
    for (const SpecificationPtr &specification : former)
        release(*specification);
    for (const SpecificationPtr &specification : m_specifications)
        adopt(*specification);
    updateOrderAndPrimary();
}

void SpecificationManager::registerSpecification(const SpecificationPtr &specification)
{
    m_specifications.push_back(specification);
    adopt(*specification);
    updateOrderAndPrimary();
    assignExistingAuxiliaryFiles(*specification);
}

void SpecificationManager::registerSpecification(const QUrl &specMap,
                                                 const std::optional<QUrl> &dtd)
{
    // A stored file is offered at once, and binding it loads the table.
    const MapReading once;
    registerSpecification(Specification::withStructureFile(specMap, dtd));
}

void SpecificationManager::loadSpecInformation(const QUrl &directory,
                                               const std::vector<QUrl> &auxiliaryFiles)
{
    const QDir dir(directory.toLocalFile());
    if (!QFileInfo(dir.path()).isDir() || !dir.isReadable())
        throw DirectoryError(dir.path());
    const QStringList names = dir.entryList(QDir::Files | QDir::Hidden, QDir::Name);
    for (const QString &name : names) {
        if (QFileInfo(name).suffix() != "xml"_L1)
            continue;
        const QString dtdName = QFileInfo(name).completeBaseName() + u".dtd"_s;
        std::optional<QUrl> dtd;
        if (names.contains(dtdName))
            dtd = QUrl::fromLocalFile(dir.absoluteFilePath(dtdName));
        registerSpecification(QUrl::fromLocalFile(dir.absoluteFilePath(name)), dtd);
    }
    registerAuxiliaryFiles(auxiliaryFiles);
    if (!m_primarySpecification)
        updatePrimarySpecification();
}

void SpecificationManager::setPrimarySpecification(const SpecificationPtr &specification)
{
    m_primarySpecification = specification;
}

const SpecificationManager::SpecificationPredicate &
SpecificationManager::primarySpecificationPredicate() const
{
    return m_primarySpecificationPredicate;
}

void SpecificationManager::setPrimarySpecificationPredicate(SpecificationPredicate predicate)
{
    m_primarySpecificationPredicate = std::move(predicate);
    updatePrimarySpecification();
}

void SpecificationManager::setSpecComparators(std::vector<Comparator> comparators)
{
    m_specComparators = std::move(comparators);
    updateOrderAndPrimary();
}

std::vector<std::shared_ptr<SpecificationComparator>>
SpecificationManager::bridgedSpecComparators() const
{
    std::vector<std::shared_ptr<SpecificationComparator>> bridged;
    bridged.reserve(m_specComparators.size());
    for (const Comparator &comparator : m_specComparators)
        bridged.push_back(std::make_shared<SpecificationComparator>(comparator));
    return bridged;
}

void SpecificationManager::setBridgedSpecComparators(
    const std::vector<std::shared_ptr<SpecificationComparator>> &comparators)
{
    std::vector<Comparator> functions;
    functions.reserve(comparators.size());
    for (const auto &comparator : comparators)
        functions.push_back(comparator->comparator());
    setSpecComparators(std::move(functions));
}

void SpecificationManager::updateOrderAndPrimary()
{
    if (!m_specComparators.empty())
        sortSpecifications();
    updatePrimarySpecification();
}

bool SpecificationManager::isOrderedBefore(const Specification &a, const Specification &b) const
{
    for (const Comparator &comparator : m_specComparators) {
        const auto result = comparator(a, b);
        if (!std::is_eq(result))
            return std::is_lt(result);
    }
    return false;
}

void SpecificationManager::sortSpecifications()
{
    // Insertion, because a host's comparators need not be consistent, and lists are short.
    for (auto next = m_specifications.begin(); next != m_specifications.end(); ++next) {
        const auto place =
            std::find_if(m_specifications.begin(), next, [&](const SpecificationPtr &sorted) {
                return isOrderedBefore(**next, *sorted);
            });
        std::rotate(place, next, next + 1);
    }
}

void SpecificationManager::updatePrimarySpecification()
{
    m_primarySpecification = m_primarySpecificationPredicate
                                 ? specificationWhere(m_primarySpecificationPredicate)
                                 : specificationWhere(acceptAll);
    if (!m_primarySpecification || !m_primarySpecification->entries().isEmpty())
        return;
    try {
        m_primarySpecification->loadStructure();
    } catch (const std::exception &error) {
        qCWarning(managerLog).noquote()
            << "Error loading primary specification entries:" << QString::fromUtf8(error.what());
    }
}

SpecificationManager::SpecificationPtr
SpecificationManager::specificationWhere(const SpecificationPredicate &predicate) const
{
    const auto it = std::find_if(m_specifications.begin(), m_specifications.end(),
                                 [&](const SpecificationPtr &spec) { return predicate(*spec); });
    return it == m_specifications.end() ? nullptr : *it;
}

std::vector<SpecificationManager::SpecificationPtr> SpecificationManager::lookupOrder() const
{
    std::vector<SpecificationPtr> order;
    if (m_primarySpecification)
        order.push_back(m_primarySpecification);
    std::copy_if(m_specifications.begin(), m_specifications.end(), std::back_inserter(order),
                 [this](const SpecificationPtr &spec) { return spec != m_primarySpecification; });
    return order;
}

SpecificationManager::EntryPtr
SpecificationManager::entry(const QString &label, const SpecificationPredicate &inSpecsWhere) const
{
    for (const SpecificationPtr &specification : lookupOrder()) {
        if (!inSpecsWhere(*specification))
            continue;
        if (auto found = specification->entry(label))
            return found;
    }
    return nullptr;
}

SpecificationManager::EntryPtr
SpecificationManager::entryWhere(const EntryPredicate &predicate) const
{
    for (const SpecificationPtr &specification : lookupOrder()) {
        for (const EntryPtr &entry : specification->entries()) {
            if (predicate(*entry))
                return entry;
        }
    }
    return nullptr;
}

} // namespace Tavrin
