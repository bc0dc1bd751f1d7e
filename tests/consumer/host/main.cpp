// SPDX-License-Identifier: Apache-2.0
#include <QCoreApplication>
#include <QTextStream>

#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/model/SpecificationEntry.h>

/// Looks a label up in a directory of maps.
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    auto &manager = Tavrin::SpecificationManager::shared();
    manager.loadSpecInformation(QUrl::fromLocalFile(application.arguments().at(1)));
    const auto entry = manager.entry(application.arguments().at(2));
    if (entry)
        QTextStream(stdout) << entry->specification()->title() << ": " << entry->title() << "\n";
    return entry ? 0 : 1;
}
