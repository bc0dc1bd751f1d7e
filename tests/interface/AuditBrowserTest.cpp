// SPDX-License-Identifier: Apache-2.0
#include <QAction>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>

#include <Tavrin/interface/audit/BrowserArrayController.h>
#include <Tavrin/interface/audit/BrowserCellDelegate.h>
#include <Tavrin/interface/audit/BrowserMatchesLabelTransformer.h>
#include <Tavrin/interface/audit/BrowserTable.h>
#include <Tavrin/interface/audit/BrowserTextViewCell.h>
#include <Tavrin/interface/audit/CellText.h>
#include <Tavrin/interface/audit/SpecAuditBrowserController.h>
#include <Tavrin/interface/audit/SpecBrowserTextColorTransformer.h>
#include <Tavrin/interface/audit/SpecBrowserTextTransformer.h>
#include <Tavrin/interface/detail/SpecPDFViewController.h>
#include <Tavrin/interface/summary/SpecErrorViewController.h>
#include <Tavrin/interface/toolkit/ProgressSheet.h>
#include <Tavrin/platform/BackgroundPool.h>
#include <audit/AuditFixture.h>
#include <support/Corpus.h>
#include <support/FinishTasks.h>

#include "SharedManagerFixture.h"
#include "SummaryFixture.h"
#include "Windows.h"

namespace
{

using Controller = SpecAuditBrowserController;

class AuditBrowser : public AuditFixture
{
protected:
    AuditBrowser() { manager.setSpecifications({}); }
    ~AuditBrowser() override
    {
        controller.reset();
        if (gate)
            gate->open();
        finishTasks(backgroundPool());
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        manager.setDetailViewControllerDisplayBlock({});
        manager.setSpecifications({});
    }

    /// Shows the audit of labels, with columns of the host's behind it.
    void open(const QStringList &labels, const QStringList &headings = {},
              const Controller::Components &components = {})
    {
        controller = std::make_shared<Controller>(labels, specification, headings, components);
        QSignalSpy audited(controller.get(), &Controller::audited);
        controller->view()->resize(1'000, 600);
        controller->view()->show();
        ASSERT_TRUE(waitFor([&] { return !audited.isEmpty(); }));
        QCoreApplication::processEvents();
    }
    /// Rows of a host's own, with a column of their numbers in front: only that is searched.
    void openTexts(const QStringList &texts)
    {
        Controller::Components components;
        for (const QString &text : texts)
            components.push_back({text});
        open(QStringList(texts.size()), {u"Text"_s}, components);
    }
    /// Begins an audit, in a window if there is one, that waits at an entry until `gate` opens.
    void beginAudit(const QStringList &labels, const QString &heldUpAt, QWidget *window = nullptr)
    {
        bind();
        gate = std::make_unique<Gate>(entry(heldUpAt));
        controller = std::make_shared<Controller>(labels, specification);
        if (window)
            controller->view()->setParent(window);
        controller->view()->window()->show();
        ASSERT_TRUE(waitFor([] { return sheet() != nullptr; }));
        gate->waitUntilReached();
    }
    static ProgressSheet *sheet() { return shownWindow<ProgressSheet>(); }
    Entry &entry(const QString &label) const
    {
        return dynamic_cast<Entry &>(*specification->entry(label));
    }
    void keepDetails()
    {
        manager.setDetailViewControllerDisplayBlock(
            [this](const ViewControllerPtr &view) { details.push_back(view); });
    }
    QString shownEntry(std::size_t detail) const
    {
        const auto *view = dynamic_cast<SpecDetailViewController *>(details.at(detail).get());
        return view && view->entry() ? view->entry()->label() : QString();
    }

    QTableView &table() const { return *controller->tableView(); }
    BrowserArrayController &rows() const { return *controller->arrayController(); }
    QString shown(int row, int column) const { return rows().index(row, column).data().toString(); }
    QStringList column(int at) const
    {
        QStringList texts;
        for (int row = 0; row < rows().rowCount(); ++row)
            texts += rows().arrangedItem(row)->value(at);
        return texts;
    }
    void type(const QString &text)
    {
        controller->searchField()->setText(text);
        // The table is laid out in a while.
        QCoreApplication::processEvents();
    }
    QPoint at(int row, int column) const
    {
        return table().visualRect(rows().index(row, column)).topLeft() + QPoint(12, 12);
    }
    void click(int row, int column, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::qWait(1);
        QTest::mouseClick(table().viewport(), Qt::LeftButton, modifiers, at(row, column));
    }
    /// As a user does: pressed, released, pressed again.
    void doubleClick(int row, int column)
    {
        click(row, column);
        QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, at(row, column));
    }
    void clickHeader(int column) const
    {
        QHeaderView &header = *table().horizontalHeader();
        const QPoint place(header.sectionViewportPosition(column) + 20, header.height() / 2);
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
    }
    std::unique_ptr<QMenu> menu(QPoint place) const
    {
        QTest::mousePress(table().viewport(), Qt::RightButton, {}, place);
        Q_EMIT table().customContextMenuRequested(place);
        return std::unique_ptr<QMenu>(
            table().findChild<QMenu *>(QString(), Qt::FindDirectChildrenOnly));
    }
    /// The items of the context menu at a place, with whether they can be chosen.
    std::vector<std::pair<QString, bool>> menuItems(QPoint place) const
    {
        const auto shown = menu(place);
        std::vector<std::pair<QString, bool>> items;
        for (const QAction *action : shown->actions()) {
            if (!action->isSeparator())
                items.emplace_back(action->text(), action->isEnabled());
        }
        return items;
    }
    static QString clipboard() { return QGuiApplication::clipboard()->text(); }

