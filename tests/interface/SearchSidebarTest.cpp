// SPDX-License-Identifier: Apache-2.0
#include <QClipboard>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QSettings>

#include <atomic>

#include <Tavrin/interface/clipboard/EntryClipboard.h>
#include <Tavrin/interface/sidebars/SpecPDFSearchCell.h>
#include <Tavrin/interface/sidebars/SpecPDFSearchResult.h>
#include <Tavrin/interface/sidebars/SpecPDFSearchViewController.h>
#include <Tavrin/platform/BackgroundPool.h>

#include "ListeningDelegate.h"
#include <support/FinishTasks.h>
#include <support/LogCapture.h>

#include "SummaryFixture.h"

namespace
{

using Controller = SpecPDFSearchViewController;

class SearchSidebarTest : public SummaryFixture
{
protected:
    void show()
    {
        QSettings().clear();
        bind();
        make();
    }
    void make()
    {
        controller = std::make_shared<Controller>();
        controller->setSpecification(specification);
        controller->setDelegate(delegate);
        controller->view()->resize(280, 400);
        controller->view()->show();
        // Nothing is painted before, and no row asked for.
        ASSERT_TRUE(QTest::qWaitForWindowExposed(controller->view()));
    }
    void TearDown() override
    {
        controller.reset();
        // It stores its text.
        finishTasks(serialBackground());
        SummaryFixture::TearDown();
    }

    QLineEdit &field() { return *controller->searchField(); }
    QListView &list() { return *controller->searchTableView(); }
    QLabel &noResultsLabel()
    {
        return *controller->view()->findChild<QLabel *>(u"noResultsLabel"_s);
    }
    /// Types, and waits until the last search has come to its end and its rows are painted.
    void type(const QString &text)
    {
        QSignalSpy shown(controller.get(), &Controller::resultsShown);
        QTest::keyClicks(&field(), text);
        ASSERT_TRUE(QTest::qWaitFor([&] { return shown.count() >= text.size(); }));
        list().viewport()->repaint();
    }
    void clear()
    {
        QTest::keyClick(&field(), Qt::Key_Escape);
        ASSERT_EQ(field().text(), QString());
    }
    void key(QWidget &widget, Qt::Key key) { QTest::keyClick(&widget, key); }
    QStringList titles() const
    {
        QStringList result;
        for (const auto &shown : controller->arrangedResults())
            result += shown->titleText();
        return result;
    }
    std::shared_ptr<SpecPDFSearchResult> row(int index) const
    {
        return controller->arrangedResults().at(static_cast<std::size_t>(index));
    }
    QString description(int index) const { return row(index)->descriptionText(); }
    bool waitForDescriptions()
    {
        return QTest::qWaitFor([this] {
            return !controller->isLoadingEntries() &&
                   std::all_of(controller->arrangedResults().begin(),
                               controller->arrangedResults().end(),
                               [](const auto &result) { return result->isDescribed(); });
        });
    }
    /// Counts how often an entry is computed.
    static std::shared_ptr<std::atomic<int>> countComputations(Entry &entry)
    {
        auto count = std::make_shared<std::atomic<int>>(0);
        entry.setDisplayBlock([count, block = entry.displayBlock()](Entry &shown) {
            ++*count;
            block(shown);
        });
        return count;
    }
    void addEntries(int count)
    {
        for (int i = 0; i < count; ++i)
            section(u"s%1"_s.arg(i), u"Many %1"_s.arg(i), 3, 700 - i);
    }

    std::shared_ptr<Controller> controller;
    std::shared_ptr<ListeningDelegate> delegate = std::make_shared<ListeningDelegate>();
};

} // namespace

TEST_F(SearchSidebarTest, ShowsWhatTheSearchFoundLastOnTop)
{
    show();
    // A blank finds all, in the order of the table.
    type(u" "_s);
    EXPECT_EQ(titles(), (QStringList{u"Blue"_s, u"Red"_s, u"Scope"_s}));
    EXPECT_EQ(row(0)->relevance, 2.0F);
    EXPECT_EQ(row(1)->relevance, 1.0F);
    EXPECT_EQ(row(2)->relevance, 0.0F);
    EXPECT_EQ(row(0)->indexText(), blue->indexString());
    EXPECT_EQ(SpecPDFSearchResult(scope).relevance, 1.0F);
}

TEST_F(SearchSidebarTest, SaysSoWhereNothingIsFound)
{
    show();
    const auto isLabelShown = [this] {
        EXPECT_EQ(controller->noResultsLabelHidden(), noResultsLabel().isHidden());
        EXPECT_EQ(controller->tableViewHidden(), !list().isVisible());
        return !controller->noResultsLabelHidden();
    };
    EXPECT_FALSE(isLabelShown());
    type(u"sc"_s);
    EXPECT_FALSE(isLabelShown());
    type(u"xyz"_s);
    EXPECT_TRUE(isLabelShown());
    EXPECT_THAT(titles(), IsEmpty());
    clear();
    EXPECT_FALSE(isLabelShown());
    type(u"red"_s);
    EXPECT_EQ(titles(), QStringList(u"Red"_s));
    // A search that ends after the field was cleared comes too late.
    QTest::keyClicks(&field(), u"r"_s);
    clear();
    QTest::qWait(50);
    EXPECT_THAT(titles(), IsEmpty());
    EXPECT_FALSE(isLabelShown());
}

