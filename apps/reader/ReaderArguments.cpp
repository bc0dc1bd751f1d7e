// SPDX-License-Identifier: Apache-2.0
#include "ReaderArguments.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;

namespace
{

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        u"Reads specifications that exist only as PDFs: looks up clauses, figures and tables.\n\n"
        "Without --maps the directory that was opened last is used."_s);
    parser.addOptions({
        {{u"h"_s, u"help"_s}, u"Show this help."_s},
        {{u"v"_s, u"version"_s}, u"Show the version."_s},
        {u"maps"_s, u"Directory of spec maps; may be given several times."_s, u"DIR"_s},
        {u"pdf"_s,
         u"PDF to read where it lies, without importing it; may be given several times."_s,
         u"DOC.pdf"_s},
    });
    parser.addPositionalArgument(
        u"LABEL"_s, u"What to open: a label, a spec URL, or a reference such as \"Fig. 3-7\"."_s,
        u"[LABEL]"_s);
}

} // namespace

ReaderArguments ReaderArguments::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    describe(parser);
    if (!parser.parse(arguments))
        throw Error(parser.errorText());
    ReaderArguments result;
    if (parser.isSet(u"help"_s))
        result.answer = parser.helpText();
    else if (parser.isSet(u"version"_s))
        result.answer = u"tavrin-reader %1\n"_s.arg(QStringLiteral(TAVRIN_VERSION));
    result.maps = parser.values(u"maps"_s);
    result.pdfs = parser.values(u"pdf"_s);
    for (const QString &directory : result.maps) {
        if (!QFileInfo(directory).isDir())
            throw Error(u"%1: no such directory"_s.arg(directory));
    }
    for (const QString &pdf : result.pdfs) {
        if (!QFileInfo(pdf).isFile())
            throw Error(u"%1: no such file"_s.arg(pdf));
    }
    result.reference = parser.positionalArguments().join(u' ');
    return result;
}

} // namespace Tavrin::Reader
