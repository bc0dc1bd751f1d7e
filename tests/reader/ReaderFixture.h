// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QListView>
#include <QSettings>
#include <QTest>

#include <support/Test.h>

#include <Tavrin/interface/detail/SpecDetailViewController.h>
#include <Tavrin/interface/summary/SpecEntrySummaryViewController.h>
#include <Tavrin/interface/toolkit/Sheet.h>
#include <reader/lookup/LookupField.h>
#include <reader/panes/ControllerPane.h>
#include <reader/window/ReaderWindow.h>
#include <support/MapBuilder.h>
#include <support/PDFBuilder.h>

namespace Tavrin::Testing
{

/// Nothing is remembered of a former run.
struct FirstRun {
    FirstRun()
    {
        QSettings().clear();
        SpecificationManager::shared().setSpecifications({});
        SpecificationManager::shared().setAuxiliaryFiles({});
    }
};

/// A reader with the map of a small document, which lies ready and is not bound.
class ReaderFixture : public testing::Test, private FirstRun
{
public:
    ~ReaderFixture() override
    {
        manager.setSpecifications({});
        manager.setAuxiliaryFiles({});
    }

protected:
    ReaderFixture()
    {
        MapBuilder map(u"manual"_s, u"1"_s);
        map.title(u"The Manual"_s).file(u"pdf"_s, u"Manual"_s, u"0,0,612,792"_s);
        PDFBuilder pdf;
        pdf.addPage().text(72, 700, u"Manual"_s);
        const QStringList titles{u"Scope"_s, u"Limits of Use"_s, u"Further Limits"_s};
        for (int i = 0; i < titles.size(); ++i) {
            const QString number = QString::number(i + 1);
            const QString place = u"section%1"_s.arg(i);
            auto &page = pdf.addPage();
            page.text(72, 700, number + u' ' + titles[i], {.size = 18})
                .text(72, 660, u"What is written here is about %1."_s.arg(titles[i]));
            if (i == 0) {
                page.fill({{100, 400}, {300, 100}}, qRgb(200, 40, 40))
                    .text(200, 380, u"Figure 1: Red"_s);
            }
            pdf.namedDestination(place.toLatin1(), Dest::xyz(i + 1, 72, 718));
            map.entry({.label = number,
                       .index = number,
                       .name = titles[i],
                       .keywords = {u"word%1"_s.arg(i)},
                       .internal = place});
        }
        // Its place is at its caption, and the outline has the section above it at most.
        pdf.namedDestination("figure", Dest::xyz(1, 72, 392));
        map.entry({.label = u"Figure 1"_s,
                   .type = u"figure"_s,
                   .index = u"1"_s,
                   .name = u"Red"_s,
                   .internal = u"figure"_s});
        pdf.outline({{.title = u"1 Scope"_s, .dest = Dest::xyz(1, 72, 718)},
                     {.title = u"2 Limits"_s, .dest = Dest::xyz(2, 72, 718)}});
        map.write(files, u"maps/manual.xml"_s);
        files.write(u"maps/manual.dtd"_s, MapBuilder::grammar());
        document = files.write(u"manual.pdf"_s, pdf.build());
        window.resize(1000, 600);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void openMaps() { window.openMaps({files.path(u"maps"_s)}); }
    void openAll()
    {
        openMaps();
        window.bindFiles({document.toLocalFile()});
    }
    void type(const QString &text)
    {
        window.lookupField().setFocus();
        window.lookupField().clear();
        QTest::keyClicks(&window.lookupField(), text);
    }
    std::shared_ptr<SpecDetailViewController> detail() const
    {
        return std::dynamic_pointer_cast<SpecDetailViewController>(
            window.detailPane().controller());
    }
    QString detailLabel() const
    {
        return detail() && detail()->entry() ? detail()->entry()->label() : QString();
    }
    QString summaryLabel() const
    {
        const auto summary = std::dynamic_pointer_cast<SpecEntrySummaryViewController>(
            window.summaryPane().controller());
        return summary && summary->entry() ? summary->entry()->label() : QString();
    }
    QStringList recentPlaces() const
    {
        QStringList places;
        const auto *list = window.findChild<QListView *>(u"recentPlaces"_s);
        for (int row = 0; row < list->model()->rowCount(); ++row)
            places += list->model()->index(row, 0).data().toString();
        return places;
    }
    /// What the sheet over the window says.
    QString complaint() const
    {
        const auto *sheet = window.findChild<Sheet *>();
        return sheet ? sheet->informativeText() : QString();
    }

    TemporaryFiles files;
    QUrl document;
    SpecificationManager &manager = SpecificationManager::shared();
    Reader::ReaderWindow window{manager};
};

} // namespace Tavrin::Testing
