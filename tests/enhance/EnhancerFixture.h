// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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
    EnhancerFixture() { map.title(QStringLiteral("Bus Manual")); }

    /// A title page, then a page for each chapter: heading, two sections with text, and in the
    /// second chapter a figure under the text.
    void addPages()
    {
        pdf.addPage().text(200, 500, QStringLiteral("Bus Manual"), {Font::HelveticaBold, 24});
        addChapter(QStringLiteral("1"), QStringLiteral("Arbitration"),
                   {QStringLiteral("The arbiter grants the bus to one master at a time."),
                    QStringLiteral("A master that wants the bus raises its request line."),
                    QStringLiteral("The arbiter answers with a grant line.")},
                   {QStringLiteral("Every master has a fixed rank. The arbiter reads the rank"),
                    QStringLiteral("from a register of the master.")});
        auto &page =
            addChapter(QStringLiteral("2"), QStringLiteral("Transfers"),
                       {QStringLiteral("A transfer moves words over the data lines."),
                        QStringLiteral("The slave answers each word with an acknowledge pulse.")},
                       {QStringLiteral("A burst moves many words in a row. The arbiter waits"),
                        QStringLiteral("until the burst ends before it grants the bus anew.")});
        page.text(220, 340, QStringLiteral("Figure 2.1: Acknowledge pulse"), {});
    }

    PDFPageBuilder &addChapter(const QString &number, const QString &title,
                               const QStringList &first, const QStringList &second)
    {
        auto &page = pdf.addPage();
        page.text(72, 700, number + QLatin1Char(' ') + title, {Font::HelveticaBold, 18});
        page.text(72, 650, number + QStringLiteral(".1 Rules of ") + title,
                  {Font::HelveticaBold, 14});
        page.column(72, 630, 12, first);
        page.text(72, 550, number + QStringLiteral(".2 Limits of ") + title,
                  {Font::HelveticaBold, 14});
        page.column(72, 530, 12, second);
        return page;
    }

    void addEntries()
    {
        for (const auto &[number, title] :
             {std::pair(QStringLiteral("1"), QStringLiteral("Arbitration")),
              {QStringLiteral("2"), QStringLiteral("Transfers")}}) {
            map.entry({.label = number,
                       .type = QStringLiteral("chapter"),
                       .index = number,
                       .name = title});
            map.entry({.label = number + QStringLiteral(".1"),
                       .index = number + QStringLiteral(",1"),
                       .name = QStringLiteral("Rules of ") + title});
            map.entry({.label = number + QStringLiteral(".2"),
                       .index = number + QStringLiteral(",2"),
                       .name = QStringLiteral("Limits of ") + title});
        }
        map.entry({.label = QStringLiteral("F"),
                   .type = QStringLiteral("figure"),
                   .index = QStringLiteral("2,1"),
                   .name = QStringLiteral("Acknowledge pulse")});
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
        const QUrl dtd = files.write(QStringLiteral("spec.dtd"), MapBuilder::grammar());
        const QUrl skeleton = map.write(files, QStringLiteral("skeleton.xml"));
        auto enhancer = Specification::make<T>(skeleton, dtd, {}, configure);
        enhancer->matchWith(files.write(QStringLiteral("manual.pdf"), pdf.build()));
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
    MapBuilder map{QStringLiteral("bus"), QStringLiteral("A")};
    TemporaryFiles files;
    StandardErrorCapture errors;
    std::string printed;
};

} // namespace Tavrin::Testing