TEST_F(SearchSidebarTest, ShowsTheLatestTextHoweverFastOneTypes)
{
    addEntries(400);
    show();
    type(u"many 399"_s);
    EXPECT_EQ(titles(), QStringList(u"Many 399"_s));
    for (int i = 0; i < 5; ++i)
        key(field(), Qt::Key_Backspace);
    QTest::keyClicks(&field(), u"xscope"_s);
    for (int i = 0; i < 6; ++i)
        key(field(), Qt::Key_Backspace);
    QTest::keyClicks(&field(), u"y"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return titles().size() == 400; }));
    QTest::qWait(50);
    EXPECT_EQ(titles().size(), 400);
}

TEST_F(SearchSidebarTest, RemembersItsTextAndSearchesWhenAskedTo)
{
    show();
    type(u"red"_s);
    ASSERT_TRUE(QTest::qWaitFor(
        [] { return QSettings().value(Controller::searchFieldTextKey) == u"red"_s; }));
    make();
    EXPECT_EQ(field().text(), u"red"_s);
    QTest::qWait(30);
    EXPECT_THAT(titles(), IsEmpty());
    EXPECT_TRUE(controller->noResultsLabelHidden());
    key(field(), Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return titles() == QStringList(u"Red"_s); }));
    // What goes away before it has stored the text stores it.
    type(u"x"_s);
    make();
    ASSERT_TRUE(QTest::qWaitFor(
        [] { return QSettings().value(Controller::searchFieldTextKey) == u"redx"_s; }));
    QSettings().setValue(Controller::searchFieldTextKey, QStringList{u"a"_s, u"b"_s});
    make();
    EXPECT_EQ(field().text(), QString());
}

TEST_F(SearchSidebarTest, DescribesWhatCanBeSeenOneAfterTheOther)
{
    const EntryPtr lost = section(u"7"_s, u"Lost"_s, 2, 700);
    show();
    Gate gate(*scope);
    type(u" "_s);
    // All rows can be seen; the lowest is the first of the table.
    gate.waitUntilReached();
    EXPECT_TRUE(controller->isLoadingEntries());
    EXPECT_EQ(description(3), QString());
    gate.open();
    ASSERT_TRUE(waitForDescriptions());
    EXPECT_EQ(description(3), summary(scope).section(u'\n', 0, 0));
    EXPECT_NE(description(3), QString());
    EXPECT_EQ(description(2), QString()) << "a figure";
    EXPECT_EQ(description(0), u"--"_s) << "its heading is not there";
    // Another search has them at once.
    type(u"sc"_s);
    EXPECT_EQ(description(0), summary(scope).section(u'\n', 0, 0));
}

TEST_F(SearchSidebarTest, ComputesOnlyWhatCanBeSeenAndEachOnce)
{
    addEntries(300);
    show();
    std::vector<std::shared_ptr<std::atomic<int>>> counts;
    for (const auto &entry : specification->entries())
        counts.push_back(countComputations(dynamic_cast<Entry &>(*entry)));
    const auto computed = [&counts] {
        return std::count_if(counts.begin(), counts.end(), [](const auto &n) { return *n > 0; });
    };
    type(u"man"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return computed() > 0 && !controller->isLoadingEntries(); }));
    EXPECT_LT(computed(), 60);
    const auto before = computed();
    list().scrollToBottom();
    EXPECT_TRUE(QTest::qWaitFor([&] { return computed() > before; }));
    finishTasks(backgroundPool());
    EXPECT_TRUE(std::all_of(counts.begin(), counts.end(), [](const auto &n) { return *n <= 1; }));
}

TEST_F(SearchSidebarTest, ANewSearchDropsTheQueueAndKeepsWhatIsUnderWay)
{
    show();
    const auto redCount = countComputations(*red);
    const auto blueCount = countComputations(*blue);
    Gate gate(*blue);
    type(u" "_s);
    gate.waitUntilReached();
    // The same entry waits in the queue once more, behind what is under way.
    type(u"blue"_s);
    EXPECT_EQ(titles(), QStringList(u"Blue"_s));
    gate.open();
    ASSERT_TRUE(waitForDescriptions());
    EXPECT_EQ(*blueCount, 1);
    EXPECT_EQ(*redCount, 0);
}

TEST_F(SearchSidebarTest, WorksForNoHiddenList)
{
    show();
    Gate gate(*blue);
    type(u" "_s);
    gate.waitUntilReached();
    controller->view()->hide();
    gate.open();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !controller->isLoadingEntries(); }));
    EXPECT_TRUE(scope->needsComputeDisplay());
    controller->view()->show();
    EXPECT_TRUE(waitForDescriptions());
    EXPECT_FALSE(scope->needsComputeDisplay());
}

