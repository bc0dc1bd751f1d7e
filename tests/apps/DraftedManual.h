// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <support/Test.h>

#include <optional>

#include <support/PDFBuilder.h>
#include <support/TemporaryFiles.h>

#include "Program.h"

namespace Tavrin::Testing
{

/// A manual of three chapters with two sections each, behind a title page: "manual.pdf", and the
/// map that the program drafted out of it: "maps/manual.xml". Made once for all tests.
class DraftedManual : public testing::Test
{
protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite();

    static PDFBuilder manual();
    static const TemporaryFiles &files() { return *s_files; }
    static QString pdf() { return files().path(u"manual.pdf"_s); }
    static QString map() { return files().path(u"maps/manual.xml"_s); }

    /// Runs a command on the map, and on the PDF too.
    static ProgramRun runWithMap(const QString &command, const QStringList &arguments);
    static ProgramRun runBound(const QString &command, const QStringList &arguments);

    /// Where the heading "3.2 Things to do last" stands.
    static constexpr int lastHeadingPage = 3;
    static constexpr double lastHeadingBaseline = 380;

private:
    static std::optional<TemporaryFiles> s_files;
};

} // namespace Tavrin::Testing
