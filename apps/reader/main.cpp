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

int run(const ReaderArguments &arguments)
{
    Tavrin::PDFSpecification::registerType(Tavrin::PDFReadingPolicy::Common);
    ReaderWindow window(Tavrin::SpecificationManager::shared());
    window.show();
    if (!arguments.pdfs.isEmpty())
        window.offerFiles(arguments.pdfs);
    window.openMaps(mapsFor(arguments));
    window.bindFiles(arguments.pdfs);
    if (!arguments.reference.isEmpty())
        window.lookUp(arguments.reference);
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
