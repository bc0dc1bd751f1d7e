// SPDX-License-Identifier: Apache-2.0
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTreeView>

#include <support/Test.h>

#include <Tavrin/interface/sidebars/OutlineItem.h>
#include <Tavrin/interface/sidebars/SpecPDFOutlineViewController.h>
#include <pdfspec/ReadingFixture.h>
#include <support/HostilePDF.h>

#include "ListeningDelegate.h"

using Node = Tavrin::Testing::OutlineItem;

namespace
{

Node leaf(const QString &title, int page, double y)
{
    return {.title = title, .dest = Dest::xyz(page, 72, y)};
}

/// The sidebar of a document of ten pages.
class OutlineSidebarTest : public ReadingFixture
{
protected:
    OutlineSidebarTest()
    {
        for (int i = 0; i < 10; ++i)
            pdf.addPage();
        view().resize(260, 400);
    }

    void show(const std::vector<Node> &items, const EntryPtr &entry = nullptr)
    {
        pdf.outline(items);
        specification = load();
        controller->setEntry(entry);
        controller->setSpecification(specification);
        controller->setDelegate(delegate);
        view().show();
    }
    /// Three chapters; the second begins on page 3 and has sections at 700 and 300 of page 4.
    void showChapters()
    {
        show({leaf(u"One"_s, 1, 700),
              {.title = u"Two"_s,
               .dest = Dest::xyz(3, 72, 700),
               .children = {leaf(u"Upper part"_s, 4, 700), leaf(u"Lower part"_s, 4, 300)}},
              leaf(u"Three"_s, 6, 700)});
    }

    EntryPtr entryAt(int page, double y)
    {
        auto entry = std::make_shared<Entry>(specification, u"e"_s, u"E"_s,
                                             SpecificationEntryType::Section, std::vector<int>());
        entry->setDestination(at(page, 72, y));
        return entry;
    }

    QWidget &view() { return *controller->view(); }
    QTreeView &tree() { return *controller->outlineView(); }
    QLineEdit &field() { return *view().findChild<QLineEdit *>(); }
    QString current() { return tree().currentIndex().data().toString(); }
    bool isSelected() { return tree().selectionModel()->hasSelection(); }
    QModelIndex index(const QString &title)
    {
        const auto found = tree().model()->match(tree().model()->index(0, 0), Qt::DisplayRole,
                                                 title, 1, Qt::MatchExactly | Qt::MatchRecursive);
        return found.isEmpty() ? QModelIndex() : found.front();
    }
    /// Where one can see them, from top to bottom.
    QStringList rows()
    {
        QStringList result;
        const QModelIndex first = tree().model()->index(0, 0);
        for (QModelIndex at = first; at.isValid(); at = tree().indexBelow(at))
            result += at.data().toString();
        return result;
    }
    void click(const QString &title)
    {
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {},
                          tree().visualRect(index(title)).center());
    }
    void type(const QString &text) { QTest::keyClicks(&field(), text); }
    void key(QWidget &widget, Qt::Key key) { QTest::keyClick(&widget, key); }
    /// Until following is no longer taken for the way to what was chosen.
    static void settle() { QTest::qWait(450); }

    std::shared_ptr<SpecPDFOutlineViewController> controller =
        std::make_shared<SpecPDFOutlineViewController>();
    std::shared_ptr<ListeningDelegate> delegate = std::make_shared<ListeningDelegate>();
};

} // namespace

TEST_F(OutlineSidebarTest, OpensASingleTopLevelBookmarkAndNoOther)
{
    const std::vector<Node> below{leaf(u"a"_s, 1, 700), leaf(u"b"_s, 2, 700)};
    show({{.title = u"All\n of it"_s, .dest = Dest::xyz(0, 0, 700), .children = below}});
    EXPECT_EQ(rows(), (QStringList{u"All of it"_s, u"a"_s, u"b"_s}));
    show({{.title = u"One"_s, .children = below}, {.title = u"Two"_s, .children = below}});
    EXPECT_EQ(rows(), (QStringList{u"One"_s, u"Two"_s}));
    show({});
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_TRUE(field().isHidden());
    EXPECT_THAT(delegate->chosen, IsEmpty());
}

TEST_F(OutlineSidebarTest, SelectsTheItemThatHoldsTheEntryAndTellsOfIt)
{
    showChapters();
    // The nearest start on the page, be it below.
    controller->setEntry(entryAt(4, 320));
    EXPECT_EQ(current(), u"Lower part"_s);
    EXPECT_THAT(delegate->chosen, ElementsAre(Place{4, {72, 300}}));
    controller->setEntry(entryAt(4, 501));
    EXPECT_EQ(current(), u"Upper part"_s);
    // The last start on an earlier page.
    controller->setEntry(entryAt(5, 100));
    EXPECT_EQ(current(), u"Lower part"_s);
    // In front of all that is below: the item itself.
    controller->setEntry(entryAt(3, 100));
    EXPECT_EQ(current(), u"Two"_s);
    delegate->chosen.clear();
    // In front of everything: the root, which is not shown.
    controller->setEntry(entryAt(0, 100));
    EXPECT_FALSE(isSelected());
    controller->setEntry(nullptr);
    EXPECT_FALSE(isSelected());
    EXPECT_THAT(delegate->chosen, IsEmpty());
}

