// SPDX-License-Identifier: Apache-2.0
#include "DraftedManual.h"

#include <stdexcept>

namespace Tavrin::Testing
{

namespace
{

const TextStyle chapterStyle{Font::HelveticaBold, 18};
const TextStyle sectionStyle{Font::HelveticaBold, 13};
const QString chapterTitles[] = {u"Scope of the engine"_s, u"Valves and springs"_s,
                                 u"Maintenance"_s};

void addText(PDFPageBuilder &page, int from, int to)
{
    for (int y = from; y > to; y -= 12)
        page.text(72, y, u"Text that goes on and on, at height %1, in a plain style."_s.arg(y));
}

void addChapter(PDFBuilder &pdf, int number)
{
    PDFPageBuilder &page = pdf.addPage();
    page.text(72, 740, u"Engine Manual"_s).text(300, 40, QString::number(number));
    page.text(72, 650, u"%1  %2"_s.arg(number).arg(chapterTitles[number - 1]), chapterStyle);
    addText(page, 590, 500);
    page.text(72, 480, u"%1.1  Things to do first"_s.arg(number), sectionStyle);
    addText(page, 460, 400);
    page.text(72, 380, u"%1.2  Things to do last"_s.arg(number), sectionStyle);
    addText(page, 360, 80);
}

} // namespace

std::optional<TemporaryFiles> DraftedManual::s_files;

PDFBuilder DraftedManual::manual()
{
    PDFBuilder pdf;
    pdf.info("Title", u"Engine Manual"_s);
    pdf.addPage().text(72, 600, u"Engine Manual"_s, chapterStyle).text(72, 560, u"Revision 7"_s);
    std::vector<OutlineItem> outline;
    for (int number = 1; number <= 3; ++number) {
        addChapter(pdf, number);
        outline.push_back({chapterTitles[number - 1],
                           Dest::xyz(number, 72, 680),
                           {{u"Things to do first"_s, Dest::xyz(number, 72, 505)},
                            {u"Things to do last"_s, Dest::xyz(number, 72, 405)}}});
    }
    pdf.outline(outline);
    pdf.namedDestination("start", Dest::fitting(1, "Fit"));
    return pdf;
}

void DraftedManual::SetUpTestSuite()
{
    s_files.emplace();
    files().write(u"manual.pdf"_s, manual().build());
    files().write(u"maps/notes.txt"_s, "no map");
    const ProgramRun draft = runTavrin({u"draft"_s, pdf(), u"-o"_s, map(), u"--id"_s, u"engine"_s,
                                        u"--revision"_s, u"7"_s, u"--title"_s, u"Engine"_s});
    if (draft.exitCode != 0)
        throw std::runtime_error(draft.errors.toStdString());
}

void DraftedManual::TearDownTestSuite()
{
    s_files.reset();
}

ProgramRun DraftedManual::runWithMap(const QString &command, const QStringList &arguments)
{
    return runTavrin(QStringList{command, u"--maps"_s, files().path(u"maps"_s)} + arguments);
}

ProgramRun DraftedManual::runBound(const QString &command, const QStringList &arguments)
{
    return runWithMap(command, QStringList{u"--pdf"_s, pdf()} + arguments);
}

} // namespace Tavrin::Testing
