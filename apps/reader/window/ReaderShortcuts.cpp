// SPDX-License-Identifier: Apache-2.0
#include <reader/window/ReaderShortcuts.h>

#include <QHash>

namespace Tavrin::Reader
{

QKeySequence ReaderShortcuts::keys(Command command)
{
    static const QHash<Command, QKeySequence> table{
        {Command::OpenMaps, QKeySequence::Open},
        {Command::ImportFiles, Qt::CTRL | Qt::SHIFT | Qt::Key_O},
        {Command::ShowFiles, Qt::CTRL | Qt::SHIFT | Qt::Key_I},
        {Command::NewCitations, QKeySequence::New},
        {Command::Quit, QKeySequence::Quit},
        {Command::CopyEntry, Qt::CTRL | Qt::SHIFT | Qt::Key_C},
        {Command::LookUp, Qt::CTRL | Qt::Key_E},
        {Command::GoToEntry, Qt::CTRL | Qt::Key_K},
        {Command::NextPart, Qt::Key_F6},
        {Command::PreviousPart, Qt::SHIFT | Qt::Key_F6},
        {Command::SidePane, Qt::SHIFT | Qt::Key_F9},
        {Command::FullScreen, Qt::Key_F11},
        {Command::ShowShortcuts, Qt::Key_F1},
    };
    return table.value(command);
}

} // namespace Tavrin::Reader
