// SPDX-License-Identifier: Apache-2.0
#include <QLineEdit>
#include <QMenu>
#include <QTableView>

#include <Tavrin/interface/audit/BrowserArrayController.h>
#include <Tavrin/interface/audit/SpecAuditBrowserController.h>
#include <interface/SummaryFixture.h>

#include "Studio.h"

namespace Tavrin::Testing
{

using namespace Qt::StringLiterals;

namespace
{

using Browser = SpecAuditBrowserController;

void show(Browser &browser)
{
    browser.view()->show();
    Studio::waitFor([&] { return browser.isAuditing(); });
    Studio::waitFor([&] { return !browser.isAuditing(); });
    browser.view()->activateWindow();
}

void type(Browser &browser, const QString &text)
{
    browser.searchField()->setFocus();
    browser.searchField()->setText(text);
}

void select(Browser &browser, int row, int column)
{
    browser.tableView()->setFocus();
    browser.tableView()->setCurrentIndex(browser.arrayController()->index(row, column));
}

const State<Browser> firstStates[] = {
    {"audit-pending"},
    {"audit-done", show},
    {"audit-selected", [](Browser &browser) { select(browser, 1, 1); }},
};
const State<Browser> filteredStates[] = {
    {"audit-filtered",
     [](Browser &browser) {
         browser.tableView()->sortByColumn(0, Qt::DescendingOrder);
         type(browser, u"eigenvalue problem"_s);
     }},
    {"audit-no-matches", [](Browser &browser) { type(browser, u"nowhere"_s); }},
};

void takeStates(Studio &studio, const QStringList &labels,
                const std::shared_ptr<PDFSpecification> &specification)
{
    Browser browser(labels, specification);
    browser.view()->resize(1'100, 560);
    studio.shootStates(*browser.view(), browser, firstStates);
    select(browser, 1, 0);
    QTableView &table = *browser.tableView();
    Q_EMIT table.customContextMenuRequested(table.visualRect(table.currentIndex()).center());
    const QPointer<QMenu> menu = table.findChild<QMenu *>();
    studio.shoot(*browser.view(), u"audit-menu"_s, *menu);
    delete menu;
    studio.shootStates(*browser.view(), browser, filteredStates);
}

void takeAuditing(Studio &studio, const QStringList &labels,
                  const std::shared_ptr<PDFSpecification> &specification)
{
    const auto entry = std::dynamic_pointer_cast<PDFSpecification::Entry>(
        specification->entry(labels.at(labels.size() / 3)));
    Gate gate(*entry);
    entry->setSummaryText(std::nullopt);
    Browser browser(labels, specification);
    browser.view()->resize(1'100, 560);
    browser.view()->show();
    if (Studio::waitFor([] { return QApplication::activeModalWidget() != nullptr; })) {
        gate.waitUntilReached();
        studio.shoot(*browser.view(), u"audit-auditing"_s, *QApplication::activeModalWidget());
    }
    gate.open();
}

void takeCells(Studio &studio, const QStringList &labels,
               const std::shared_ptr<PDFSpecification> &specification)
{
    Browser::Components components;
    for (const QString &owner :
         {u"Anna \"Anni\" Østergård-Überlingen\nsecond line 😀 <b>bold?</b>"_s, QString(),
          u"طالب العلم"_s, QString(10'000, u'x')})
        components.push_back({owner, owner.left(60)});
    Browser cells(labels.mid(0, 8), specification, {u"Owner"_s, u"&Team"_s}, components);
    cells.view()->resize(1'100, 560);
    show(cells);
    cells.tableView()->setColumnHidden(0, true);
    cells.tableView()->setColumnHidden(2, true);
    studio.shoot(*cells.view(), u"audit-long-cells"_s);
    Browser narrow(labels, specification);
    narrow.view()->resize(340, 420);
    show(narrow);
    type(narrow, u"eigen"_s);
    studio.shoot(*narrow.view(), u"audit-narrow"_s);
    Browser empty({}, specification);
    empty.view()->resize(1'100, 560);
    show(empty);
    studio.shoot(*empty.view(), u"audit-no-references"_s);
}

} // namespace

void takeAuditPictures(Studio &studio)
{
    SpecificationManager manager;
    const auto specification = studio.bindSample(manager);
    QStringList labels;
    for (const auto &entry : specification->entries())
        labels += entry->label();
    // What a work cites that is not there.
    labels.insert(2, u"section.99"_s);
    takeAuditing(studio, labels, specification);
    takeStates(studio, labels, specification);
    takeCells(studio, labels, specification);
}

} // namespace Tavrin::Testing
