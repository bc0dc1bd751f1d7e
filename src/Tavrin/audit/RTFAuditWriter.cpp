// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/audit/RTFAuditWriter.h>

#include <QIODevice>

#include <Tavrin/audit/AuditBlock.h>
#include <Tavrin/audit/AuditContent.h>
#include <Tavrin/audit/AuditError.h>
#include <Tavrin/audit/AuditSentences.h>
#include <Tavrin/model/SpecURL.h>
#include <Tavrin/platform/RTFWriter.h>
#include <Tavrin/platform/StringLocalizer.h>
#include <Tavrin/platform/SystemFont.h>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

TextAttributes titleAttributes()
{
    constexpr double titleSize = 20;
    return {.font = systemFont(titleSize, TextFont::Bold)};
}

TextAttributes strongAttributes()
{
    constexpr double size = 14;
    return {.font = systemFont(size, TextFont::Bold)};
}

TextAttributes linkAttributes(const QString &target)
{
    TextAttributes attributes = AuditBlock::bodyAttributes();
    attributes.link = target;
    return attributes;
}

void appendLine(StyledText &text, const QString &line, const TextAttributes &attributes)
{
    text.append(line + u'\n', attributes);
}

void appendFrame(StyledText &text, const AuditReport &report)
{
    appendLine(text, report.specification->title(), titleAttributes());
    appendLine(text, AuditSentences::revision(*report.specification), AuditBlock::bodyAttributes());
    for (const QString &line : AuditSentences::counts(report))
        appendLine(text, line, AuditBlock::bodyAttributes());
    for (const AuditSentences::Verdict &verdict : AuditSentences::verdicts(report)) {
        appendLine(text, verdict.text,
                   verdict.isGood ? AuditBlock::bodyAttributes()
                                  : AuditBlock::bodyErrorAttributes());
    }
    text.append(u"\n"_s, AuditBlock::bodyAttributes());
    appendLine(text, localized("Chapters", "heading of an audit"), strongAttributes());
    for (const AuditReport::Chapter &chapter : report.chapters) {
        appendLine(text, chapter.title() + u"  –  "_s + AuditSentences::share(chapter.share),
                   AuditBlock::bodyAttributes());
    }
    text.append(u"\n"_s, AuditBlock::bodyAttributes());
    if (report.unknown.empty())
        return;
    appendLine(text, localized("Unknown references", "heading of an audit"), strongAttributes());
    for (const AuditReport::Unknown &unknown : report.unknown)
        appendLine(text, AuditSentences::unknown(unknown), AuditBlock::bodyErrorAttributes());
    text.append(u"\n"_s, AuditBlock::bodyAttributes());
}

void appendRelated(StyledText &text, const AuditReport::Citation &citation)
{
    if (citation.related.empty())
        return;
    text.append(localized("Related", "spec entry field") + u": "_s,
                AuditBlock::subHeadingAttributes());
    for (const AuditReport::Relation &relation : citation.related) {
        if (&relation != &citation.related.front())
            text.append(u", "_s, AuditBlock::bodyAttributes());
        text.append(relation.title, linkAttributes(AuditContent::url(*relation.entry)));
    }
    text.append(u"\n"_s, AuditBlock::bodyAttributes());
}

void appendEntry(StyledText &text, const AuditReport &report, const AuditReport::Citation &citation)
{
    const SpecificationEntry &entry = *citation.entry;
    appendLine(text, AuditContent::name(entry) + u"  "_s + entry.title(), strongAttributes());
    if (const QString page = AuditContent::page(entry); !page.isEmpty())
        AuditBlock::appendField(text, localized("Page", "spec entry field"), page);
    text.append(localized("Reference", "spec entry field") + u": "_s,
                AuditBlock::subHeadingAttributes());
    const QString url = AuditContent::url(entry);
    text.append(url + u'\n', linkAttributes(url));
    AuditBlock::appendField(text, localized("Cited by", "spec entry field"),
                            AuditSentences::citedBy(citation));
    appendRelated(text, citation);
    if (!AuditContent::isShown(report))
        text.append(AuditSentences::notShown(), AuditBlock::bodyErrorAttributes());
    else if (isTextual(entry.type()))
        AuditBlock::appendSummary(text, AuditContent::summary(entry));
    else
        AuditBlock::appendPreview(text, AuditContent::picture(entry, AuditContent::pixelsPerPoint),
                                  AuditContent::pixelsPerPoint);
    text.append(u"\n\n"_s, AuditBlock::bodyAttributes());
}

/// Bare labels lead nowhere outside of the host; spec URLs are opened by it.
void completeLinks(StyledText &text)
{
    std::vector<std::pair<QString, TextRange>> labels;
    text.enumerateLinks({0, text.length()}, [&](const QString *link, TextRange range, bool &) {
        if (link && !link->contains(u':'))
            labels.emplace_back(*link, range);
    });
    for (const auto &[label, range] : labels)
        text.setLink(SpecURL::shortForm(label), range);
}

} // namespace

void RTFAuditWriter::write(const AuditReport &report, QIODevice &device,
                           const Progress &progress) const
{
    StyledText text;
    appendFrame(text, report);
    std::size_t done = 0;
    for (const AuditReport::Citation &citation : report.citations) {
        StyledText block;
        appendEntry(block, report, citation);
        completeLinks(block);
        text.append(block);
        tell(progress, ++done, report.citations.size());
    }
    if (!RTFWriter(device).write(text, {0, text.length()}))
        throw AuditError(device.errorString());
}

} // namespace Tavrin
