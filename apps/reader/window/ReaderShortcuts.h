// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QKeySequence>

namespace Tavrin::Reader
{

/// The keys of the window's own commands, all in one place: no two may meet, nor one of them and a
/// key of the document's tool bar, which counts while the document has the focus.
class ReaderShortcuts
{
public:
    enum class Command {
        OpenMaps,
        ImportFiles,
        ShowFiles,
        NewCitations,
        Quit,
        CopyEntry,
        LookUp,
        GoToEntry,
        NextPart,
        PreviousPart,
        SidePane,
        FullScreen,
        ShowShortcuts,
    };

    static QKeySequence keys(Command command);
};

} // namespace Tavrin::Reader
