// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QSettings>
#include <QTextStream>

#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/pdfspec/PDFSpecification.h>
#include <Tavrin/platform/HostApplication.h>
#include <Tavrin/platform/Translations.h>

#include "ReaderArguments.h"
#include "SingleInstance.h"
#include <reader/window/ReaderWindow.h>

using namespace Tavrin::Reader;
using namespace Qt::StringLiterals;

namespace
{

constexpr int badInput = 2;

/// Arguments are read before there is a display, so that --help needs none.
QStringList argumentsOf(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    return arguments;
}

/// The maps to begin with: those named, else those of the last run, else those that came along.
QStringList mapsFor(const ReaderArguments &arguments)
{
    if (!arguments.maps.isEmpty())
        return arguments.maps;
    QStringList maps = ReaderWindow::rememberedMaps();
    if (maps.isEmpty())
        maps += QCoreApplication::applicationDirPath() + u"/../share/tavrin/maps"_s;
    maps.removeIf([](const QString &directory) { return !QDir(directory).exists(); });
    return maps;
}

void open(ReaderWindow &window, const ReaderArguments &arguments, const QStringList &maps)
{
    if (!arguments.pdfs.isEmpty())
        window.offerFiles(arguments.pdfs);
    window.openMaps(maps);
    window.bindFiles(arguments.pdfs);
    if (!arguments.reference.isEmpty())
        window.lookUp(arguments.reference);
}

int run(const ReaderArguments &arguments)
{
    const auto instance = SingleInstance::ofSession();
    const bool listens = !arguments.isNewWindow && instance->listen();
    if (!listens && !arguments.isNewWindow && instance->handOver(arguments))
        return 0;
    Tavrin::PDFSpecification::registerType(Tavrin::PDFReadingPolicy::Common);
    ReaderWindow window(Tavrin::SpecificationManager::shared());
    QObject::connect(instance.get(), &SingleInstance::requested, &window,
                     [&window](const ReaderArguments &request) {
                         open(window, request, request.maps);
                         window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
                         window.show();
                         window.raise();
                         window.activateWindow();
                     });
    window.show();
    open(window, arguments, mapsFor(arguments));
    return QApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    ReaderArguments arguments;
    try {
        arguments = ReaderArguments::parse(argumentsOf(argc, argv));
    } catch (const std::exception &error) {
        QTextStream(stderr) << "tavrin-reader: " << QString::fromUtf8(error.what()) << '\n';
        return badInput;
    }
    if (arguments.answer) {
        QTextStream(stdout) << *arguments.answer;
        return 0;
    }
    const QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(u"tavrin"_s);
    QCoreApplication::setApplicationName(u"tavrin-reader"_s);
    QGuiApplication::setApplicationDisplayName(u"Tavrin"_s);
    QGuiApplication::setDesktopFileName(u"tavrin-reader"_s);
    QGuiApplication::setWindowIcon(QIcon(u":/tavrin-reader.svg"_s));
    // What was imported on the command line is there too.
    Tavrin::setHostIdentifier(u"tavrin"_s);
    const auto translator = Tavrin::installTranslations(QLocale());
    return run(arguments);
}
