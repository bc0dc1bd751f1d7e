// SPDX-License-Identifier: Apache-2.0
#include <QClipboard>
#include <QScrollBar>

#include <Tavrin/interface/summary/DisplayComputation.h>
#include <Tavrin/manager/SpecificationManager.h>
#include <support/Corpus.h>
#include <support/FinishTasks.h>
#include <support/LogCapture.h>

#include "LinkOpener.h"
#include "SummaryFixture.h"

namespace
{

using Controller = SpecEntrySummaryViewController;

StyledText sentence(qsizetype length, qsizetype mark = -1)
{
    QString text(length, u'a');
    if (mark >= 0)
        text[mark] = u'.';
    return StyledText(text);
}

QString shown(SpecEntrySummaryCell &cell, const QVariant &value)
{
    cell.setObjectValue(value);
    return cell.textView()->toPlainText();
}

QImage image(int width, int height)
{
    QImage result(width, height, QImage::Format_RGB32);
    result.fill(Qt::red);
    return result;
}

class Summary : public SummaryFixture
{
protected:
    /// Shows a controller's view in a window, with all that it computes.
    void show(Controller &controller, int width = 600)
    {
        QWidget *view = controller.view();
        view->resize(width, 500);
        view->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(view));
        if (controller.isLoading())
            QSignalSpy(&controller, &Controller::loaded).wait();
        QCoreApplication::processEvents();
    }
};

} // namespace

TEST_F(Summary, ShowsEachKindOfValue)
{
    SpecEntrySummaryCell cell;
    EXPECT_EQ(shown(cell, u"one"_s), u"one"_s);
    EXPECT_EQ(shown(cell, QStringList({u"one"_s, u"two"_s})), u"one\ntwo"_s);
    EXPECT_EQ(shown(cell, QVariant::fromValue(StyledText(u"styled"_s))), u"styled"_s);
    const QVariantList list{QVariant::fromValue(StyledText(u"a"_s)),
                            QVariant::fromValue(StyledText(u"b"_s))};
    EXPECT_EQ(shown(cell, list), u"a\nb\n"_s);
    EXPECT_EQ(shown(cell, {}), u"<cannot display this type>"_s);
    EXPECT_EQ(shown(cell, 42), u"<cannot display this type>"_s);
    EXPECT_EQ(shown(cell, QVariantList{1}), u"<cannot display this type>"_s);
    EXPECT_TRUE(cell.imageView()->isHidden());
    EXPECT_EQ(shown(cell, image(40, 30)), QString());
    EXPECT_TRUE(cell.textViewContainer()->isHidden());
    EXPECT_EQ(cell.imageView()->aspectRatioConstraint(), 40.0 / 30);
    EXPECT_EQ(shown(cell, u"one"_s), u"one"_s);
    EXPECT_FALSE(cell.textViewContainer()->isHidden());
    EXPECT_EQ(cell.imageView()->aspectRatioConstraint(), std::nullopt);
}

TEST_F(Summary, CutsLongTextsBehindAMark)
{
    SpecEntrySummaryCell cell;
    const auto cut = [&cell](const StyledText &text) {
        return shown(cell, QVariant::fromValue(text));
    };
    EXPECT_EQ(cut(sentence(750, 740)).size(), 750);
    EXPECT_EQ(cut(sentence(800, 760)), sentence(761, 760).string() + u'…');
    EXPECT_EQ(cut(sentence(751, 750)), sentence(751, 750).string() + u'…');
    EXPECT_EQ(cut(sentence(5000, 749)).size(), 5000) << "no mark behind the place";
    EXPECT_EQ(shown(cell, sentence(800, 760).string()).size(), 800) << "a plain text stays";
}

TEST_F(Summary, ShowsTheRowsOfItsEntryAndItsHosts)
{
    bind();
    Controller controller(scope);
    EXPECT_EQ(controller.numberOfRows(), 5);
    controller.setCustomDisplayItems({{u"Host"_s, u"value"_s}, {u"Other"_s, 7}});
    show(controller);
    EXPECT_EQ(captions(*controller.view()),
              (QStringList{u"Section"_s, u"Source"_s, u"Summary"_s, u"More"_s, u"Related"_s,
                           u"Host"_s, u"Other"_s}));
    EXPECT_EQ(text(*controller.view(), u"Section"_s), scope->displayTitle());
    EXPECT_EQ(text(*controller.view(), u"Summary"_s), lines(u"scope"_s, 4).join(u'\n'));
    EXPECT_EQ(text(*controller.view(), u"Host"_s), u"value"_s);
    EXPECT_TRUE(controller.noContentView()->isHidden());
    const auto *title = cell(*controller.view(), u"Section"_s)->textView();
    EXPECT_TRUE(title->document()->begin().begin().fragment().charFormat().font().bold());
}

