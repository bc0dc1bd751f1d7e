// SPDX-License-Identifier: Apache-2.0
#include <support/MapBuilder.h>

#include <QFile>
#include <QXmlStreamWriter>

#include <stdexcept>

namespace Tavrin::Testing
{

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
    xml.writeStartElement(QStringLiteral("entry"));
    xml.writeAttribute(QStringLiteral("label"), entry.label);
    xml.writeAttribute(QStringLiteral("type"), entry.type);
    writeOptional(xml, QStringLiteral("index"), entry.index);
    writeOptional(xml, QStringLiteral("name"), entry.name);
    if (!entry.keywords.isEmpty())
        xml.writeTextElement(QStringLiteral("keywords"), entry.keywords.join(QLatin1Char(',')));
    writeOptional(xml, QStringLiteral("internal"), entry.internal);
    if (!entry.related.isEmpty()) {
        xml.writeStartElement(QStringLiteral("related"));
        for (const QString &label : entry.related)
            xml.writeTextElement(QStringLiteral("item"), label);
        xml.writeEndElement();
    }
    xml.writeEndElement();
}

} // namespace

MapBuilder::MapBuilder(const QString &identifier, const QString &revision) : m_title(identifier)
{
    attribute(QStringLiteral("id"), identifier);
    if (!revision.isEmpty())
        attribute(QStringLiteral("revision"), revision);
}

MapBuilder &MapBuilder::attribute(const QString &name, const QString &value)
{
    m_attributes[name] = value;
    return *this;
}

MapBuilder &MapBuilder::title(const QString &title, const QString &shortTitle)
{
    m_title = title;
    m_shortTitle = shortTitle;
    return *this;
}

MapBuilder &MapBuilder::file(const QString &type, const QString &verifier, const QString &readInfo)
{
    m_files.push_back({type, verifier, readInfo});
    return *this;
}

MapBuilder &MapBuilder::entry(const MapEntry &entry)
{
    m_entries.push_back(entry);
    return *this;
}

QByteArray MapBuilder::xml() const
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("spec"));
    for (const auto &[name, value] : m_attributes)
        xml.writeAttribute(name, value);
    xml.writeStartElement(QStringLiteral("auxfiles"));
    for (const File &file : m_files) {
        xml.writeEmptyElement(QStringLiteral("file"));
        xml.writeAttribute(QStringLiteral("type"), file.type);
        xml.writeAttribute(QStringLiteral("verifier"), file.verifier);
        if (!file.readInfo.isEmpty())
            xml.writeAttribute(QStringLiteral("read-info"), file.readInfo);
    }
    xml.writeEndElement();
    xml.writeTextElement(QStringLiteral("name"), m_title);
    if (!m_shortTitle.isEmpty())
        xml.writeTextElement(QStringLiteral("shortname"), m_shortTitle);
    xml.writeStartElement(QStringLiteral("toc"));
    for (const MapEntry &entry : m_entries)
        writeEntry(xml, entry);
    xml.writeEndDocument();
    return bytes;
}

QUrl MapBuilder::write(const TemporaryFiles &files, const QString &name) const
{
    files.write(QStringLiteral("spec.dtd"), grammar());
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