    SpecificationManager &manager = SpecificationManager::shared();
    std::shared_ptr<Controller> controller;
    std::unique_ptr<Gate> gate;
    std::vector<ViewControllerPtr> details;
};

/// Its table is there, its file is not.
class UnboundSpecification : public PDFSpecification
{
public:
    bool areFileRequirementsSatisfied() const override { return false; }
};

std::vector<QStringList> table(const QStringList &column)
{
    std::vector<QStringList> rows;
    for (const QString &cell : column)
        rows.push_back({cell});
    return rows;
}

} // namespace

// What is shown

TEST_F(AuditBrowser, IsEmptyBeforeTheAudit)
{
    controller = std::make_shared<Controller>(QStringList(u"1.1"_s), specification);
    EXPECT_EQ(controller->customHeadings(), QStringList());
    EXPECT_TRUE(controller->customComponents().empty());
    controller->view();
    EXPECT_EQ(controller->title(), u"Spec References"_s);
    EXPECT_EQ(controller->summaryLabel()->text(),
              u"0 entries: 0 referenced — 0 complete —\u00a00 incomplete"_s);
    EXPECT_TRUE(controller->searchResultsLabel()->isHidden());
    EXPECT_EQ(rows().columnCount(), 0);
    EXPECT_TRUE(controller->entryDict().empty());
}

TEST_F(AuditBrowser, ShowsARowForEachLabel)
{
    specification->entry(u"1.1"_s)->setRelatedEntries({u"2.1"_s});
    bind();
    open({u"1.1"_s, u"none"_s, u"Figure 2-1"_s}, {u"Owner"_s}, {{u"Ann"_s}, {u"Bob"_s}});
    EXPECT_EQ(controller->columnIdentifiers(),
              (QStringList{u"column0"_s, u"column1"_s, u"column2"_s, u"column3"_s, u"column4"_s}));
    ASSERT_EQ(rows().rowCount(), 3);
    EXPECT_EQ(rows().headerData(4, Qt::Horizontal, Qt::DisplayRole), u"Owner"_s);
    EXPECT_EQ(shown(0, 0), u"Section 1.1: Purpose"_s);
    EXPECT_EQ(shown(0, 1), lines(u"Purpose"_s, 4).join(u'\n'));
    EXPECT_EQ(shown(0, 4), u"Ann"_s);
    EXPECT_EQ(shown(1, 0), u"<no value>"_s);
    EXPECT_EQ(shown(1, 4), u"Bob"_s);
    EXPECT_TRUE(rows().index(1, 0).data(Qt::ToolTipRole).toString().contains(u"“none”"_s));
    EXPECT_EQ(shown(2, 1), u"n/a"_s);
    const auto &first = controller->entryDict().front();
    EXPECT_EQ(first.dict().value(u"column3"_s), u"1.1"_s);
    EXPECT_EQ(first.allText().split(u'\n').size(), 3 + 4 + 1);
    // The headings count: four rows, three with a label, two of them without a gap.
    EXPECT_EQ(controller->summaryLabel()->text(),
              u"4 entries: 3 referenced — 2 complete —\u00a02 incomplete"_s);
    EXPECT_EQ(table().columnWidth(0), 300);
    EXPECT_EQ(table().columnWidth(1), 300);
    EXPECT_EQ(table().horizontalHeader()->minimumSectionSize(), 100);
    EXPECT_EQ(table().horizontalHeader()->maximumSectionSize(), 700);
}

