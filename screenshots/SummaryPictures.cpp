// SPDX-License-Identifier: Apache-2.0
#include <QPushButton>

#include <Tavrin/interface/summary/SpecErrorViewController.h>
#include <Tavrin/platform/StringLocalizer.h>
#include <interface/SummaryFixture.h>

#include "Studio.h"

namespace Tavrin::Testing
{

using namespace Qt::StringLiterals;

namespace
{

ViewControllerPtr summaryOf(const std::shared_ptr<SpecificationEntry> &entry)
{
    return std::make_shared<SpecEntrySummaryViewController>(entry);
}

ViewControllerPtr prompt()
{
    auto error = std::make_shared<SpecErrorViewController>();
    error->setMessageText(localized("You have not imported any specs yet. Would you like to "
                                    "choose a file now?",
                                    "no specs error prompt"));
    error->setButtonTitle(localized("Import Specs", "no specs error button"));
    return error;
}

struct Shot {
    QString name;
    ViewControllerPtr controller;
    QSize size = {760, 520};
    /// How often Tab is pressed.
    int tabs = 0;
    bool isHeldUp = false;
};

void take(Studio &studio, const Shot &shot)
{
    QWidget window;
    window.resize(shot.size);
    QPushButton button(u"Reference"_s, &window);
    button.move(shot.size.width() / 2 - 50, 20);
    window.show();
    const QPointer<Popover> popover = Popover::show(shot.controller, button.rect(), button);
    const auto shown = std::dynamic_pointer_cast<SpecEntrySummaryViewController>(shot.controller);
    if (shown && !shot.isHeldUp)
        Studio::waitFor([&shown] { return !shown->isLoading(); });
    for (int i = 0; i < shot.tabs; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    studio.shoot(window, shot.name);
    if (popover)
        popover->close();
}

/// Popovers about the entries of a small specification.
class Scene : public Staged<SummaryFixture>
{
public:
    explicit Scene(Studio &studio)
    {
        bind();
        for (const Shot &shot :
             {Shot{u"summary-section"_s, summaryOf(scope), {760, 520}, 2},
              Shot{u"summary-figure"_s, summaryOf(red)},
              Shot{u"summary-wide-figure"_s, summaryOf(blue), {1000, 520}},
              Shot{u"summary-long"_s, summaryOf(longEntry())},
              Shot{u"summary-narrow"_s, summaryOf(scope), {300, 420}},
              Shot{u"summary-narrow-figure"_s, summaryOf(blue), {300, 420}},
              Shot{u"summary-empty"_s, summaryOf(nullptr)}, Shot{u"summary-error"_s, prompt()}})
            take(studio, shot);
        Gate gate(*scope);
        scope->setSummaryText(std::nullopt);
        take(studio, {u"summary-loading"_s, summaryOf(scope), {760, 520}, 0, true});
        gate.open();
        finishTasks(backgroundPool());
    }

private:
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
};

/// Two entries of each kind of a real document.
void takeRealDocument(Studio &studio)
{
    SpecificationManager manager;
    const auto specification = studio.bindSample(manager);
    QStringList taken;
    for (const auto &entry : specification->entries()) {
        if (entry->number().isEmpty() || taken.count(description(entry->type())) > 1)
            continue;
        taken += description(entry->type());
        const QString name =
            u"summary-slepc-%1-%2"_s.arg(taken.last()).arg(taken.count(taken.last()));
        take(studio, {name, summaryOf(entry), {900, 640}, 1});
    }
}

} // namespace

void takeSummaryPictures(Studio &studio)
{
    {
        const Scene scene(studio);
    }
    takeRealDocument(studio);
}

} // namespace Tavrin::Testing
