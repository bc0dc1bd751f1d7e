// SPDX-License-Identifier: Apache-2.0
#include <reader/citing/CitationDocument.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <Tavrin/platform/StringLocalizer.h>

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;

namespace
{

constexpr auto citationsKey = "citations"_L1;
constexpr auto textKey = "text"_L1;
constexpr auto referencesKey = "references"_L1;
/// Beyond what people write, and below what would take long to read.
constexpr qint64 largestFile = 64'000'000;

QJsonArray json(const QStringList &texts)
{
    return QJsonArray::fromStringList(texts);
}

Citation citation(const QJsonObject &object)
{
    Citation result{object[textKey].toString(), {}};
    const QJsonArray references = object[referencesKey].toArray();
    for (const auto &reference : references) {
        if (reference.isString())
            result.references += reference.toString();
    }
    return result;
}

} // namespace

CitationDocument::Error::Error(const QString &path, const QString &fault)
    : std::runtime_error((path + u": "_s + fault).toStdString())
{
}

CitationDocument CitationDocument::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        throw Error(path, file.errorString());
    const QByteArray bytes = file.read(largestFile + 1);
    if (bytes.size() > largestFile)
        throw Error(path, localized("The file is too large.", "fault of a file"));
    QJsonParseError fault;
    const QJsonDocument json = QJsonDocument::fromJson(bytes, &fault);
    if (fault.error != QJsonParseError::NoError) {
        throw Error(path, localized("%1 at byte %2", "fault of a file")
                              .arg(fault.errorString(), QString::number(fault.offset)));
    }
    const QJsonValue citations = json.object()[citationsKey];
    if (!citations.isArray())
        throw Error(path, localized("This is no list of citations.", "fault of a file"));
    CitationDocument document;
    const QJsonArray array = citations.toArray();
    for (const auto &value : array)
        document.citations.push_back(citation(value.toObject()));
    return document;
}

void CitationDocument::write(const QString &path) const
{
    QJsonArray array;
    for (const Citation &citation : citations)
        array += QJsonObject{{textKey, citation.text}, {referencesKey, json(citation.references)}};
    QSaveFile file(path);
    if (!file.open(QFile::WriteOnly))
        throw Error(path, file.errorString());
    file.write(QJsonDocument(QJsonObject{{citationsKey, array}}).toJson());
    if (!file.commit())
        throw Error(path, file.errorString());
}

} // namespace Tavrin::Reader
