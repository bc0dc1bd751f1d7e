// SPDX-License-Identifier: Apache-2.0
#include "ReaderArguments.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#include <Tavrin/platform/TavrinVersion.h>

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;
using CommandLine::ArgumentDescription;
using CommandLine::CommandDescription;
using CommandLine::ValueDescription;

namespace
{

CommandDescription describe()
{
    CommandDescription description(
        u"tavrin-reader"_s,
        u"reads specifications that exist only as PDFs: looks up clauses, figures and tables"_s,
        u"Without --maps the directory that was opened last is used. A reader that runs already "
        "takes\nover what it is called with. A PDF that is named without --pdf is opened likewise, "
        "and of\na map its directory."_s);
    description.addOptions({
        {{u"v"_s, u"version"_s}, u"Show the version."_s},
        {u"maps"_s, u"Directory of spec maps; may be given several times."_s,
         ValueDescription::directory(u"DIR"_s)},
        {u"pdf"_s,
         u"PDF to read where it lies, without importing it; may be given several times."_s,
         ValueDescription::pdf(u"DOC.pdf"_s)},
        {u"new-window"_s, u"Open a window of its own even if a reader runs already."_s},
    });
    description.addArgument(
        {ValueDescription::entry(u"LABEL"_s),
         u"What to open: a label, a spec URL, or a reference such as \"Fig. 3-7\"."_s,
         ArgumentDescription::Count::AtMostOne});
    return description;
}

/// The file that an argument names as a path or as a URL, as desktops hand files over; empty if it
/// names none.
QFileInfo namedFile(const QString &argument)
{
    const QUrl url(argument);
    const QFileInfo file(url.isLocalFile() ? url.toLocalFile() : argument);
    return file.isFile() ? file : QFileInfo();
}

void sortPositional(const QStringList &arguments, ReaderArguments &result)
{
    QStringList words;
    for (const QString &argument : arguments) {
        const QFileInfo file = namedFile(argument);
        const QString suffix = file.suffix().toLower();
        if (suffix == "pdf"_L1)
            result.pdfs += file.absoluteFilePath();
        else if (suffix == "xml"_L1)
            result.maps += file.absolutePath();
        else
            words += argument;
    }
    result.reference = words.join(u' ');
}

QStringList strings(const QJsonValue &value)
{
    QStringList result;
    for (const QJsonValue item : value.toArray())
        result += item.toString();
    return result;
}

} // namespace

CommandLine::ProgramDescription ReaderArguments::describeProgram()
{
    return {describe(),
            {},
            {{u"tavrin-reader --maps maps --pdf DOC.pdf \"Fig. 3-7\""_s,
              u"Opens a document at a figure."_s}},
            {{u"0"_s, u"done"_s}, {u"2"_s, u"bad input"_s}},
            {{u"$XDG_CONFIG_HOME/tavrin/tavrin-reader.conf"_s,
              u"What windows remember; ~/.config stands in where the variable is not set."_s},
             {u"$XDG_DATA_HOME/tavrin/tavrin"_s,
              u"Imported copies; ~/.local/share stands in where the variable is not set."_s}}};
}

ReaderArguments ReaderArguments::parse(const QStringList &arguments)
{
    const CommandDescription description = describe();
    QCommandLineParser parser;
    description.addTo(parser);
    if (!parser.parse(arguments))
        throw Error(parser.errorText());
    ReaderArguments result;
    if (parser.isSet(u"help"_s))
        result.answer = description.help() + u'\n';
    else if (parser.isSet(u"version"_s))
        result.answer = u"%1 %2\n"_s.arg(description.name(), TavrinVersionString);
    for (const QString &directory : parser.values(u"maps"_s)) {
        if (!QFileInfo(directory).isDir())
            throw Error(u"%1: no such directory"_s.arg(directory));
        result.maps += QFileInfo(directory).absoluteFilePath();
    }
    for (const QString &pdf : parser.values(u"pdf"_s)) {
        if (!QFileInfo(pdf).isFile())
            throw Error(u"%1: no such file"_s.arg(pdf));
        result.pdfs += QFileInfo(pdf).absoluteFilePath();
    }
    result.isNewWindow = parser.isSet(u"new-window"_s);
    sortPositional(parser.positionalArguments(), result);
    return result;
}

QByteArray ReaderArguments::toLine() const
{
    const QJsonObject object{{u"maps"_s, QJsonArray::fromStringList(maps)},
                             {u"pdfs"_s, QJsonArray::fromStringList(pdfs)},
                             {u"reference"_s, reference}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

std::optional<ReaderArguments> ReaderArguments::fromLine(const QByteArray &line)
{
    const QJsonDocument document = QJsonDocument::fromJson(line);
    if (!document.isObject())
        return std::nullopt;
    const QJsonObject object = document.object();
    ReaderArguments result;
    result.maps = strings(object[u"maps"_s]);
    result.pdfs = strings(object[u"pdfs"_s]);
    result.reference = object[u"reference"_s].toString();
    return result;
}

} // namespace Tavrin::Reader
