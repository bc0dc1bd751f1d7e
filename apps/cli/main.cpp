// SPDX-License-Identifier: Apache-2.0
#include <QFile>
#include <QGuiApplication>
#include <QLocale>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>
#include <optional>

#include <Tavrin/pdfspec/PDFSpecification.h>
#include <Tavrin/platform/TavrinVersion.h>
#include <Tavrin/platform/Translations.h>

#include "CommandLineError.h"
#include "CommandRegistry.h"
#include "Console.h"

namespace Tavrin::Cli
{

using namespace Qt::StringLiterals;

namespace
{

void printOverview()
{
    const CommandLine::ProgramDescription description = describeProgram();
    const CommandDescription &program = description.program;
    Console::print(u"%1 %2.\n\nusage: %1 COMMAND [OPTIONS] [ARGUMENTS]\n"_s.arg(program.name(),
                                                                                program.summary()));
    for (const CommandDescription &command : description.commands)
        Console::print(u"  %1%2"_s.arg(description.shortName(command), -10).arg(command.summary()));
    Console::print(u"\nA beginning:\n"_s);
    for (const auto &example : description.examples)
        Console::print(u"  "_s + example.term);
    QStringList codes;
    for (const auto &code : description.exitCodes)
        codes += code.term + u' ' + code.text;
    Console::print(u"\n%1 COMMAND --help tells a command's options.\nExit codes: %2."_s.arg(
        program.name(), codes.join(u", "_s)));
}

ExitCode runCommand(const Command &command, const QStringList &arguments)
{
    const CommandDescription description = describe(command);
    QCommandLineParser parser;
    description.addTo(parser);
    if (!parser.parse(arguments)) {
        throw CommandLineError(
            u"%1 (%2 --help lists the options)"_s.arg(parser.errorText(), arguments.constFirst()));
    }
    if (parser.isSet(u"help"_s)) {
        Console::print(description.help());
        return Success;
    }
    return command.run(parser);
}

ExitCode dispatch(QStringList arguments)
{
    const auto commands = allCommands();
    QString name = arguments.value(1);
    if (name == "help"_L1 && arguments.size() > 2) {
        name = arguments[2];
        arguments = {arguments[0], name, u"--help"_s};
    }
    if (name == "--version"_L1 || name == "-v"_L1) {
        Console::print(u"tavrin "_s + QCoreApplication::applicationVersion());
        return Success;
    }
    if (name == "--help"_L1 || name == "-h"_L1 || name == "help"_L1) {
        printOverview();
        return Success;
    }
    if (name.isEmpty())
        throw CommandLineError(u"no command given; tavrin --help lists them"_s);
    const auto it = std::find_if(commands.begin(), commands.end(),
                                 [&](const auto &command) { return command->name() == name; });
    if (it == commands.end())
        throw CommandLineError(name + u": no such command; tavrin --help lists them"_s);
    // The parser takes the first argument for the program's name.
    arguments[0] = u"tavrin "_s + name;
    arguments.removeAt(1);
    return runCommand(**it, arguments);
}

} // namespace

/// Whether the environment asks for texts as they are, as scripts do with LC_ALL=C. That counts
/// more than LANGUAGE, which Qt would follow even then.
bool hasPlainLocale()
{
    for (const char *name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QByteArray value = qgetenv(name);
        if (!value.isEmpty())
            return value == "C" || value == "POSIX" || value.startsWith("C.");
    }
    return true;
}

/// The larger application, for its fonts. It looks for a display in the session's runtime
/// directory, whatever it is told, and complains where there is no session; so an empty directory
/// stands in while it starts.
std::unique_ptr<QCoreApplication> makeDrawingApplication(int &argc, char **argv)
{
    constexpr auto runtimeDirectory = "XDG_RUNTIME_DIR";
    std::optional<QTemporaryDir> standIn;
    if (!qEnvironmentVariableIsSet(runtimeDirectory)) {
        standIn.emplace();
        qputenv(runtimeDirectory, QFile::encodeName(standIn->path()));
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    auto application = std::make_unique<QGuiApplication>(argc, argv);
    if (standIn)
        qunsetenv(runtimeDirectory);
    return application;
}

/// Pictures need fonts; no window is ever shown.
std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv)
{
    const bool drawsText = std::any_of(argv, argv + argc, [](const char *argument) {
        return QByteArrayView(argument).startsWith("--png");
    });
    if (drawsText)
        return makeDrawingApplication(argc, argv);
    return std::make_unique<QCoreApplication>(argc, argv);
}

} // namespace Tavrin::Cli

int main(int argc, char **argv)
{
    using namespace Tavrin::Cli;
    using namespace Qt::StringLiterals;
    const auto application = makeApplication(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tavrin"));
    QCoreApplication::setApplicationVersion(Tavrin::TavrinVersionString);
    const QStringList arguments = QCoreApplication::arguments();
    const Console::PlainStreams streams;
    // Data is the same in every language.
    const bool isPlain = arguments.contains("--json"_L1) || hasPlainLocale();
    const auto translator = isPlain ? nullptr : Tavrin::installTranslations(QLocale());
    try {
        Tavrin::PDFSpecification::registerType(Tavrin::PDFReadingPolicy::Common);
        return dispatch(arguments);
    } catch (const std::exception &error) {
        Console::complain(QString::fromUtf8(error.what()));
        return BadInput;
    }
}
