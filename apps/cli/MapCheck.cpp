// SPDX-License-Identifier: Apache-2.0
#include "MapCheck.h"

#include <QSet>

#include <Tavrin/model/SpecURL.h>
#include <Tavrin/platform/StringLocalizer.h>

#include "EntryReport.h"

namespace Tavrin::Cli::MapCheck
{

using namespace Qt::StringLiterals;

namespace
{

QStringList repeatedLabels(const Specification &specification)
{
    const auto document = Specification::loadValidatedXMLDocument(*specification.specMapURL(),
                                                                  specification.dtdURL());
    QStringList faults;
    QSet<QString> seen;
    for (const HostXMLNode &toc : document.rootElement()->children()) {
        if (toc.name() != u"toc"_s)
            continue;
        for (const HostXMLNode &entry : toc.children()) {
            const QString label = entry.attribute("label").value_or(QString());
            if (seen.contains(label))
                faults += localized("label \"%1\" stands twice; only the first entry counts",
                                    "fault of a map")
                              .arg(label);
            seen.insert(label);
        }
    }
    return faults;
}

/// Whether a label or spec URL leads into this specification, not into another.
bool isOurs(const QString &reference, const Specification &specification)
{
    const auto components = SpecURL::components(reference);
    return !components || components->size() < 3 || (*components)[1] == SpecURL::wildcard ||
           (*components)[1] == specification.identifier();
}

QStringList entryFaults(Specification &specification, const SpecificationEntry &entry)
{
    QStringList faults;
    for (const QString &related : entry.relatedEntries()) {
        if (isOurs(related, specification) && !specification.entry(related))
            faults +=
                localized("entry \"%1\": no entry has the related label \"%2\"", "fault of a map")
                    .arg(entry.label(), related);
    }
    const QString url = EntryReport::url(entry);
    if (SpecURL::hasReversedLines(url) || specification.entry(url).get() != &entry) {
        faults +=
            localized("entry \"%1\": its spec URL %2 does not lead back to it", "fault of a map")
                .arg(entry.label(), url);
    }
    return faults;
}

} // namespace

QStringList faults(Specification &specification)
{
    QStringList faults = repeatedLabels(specification);
    for (const auto &entry : specification.entries())
        faults += entryFaults(specification, *entry);
    return faults;
}

} // namespace Tavrin::Cli::MapCheck
