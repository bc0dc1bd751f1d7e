// SPDX-License-Identifier: Apache-2.0
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QUrl>
#include <QXmlStreamReader>

#include "AuditFixture.h"

namespace
{

class AuditFormats : public AuditFixture
{
protected:
    AuditReport sample() const
    {
        return auditor().report({{u"2.1"_s, u"REQ-1, \"first\""_s, u"refs.txt:1"_s},
                                 {u"1.1-1.2"_s, {}, u"refs.txt:2"_s},
                                 {u"Fig. 2-1"_s, u"REQ-<b>2</b>"_s, u"refs.txt:3"_s},
                                 {u"9.9 & more"_s, u"REQ-3"_s, u"refs.txt:4"_s}},
                                {{u"2*"_s, u"1.*"_s}, 80});
    }
    QString html(const AuditReport &report) const
    {
        return QString::fromUtf8(written(report, AuditFormat::HTML));
    }
};

/// Takes a table by RFC 4180 apart; rows end in CR LF, and nothing else does.
std::vector<QStringList> tableOf(const QByteArray &csv)
{
    std::vector<QStringList> rows(1);
    const QString text = QString::fromUtf8(csv);
    QString cell;
    bool isQuoted = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool isRowEnd = text.mid(i, 2) == u"\r\n"_s;
        if (isQuoted && c == u'"' && text.mid(i + 1, 1) == u"\""_s) {
            cell += text[i++];
        } else if (c == u'"') {
            isQuoted = !isQuoted;
        } else if (!isQuoted && (c == u',' || isRowEnd)) {
            rows.back() += std::exchange(cell, {});
            if (isRowEnd)
                rows.emplace_back();
            i += isRowEnd ? 1 : 0;
        } else {
            cell += c;
        }
    }
    EXPECT_TRUE(rows.back().isEmpty() && cell.isEmpty() && !isQuoted) << csv.constData();
    rows.pop_back();
    return rows;
}

QStringList captures(const QString &text, const QString &pattern)
{
    QStringList result;
    for (const auto &match : QRegularExpression(pattern).globalMatch(text))
        result += match.captured(1);
    return result;
}

} // namespace

TEST_F(AuditFormats, WritesATableThatSpreadsheetsRead)
{
    specification->entry(u"2.1"_s)->setTitle(u"Speed, \"fast\""_s);
    bind();
    std::dynamic_pointer_cast<Entry>(specification->entry(u"1.1"_s))
        ->setSummaryText(StyledText(u"two\nlines, “quoted” \"twice\""_s));
    const auto rows = tableOf(written(sample(), AuditFormat::CSV));
    ASSERT_EQ(rows.size(), 8U);
    const auto cell = [&](std::size_t row, const QString &column) {
        return rows[row].value(rows[0].indexOf(column));
    };
    for (const QStringList &row : rows)
        EXPECT_EQ(row.size(), rows[0].size());
    EXPECT_EQ(cell(1, u"label"_s), u"1.1"_s);
    EXPECT_EQ(cell(1, u"summary"_s), u"two\nlines, “quoted” \"twice\""_s);
    EXPECT_EQ(cell(3, u"title"_s), u"Speed, \"fast\""_s);
    EXPECT_EQ(cell(3, u"cited by"_s), u"REQ-1, \"first\""_s);
    EXPECT_EQ(cell(3, u"page"_s), u"3"_s);
    EXPECT_EQ(cell(5, u"status"_s), u"unknown"_s);
    EXPECT_EQ(cell(5, u"reference"_s), u"9.9 & more"_s);
    EXPECT_EQ(cell(5, u"location"_s), u"refs.txt:4"_s);
    EXPECT_EQ(cell(6, u"status"_s), u"missing"_s);
    EXPECT_EQ(cell(6, u"label"_s), u"2"_s);
    EXPECT_EQ(cell(7, u"label"_s), u"2.1.1"_s);
}

TEST_F(AuditFormats, WritesNoFormulas)
{
    QStringList shown;
    const QStringList texts{u"=1+1"_s,     u"+x"_s,   u"-4.2"_s, u"- item"_s,
                            u"@SUM(A1)"_s, u"\t=1"_s, u"a=1"_s,  QString()};
    for (const QString &text : texts) {
        const AuditReport report = auditor().report({{u"1.1"_s, text, {}}});
        shown += tableOf(written(report, AuditFormat::CSV))[1][2];
    }
    EXPECT_EQ(shown, (QStringList{u"'=1+1"_s, u"'+x"_s, u"-4.2"_s, u"'- item"_s, u"'@SUM(A1)"_s,
                                  u"'\t=1"_s, u"a=1"_s, QString()}));
}

