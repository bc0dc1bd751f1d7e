// SPDX-License-Identifier: Apache-2.0
#include <QDir>
#include <QSaveFile>
#include <QTextStream>

#include <stdexcept>

#include <Tavrin/platform/TavrinVersion.h>
#include <cli/CommandRegistry.h>
#ifdef TAVRIN_HAS_READER
#include <reader/ReaderArguments.h>
#endif

#include "BashCompletion.h"
#include "FishCompletion.h"
#include "ManPage.h"
#include "ZshCompletion.h"

using namespace Qt::StringLiterals;
using namespace Tavrin::Manuals;

namespace
{

void write(const QString &path, const QString &text)
{
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    const QByteArray bytes = text.toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        throw std::runtime_error((path + u": "_s + file.errorString()).toStdString());
}

/// Below a directory as they lie below an installation's share/.
void writeAll(const ProgramDescription &program, const QString &directory)
{
    const QString name = program.program.name();
    const ManPage page(program, Tavrin::TavrinVersionString);
    const QString pages = directory + u"/man/man1/"_s;
    write(pages + name + u".1"_s, page.ofProgram());
    for (const CommandDescription &command : program.commands)
        write(pages + ManPage::pageName(command) + u".1"_s, page.ofCommand(command));
    write(directory + u"/bash-completion/completions/"_s + name, bashCompletion(program));
    write(directory + u"/zsh/site-functions/_"_s + name, zshCompletion(program));
    write(directory + u"/fish/vendor_completions.d/"_s + name + u".fish"_s,
          fishCompletion(program));
}

} // namespace

/// usage: tavrin_manuals DIRECTORY
int main(int argc, char *argv[])
{
    try {
        const QString directory = QString::fromLocal8Bit(argc == 2 ? argv[1] : ".");
        writeAll(Tavrin::Cli::describeProgram(), directory);
#ifdef TAVRIN_HAS_READER
        writeAll(Tavrin::Reader::ReaderArguments::describeProgram(), directory);
#endif
        return 0;
    } catch (const std::exception &error) {
        QTextStream(stderr) << "tavrin_manuals: " << QString::fromUtf8(error.what()) << '\n';
        return 1;
    }
}