TEST_F(AuditBrowser, KeepsColumnsThatHaveNoHeading)
{
    open({u"1.1"_s}, {}, {{u"kept"_s}});
    ASSERT_EQ(rows().columnCount(), 5);
    EXPECT_EQ(shown(0, 4), u"kept"_s);
}

TEST_F(AuditBrowser, SaysWhatToDoWhereThereAreNoRows)
{
    const auto said = [this] {
        for (const auto *label : table().viewport()->findChildren<QLabel *>()) {
            if (label->isVisible())
                return label->text();
        }
        return QString();
    };
    open({});
    EXPECT_TRUE(said().startsWith(u"There are no references to audit yet."_s));
    EXPECT_EQ(rows().columnCount(), 4);
    openTexts({u"one"_s});
    EXPECT_EQ(said(), QString());
    type(u"two"_s);
    EXPECT_TRUE(said().startsWith(u"No reference holds all of these words."_s));
}

TEST_F(AuditBrowser, IsSetOutByItsTexts)
{
    const auto width = [](const QStringList &column) {
        return BrowserTable(::table(column), {}).columns.front().width;
    };
    EXPECT_EQ(width({QString(100, u'x'), QString(100, u'x')}), 300);
    EXPECT_EQ(width({QString(100, u'x'), QString(101, u'x')}), 400);
    EXPECT_EQ(width({QString(), QString(201, u'x')}), 400);
    EXPECT_EQ(width({QString(100, u'x'), u"😀"_s.repeated(100)}), 300) << "a smiley is one";
    const BrowserTable none;
    EXPECT_TRUE(none.columns.empty());
    // A cell that is not there is not empty, but it is in nobody's way either.
    const BrowserTable ragged({{u"a"_s, u"b"_s}, {u"c"_s}, {u"d"_s, u"e"_s, u"f"_s}}, {});
    EXPECT_EQ(ragged.items[0].value(1), QString());
    EXPECT_EQ(ragged.items[1].dict().size(), 2);
}

TEST_F(AuditBrowser, TransformsValues)
{
    EXPECT_EQ(SpecBrowserTextTransformer::transformedValue(u"a"_s), u"a"_s);
    EXPECT_EQ(SpecBrowserTextTransformer::transformedValue(QString()), u"<no value>"_s);
    EXPECT_EQ(SpecBrowserTextTransformer::transformedValue(7), u"<no value>"_s);
    EXPECT_EQ(SpecBrowserTextTransformer::reverseTransformedValue(7), 7);
    const QPalette palette;
    EXPECT_EQ(SpecBrowserTextColorTransformer::transformedValue(u"a"_s, palette),
              palette.color(QPalette::Text));
    EXPECT_EQ(SpecBrowserTextColorTransformer::transformedValue(QString(), palette),
              palette.color(QPalette::PlaceholderText));
    EXPECT_EQ(BrowserMatchesLabelTransformer::transformedValue(0), u"0 matches"_s);
    EXPECT_EQ(BrowserMatchesLabelTransformer::transformedValue(1), u"1 matches"_s);
    EXPECT_EQ(BrowserMatchesLabelTransformer::transformedValue({}), u"No matches"_s);
}

