// SPDX-License-Identifier: Apache-2.0
#include <support/SampleDocument.h>

#include <support/PDFBuilder.h>

namespace Tavrin::Testing
{

using namespace Qt::StringLiterals;

QByteArray sampleDocument(const QString &word, qsizetype padding)
{
    PDFBuilder pdf;
    pdf.addPage().text(72, 700, word).text(72, 500, u"1 Scope"_s);
    pdf.namedDestination("scope", Dest::xyz(0, 72, 512));
    if (padding > 0)
        pdf.addStream({}, QByteArray(padding, 'x'));
    return pdf.build();
}

MapBuilder sampleMap(const QString &word)
{
    MapBuilder map(word, u"1"_s);
    map.title(u"The "_s + word)
        .file(u"pdf"_s, word + u",1,Scope"_s, u"0,0,612,792"_s)
        .entry({.label = u"1"_s, .index = u"1"_s, .name = u"Scope"_s, .internal = u"scope"_s});
    return map;
}

} // namespace Tavrin::Testing
