// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/audit/HTMLAuditPage.h>

#include <QFile>
#include <QUrl>

#include <Tavrin/audit/AuditContent.h>
#include <Tavrin/audit/AuditSentences.h>
#include <Tavrin/audit/HTMLText.h>
#include <Tavrin/model/SpecURL.h>
#include <Tavrin/platform/StringLocalizer.h>
#include <Tavrin/platform/TextAttachment.h>

/// A static library's resources are linked only if something names them. The macro works outside
/// of namespaces alone.
static void loadResources()
{
    Q_INIT_RESOURCE(audit);
}

namespace Tavrin
{

using namespace Qt::StringLiterals;

using HTMLText::escaped;

namespace
{

/// Longer texts are folded until the reader asks for all.
constexpr qsizetype longestOpenText = 1500;
constexpr qsizetype mostOpenLines = 24;

/// A length of CSS, the pixel, is 1/96 inch.
constexpr double unitsPerPoint = 96.0 / 72;

QString styleSheet()
{
    loadResources();
    QFile file(u":/tavrin/audit.css"_s);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The style sheet of audits is missing from the program");
    return QString::fromUtf8(file.readAll());
}

QString element(const QString &name, const QString &content)
{
    return u'<' + name + u'>' + content + u"</"_s + name.section(u' ', 0, 0) + u'>';
}

QString link(const QString &address, const QString &text)
{
    return address.isEmpty()
               ? escaped(text)
               : u"<a href=\""_s + escaped(address) + u"\">"_s + escaped(text) + u"</a>"_s;
}

QString bar(const AuditShare &share)
{
    const QString percent = QString::number(share.percent(), 'f', 1);
    return u"<span class=\"bar\" role=\"img\" aria-label=\""_s +
           escaped(AuditSentences::share(share)) + u"\"><span style=\"width:"_s + percent +
           u"%\"></span></span>"_s;
}

QString languageAttribute(const QString &language)
{
    return language.isEmpty() ? QString() : u" lang=\""_s + escaped(language) + u'"';
}

/// The language that the texts of this file are in at the moment.
QString ownLanguage()
{
    return localized("en", "code of the language of this translation");
}

QString chapterAnchor(std::size_t position)
{
    return u"chapter-%1"_s.arg(position + 1);
}

QString fragment(const QString &anchor)
{
    return u'#' + QString::fromLatin1(QUrl::toPercentEncoding(anchor));
}

} // namespace

HTMLAuditPage::HTMLAuditPage(const AuditReport &report) : m_report(report)
{
    for (std::size_t position = 0; position < report.chapters.size(); ++position)
        m_anchorUses.insert(chapterAnchor(position), 1);
    m_anchorUses.insert(u"unknown"_s, 1);
    for (const AuditReport::Citation &citation : report.citations)
        addAnchor(*citation.entry);
}

void HTMLAuditPage::addAnchor(const SpecificationEntry &entry)
{
    QString anchor = entry.label().simplified().replace(u' ', u'_');
    if (anchor.isEmpty())
        anchor = u"entry"_s;
    // Parts of an entry have its label.
    while (m_anchorUses.contains(anchor))
        anchor += u"~%1"_s.arg(++m_anchorUses[anchor]);
    m_anchorUses.insert(anchor, 1);
    m_anchors.insert(&entry, anchor);
}

QString HTMLAuditPage::opening() const
{
    const PDFSpecification &specification = *m_report.specification;
    const QString title = localized("Audit of %1", "title of a page").arg(specification.title());
    QString html = u"<!DOCTYPE html>\n<html"_s + languageAttribute(ownLanguage()) +
                   u">\n<head>\n<meta charset=\"utf-8\">\n"
                   "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
                   "<meta name=\"color-scheme\" content=\"light dark\">\n<title>"_s +
                   escaped(title) + u"</title>\n<style>\n"_s + styleSheet() +
                   u"</style>\n</head>\n<body>\n<header>\n"_s;
    html += element(u"p class=\"kind\""_s, escaped(localized("Audit", "title of a page")));
    html += element(u"h1"_s, escaped(specification.title()));
    html += element(u"p class=\"quiet\""_s, escaped(AuditSentences::revision(specification)));
    return html + coverage() + u"</header>\n<div class=\"columns\">\n"_s + navigation() +
           u"<main>\n"_s + verdicts() + unknown();
}

QString HTMLAuditPage::coverage() const
{
    const AuditShare &share = m_report.coverage;
    const QStringList counts = AuditSentences::counts(m_report);
    return u"<div class=\"total\">"_s +
           element(u"span class=\"figure\""_s, AuditSentences::percentage(share.percent())) +
           u"<div>"_s + bar(share) + element(u"p"_s, escaped(counts.join(u" · "_s))) +
           u"</div></div>\n"_s;
}

QString HTMLAuditPage::navigation() const
{
    std::vector<bool> hasEntries(m_report.chapters.size());
    for (const AuditReport::Citation &citation : m_report.citations)
        hasEntries[citation.chapter] = true;
    QString html =
        u"<nav aria-labelledby=\"chapters\">\n"_s +
        element(u"h2 id=\"chapters\""_s, escaped(localized("Chapters", "heading of an audit"))) +
        u"\n<ol>\n"_s;
    for (std::size_t position = 0; position < m_report.chapters.size(); ++position) {
        const AuditReport::Chapter &chapter = m_report.chapters[position];
        const QString address =
            hasEntries[position] ? fragment(chapterAnchor(position)) : QString();
        const QString count = u"%1/%2"_s.arg(chapter.share.covered).arg(chapter.share.all);
        html += element(chapter.share.covered == 0 ? u"li class=\"none\""_s : u"li"_s,
                        element(u"span class=\"name\""_s, link(address, chapter.title())) +
                            element(u"span class=\"count\""_s, count) + bar(chapter.share)) +
                u'\n';
    }
    return html + u"</ol>\n</nav>\n"_s;
}

QString HTMLAuditPage::verdicts() const
{
    const auto verdicts = AuditSentences::verdicts(m_report);
    if (verdicts.empty())
        return {};
    QString html = u"<section class=\"notes\">\n"_s +
                   element(u"h2"_s, escaped(localized("Requirements", "heading of an audit"))) +
                   u"\n<ul>\n"_s;
    for (const AuditSentences::Verdict &verdict : verdicts) {
        QString content = escaped(verdict.text);
        if (!verdict.missing.isEmpty()) {
            QString missing;
            for (const QString &line : verdict.missing)
                missing += element(u"li"_s, escaped(line));
            content += element(u"ul"_s, missing);
        }
        html += element(verdict.isGood ? u"li class=\"good\""_s : u"li class=\"bad\""_s, content) +
                u'\n';
    }
    return html + u"</ul>\n</section>\n"_s;
}

QString HTMLAuditPage::unknown() const
{
    if (m_report.unknown.empty())
        return {};
    QString html =
        u"<section class=\"notes\" id=\"unknown\">\n"_s +
        element(u"h2"_s, escaped(localized("Unknown references", "heading of an audit"))) +
        u"\n<ul>\n"_s;
    for (const AuditReport::Unknown &one : m_report.unknown)
        html += element(u"li class=\"bad\""_s, escaped(AuditSentences::unknown(one))) + u'\n';
    return html + u"</ul>\n</section>\n"_s;
}

QString HTMLAuditPage::chapter(std::size_t position) const
{
    const AuditReport::Chapter &chapter = m_report.chapters[position];
    return u"<h2 class=\"chapter\" id=\"%1\">"_s.arg(chapterAnchor(position)) +
           escaped(chapter.title()) +
           element(u"span class=\"quiet\""_s, escaped(AuditSentences::share(chapter.share))) +
           u"</h2>\n"_s;
}

QString HTMLAuditPage::entry(const AuditReport::Citation &citation) const
{
    const SpecificationEntry &entry = *citation.entry;
    const QString anchor = m_anchors.value(&entry);
    return u"<article id=\""_s + escaped(anchor) + u"\">\n<h3><a href=\""_s +
           escaped(fragment(anchor)) + u"\">"_s +
           element(u"span class=\"number\""_s, escaped(AuditContent::name(entry))) + u' ' +
           escaped(entry.title()) + u"</a></h3>\n"_s + facts(citation) + content(entry, anchor) +
           related(citation) + u"</article>\n"_s;
}

QString HTMLAuditPage::facts(const AuditReport::Citation &citation) const
{
    const SpecificationEntry &entry = *citation.entry;
    const auto row = [](const QString &name, const QString &value) {
        return value.isEmpty() ? QString()
                               : u"<div>"_s + element(u"dt"_s, escaped(name)) +
                                     element(u"dd"_s, value) + u"</div>"_s;
    };
    const QString url = AuditContent::url(entry);
    return u"<dl>"_s +
           row(localized("Cited by", "spec entry field"),
               escaped(AuditSentences::citedBy(citation))) +
           row(localized("Page", "spec entry field"), escaped(AuditContent::page(entry))) +
           row(localized("Reference", "spec entry field"), link(url, url)) + u"</dl>\n"_s;
}

QString HTMLAuditPage::content(const SpecificationEntry &entry, const QString &anchor) const
{
    if (!AuditContent::isShown(m_report))
        return element(u"p class=\"quiet\""_s, escaped(AuditSentences::notShown())) + u'\n';
    return isTextual(entry.type()) ? summary(entry, anchor) : picture(entry);
}

QString HTMLAuditPage::summary(const SpecificationEntry &entry, const QString &anchor) const
{
    const auto text = AuditContent::summary(entry);
    if (!text) {
        return element(u"p class=\"quiet\""_s,
                       escaped(localized("No summary available", "spec audit message"))) +
               u'\n';
    }
    const QString html =
        HTMLText::phrasing(*text, [this](const QString &to) { return linkTarget(to); });
    const QString language = languageAttribute(m_report.specification->language());
    const bool isShort =
        text->length() <= longestOpenText && text->string().count(u'\n') < mostOpenLines;
    if (isShort)
        return u"<div class=\"text\""_s + language + u'>' + html + u"</div>\n"_s;
    // A box to tick works without a script.
    const QString id = escaped(anchor) + u"~all"_s;
    return u"<input type=\"checkbox\" class=\"all\" id=\"%1\"><div class=\"text long\""_s.arg(id) +
           language + u'>' + html + u"</div><label for=\""_s + id + u"\">"_s +
           escaped(localized("Show all", "a folded text")) + u"</label>\n"_s;
}

QString HTMLAuditPage::picture(const SpecificationEntry &entry)
{
    const QImage image = AuditContent::picture(entry, AuditContent::pixelsPerPoint);
    if (image.isNull()) {
        return element(u"p class=\"quiet\""_s,
                       escaped(localized("No image available", "spec audit message"))) +
               u'\n';
    }
    const TextAttachment png = TextAttachment::png(image, AuditContent::pixelsPerPoint);
    const QString name = AuditContent::name(entry) + u": "_s + entry.title();
    return u"<img width=\"%1\" height=\"%2\" alt=\""_s.arg(qRound(png.size.width * unitsPerPoint))
               .arg(qRound(png.size.height * unitsPerPoint)) +
           escaped(name) + u"\" src=\"data:image/png;base64,"_s +
           QString::fromLatin1(png.data.toBase64()) + u"\">\n"_s;
}

QString HTMLAuditPage::related(const AuditReport::Citation &citation) const
{
    if (citation.related.empty())
        return {};
    QString items;
    for (const AuditReport::Relation &relation : citation.related)
        items += element(u"li"_s, link(href(*relation.entry), relation.title));
    return u"<div class=\"related\">"_s +
           element(u"span"_s, escaped(localized("Related", "spec entry field"))) +
           element(u"ul"_s, items) + u"</div>\n"_s;
}

QString HTMLAuditPage::href(const SpecificationEntry &entry) const
{
    const auto it = m_anchors.constFind(&entry);
    return it == m_anchors.constEnd() ? AuditContent::url(entry) : fragment(*it);
}

QString HTMLAuditPage::linkTarget(const QString &link) const
{
    const auto entry =
        SpecURL::hasReversedLines(link) ? nullptr : m_report.specification->entry(link);
    if (entry)
        return href(*entry);
    // Documents hold links that run scripts, or open local files.
    static const QStringView harmless[] = {u"http://", u"https://", u"mailto:"};
    const bool isHarmless =
        std::any_of(std::begin(harmless), std::end(harmless), [&](QStringView scheme) {
            return link.startsWith(scheme, Qt::CaseInsensitive);
        });
    return isHarmless ? link : QString();
}

QString HTMLAuditPage::closing() const
{
    return u"</main>\n</div>\n</body>\n</html>\n"_s;
}

} // namespace Tavrin