TEST_F(AuditBrowser, GivesLongValuesAViewOfTheirOwn)
{
    openTexts(
        {QString(750, u'x'), QString(751, u'x'), u"😀"_s.repeated(750), QString(100'000, u'y')});
    const auto identifier = [this](int row) {
        return BrowserCellDelegate::cellIdentifier(rows().index(row, 4));
    };
    EXPECT_EQ(identifier(0), u"Cell"_s);
    EXPECT_EQ(identifier(1), u"ScrollingCell"_s);
    EXPECT_EQ(identifier(2), u"Cell"_s) << "750 characters in 1,500 units";
    EXPECT_EQ(BrowserCellDelegate::cellIdentifier({}), u"Cell"_s);
    const auto cells = [this] {
        QStringList texts;
        for (const auto *cell : table().findChildren<BrowserTextViewCell *>()) {
            if (cell->isVisible())
                texts += cell->textView()->toPlainText().left(3);
        }
        texts.sort();
        return texts;
    };
    table().setColumnHidden(0, true);
    table().setColumnHidden(1, true);
    table().setColumnHidden(2, true);
    QCoreApplication::processEvents();
    EXPECT_EQ(cells(), (QStringList{u"xxx"_s, u"yyy"_s}));
    type(u"y"_s);
    EXPECT_EQ(cells(), QStringList(u"yyy"_s));
    // The mouse reaches the table through it; Alt and an arrow scroll it.
    click(0, 4);
    EXPECT_EQ(table().currentIndex(), rows().index(0, 4));
    const auto *bar = table().findChild<BrowserTextViewCell *>()->textView()->verticalScrollBar();
    for (const auto *cell : table().findChildren<BrowserTextViewCell *>())
        bar = cell->isVisible() ? cell->textView()->verticalScrollBar() : bar;
    QTest::keyClick(&table(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_GT(bar->value(), 0);
    type(u"z"_s);
    EXPECT_EQ(cells(), QStringList());
}

// Searching and sorting

TEST_F(AuditBrowser, FindsWordsInAnyOrderAndCase)
{
    open({u"1.1"_s, u"1.2"_s, u"2.1"_s}, {u"Owner"_s},
         {{u"Zoë Ängström"_s}, {u"ann \"x\" 😀"_s}, {u"straße"_s}});
    const auto found = [this](const QString &text) {
        type(text);
        return column(3);
    };
    EXPECT_EQ(found(u"PURPOSE"_s), QStringList(u"1.1"_s));
    EXPECT_EQ(found(u"zoe purpose"_s), QStringList(u"1.1"_s)) << "in two columns";
    EXPECT_EQ(found(u"purpose ZOË"_s), QStringList(u"1.1"_s));
    EXPECT_EQ(found(u"purpose ann"_s), QStringList());
    EXPECT_EQ(controller->searchResultsLabel()->text(), u"0 matches"_s);
    EXPECT_EQ(found(u"angstrom"_s), QStringList(u"1.1"_s));
    EXPECT_EQ(found(u"A\u030Angstro\u0308m"_s), QStringList(u"1.1"_s));
    EXPECT_EQ(found(u"STRASSE"_s), QStringList(u"2.1"_s));
    EXPECT_EQ(found(u"\"x\""_s), QStringList(u"1.2"_s));
    EXPECT_EQ(found(u"😀"_s), QStringList(u"1.2"_s));
    EXPECT_EQ(found(u"section  1."_s), (QStringList{u"1.1"_s, u"1.2"_s}));
    EXPECT_EQ(controller->searchResultsLabel()->text(), u"2 matches"_s);
    EXPECT_FALSE(controller->searchResultsLabel()->isHidden());
    EXPECT_EQ(found(u"  "_s).size(), 3);
    EXPECT_FALSE(controller->searchResultsLabel()->isHidden());
    EXPECT_EQ(found(u"1"_s).size(), 3) << "2.1 as well";
    QTest::keyClick(controller->searchField(), Qt::Key_Backspace);
    EXPECT_TRUE(controller->searchResultsLabel()->isHidden());
    QTest::keyClicks(controller->searchField(), u"words"_s);
    EXPECT_EQ(column(3), QStringList(u"1.2"_s));
    QTest::keyClick(controller->searchField(), Qt::Key_Escape);
    EXPECT_EQ(rows().rowCount(), 3);
}

TEST_F(AuditBrowser, FindsTheSameByTypingOnAsByAsking)
{
    QStringList texts;
    for (int i = 0; i < 200; ++i)
        texts += u"%1 %2 %3"_s.arg(i).arg(i * 7 % 50).arg(i % 2 ? u"odd"_s : u"Even"_s);
    openTexts(texts);
    for (const QString &search : {u"12 odd"_s, u"1 2 3"_s, u"even 4"_s, u"dd 9"_s}) {
        QString typed;
        for (const QChar c : search) {
            typed += c;
            controller->searchField()->setText(typed);
            QStringList expected;
            const QStringList words = typed.toLower().split(u' ', Qt::SkipEmptyParts);
            for (const QString &text : texts) {
                if (std::all_of(words.begin(), words.end(),
                                [&](const QString &word) { return text.toLower().contains(word); }))
                    expected += text;
            }
            EXPECT_EQ(column(4), expected) << typed.toStdString();
        }
    }
}

TEST_F(AuditBrowser, ComparesNaturally)
{
    const QStringList ascending{QString(),
                                u"a"_s,
                                u"section 4.2"_s,
                                u"section 4.9: z"_s,
                                u"section 4.10"_s,
                                u"section 04.11"_s,
                                u"section 4.99999999999999999999"_s,
                                u"section a"_s};
    for (qsizetype i = 0; i < ascending.size(); ++i) {
        for (qsizetype j = 0; j < ascending.size(); ++j) {
            const int order = CellText::compareNaturally(ascending[i], ascending[j]);
            EXPECT_EQ(order < 0, i < j) << i << ' ' << j;
            EXPECT_EQ(order > 0, i > j) << i << ' ' << j;
        }
    }
}

TEST_F(AuditBrowser, SortsByAColumn)
{
    openTexts({u"b 10"_s, u"B 9"_s, u"ä"_s, QString(), u"b 9"_s});
    const QStringList given = column(4);
    const QStringList sorted{QString(), u"ä"_s, u"B 9"_s, u"b 9"_s, u"b 10"_s};
    table().horizontalScrollBar()->setValue(table().horizontalScrollBar()->maximum());
    clickHeader(4);
    EXPECT_EQ(column(4), sorted);
    type(u"b"_s);
    EXPECT_EQ(column(4), sorted.mid(2));
    clickHeader(4);
    EXPECT_EQ(column(4), (QStringList{u"b 10"_s, u"b 9"_s, u"B 9"_s}));
    controller->searchField()->clear();
    clickHeader(4);
    EXPECT_EQ(column(4), given);
}

TEST_F(AuditBrowser, SortsByTheMenu)
{
    openTexts({u"b"_s, u"a"_s});
    const auto choose = [this](const QString &title) {
        const auto shown = menu({5, 5});
        for (auto *action : shown->findChild<QMenu *>()->actions()) {
            if (action->text() == title)
                action->trigger();
        }
    };
    choose(u"Text"_s);
    EXPECT_EQ(column(4), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(table().horizontalHeader()->sortIndicatorSection(), 4);
    choose(u"Text"_s);
    EXPECT_EQ(rows().sortOrder(), Qt::DescendingOrder);
    choose(u"Original Order"_s);
    EXPECT_EQ(rows().sortColumn(), -1);
}

TEST_F(AuditBrowser, KeepsTheSelection)
{
    openTexts({u"c"_s, u"b x"_s, u"a x"_s});
    click(0, 0);
    click(1, 0, Qt::ControlModifier);
    type(u"x"_s);
    rows().sort(4);
    const auto selected = [this] {
        QStringList texts;
        for (const QModelIndex &index : table().selectionModel()->selectedRows(4))
            texts += rows().arrangedItem(index.row())->value(4);
        return texts;
    };
    EXPECT_EQ(selected(), QStringList(u"b x"_s));
    EXPECT_EQ(table().currentIndex().row(), 1);
    EXPECT_EQ(table().columnWidth(0), 300);
}

// Copying

TEST_F(AuditBrowser, CopiesRows)
{
    open({u"1.1"_s, u"none"_s, u"2.1"_s}, {u"X"_s, u"Y"_s},
         {{u"say \"hi\",\nyou"_s, u"😀"_s}, {u"a"_s, u"b"_s}, {u"c"_s}});
    table().setFocus();
    click(2, 0);
    QTest::keyClick(&table(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), u"\"Section 2.1: Speed\",\"\",\"\",\"2.1\",\"c\",\"\""_s);
    click(0, 0, Qt::ControlModifier);
    QTest::keyClick(&table(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(),
              u"\"Section 1.1: Purpose\",\"\",\"\",\"1.1\",\"say \"hi\",\nyou\",\"😀\"\n"
              "\"Section 2.1: Speed\",\"\",\"\",\"2.1\",\"c\",\"\""_s);
    table().clearSelection();
    click(1, 0);
    table().clearSelection();
    controller->copy();
    EXPECT_EQ(clipboard(), u"\"\",\"\",\"\",\"\",\"a\",\"b\""_s) << "the clicked row";
}

TEST_F(AuditBrowser, CopiesACell)
{
    openTexts({u"say \"hi\""_s, QString()});
    table().setCurrentIndex(rows().index(0, 4));
    QTest::keyClick(&table(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(clipboard(), u"say \"hi\""_s);
    table().setCurrentIndex(rows().index(1, 4));
    controller->copyCell();
    EXPECT_EQ(clipboard(), QString());
}

TEST_F(AuditBrowser, OffersWhatCanBeDone)
{
    openTexts({u"a"_s, u"b"_s});
    using Item = std::pair<QString, bool>;
    const QPoint nowhere(20, table().viewport()->height() - 5);
    EXPECT_THAT(menuItems(nowhere),
                ElementsAre(Item(u"Open Entry"_s, false), Item(u"Copy Row"_s, false),
                            Item(u"Copy Cell"_s, false), Item(u"Sort By"_s, true),
                            Item(u"Export…"_s, true)));
    QGuiApplication::clipboard()->setText(u"kept"_s);
    controller->copy();
    controller->copyCell();
    EXPECT_EQ(clipboard(), u"kept"_s);
    EXPECT_EQ(menuItems(at(0, 0))[1], Item(u"Copy Row"_s, true));
    click(0, 0);
    EXPECT_EQ(menuItems(at(0, 0))[1], Item(u"Copy Row"_s, true));
    click(1, 0, Qt::ShiftModifier);
    EXPECT_EQ(menuItems(at(1, 0))[1], Item(u"Copy Rows"_s, true));
    EXPECT_EQ(menuItems(nowhere)[2], Item(u"Copy Cell"_s, false));
    EXPECT_EQ(menuItems(at(1, 0))[2], Item(u"Copy Cell"_s, true));
    QAction other;
    EXPECT_TRUE(controller->validateMenuItem(other));
}

// Opening

TEST_F(AuditBrowser, OpensEntries)
{
    bind();
    auto elsewhere = Specification::make<Specification>();
    elsewhere->add(std::make_shared<SpecificationEntry>(
        elsewhere, u"far"_s, u"Elsewhere"_s, SpecificationEntryType::Table, std::vector<int>{7}));
    manager.setSpecifications({elsewhere});
    open({u"1.1"_s, u"none"_s, u"2.1"_s}, {u"X"_s}, {{QString(800, u'x')}});
    LogCapture log("tavrin.interface");
    doubleClick(0, 0);
    EXPECT_THAT(log.takeMessages(),
                Contains(u"Tried to display a detail view controller, but the application hasn't "
                         "set up a detail view controller display block."_s));
    keepDetails();
    doubleClick(0, 0);
    ASSERT_EQ(details.size(), 1U);
    EXPECT_EQ(shownEntry(0), u"1.1"_s);
    EXPECT_EQ(log.takeMessages(), QStringList());
    doubleClick(1, 0);
    EXPECT_EQ(details.size(), 1U);
    EXPECT_THAT(log.takeMessages(), ElementsAre(u"Could not find label  in any specification"_s));
    table().setFocus();
    QTest::keyClick(&table(), Qt::Key_Down);
    QTest::keyClick(&table(), Qt::Key_Return);
    ASSERT_EQ(details.size(), 2U);
    EXPECT_EQ(shownEntry(1), u"2.1"_s);
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {},
                       {20, table().viewport()->height() - 5});
    EXPECT_EQ(details.size(), 2U);
    // From the field: the arrows move, Return opens.
    type(u"section"_s);
    QTest::keyClick(controller->searchField(), Qt::Key_Up);
    QTest::keyClick(controller->searchField(), Qt::Key_Return);
    ASSERT_EQ(details.size(), 3U);
    EXPECT_EQ(shownEntry(2), u"1.1"_s);
}

TEST_F(AuditBrowser, PromptsForWhatIsNotImported)
{
    specification = Specification::make<UnboundSpecification>();
    section(u"1.1"_s, u"Unseen"_s, 1, 700);
    open({u"1.1"_s});
    keepDetails();
    doubleClick(0, 0);
    ASSERT_EQ(details.size(), 1U);
    EXPECT_TRUE(std::dynamic_pointer_cast<SpecErrorViewController>(details[0]));
}

// The audit in the background

TEST_F(AuditBrowser, ShowsProgress)
{
    beginAudit({u"1.1"_s, u"1.2"_s}, u"1.2"_s);
    QSignalSpy audited(controller.get(), &Controller::audited);
    EXPECT_EQ(sheet()->messageText(), u"Loading spec references…"_s);
    EXPECT_TRUE(waitFor([] { return sheet()->value() == 0.5; }));
    EXPECT_EQ(rows().columnCount(), 0);
    EXPECT_TRUE(controller->isAuditing());
    gate->open();
    EXPECT_TRUE(waitFor([&] { return !audited.isEmpty(); }));
    EXPECT_EQ(sheet(), nullptr);
    EXPECT_FALSE(controller->isAuditing());
    EXPECT_EQ(rows().rowCount(), 2);
}

TEST_F(AuditBrowser, AuditsEachTimeThatItAppears)
{
    open({u"1.1"_s});
    QSignalSpy audited(controller.get(), &Controller::audited);
    specification->entry(u"1.1"_s)->setTitle(u"Renamed"_s);
    controller->view()->hide();
    controller->view()->show();
    EXPECT_TRUE(waitFor([&] { return !audited.isEmpty(); }));
    EXPECT_EQ(shown(0, 0), u"Section 1.1: Renamed"_s);
}

TEST_F(AuditBrowser, MayGoWhileItAudits)
{
    QWidget window;
    beginAudit({u"1.1"_s, u"1.2"_s}, u"1.1"_s, &window);
    controller.reset();
    EXPECT_EQ(sheet(), nullptr) << "the window can be used again";
    gate->open();
    finishTasks(backgroundPool());
    QCoreApplication::processEvents();
    EXPECT_TRUE(entry(u"1.2"_s).needsComputeDisplay()) << "the audit was given up";
}

TEST_F(AuditBrowser, MayOutliveItsWindow)
{
    auto window = std::make_unique<QWidget>();
    beginAudit({u"1.1"_s}, u"1.1"_s, window.get());
    window.reset();
    gate->open();
    EXPECT_TRUE(waitFor([this] { return !controller->isAuditing(); }));
    EXPECT_EQ(controller->tableView(), nullptr);
}

TEST_F(AuditBrowser, WaitsWithoutASpecification)
{
    controller = std::make_shared<Controller>(QStringList{u"1.1"_s}, nullptr);
    LogCapture log("tavrin.interface");
    controller->view()->show();
    ASSERT_TRUE(waitFor([] { return sheet() != nullptr; }));
    EXPECT_THAT(log.takeMessages(), Contains(u"The audit browser has no specification to audit"_s));
    EXPECT_FALSE(controller->isAuditing());
    QTest::keyClick(sheet(), Qt::Key_Escape);
    EXPECT_EQ(sheet(), nullptr) << "a user gets out of it";
    controller->exportAudit();
    EXPECT_EQ(controller->view()->findChild<QFileDialog *>(), nullptr);
}

TEST_F(AuditBrowser, BearsAnyLabels)
{
    QStringList labels{u"spec://1.1/engine/7/3/0"_s, u"spec://"_s, QString(), u"\"\n😀"_s,
                       QString(QChar(0))};
    for (int i = 0; i < 100'000; ++i)
        labels += i % 3 ? u"1.1"_s : u"unknown %1"_s.arg(i);
    for (int i = 0; i < 200; ++i)
        labels += QString(10'000, QChar(u'a' + i % 26));
    Controller::Components components(2, {QString(2'000'000, u'w')});
    open(labels, {u"X"_s}, components);
    ASSERT_EQ(rows().rowCount(), labels.size());
    EXPECT_EQ(shown(0, 0), u"<no value>"_s);
    type(u"purpose"_s);
    EXPECT_EQ(rows().rowCount(), labels.count(u"1.1"_s));
    rows().sort(0);
    table().selectAll();
    controller->searchField()->clear();
    EXPECT_EQ(table().selectionModel()->selectedRows().size(), labels.count(u"1.1"_s));
    controller->view()->grab();
}

// Writing

TEST_F(AuditBrowser, WritesAReport)
{
    bind();
    open({u"1.1"_s, u"none"_s});
    const auto writeTo = [this](const QString &path) {
        controller->exportAudit();
        auto *dialog = controller->view()->findChild<QFileDialog *>();
        ASSERT_NE(dialog, nullptr);
        controller->exportAudit();
        EXPECT_EQ(controller->view()->findChildren<QFileDialog *>().size(), 1) << "one at a time";
        auto *name = dialog->findChild<QLineEdit *>();
        ASSERT_NE(name, nullptr);
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
        EXPECT_EQ(sheet(), nullptr) << "the dialog is there still";
    };
    for (const auto &[name, beginning] :
         {std::pair(u"audit.csv"_s, "status,"), std::pair(u"audit.html"_s, "<!DOCTYPE html>"),
          std::pair(u"audit.rtf"_s, "{\\rtf1"), std::pair(u"audit.JSON"_s, "{"),
          std::pair(u"audit.xml"_s, "<?xml")}) {
        writeTo(files.path(name));
        EXPECT_TRUE(waitFor([&] { return QFileInfo::exists(files.path(name)) && !sheet(); }));
        EXPECT_TRUE(files.read(name).trimmed().startsWith(beginning)) << name.toStdString();
    }
    writeTo(files.path(u"missing/audit.csv"_s));
    EXPECT_TRUE(waitFor([this] {
        const auto sheets = controller->view()->findChildren<Sheet *>();
        return !sheets.isEmpty() && !sheets.last()->informativeText().isEmpty() &&
               sheets.last()->messageText() == u"The audit could not be written."_s;
    }));
}

TEST_F(AuditBrowser, ShowsARealDocument)
{
    specification = bindCorpusSample(manager, u"slepc"_s);
    if (!specification)
        GTEST_SKIP() << noCorpus;
    specification->entry(QString());
    QStringList labels;
    for (const auto &entry : specification->entries())
        labels += entry->label();
    open(labels);
    ASSERT_EQ(rows().rowCount(), labels.size());
    EXPECT_EQ(column(3), labels);
    type(u"eigenvalue spectral"_s);
    EXPECT_GT(rows().rowCount(), 3);
    EXPECT_LT(rows().rowCount(), labels.size());
    for (const QString &text : column(1) + column(0))
        EXPECT_FALSE(text.contains(u'"'));
    keepDetails();
    doubleClick(0, 0);
    ASSERT_EQ(details.size(), 1U);
    EXPECT_TRUE(std::dynamic_pointer_cast<SpecPDFViewController>(details[0]));
    EXPECT_EQ(shownEntry(0), column(3).front());
}
