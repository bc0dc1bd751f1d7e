// SPDX-License-Identifier: Apache-2.0
#include "AuditSummary.h"

#include <Tavrin/audit/AuditSentences.h>

#include "Console.h"

namespace Tavrin::Cli::AuditSummary
{

using namespace Qt::StringLiterals;

namespace
{

void printChapter(const AuditReport::Chapter &chapter)
{
    const QString line =
        u"  %1  %2  %3"_s.arg(AuditSentences::percentage(chapter.share.percent()), 8)
            .arg(u"%1/%2"_s.arg(chapter.share.covered).arg(chapter.share.all), 9)
            .arg(chapter.title());
    Console::print(chapter.share.covered == 0 ? Console::faint(line) : line);
}

} // namespace

void print(const AuditReport &report)
{
    Console::print(Console::strong(report.specification->title()));
    for (const QString &line : AuditSentences::counts(report))
        Console::print(line);
    for (const AuditReport::Chapter &chapter : report.chapters)
        printChapter(chapter);
    for (const AuditSentences::Verdict &verdict : AuditSentences::verdicts(report)) {
        Console::print(verdict.isGood ? Console::good(verdict.text) : Console::bad(verdict.text));
        for (const QString &missing : verdict.missing)
            Console::print(u"    "_s + missing);
    }
}

void complain(const AuditReport &report, bool demands)
{
    for (const AuditReport::Unknown &unknown : report.unknown)
        Console::complain(AuditSentences::unknown(unknown));
    for (const AuditSentences::Verdict &verdict : AuditSentences::verdicts(report)) {
        if (demands && !verdict.isGood)
            Console::complain(verdict.text);
    }
}

} // namespace Tavrin::Cli::AuditSummary
