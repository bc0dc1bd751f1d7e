// SPDX-License-Identifier: Apache-2.0
#include <reader/window/DocumentState.h>

#include <QAction>
#include <QSettings>

#include <reader/panes/ControllerPane.h>

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;

namespace
{

constexpr auto invertedKey = "Reader.InvertedPages"_L1;
constexpr auto fitKey = "Reader.Fit"_L1;

/// The commands of the document's tool bar, by their names.
constexpr auto inverted = "invertedPages"_L1;
constexpr auto fitWidth = "fitWidth"_L1;
constexpr auto fitPage = "fitPage"_L1;

bool isWanted(const QString &name)
{
    const QSettings settings;
    return name == inverted ? settings.value(invertedKey).toBool()
                            : settings.value(fitKey).toString() == name;
}

void store(const QAction &action)
{
    if (action.objectName() == inverted)
        QSettings().setValue(invertedKey, action.isChecked());
    else
        QSettings().setValue(fitKey, action.objectName());
}

} // namespace

DocumentState::DocumentState(ControllerPane &pane) : QObject(&pane)
{
    connect(&pane, &ControllerPane::shown, this, &DocumentState::follow);
}

void DocumentState::follow(const QWidget *view)
{
    const QList<QAction *> actions = view ? view->actions() : QList<QAction *>();
    for (QAction *action : actions) {
        const QString name = action->objectName();
        if (name != inverted && name != fitWidth && name != fitPage)
            continue;
        connect(action, &QAction::triggered, this, [action] { store(*action); });
        if (action->isChecked() || !isWanted(name))
            continue;
        // Pages can't be fitted before they are known.
        if (action->isEnabled())
            action->trigger();
        else
            connect(action, &QAction::enabledChanged, action, &QAction::trigger,
                    Qt::SingleShotConnection);
    }
}

} // namespace Tavrin::Reader
