// SPDX-License-Identifier: Apache-2.0
#include <QPushButton>

#include <Tavrin/interface/summary/SpecErrorViewController.h>
#include <Tavrin/platform/BackgroundPool.h>
#include <Tavrin/platform/StringLocalizer.h>
#include <interface/SummaryFixture.h>
#include <support/FinishTasks.h>

#include "Pictures.h"
#include "Studio.h"

namespace Tavrin::Testing
{

using namespace Qt::StringLiterals;

namespace
{

/// Popovers about the entries of a small specification.
class Scene : public SummaryFixture
{
public:
    explicit Scene(Studio &studio) : m_studio(studio) { bind(); }
    ~Scene() override { TearDown(); }

    void take(const QString &name, const ViewControllerPtr &controller, QSize size = {760, 520},
              int tabs = 0)
    {
        QWidget window;
        window.resize(size);
        QPushButton button(u"Reference"_s, &window);
        button.move(size.width() / 2 - 50, 20);
        window.show();
        const QPointer<Popover> popover = Popover::show(controller, button.rect(), button);
        const auto shown = std::dynamic_pointer_cast<SpecEntrySummaryViewController>(controller);
        if (shown && !m_isHeldUp)
            Studio::waitFor([&shown] { return !shown->isLoading(); });
        for (int i = 0; i < tabs; ++i)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        m_studio.shoot(window, name);
        if (popover)
            popover->close();
    }
    void takeLoading()
    {
        Gate gate(*scope);
        scope->setSummaryText(std::nullopt);
        m_isHeldUp = true;
        take(u"summary-loading"_s, summaryOf(scope));
        m_isHeldUp = false;
        gate.open();
        finishTasks(backgroundPool());
    }
    void takeStates()
    {
        take(u"summary-section"_s, summaryOf(scope), {760, 520}, 2);
        take(u"summary-figure"_s, summaryOf(red));
        take(u"summary-wide-figure"_s, summaryOf(blue), {1000, 520});
        take(u"summary-long"_s, summaryOf(longEntry()));
        take(u"summary-narrow"_s, summaryOf(scope), {300, 420});
        take(u"summary-narrow-figure"_s, summaryOf(blue), {300, 420});
        take(u"summary-empty"_s, summaryOf(nullptr));
        take(u"summary-error"_s, prompt());
    }

    static ViewControllerPtr summaryOf(const std::shared_ptr<SpecificationEntry> &entry)
    {
        return std::make_shared<SpecEntrySummaryViewController>(entry);
    }

private:
    void TestBody() override {}

    static ViewControllerPtr prompt()
    {
        auto error = std::make_shared<SpecErrorViewController>();
        error->setMessageText(localized("You have not imported any specs yet. Would you like to "
                                        "choose a file now?",
                                        "no specs error prompt"));
        error->setButtonTitle(localized("Import Specs", "no specs error button"));
        return error;
    }
    EntryPtr longEntry()
    {
        auto entry = section(u"9"_s,
                             u"Long Text About a Subject With a Title That Is Longer "
                             "Than One Line of the Summary Can Hold"_s,
                             3, 700);
        StyledText text(lines(u"long"_s, 30).join(u'\n') + u'.' + u'\n' +
                        lines(u"rest"_s, 9).join(u' '));
        TextAttributes typewriter;
        typewriter.font = TextFont{u"Courier"_s, 11, 0};
        text.setAttributes(typewriter, {20, 30});
        entry->setSummaryText(text);
        entry->setRelatedEntries({u"Figure 1"_s, u"Figure 2"_s, u"1.1"_s});
        return entry;
    }

    Studio &m_studio;
    bool m_isHeldUp = false;
};

/// Two entries of each kind of a real document.
void takeRealDocument(Studio &studio, Scene &scene)
{
    SpecificationManager manager;
    const auto specification = studio.bindSample(manager, u"slepc"_s);
    QStringList taken;
    for (const auto &entry : specification->entries()) {
        if (entry->number().isEmpty() || taken.count(description(entry->type())) > 1)
            continue;
        taken += description(entry->type());
        scene.take(u"summary-slepc-%1-%2"_s.arg(taken.last()).arg(taken.count(taken.last())),
                   Scene::summaryOf(entry), {900, 640}, 1);
    }
}

} // namespace

void takeSummaryPictures(Studio &studio)
{
    Scene scene(studio);
    scene.takeStates();
    scene.takeLoading();
    takeRealDocument(studio, scene);
}

} // namespace Tavrin::Testing
