// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <support/Test.h>

#include <Tavrin/enhance/EntryGraphNode.h>
#include <Tavrin/enhance/PDFDestinationApproximator.h>
#include <Tavrin/platform/StandardOutput.h>
#include <support/MapBuilder.h>
#include <support/PDFBuilder.h>
#include <support/StandardErrorCapture.h>

namespace Tavrin::Testing
{

/// A small manual of two chapters with a figure, its skeleton map, and what is printed while it is
/// enhanced.
class EnhancerFixture : public testing::Test
{
protected:
    EnhancerFixture() { map.title(u"Bus Manual"_s); }

    /// A title page, then a page for each chapter: heading, two sections with text, and in the
    /// second chapter a figure under the text.
    void addPages()
    {
        pdf.addPage().text(200, 500, u"Bus Manual"_s, {Font::HelveticaBold, 24});
        addChapter(u"1"_s, u"Arbitration"_s,
                   {u"The arbiter grants the bus to one master at a time."_s,
                    u"A master that wants the bus raises its request line."_s,
                    u"The arbiter answers with a grant line."_s},
                   {u"Every master has a fixed rank. The arbiter reads the rank"_s,
                    u"from a register of the master."_s});
        auto &page = addChapter(u"2"_s, u"Transfers"_s,
                                {u"A transfer moves words over the data lines."_s,
                                 u"The slave answers each word with an acknowledge pulse."_s},
                                {u"A burst moves many words in a row. The arbiter waits"_s,
                                 u"until the burst ends before it grants the bus anew."_s});
        page.text(220, 340, u"Figure 2.1: Acknowledge pulse"_s, {});
    }

    PDFPageBuilder &addChapter(const QString &number, const QString &title,
                               const QStringList &first, const QStringList &second)
    {
        auto &page = pdf.addPage();
        page.text(72, 700, number + QLatin1Char(' ') + title, {Font::HelveticaBold, 18});
        page.text(72, 650, number + u".1 Rules of "_s + title, {Font::HelveticaBold, 14});
        page.column(72, 630, 12, first);
        page.text(72, 550, number + u".2 Limits of "_s + title, {Font::HelveticaBold, 14});
        page.column(72, 530, 12, second);
        return page;
    }

    void addEntries()
    {
        for (const auto &[number, title] :
             {std::pair(u"1"_s, u"Arbitration"_s), {u"2"_s, u"Transfers"_s}}) {
            map.entry({.label = number, .type = u"chapter"_s, .index = number, .name = title});
            map.entry({.label = number + u".1"_s,
                       .index = number + u",1"_s,
                       .name = u"Rules of "_s + title});
            map.entry({.label = number + u".2"_s,
                       .index = number + u",2"_s,
                       .name = u"Limits of "_s + title});
        }
        map.entry({.label = u"F"_s,
                   .type = u"figure"_s,
                   .index = u"2,1"_s,
                   .name = u"Acknowledge pulse"_s});
    }

    /// Named destinations of the names that an enhancer looks for.
    void addDestinations()
    {
        for (int chapter = 1; chapter <= 2; ++chapter) {
            const QByteArray number = QByteArray::number(chapter);
            pdf.namedDestination("ondry_ref_CLK" + number, Dest::xyz(chapter, 72, 720));
            pdf.namedDestination("ondry_ref_SLKa" + number, Dest::xyz(chapter, 72, 668));
            pdf.namedDestination("ondry_ref_SLKb" + number, Dest::xyz(chapter, 72, 568));
        }
        pdf.namedDestination("ondry_ref_FLK", Dest::xyz(2, 72, 390));
    }

    template <class T = PDFXMLEnhancer>
    std::shared_ptr<T> make(const std::function<void(T &)> &configure = {})
    {
        const QUrl dtd = files.write(u"spec.dtd"_s, MapBuilder::grammar());
        const QUrl skeleton = map.write(files, u"skeleton.xml"_s);
        auto enhancer = Specification::make<T>(skeleton, dtd, {}, configure);
        enhancer->matchWith(files.write(u"manual.pdf"_s, pdf.build()));
        return enhancer;
    }

    /// Loads, and keeps what is printed meanwhile.
    template <class T>
    const T &load(T &enhancer)
    {
        printed.clear();
        const StandardOutputRedirection capture(
            [this](const QString &line) { printed += line.toStdString() + '\n'; });
        enhancer.loadStructure();
        return enhancer;
    }

    static PDFSpecification::Entry &entry(const PDFSpecification &specification,
                                          const QString &label)
    {
        return static_cast<PDFSpecification::Entry &>(*specification.entries().value(label));
    }

    PDFBuilder pdf;
    MapBuilder map{u"bus"_s, u"A"_s};
    TemporaryFiles files;
    StandardErrorCapture errors;
    std::string printed;
};

} // namespace Tavrin::Testing