TEST_F(Summary, SaysThatThereIsNoEntry)
{
    Controller controller(nullptr);
    show(controller);
    EXPECT_EQ(controller.numberOfRows(), 0);
    EXPECT_TRUE(controller.noContentView()->isVisible());
    const auto *scroll = controller.view()->findChild<TableScrollView *>();
    EXPECT_EQ(scroll->heightConstraint(), 44);
    EXPECT_EQ(controller.tableViewRowHeight(0), 44);
}

TEST_F(Summary, MakesRowsAsTallAsTheirTexts)
{
    bind();
    Controller controller(scope);
    for (const int width : {700, 420, 260}) {
        show(controller, width);
        int y = 0;
        for (const QString &caption : captions(*controller.view())) {
            const SpecEntrySummaryCell *value = cell(*controller.view(), caption);
            const auto *view = value->textView();
            EXPECT_EQ(value->y(), y) << qPrintable(caption);
            EXPECT_EQ(view->verticalScrollBar()->maximum(), 0) << qPrintable(caption) << width;
            EXPECT_NEAR(view->height(), view->intrinsicContentSize().height(), 1);
            EXPECT_LE(value->geometry().right(), controller.tableView()->width());
            y += value->height();
        }
        EXPECT_EQ(controller.tableView()->height(), y);
        EXPECT_EQ(controller.view()->findChild<TableScrollView *>()->heightConstraint(), y);
    }
    EXPECT_GT(controller.tableViewRowHeight(2), 4 * controller.tableViewRowHeight(0));
}

TEST_F(Summary, GrowsForImagesUpToItsBound)
{
    bind();
    Controller small(red);
    show(small);
    const auto *smallView = cell(*small.view(), u"Preview"_s)->imageView();
    EXPECT_EQ(smallView->size().boundedTo(smallView->sizeHint()), smallView->sizeHint());

    Controller controller(nullptr);
    controller.view();
    TableView::Column *column = controller.tableView()->column(u"SummaryColumn"_s);
    const auto heightOf = [&](const QImage &shownImage) {
        Controller wide(scope);
        wide.setCustomDisplayItems({{u"Image"_s, shownImage}});
        show(wide, 420);
        wide.view()->resize(wide.view()->sizeHint().width(), 900);
        QCoreApplication::processEvents();
        const int width = cell(*wide.view(), u"Image"_s)->width();
        EXPECT_LE(width, column->maxWidth);
        return std::pair(width, wide.tableViewRowHeight(5));
    };
    const auto [fittingWidth, fittingHeight] = heightOf(image(column->maxWidth - 60, 100));
    EXPECT_GT(fittingWidth, column->width);
    EXPECT_LT(fittingWidth, column->maxWidth);
    EXPECT_NEAR(fittingHeight, 110, 4);
    const auto [widest, height] = heightOf(image(2 * column->maxWidth, column->maxWidth));
    EXPECT_EQ(widest, column->maxWidth);
    EXPECT_NEAR(height, widest / 2.0, 12) << "made smaller in proportion";
    const auto [same, thin] = heightOf(image(100000, 1));
    EXPECT_EQ(same, column->maxWidth);
    EXPECT_LT(thin, 16);
}

