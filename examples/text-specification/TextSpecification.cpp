// SPDX-License-Identifier: Apache-2.0
#include "TextSpecification.h"

#include <QFile>

#include <algorithm>

#include <Tavrin/model/EntryClass.h>
#include <Tavrin/model/SpecTypeDefinition.h>

#include "TextEntry.h"
#include "TextViewController.h"

namespace
{

constexpr qint64 largestFile = 64'000'000;

/// Files come from users, so there is a bound on what is read of one.
QString read(const QUrl &url)
{
    QFile file(url.toLocalFile());
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.read(largestFile)) : QString();
}

QString heading(const Tavrin::SpecificationEntry &entry)
{
    return entry.outlineTitle();
}

} // namespace

//! [register]
void TextSpecification::registerType()
{
    const auto needsText = [](const Tavrin::Specification &specification) {
        const auto &requirements = specification.auxiliaryFileRequirements();
        return requirements.size() == 1 && requirements.front()->fileType == QStringLiteral("txt");
    };
    registerSpecType(Tavrin::SpecType::of<TextSpecification>(), true, needsText);
}
//! [register]

//! [entry class]
Tavrin::EntryClass TextSpecification::entryClass() const
{
    return Tavrin::EntryClass::of<TextEntry>();
}
//! [entry class]

//! [files]
bool TextSpecification::doesAuxiliaryFile(const QUrl &url,
                                          const Tavrin::AuxiliaryFileRequirement &requirement)
{
    return url.path().endsWith(u'.' + requirement.fileType) &&
           read(url).contains(requirement.verifier);
}

bool TextSpecification::assignAuxiliaryFile(const QUrl &url,
                                            const Tavrin::AuxiliaryFileRequirement &requirement)
{
    if (!doesAuxiliaryFile(url, requirement))
        return false;
    m_text = read(url);
    return true;
}
//! [files]

std::pair<qsizetype, qsizetype>
TextSpecification::section(const Tavrin::SpecificationEntry &entry) const
{
    const auto find = [this](const Tavrin::SpecificationEntry &one, qsizetype from) {
        const qsizetype found = m_text.indexOf(heading(one), from);
        return found < 0 ? m_text.size() : found;
    };
    const qsizetype start = find(entry, 0);
    qsizetype end = m_text.size();
    for (const auto &other : entries()) {
        if (other->label() != entry.label())
            end = std::min(end, find(*other, start + 1));
    }
    return {start, end};
}

Tavrin::ViewControllerPtr
TextSpecification::detailViewController(const std::optional<QString> &label)
{
    const auto shown = label ? entry(*label) : nullptr;
    if (!areFileRequirementsSatisfied() || (label && !shown))
        return nullptr;
    const auto controller = std::make_shared<TextViewController>();
    controller->setSpecification(shared_from_this());
    controller->setEntry(shown);
    return controller;
}
