// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/files/AuxiliaryFile.h>

#include <Tavrin/model/Specification.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <algorithm>

namespace Tavrin
{

AuxiliaryFile::AuxiliaryFile(const std::shared_ptr<Specification> &specification, bool isPrimary)
    : m_spec(specification), m_isPrimary(isPrimary)
{
    for (const auto &requirement : specification->auxiliaryFileRequirements()) {
        if (requirement->fileURL)
            m_urls.push_back(*requirement->fileURL);
    }
}

AuxiliaryFile::AuxiliaryFile(const QUrl &url) : m_urls{url} {}

std::shared_ptr<Specification> AuxiliaryFile::spec() const
{
    return m_spec ? m_spec->lock() : nullptr;
}

void AuxiliaryFile::removeUrl(const QUrl &url)
{
    m_urls.erase(std::remove(m_urls.begin(), m_urls.end(), url), m_urls.end());
}

QString AuxiliaryFile::fileName() const
{
    if (const auto specification = spec())
        return specification->title();
    return m_urls.empty() ? QString() : m_urls.front().fileName();
}

QString AuxiliaryFile::matchStatus() const
{
    const auto specification = spec();
    if (!specification)
        return localized("Unrecognized", "spec aux file match status");
    if (specification->areFileRequirementsSatisfied())
        return {};
    return localized("Not Loaded", "spec aux file match status");
}

bool AuxiliaryFile::viewButtonHidden() const
{
    const auto specification = spec();
    return !specification || !specification->areFileRequirementsSatisfied();
}

bool AuxiliaryFile::isEnabled() const
{
    return !m_spec || !viewButtonHidden();
}

} // namespace Tavrin
