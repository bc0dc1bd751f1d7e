// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

#include <Tavrin/pdfspec/LineLocation.h>
#include <Tavrin/platform/StyledText.h>

namespace Tavrin::Cli
{

/// Turns the printed lines of a section back into paragraphs, to be wrapped to another width.
class TextFlow
{
public:
    /// `lines` are the places of the text's lines, one for each; without them every line is a
    /// paragraph.
    TextFlow(StyledText text, const std::optional<LineLocations> &lines);

    /// The paragraphs; words parted at line ends are put together, and behind a link stands what
    /// it leads to: "Scope [→ 4.2]".
    QStringList paragraphs() const;

    /// A paragraph in lines of at most so many characters; a longer word stands alone.
    static QStringList wrapped(const QString &paragraph, int width);

private:
    struct Line {
        QString text;
        std::optional<LineLocation> place;
        bool isFixed = false;
    };

    std::vector<Line> readLines() const;
    /// The line's text with its links marked.
    QString marked(TextRange range) const;
    static bool startsParagraph(const Line &before, const Line &line, bool isSecond);

    StyledText m_text;
    LineLocations m_places;
};

/// How many characters the terminal has in a line; 80 where there is none.
int terminalWidth();

} // namespace Tavrin::Cli
