// SPDX-License-Identifier: Apache-2.0
#include <QApplication>

#include <Tavrin/interface/toolkit/ViewController.h>
#include <Tavrin/manager/SpecificationManager.h>

/// Shows what a label of a directory of maps means, and asks for nothing but that.
int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    auto &manager = Tavrin::SpecificationManager::shared();
    manager.loadSpecInformation(QUrl::fromLocalFile(QApplication::arguments().at(1)));
    const auto summary = manager.summaryLookup(QApplication::arguments().at(2));
    if (!summary)
        return 1;
    summary->view()->show();
    return summary->view()->isVisible() ? 0 : 1;
}
