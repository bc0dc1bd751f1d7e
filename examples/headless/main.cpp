// SPDX-License-Identifier: Apache-2.0
// A host without windows: what a reference names, and what is written there.
//
// usage: headless MAPS REFERENCE [DOC.pdf]
#include <QCoreApplication>
#include <QTextStream>

#include <future>

#include <Tavrin/manager/EntryFinder.h>
#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>

namespace
{

/// An extraction takes its time, so it is done on another thread. The lock keeps the file bound
/// that it reads.
QString readInBackground(const std::shared_ptr<Tavrin::PDFSpecification::Entry> &entry)
{
    //! [read]
    const auto specification =
        std::static_pointer_cast<Tavrin::PDFSpecification>(entry->specification());
    auto reading = std::async(std::launch::async, [entry, specification] {
        const auto lock = specification->readingLock();
        const auto text = entry->summaryText();
        return text ? text->string() : QString();
    });
    return reading.get();
    //! [read]
}

void print(const Tavrin::EntryFinder::EntryPtr &entry)
{
    QTextStream(stdout) << entry->specification()->title() << ": " << entry->displayTitle() << '\n';
    if (const auto printed = std::dynamic_pointer_cast<Tavrin::PDFSpecification::Entry>(entry))
        QTextStream(stdout) << readInBackground(printed) << '\n';
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    auto &manager = Tavrin::SpecificationManager::shared();
    try {
        manager.loadSpecInformation(QUrl::fromLocalFile(arguments.at(1)));
        if (arguments.size() > 3)
            manager.bindAuxiliaryFile(QUrl::fromLocalFile(arguments.at(3)));
        //! [resolve]
        bool isFound = false;
        for (const auto &reference : Tavrin::EntryFinder(manager).resolve(arguments.at(2))) {
            for (const auto &entry : reference.entries) {
                print(entry);
                isFound = true;
            }
        }
        return isFound ? 0 : 1;
        //! [resolve]
    } catch (const std::exception &error) {
        // It names the file and the fault.
        QTextStream(stderr) << QString::fromUtf8(error.what()) << '\n';
        return 2;
    }
}