TEST_F(Summary, FollowsLinksByMouseAndKeyboard)
{
    bind();
    Controller controller(scope);
    QStringList followed;
    QObject::connect(&controller, &Controller::detailViewRequested,
                     [&](const QString &label, const std::shared_ptr<Specification> &where) {
                         EXPECT_EQ(where, specification);
                         followed += label;
                     });
    show(controller);
    auto *related = cell(*controller.view(), u"Related"_s)->textView();
    ASSERT_EQ(related->links().size(), 2U);
    clickLink(*related, 1);
    clickLink(*cell(*controller.view(), u"More"_s)->textView(), 0);
    EXPECT_THAT(followed, ElementsAre(u"Figure 2"_s, u"spec://1.1"_s));
    followed.clear();

    QWidget *first = controller.view()->findChild<TableScrollView *>();
    first->setFocus(Qt::TabFocusReason);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_THAT(followed, ElementsAre(u"spec://1.1"_s, u"Figure 1"_s, u"Figure 2"_s));
    related->setFocus(Qt::BacktabFocusReason);
    EXPECT_EQ(related->focusedLink(), 1U);
    QTest::keyClick(related, Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(related->focusedLink(), 0U);
}

TEST_F(Summary, SelectsInsteadOfFollowingALink)
{
    bind();
    Controller controller(scope);
    QSignalSpy followed(&controller, &Controller::detailViewRequested);
    show(controller);
    auto *more = cell(*controller.view(), u"More"_s)->textView();
    const QRect link = more->linkRects(more->links().at(0)).front();
    const QPoint from(link.left() + 2, link.center().y());
    QTest::mousePress(more->viewport(), Qt::LeftButton, {}, from);
    QTest::mouseMove(more->viewport(), link.center());
    QMouseEvent move(QEvent::MouseMove, link.center(), more->viewport()->mapToGlobal(link.center()),
                     Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(more->viewport(), &move);
    QTest::mouseRelease(more->viewport(), Qt::LeftButton, {}, link.center());
    EXPECT_TRUE(more->textCursor().hasSelection());
    EXPECT_EQ(followed.count(), 0);
    QTest::keyClick(more, Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(u"View in specification"_s.contains(QGuiApplication::clipboard()->text()));
    EXPECT_FALSE(QGuiApplication::clipboard()->text().isEmpty());
}

TEST_F(Summary, OpensOrRefusesOtherDestinations)
{
    bind();
    Controller controller(scope);
    QSignalSpy followed(&controller, &Controller::detailViewRequested);
    const LinkOpener opener({u"host"_s});
    const LogCapture log("tavrin");
    controller.summaryCellClickedLink(u"host:some/place"_s);
    EXPECT_THAT(opener.opened, ElementsAre(u"host:some/place"_s));
    controller.summaryCellClickedLink(u"no such label"_s);
    controller.summaryCellClickedLink(u"spec://9.9.9"_s);
    controller.summaryCellClickedLink(u"spec://1.1/*/*?lines=5-2"_s);
    EXPECT_EQ(followed.count(), 0);
    EXPECT_EQ(log.messages().value(0), u"Don't know what to do with destination 'no such label'"_s);
    EXPECT_EQ(log.messages().value(1), u"Don't know what to do with destination 'spec://9.9.9'"_s)
        << "a URL class would make an address of it";
    SpecEntrySummaryCell alone;
    EXPECT_FALSE(alone.textViewClickedLink(*alone.textView(), 7));
    EXPECT_TRUE(log.messages().last().startsWith(u"Destination isn't a string:"_s));

    auto other = Specification::make<Specification>();
    other->add(std::make_shared<SpecificationEntry>(
        other, u"Far"_s, u"Elsewhere"_s, SpecificationEntryType::Table, std::vector<int>{7}));
    SpecificationManager manager;
    manager.setSpecifications({specification, other});
    controller.summaryCellClickedLink(u"Far"_s);
    ASSERT_EQ(followed.count(), 1);
    EXPECT_EQ(followed.at(0).at(1).value<std::shared_ptr<Specification>>(), other);
}

TEST_F(Summary, TellsOfColumnsItDoesNotKnow)
{
    Controller controller(scope);
    controller.view();
    EXPECT_EQ(controller.tableViewCell(nullptr, 0), nullptr);
    const LogCapture log("tavrin");
    const TableView::Column strange{u"Strange"_s};
    EXPECT_EQ(controller.tableViewCell(&strange, 3), nullptr);
    EXPECT_THAT(log.messages(),
                ElementsAre(u"Unrecognized column identifier: Strange"_s,
                            u"Table view didn't make a valid view for table column Strange and "
                            "row 3"_s));
}

// Cold entries

TEST_F(Summary, BeginsWithTheTitleAndFillsIn)
{
    bind();
    Gate gate(*scope);
    Controller controller(scope);
    QSignalSpy loaded(&controller, &Controller::loaded);
    controller.view()->show();
    gate.waitUntilReached();
    QCoreApplication::processEvents();
    EXPECT_TRUE(controller.isLoading());
    EXPECT_EQ(captions(*controller.view()), (QStringList{u"Section"_s, u"Source"_s, u"Summary"_s}));
    EXPECT_EQ(text(*controller.view(), u"Section"_s), scope->displayTitle());
    const int before = controller.tableView()->height();
    gate.open();
    ASSERT_TRUE(loaded.wait());
    EXPECT_FALSE(controller.isLoading());
    EXPECT_EQ(text(*controller.view(), u"Summary"_s), lines(u"scope"_s, 4).join(u'\n'));
    EXPECT_EQ(captions(*controller.view()).size(), 5);
    EXPECT_GT(controller.tableView()->height(), before);
}

TEST_F(Summary, SurvivesWhatGoesWhileItLoads)
{
    bind();
    {
        Gate gate(*scope);
        auto controller = std::make_unique<Controller>(scope);
        controller->view()->show();
        gate.waitUntilReached();
        controller.reset();
        gate.open();
        finishTasks(backgroundPool());
        QCoreApplication::processEvents();
    }
    Gate gate(*red);
    Controller controller(red);
    QSignalSpy loaded(&controller, &Controller::loaded);
    controller.view()->show();
    gate.waitUntilReached();
    specification->remove(*red);
    red.reset();
    scope.reset();
    specification.reset();
    gate.open();
    ASSERT_TRUE(loaded.wait());
    EXPECT_EQ(captions(*controller.view()).value(0), u"Figure"_s);
}

TEST_F(Summary, DrawsPreviewsSharpOnScaledDisplays)
{
    bind();
    DisplayComputation computation;
    QSignalSpy finished(&computation, &DisplayComputation::finished);
    computation.start(red, 2);
    ASSERT_TRUE(finished.wait());
    ASSERT_FALSE(computation.preview().isNull());
    EXPECT_EQ(computation.preview().devicePixelRatio(), 2);
    EXPECT_NEAR(computation.preview().width(), 2 * red->previewImage()->width(), 2);
    DynamicHeightImageView plain;
    plain.setImage(*red->previewImage());
    DynamicHeightImageView sharp;
    sharp.setImage(computation.preview());
    EXPECT_NEAR(sharp.sizeHint().width(), plain.sizeHint().width(), 1);
    computation.start(scope, 2);
    ASSERT_TRUE(finished.wait());
    EXPECT_TRUE(computation.preview().isNull());
}

TEST_F(Summary, LetsAFileBeBoundWhileItReads)
{
    bind();
    for (int i = 0; i < 20; ++i) {
        scope->setSummaryText(std::nullopt);
        scope->setNeedsComputeDisplay(true);
        Controller controller(scope);
        controller.view();
        bind();
        if (controller.isLoading()) {
            ASSERT_TRUE(QSignalSpy(&controller, &Controller::loaded).wait());
        }
        EXPECT_EQ(captions(*controller.view()).size(), 5);
    }
}

TEST_F(Summary, ShowsLessWhereThereIsNoPlaceOrNothingToReadIt)
{
    const EntryPtr nowhere = add(u"7"_s, u"Nowhere"_s, SpecificationEntryType::Section, u"none"_s);
    Controller unbound(scope);
    show(unbound);
    EXPECT_EQ(captions(*unbound.view()), (QStringList{u"Section"_s, u"Source"_s}));
    bind();
    Controller controller(nowhere);
    show(controller);
    EXPECT_EQ(captions(*controller.view()), (QStringList{u"Section"_s, u"Source"_s}));
}

TEST_F(Summary, OfARealDocumentFits)
{
    SpecificationManager manager;
    const auto sample = bindCorpusSample(manager, u"slepc"_s);
    if (!sample)
        GTEST_SKIP() << noCorpus;
    int images = 0;
    int summaries = 0;
    for (const auto &entry : sample->entries()) {
        if ((images + summaries) > 30)
            break;
        Controller controller(entry);
        show(controller);
        for (const QString &caption : captions(*controller.view())) {
            const auto *value = cell(*controller.view(), caption);
            EXPECT_EQ(value->textView()->verticalScrollBar()->maximum(), 0)
                << qPrintable(entry->label());
            images += value->hasImage() ? 1 : 0;
            summaries += caption == u"Summary"_s ? 1 : 0;
        }
    }
    EXPECT_GT(summaries, 10);
}
