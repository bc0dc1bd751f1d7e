// SPDX-License-Identifier: Apache-2.0
// A host with a kind of specification of its own: shows an entry of a plain text.
//
// usage: text-specification MAPS LABEL DOC.txt
#include <QApplication>
#include <QTextStream>

#include <Tavrin/interface/toolkit/ViewController.h>
#include <Tavrin/manager/SpecificationManager.h>

#include "TextSpecification.h"

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    TextSpecification::registerType();
    auto &manager = Tavrin::SpecificationManager::shared();
    const QStringList arguments = QApplication::arguments();
    try {
        manager.loadSpecInformation(QUrl::fromLocalFile(arguments.at(1)));
        manager.bindAuxiliaryFile(QUrl::fromLocalFile(arguments.at(3)));
    } catch (const std::exception &error) {
        QTextStream(stderr) << QString::fromUtf8(error.what()) << '\n';
        return 2;
    }
    if (const auto entry = manager.entry(arguments.at(2))) {
        for (const auto &item : entry->displayItems())
            QTextStream(stdout) << item.label << ": " << item.objectValue.toString() << '\n';
    }
    Tavrin::ViewControllerPtr shown;
    manager.setDetailViewControllerDisplayBlock([&](const Tavrin::ViewControllerPtr &controller) {
        shown = controller;
        controller->view()->resize(700, 500);
        controller->view()->setWindowTitle(controller->title());
        controller->view()->show();
    });
    manager.showDetailViewController(arguments.at(2));
    return shown ? QApplication::exec() : 1;
}
