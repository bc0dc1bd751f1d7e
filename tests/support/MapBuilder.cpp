// SPDX-License-Identifier: Apache-2.0
#include <support/MapBuilder.h>

#include <QFile>
#include <QXmlStreamWriter>

#include <stdexcept>

namespace Tavrin::Testing
{

using namespace Qt::StringLiterals;

namespace
{

void writeOptional(QXmlStreamWriter &xml, const QString &element,
                   const std::optional<QString> &text)
{
    if (text)
        xml.writeTextElement(element, *text);
}

void writeEntry(QXmlStreamWriter &xml, const MapEntry &entry)
{
    xml.writeStartElement(u"entry"_s);
    xml.writeAttribute(u"label"_s, entry.label);
    xml.writeAttribute(u"type"_s, entry.type);
    writeOptional(xml, u"index"_s, entry.index);
    writeOptional(xml, u"name"_s, entry.name);
    if (!entry.keywords.isEmpty())
        xml.writeTextElement(u"keywords"_s, entry.keywords.join(QLatin1Char(',')));
    writeOptional(xml, u"internal"_s, entry.internal);
    if (!entry.related.isEmpty()) {
        xml.writeStartElement(u"related"_s);
        for (const QString &label : entry.related)
            xml.writeTextElement(u"item"_s, label);
        xml.writeEndElement();
    }
    xml.writeEndElement();
}

} // namespace

MapBuilder::MapBuilder(const QString &identifier, const QString &revision) : m_title(identifier)
{
    attribute(u"id"_s, identifier);
    if (!revision.isEmpty())
        attribute(u"revision"_s, revision);
}

QByteArray MapBuilder::xml() const
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.writeStartDocument();
    xml.writeStartElement(u"spec"_s);
    for (const auto &[name, value] : m_attributes)
        xml.writeAttribute(name, value);
    xml.writeStartElement(u"auxfiles"_s);
    for (const File &file : m_files) {
        xml.writeEmptyElement(u"file"_s);
        xml.writeAttribute(u"type"_s, file.type);
        xml.writeAttribute(u"verifier"_s, file.verifier);
        if (!file.readInfo.isEmpty())
            xml.writeAttribute(u"read-info"_s, file.readInfo);
    }
    xml.writeEndElement();
    xml.writeTextElement(u"name"_s, m_title);
    if (!m_shortTitle.isEmpty())
        xml.writeTextElement(u"shortname"_s, m_shortTitle);
    xml.writeStartElement(u"toc"_s);
    for (const MapEntry &entry : m_entries)
        writeEntry(xml, entry);
    xml.writeEndDocument();
    return bytes;
}

QUrl MapBuilder::write(const TemporaryFiles &files, const QString &name) const
{
    files.write(u"spec.dtd"_s, grammar());
    return files.write(name, xml());
}

QByteArray MapBuilder::grammar()
{
    QFile file(QStringLiteral(TAVRIN_SAMPLES "/spec.dtd"));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(file.fileName().toStdString() +
                                 ": the grammar of maps is missing");
    return file.readAll();
}

} // namespace Tavrin::Testing
