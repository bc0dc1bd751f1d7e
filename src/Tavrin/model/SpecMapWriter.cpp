// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/model/SpecMapWriter.h>

#include <Tavrin/model/Specification.h>
#include <Tavrin/model/XMLBoolean.h>

#include <algorithm>

namespace Tavrin::SpecMapWriter
{

using namespace Qt::StringLiterals;

namespace
{

using EntryPtr = Specification::EntryPtr;

HostXMLElement toc(const Specification &specification)
{
    std::vector<EntryPtr> entries;
    for (const EntryPtr &entry : specification.entries())
        entries.push_back(entry);
    std::stable_sort(entries.begin(), entries.end(),
                     [](const EntryPtr &a, const EntryPtr &b) { return entryPrecedes(*a, *b); });
    HostXMLElement element = HostXMLElement::element(u"toc"_s);
    for (const EntryPtr &entry : entries)
        element.append(specification.xmlElement(*entry));
    return element;
}

HostXMLElement auxiliaryFiles(const Specification &specification)
{
    HostXMLElement element = HostXMLElement::element(u"auxfiles"_s);
    for (const HostXMLElement &file : specification.generateAuxiliaryFileRequirementXMLNodes())
        element.append(file);
    return element;
}

void setAttributes(HostXMLElement &root, const Specification &specification)
{
    root.setAttribute(u"id"_s, specification.identifier());
    root.setAttribute(u"revision"_s, specification.revision());
    root.setAttribute(u"variant"_s, specification.variant());
    root.setAttribute(u"lang"_s, specification.language());
    root.setAttribute(u"version"_s, specification.version());
    root.setAttribute(u"xmlns"_s, u"https://tavrin.example/ns/spec/v1"_s);
    root.setAttribute(u"kelmor"_s, u"https://tavrin.example/ns/kelmor/v1"_s);
    root.setAttribute(u"nopreviews"_s, textForm(specification.allowsPreviews() ? XMLBoolean::False
                                                                               : XMLBoolean::True));
}

} // namespace

HostXMLElement rootElement(const Specification &specification)
{
    HostXMLElement root = HostXMLElement::element(u"spec"_s);
    root.append(auxiliaryFiles(specification));
    root.append(HostXMLElement::element(u"name"_s, specification.title()));
    root.append(HostXMLElement::element(u"shortname"_s, specification.shortTitle()));
    root.append(toc(specification));
    setAttributes(root, specification);
    return root;
}

HostXMLElement entryElement(const SpecificationEntry &entry)
{
    HostXMLElement element = HostXMLElement::element(u"entry"_s);
    element.setAttribute(u"label"_s, entry.label());
    element.setAttribute(u"type"_s, textForm(entry.type()));
    element.append(HostXMLElement::element(u"index"_s, entry.number()));
    element.append(HostXMLElement::element(u"name"_s, entry.title()));
    if (!entry.keywords().isEmpty())
        element.append(HostXMLElement::element(u"keywords"_s, entry.keywords().join(u',')));
    if (entry.relatedEntries().isEmpty())
        return element;
    HostXMLElement related = HostXMLElement::element(u"related"_s);
    for (const QString &label : entry.relatedEntries())
        related.append(HostXMLElement::element(u"item"_s, label));
    element.append(related);
    return element;
}

QString brokenIntoLines(QString xml)
{
    return xml.replace(u"><"_s, u">\n<"_s);
}

} // namespace Tavrin::SpecMapWriter
