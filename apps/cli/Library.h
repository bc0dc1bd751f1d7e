// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCommandLineParser>

#include <memory>

#include <Tavrin/manager/EntryFinder.h>
#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/pdf/CachingPDFDocument.h>
#include <commandline/CommandDescription.h>

namespace Tavrin::Cli
{

/// The maps and PDFs that a command works on: the options `--maps` and `--pdf`, and the PDFs that
/// were imported. Those of the command line are bound where they lie, and before the imported ones.
class Library
{
public:
    static void describe(CommandLine::CommandDescription &description);
    /// Adds `--maps` alone.
    static void describeMaps(CommandLine::CommandDescription &description);

    /// Registers the maps and binds the PDFs, `furtherPDFs` like those of `--pdf`. Throws what is
    /// wrong with either.
    explicit Library(const QCommandLineParser &parser, const QStringList &furtherPDFs = {});

    /// Registers the maps of `--maps`, to which imported files are bound. Throws what is wrong with
    /// them, and if there are none.
    static void registerMaps(SpecificationManager &manager, const QCommandLineParser &parser);

    SpecificationManager &manager() { return m_manager; }

    /// The specifications with their tables loaded, as search and lists need them. A table that
    /// can't be loaded throws.
    const std::vector<std::shared_ptr<Specification>> &loadedSpecifications();

    EntryFinder &finder() { return m_finder; }

private:
    SpecificationManager m_manager;
    EntryFinder m_finder{m_manager};
};

/// Opens a PDF. Throws what is wrong with it.
std::shared_ptr<CachingPDFDocument> openPDF(const QString &path);

/// Throws if a reference is a spec URL with a range of lines that is none: the library takes it for
/// a fault of the program. To be asked before anything is looked up.
void requireSoundLineRange(const QString &reference);

/// The value of an option as a whole number of at least `least`. Throws CommandLineError.
int wholeNumber(const QCommandLineParser &parser, const QString &option, int least);

/// The value of `--scale`, in pixels a point. Throws CommandLineError.
double scaleOption(const QCommandLineParser &parser);

/// The file URL for a path as a user types it.
QUrl fileUrl(const QString &path);

} // namespace Tavrin::Cli