TEST_F(AuditFormats, TellsTheSameCountsEverywhere)
{
    bind();
    const AuditReport report = sample();
    const auto json = QJsonDocument::fromJson(written(report, AuditFormat::JSON)).object();
    const QJsonObject coverage = json[u"coverage"_s].toObject();
    EXPECT_EQ(coverage[u"cited"_s], 4);
    EXPECT_EQ(coverage[u"references"_s], 4);
    EXPECT_EQ(coverage[u"covered"_s], 5);
    EXPECT_EQ(coverage[u"all"_s], 6);
    EXPECT_EQ(coverage[u"percent"_s], 83.3);
    EXPECT_EQ(json[u"chapters"_s].toArray().size(), 3);
    EXPECT_EQ(json[u"entries"_s].toArray().size(), 4);
    EXPECT_EQ(json[u"areDemandsMet"_s], false);
    EXPECT_EQ(json[u"unknown"_s].toArray()[0].toObject()[u"written"_s], u"9.9 & more"_s);
    EXPECT_EQ(json[u"requirements"_s].toArray()[0].toObject()[u"missing"_s].toArray(),
              (QJsonArray{u"2"_s, u"2.1.1"_s}));
    const QJsonObject speed = json[u"entries"_s].toArray()[2].toObject();
    EXPECT_EQ(speed[u"page"_s], 2) << "counted from 0";
    EXPECT_EQ(speed[u"url"_s], u"spec://2.1/engine/7"_s);
    EXPECT_EQ(speed[u"references"_s].toArray()[0].toObject()[u"citedBy"_s], u"REQ-1, \"first\""_s);
    for (const AuditFormat format : {AuditFormat::HTML, AuditFormat::RTF}) {
        const QByteArray text = written(report, format);
        EXPECT_TRUE(text.contains("Entries cited: 4, references: 4, unknown: 1"));
        EXPECT_TRUE(text.contains("5 of 6 covered, 83.3 %"));
        EXPECT_TRUE(text.contains("Required 2*: 2 of 4 entries cited"));
    }
    const auto empty =
        QJsonDocument::fromJson(written(this->report({}), AuditFormat::JSON)).object();
    EXPECT_EQ(empty[u"entries"_s], QJsonArray());
}

TEST_F(AuditFormats, WritesResultsThatServersOfBuildsRead)
{
    bind();
    QXmlStreamReader xml(written(sample(), AuditFormat::JUnit));
    int tests = 0;
    int failures = 0;
    QStringList path;
    QStringList suites;
    QStringList failed;
    int declaredTests = 0;
    int declaredFailures = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::EndElement)
            path.removeLast();
        if (!xml.isStartElement())
            continue;
        const QString parent = path.isEmpty() ? QString() : path.last();
        path += xml.name().toString();
        const auto attribute = [&](const QString &name) {
            return xml.attributes().value(name).toString();
        };
        if (path.last() == u"testsuites"_s) {
            EXPECT_TRUE(parent.isEmpty());
            declaredTests = attribute(u"tests"_s).toInt();
            declaredFailures = attribute(u"failures"_s).toInt();
        } else if (path.last() == u"testsuite"_s) {
            EXPECT_EQ(parent, u"testsuites"_s);
            suites += attribute(u"name"_s) + u' ' + attribute(u"tests"_s) + u' ' +
                      attribute(u"failures"_s);
        } else if (path.last() == u"testcase"_s) {
            EXPECT_EQ(parent, u"testsuite"_s);
            EXPECT_FALSE(attribute(u"name"_s).isEmpty() || attribute(u"classname"_s).isEmpty());
            ++tests;
            failed += attribute(u"name"_s);
        } else {
            EXPECT_EQ(path.last(), u"failure"_s);
            EXPECT_EQ(parent, u"testcase"_s);
            EXPECT_FALSE(attribute(u"message"_s).isEmpty());
            failed.last() += u" failed"_s;
            ++failures;
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_EQ(tests, declaredTests);
    EXPECT_EQ(failures, declaredFailures);
    EXPECT_EQ(suites, (QStringList{u"references 4 1"_s, u"requirements 2 1"_s, u"coverage 1 0"_s}));
    EXPECT_TRUE(failed.contains(u"REQ-3: 9.9 & more failed"_s));
    EXPECT_TRUE(failed.contains(u"1.1-1.2"_s)) << "one case, though it leads to two entries";
    EXPECT_TRUE(failed.contains(u"2* failed"_s));
}

