// SPDX-License-Identifier: Apache-2.0
// The smallest host with windows: a field that shows what a label means in a popover, and opens
// the document at it.
//
// usage: minimal MAPS [DOC.pdf]
#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>

#include <Tavrin/interface/toolkit/Popover.h>
#include <Tavrin/interface/toolkit/ViewController.h>
#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/platform/Translations.h>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    // The application's name is that of the directory of imported files, and of the settings in
    // which views remember how they were left.
    QCoreApplication::setApplicationName(QStringLiteral("minimal"));
    const auto translator = Tavrin::installTranslations(QLocale());

    //! [load]
    auto &manager = Tavrin::SpecificationManager::shared();
    manager.loadSpecInformation(QUrl::fromLocalFile(application.arguments().at(1)));
    //! [load]
    //! [bind]
    if (application.arguments().size() > 2)
        manager.bindAuxiliaryFile(QUrl::fromLocalFile(application.arguments().at(2)));
    //! [bind]

    QMainWindow window;
    //! [display]
    Tavrin::ViewControllerPtr shown;
    manager.setDetailViewControllerDisplayBlock([&](const Tavrin::ViewControllerPtr &controller) {
        const auto former = shown;
        shown = controller;
        window.takeCentralWidget();
        window.setCentralWidget(controller->view());
        window.setWindowTitle(controller->title());
    });
    manager.setAuxiliaryFileBrowserDisplayBlock([&](const Tavrin::ViewControllerPtr &controller) {
        Tavrin::Popover::show(controller, window.rect(), window);
    });
    //! [display]

    QLineEdit field;
    field.setPlaceholderText(QStringLiteral("Label"));
    window.setMenuWidget(&field);
    QObject::connect(&field, &QLineEdit::returnPressed, &field, [&] {
        //! [show]
        manager.showDetailViewController(field.text());
        Tavrin::Popover::show(manager.summaryLookup(field.text()), field.rect(), field);
        //! [show]
    });

    window.resize(900, 700);
    window.show();
    return QApplication::exec();
}