TEST_F(OutlineSidebarTest, ShowsTheEntrySilentlyWhenItsViewIsLoadedLate)
{
    showChapters();
    const EntryPtr entry = entryAt(6, 650);
    controller = std::make_shared<SpecPDFOutlineViewController>();
    controller->setDelegate(delegate);
    controller->setEntry(entry);
    controller->setSpecification(specification);
    view().show();
    EXPECT_EQ(current(), u"Three"_s);
    EXPECT_THAT(delegate->chosen, IsEmpty());
}

TEST_F(OutlineSidebarTest, LeadsWhereTheReaderPointsAndSkipsWhatLeadsNowhere)
{
    show({leaf(u"One"_s, 1, 700),
          {.title = u"Nowhere"_s},
          // As most producers write it.
          {.title = u"Two"_s, .dest = Dest::xyz(2, 72, 500), .target = Node::Target::GoToAction}});
    click(u"Two"_s);
    EXPECT_THAT(delegate->chosen, ElementsAre(Place{2, {72, 500}}));
    // Back to where one was.
    click(u"Two"_s);
    key(tree(), Qt::Key_Return);
    EXPECT_EQ(delegate->chosen.size(), 3U);
    key(tree(), Qt::Key_Up);
    EXPECT_EQ(current(), u"Nowhere"_s);
    EXPECT_EQ(delegate->chosen.size(), 3U);
    key(tree(), Qt::Key_Up);
    EXPECT_EQ(delegate->chosen.back(), (Place{1, {72, 700}}));
    controller->setEntry(entryAt(1, 10));
    EXPECT_EQ(current(), u"One"_s);
}

TEST_F(OutlineSidebarTest, FollowsThePlaceWithoutTelling)
{
    showChapters();
    controller->showsPlace(at(4, 0, 690));
    EXPECT_EQ(current(), u"Upper part"_s);
    EXPECT_TRUE(tree().isExpanded(index(u"Two"_s)));
    controller->showsPlace(at(1, 0, 690));
    EXPECT_EQ(current(), u"One"_s);
    controller->showsPlace(at(0, 0, 690));
    EXPECT_FALSE(isSelected()) << "in front of all";
    EXPECT_THAT(delegate->chosen, IsEmpty());
    controller->showsPlace(HostPDFDestination(nullptr, {}));
    controller->setSpecification(nullptr);
    controller->showsPlace(at(1, 0, 690));
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(OutlineSidebarTest, LeavesTheReaderAloneWhileFollowing)
{
    showChapters();
    click(u"Three"_s);
    // The end of a document doesn't come up to the top of the view.
    controller->showsPlace(at(5, 0, 400));
    EXPECT_EQ(current(), u"Three"_s);
    settle();
    controller->showsPlace(at(5, 0, 500));
    EXPECT_EQ(current(), u"Lower part"_s);
    // What the reader has collapsed stays so.
    tree().collapse(index(u"Two"_s));
    controller->showsPlace(at(4, 0, 300));
    EXPECT_EQ(current(), u"Two"_s);
    EXPECT_FALSE(tree().isExpanded(index(u"Two"_s)));
    tree().expand(index(u"Two"_s));
    controller->showsPlace(at(4, 0, 300));
    EXPECT_EQ(current(), u"Lower part"_s);
}

TEST_F(OutlineSidebarTest, FiltersAndFindsBackToWhatWasOpen)
{
    showChapters();
    view().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view()));
    field().setFocus();
    type(u"PART low"_s);
    EXPECT_EQ(rows(), (QStringList{u"Two"_s, u"Lower part"_s}));
    EXPECT_THAT(delegate->chosen, IsEmpty());
    key(field(), Qt::Key_Return);
    EXPECT_EQ(current(), u"Lower part"_s) << "the first that matches";
    EXPECT_THAT(delegate->chosen, ElementsAre(Place{4, {72, 300}}));
    type(u"x"_s);
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_FALSE(view().findChild<QLabel *>(u"noMatchesLabel"_s)->isHidden());
    key(field(), Qt::Key_Escape);
    EXPECT_EQ(field().text(), QString());
    EXPECT_TRUE(view().findChild<QLabel *>(u"noMatchesLabel"_s)->isHidden());
    EXPECT_EQ(rows(), (QStringList{u"One"_s, u"Two"_s, u"Three"_s}));
    // The arrows go through the rows while one types.
    type(u"e"_s);
    key(field(), Qt::Key_Down);
    key(field(), Qt::Key_Down);
    EXPECT_EQ(delegate->chosen.size(), 3U);
    EXPECT_EQ(controller->view()->focusWidget(), &field());
}

TEST_F(OutlineSidebarTest, BearsHostileOutlines)
{
    // Of a loop each item is read once, and no level comes below the hundredth.
    const std::pair<QByteArray, int> outlines[] = {
        {HostilePDF::outlineLoop(), 2},
        {HostilePDF::outlineChildLoop(), 1},
        {HostilePDF::deepOutline(20'000), Tavrin::OutlineItem::maxDepth}};
    for (const auto &[file, count] : outlines) {
        specification = load(file);
        controller->setSpecification(specification);
        view().show();
        tree().expandAll();
        EXPECT_EQ(rows().size(), count);
        controller->showsPlace(at(0, 0, 0));
        field().setText(u"1"_s);
        field().clear();
    }
}

TEST_F(OutlineSidebarTest, ItsTreeMayOutliveIt)
{
    showChapters();
    QWidget window;
    view().setParent(&window);
    window.show();
    controller.reset();
    QTest::qWait(1);
}