TEST_F(AuditFormats, WritesAPageWhoseLinksLeadSomewhere)
{
    specification->entry(u"1.1"_s)->setRelatedEntries({u"2.1"_s, u"A.1"_s});
    addSection(u"4 ü"_s, u"Blank"_s, 4, 740);
    bind();
    std::dynamic_pointer_cast<Entry>(specification->entry(u"1.2"_s))
        ->setSummaryText(StyledText(u"see"_s, {.link = u"spec://2.1/*/*"_s}));
    const AuditReport report =
        this->report({u"1.1"_s, u"1.2"_s, u"2.1"_s, u"spec://2.1/*/*/0/2"_s, u"4 ü"_s});
    const QString page = html(report);
    const QStringList ids = captures(page, u" id=\"([^\"]*)\""_s);
    EXPECT_EQ(QSet<QString>(ids.begin(), ids.end()).size(), ids.size()) << "each id once";
    QStringList targets = captures(page, u"href=\"#([^\"]*)\""_s);
    EXPECT_GE(targets.size(), 5 + 3 + 2) << "entries, chapters, related and text";
    for (const QString &target : targets)
        EXPECT_TRUE(ids.contains(QUrl::fromPercentEncoding(target.toUtf8())))
            << target.toStdString();
    EXPECT_TRUE(page.contains(u"<a href=\"#2.1\">see</a>"_s));
    EXPECT_TRUE(page.contains(u"<a href=\"spec://A.1/engine/7\">Section A.1 Limits</a>"_s));
    EXPECT_TRUE(page.contains(u"lines 1 to 2"_s));
}

TEST_F(AuditFormats, WritesAPageThatStandsByItself)
{
    addSection(u"<script>alert(1)</script>"_s, u"</style><img src=x onerror=\"y\">"_s, 4, 740);
    bind();
    StyledText hostile(u"<b>bold</b>"_s, {.link = u"javascript:alert(1)"_s});
    hostile.append(u" web"_s, {.link = u"https://example.org/?a=\"b\""_s});
    std::dynamic_pointer_cast<Entry>(specification->entry(u"1.2"_s))->setSummaryText(hostile);
    const QString page =
        html(report({u"1.2"_s, u"<script>alert(1)</script>"_s, u"Figure 2-1"_s, u"<i>"_s}));
    for (const QString &dangerous :
         {u"<script"_s, u"javascript:"_s, u"onerror=\""_s, u"<b>bold"_s, u"<i>"_s, u"@import"_s,
          u"src=\"http"_s, u"url("_s, u"<link"_s})
        EXPECT_FALSE(page.contains(dangerous)) << dangerous.toStdString();
    EXPECT_TRUE(page.contains(u"href=\"https://example.org/?a=&quot;b&quot;\""_s));
    EXPECT_EQ(page.count(u"<img "_s), 1);
    const QStringList pictures = captures(page, u"src=\"data:image/png;base64,([^\"]*)\""_s);
    ASSERT_EQ(pictures.size(), 1);
    const QImage image = QImage::fromData(QByteArray::fromBase64(pictures[0].toLatin1()), "PNG");
    EXPECT_NEAR(image.width(), 400, 8) << "two pixels a point";
    EXPECT_EQ(image.pixelColor(image.width() / 2, 80), QColor(255, 0, 0));
    EXPECT_EQ(red->needsComputeDisplay(), true) << "the picture is kept nowhere";
}

TEST_F(AuditFormats, ShowsNoTextWhereThatIsNotAllowed)
{
    bind();
    specification->setAllowsPreviews(false);
    const AuditReport report = this->report({u"1.1"_s, u"Figure 2-1"_s});
    for (const AuditFormat format :
         {AuditFormat::HTML, AuditFormat::RTF, AuditFormat::CSV, AuditFormat::JSON}) {
        const QByteArray text = written(report, format);
        EXPECT_FALSE(text.contains("line 0 of the text"));
        EXPECT_FALSE(text.contains("image/png") || text.contains("pngblip"));
        EXPECT_TRUE(text.contains("Purpose"));
    }
}

TEST_F(AuditFormats, WritesTheSameTwice)
{
    bind();
    for (const AuditFormat format : {AuditFormat::HTML, AuditFormat::RTF, AuditFormat::CSV,
                                     AuditFormat::JSON, AuditFormat::JUnit})
        EXPECT_EQ(written(sample(), format), written(sample(), format));
}

TEST_F(AuditFormats, NeedsNoDocument)
{
    const AuditReport report = sample();
    EXPECT_TRUE(html(report).contains(u"No summary available"_s));
    EXPECT_TRUE(html(report).contains(u"No image available"_s));
    EXPECT_TRUE(written(report, AuditFormat::RTF).contains("No image available"));
    EXPECT_EQ(tableOf(written(report, AuditFormat::CSV)).size(), 8U);
}
