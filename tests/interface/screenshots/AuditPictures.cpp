// SPDX-License-Identifier: Apache-2.0
#include <QLineEdit>
#include <QMenu>
#include <QTableView>

#include <Tavrin/interface/audit/BrowserArrayController.h>
#include <Tavrin/interface/audit/SpecAuditBrowserController.h>
#include <interface/SummaryFixture.h>

#include "Pictures.h"
#include "Studio.h"

namespace Tavrin::Testing
{

using namespace Qt::StringLiterals;

namespace
{

/// The audit browser over a real document, made anew for each scene.
class Scene
{
public:
    Scene(Studio &studio, const std::shared_ptr<PDFSpecification> &specification,
          const QStringList &labels, QSize size = {1'100, 560}, const QStringList &headings = {},
          const SpecAuditBrowserController::Components &components = {})
        : m_studio(studio),
          m_controller(std::make_shared<SpecAuditBrowserController>(labels, specification, headings,
                                                                    components))
    {
        m_controller->view()->resize(size);
    }

    QWidget &view() { return *m_controller->view(); }
    QTableView &table() { return *m_controller->tableView(); }
    void show()
    {
        view().show();
        Studio::waitFor([this] { return m_controller->isAuditing(); });
        Studio::waitFor([this] { return !m_controller->isAuditing(); });
        view().activateWindow();
    }
    void type(const QString &text)
    {
        m_controller->searchField()->setFocus();
        m_controller->searchField()->setText(text);
    }
    void select(int row, int column)
    {
        table().setFocus();
        table().setCurrentIndex(m_controller->arrayController()->index(row, column));
    }
    void shoot(const QString &name) { m_studio.shoot(view(), name); }
    /// The sheet or menu over the view, drawn where it is.
    void shoot(const QString &name, QWidget &above)
    {
        QTest::qWait(60);
        QWidget window;
        window.resize(view().size());
        auto *back = new QLabel(&window);
        back->setPixmap(view().grab());
        back->setGeometry(window.rect());
        auto *front = new QLabel(&window);
        front->setPixmap(above.grab());
        front->setGeometry(QRect(view().mapFromGlobal(above.mapToGlobal(QPoint())), above.size()));
        window.show();
        m_studio.shoot(window, name);
    }
    void shootMenu(const QString &name, int row, int column)
    {
        select(row, column);
        const QPoint place = table().visualRect(table().currentIndex()).center();
        Q_EMIT table().customContextMenuRequested(place);
        const QPointer<QMenu> menu = table().findChild<QMenu *>();
        shoot(name, *menu);
        delete menu;
    }

private:
    Studio &m_studio;
    std::shared_ptr<SpecAuditBrowserController> m_controller;
};

QStringList labelsOf(PDFSpecification &specification)
{
    QStringList labels;
    for (const auto &entry : specification.entries())
        labels += entry->label();
    // What a work cites that is not there.
    labels.insert(2, u"section.99"_s);
    return labels;
}

void takeStates(Studio &studio, const std::shared_ptr<PDFSpecification> &specification,
                const QStringList &labels)
{
    Scene scene(studio, specification, labels);
    scene.shoot(u"audit-pending"_s);
    scene.show();
    scene.shoot(u"audit-done"_s);
    scene.select(1, 1);
    scene.shoot(u"audit-selected"_s);
    scene.shootMenu(u"audit-menu"_s, 1, 0);
    scene.table().sortByColumn(0, Qt::DescendingOrder);
    scene.type(u"eigenvalue problem"_s);
    scene.shoot(u"audit-filtered"_s);
    scene.type(u"nowhere"_s);
    scene.shoot(u"audit-no-matches"_s);
}

void takeAuditing(Studio &studio, const std::shared_ptr<PDFSpecification> &specification,
                  const QStringList &labels)
{
    const auto entry = std::dynamic_pointer_cast<PDFSpecification::Entry>(
        specification->entry(labels.at(labels.size() / 3)));
    const auto summary = entry->summaryText();
    Gate gate(*entry);
    entry->setSummaryText(std::nullopt);
    Scene scene(studio, specification, labels);
    scene.view().show();
    const auto sheet = [] { return QApplication::activeModalWidget(); };
    if (Studio::waitFor([&] { return sheet() != nullptr; })) {
        gate.waitUntilReached();
        scene.shoot(u"audit-auditing"_s, *sheet());
    }
    gate.open();
}

void takeCells(Studio &studio, const std::shared_ptr<PDFSpecification> &specification,
               const QStringList &labels)
{
    const QStringList owners{u"Anna \"Anni\" Østergård-Überlingen\nsecond line 😀 <b>bold?</b>"_s,
                             QString(), u"طالب العلم"_s, QString(10'000, u'x')};
    SpecAuditBrowserController::Components components;
    for (const QString &owner : owners)
        components.push_back({owner, owner.left(60)});
    Scene scene(studio, specification, labels.mid(0, 8), {1'100, 560}, {u"Owner"_s, u"&Team"_s},
                components);
    scene.show();
    scene.table().setColumnHidden(0, true);
    scene.table().setColumnHidden(2, true);
    scene.shoot(u"audit-long-cells"_s);
    Scene narrow(studio, specification, labels, {340, 420});
    narrow.show();
    narrow.type(u"eigen"_s);
    narrow.shoot(u"audit-narrow"_s);
    Scene empty(studio, specification, {});
    empty.show();
    empty.shoot(u"audit-no-references"_s);
}

} // namespace

void takeAuditPictures(Studio &studio)
{
    SpecificationManager manager;
    const auto specification =
        std::dynamic_pointer_cast<PDFSpecification>(studio.bindSample(manager, u"slepc"_s));
    const QStringList labels = labelsOf(*specification);
    takeAuditing(studio, specification, labels);
    takeStates(studio, specification, labels);
    takeCells(studio, specification, labels);
}

} // namespace Tavrin::Testing