TEST_F(SearchSidebarTest, MayGoWhileItWorks)
{
    const LogCapture log("tavrin");
    addEntries(200);
    show();
    // A drain, and searches in a row.
    Gate gate(*blue);
    type(u"blue"_s);
    gate.waitUntilReached();
    QTest::keyClicks(&field(), u"many scope red"_s);
    specification->add(section(u"late"_s, u"Late"_s, 3, 700));
    controller.reset();
    gate.open();
    finishTasks(backgroundPool());
    QTest::qWait(20);
}

TEST_F(SearchSidebarTest, LogsWhereThereIsNothingToSearchIn)
{
    show();
    type(u"red"_s);
    controller->setSpecification(nullptr);
    const LogCapture log("tavrin");
    QTest::keyClicks(&field(), u"x"_s);
    EXPECT_TRUE(QTest::qWaitFor([&log] { return !log.messages().isEmpty(); }));
    QTest::qWait(20);
    EXPECT_EQ(log.messages(), QStringList(u"Couldn't get search results - specification is nil"_s));
    EXPECT_EQ(titles(), QStringList(u"Red"_s)) << "what is shown stays";
}

TEST_F(SearchSidebarTest, TheKeysReachTheListWhileOneTypes)
{
    show();
    field().setFocus();
    type(u" "_s);
    key(field(), Qt::Key_Down);
    EXPECT_EQ(list().currentIndex().row(), 0);
    EXPECT_THAT(delegate->chosen, ElementsAre(Place{2, {72, 310}}));
    key(field(), Qt::Key_PageDown);
    EXPECT_EQ(list().currentIndex().row(), 2);
    key(field(), Qt::Key_Up);
    EXPECT_EQ(delegate->chosen.back(), (Place{1, {72, 205}}));
    EXPECT_EQ(delegate->chosen.size(), 3U);
    key(field(), Qt::Key_Return);
    EXPECT_EQ(delegate->chosen.size(), 4U);
    EXPECT_EQ(controller->view()->focusWidget(), &field());
    // What is selected in the field is the field's.
    QTest::keyClick(&field(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_THAT(QGuiApplication::clipboard()->text().toStdString(), testing::HasSubstr("Red"));
    field().selectAll();
    QTest::keyClick(&field(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u" "_s);
    clear();
    type(u"re"_s);
    key(field(), Qt::Key_Return);
    EXPECT_EQ(list().currentIndex().row(), 0) << "the first, where none is selected";
    EXPECT_EQ(delegate->chosen.size(), 5U);
}

TEST_F(SearchSidebarTest, LeadsWhereTheReaderClicks)
{
    const EntryPtr lost =
        add(u"9"_s, u"Nowhere"_s, SpecificationEntryType::Section, u"outline:x"_s);
    show();
    type(u" "_s);
    const auto click = [this](int index) {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          list().visualRect(list().model()->index(index, 0)).center());
    };
    click(0);
    EXPECT_THAT(delegate->chosen, IsEmpty());
    click(2);
    click(2);
    EXPECT_THAT(delegate->chosen, ElementsAre(Place{1, {72, 205}}, Place{1, {72, 205}}));
}

TEST(SpecPDFSearchCell, CanBeReadOnItsBackground)
{
    SpecPDFSearchCell cell;
    const auto color = [](const QWidget &label) {
        return label.palette().color(QPalette::WindowText);
    };
    EXPECT_EQ(color(*cell.textField()), cell.palette().color(QPalette::Text));
    const QColor light = color(*cell.indexLabel());
    EXPECT_EQ(light, QColor(Qt::darkGray));
    cell.setBackgroundStyle(SpecPDFSearchCell::BackgroundStyle::Dark);
    EXPECT_EQ(color(*cell.textField()), QColor(Qt::white));
    EXPECT_EQ(color(*cell.indexLabel()), QColor(Qt::white));
    cell.setBackgroundStyle(SpecPDFSearchCell::BackgroundStyle::Light);
    EXPECT_EQ(color(*cell.indexLabel()), light);
}

TEST(EntryClipboard, OffersTextLinkAndStyledLinkAtOnce)
{
    const auto specification = Specification::make<Specification>();
    const SpecificationEntry entry(specification, u"4.2 <a>"_s, u"Scope & <b>"_s,
                                   SpecificationEntryType::Section, {4, 2});
    auto data = EntryClipboard::mimeData(entry);
    const QString url = specification->generateURL(entry, false, false);
    EXPECT_EQ(data->text(), u"Section 4.2 Scope & <b>\n"_s + url);
    EXPECT_EQ(data->data(u"text/uri-list"_s), url.toUtf8() + "\r\n");
    EXPECT_EQ(data->html(),
              u"<a href=\"%1\">Section 4.2 Scope &amp; &lt;b&gt;</a>"_s.arg(url.toHtmlEscaped()));
    specification->setIdentifier(u"ISO-1"_s);
    data = EntryClipboard::mimeData(entry);
    EXPECT_EQ(data->text().section(u'\n', 1), specification->generateURL(entry, true, false));
}
