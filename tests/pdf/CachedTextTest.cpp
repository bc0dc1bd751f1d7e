// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <algorithm>
#include <random>
#include <thread>

#include <Tavrin/pdf/CachingPDFDocument.h>
#include <Tavrin/pdf/LineFinder.h>
#include <Tavrin/platform/CharacterSet.h>
#include <support/Corpus.h>
#include <support/PDFBuilder.h>
#include <support/StandardErrorCapture.h>

namespace
{

QStringList lineTexts(const HostPDFPage &page)
{
    QStringList texts;
    for (const TextRange &range : LineFinder::lines(page))
        texts += page.string()->mid(range.location, range.length);
    return texts;
}

/// The lines as one finds them by asking the page at every character: slow, and the measure for
/// the quick way.
std::vector<TextRange> probedLines(const HostPDFPage &page)
{
    const QString text = *page.string();
    struct Line {
        TextRange range;
        Rect bounds;
    };
    std::vector<Line> lines;
    for (qsizetype position = 1; position < text.size();) {
        const Point center = page.characterBounds(position).center();
        const auto selection =
            page.characterIndex(center) ? page.selectionForLine(center) : std::nullopt;
        const TextRange range = selection ? selection->range(0, page) : TextRange::notFound();
        if (!range.isFound() || !range.contains(position)) {
            ++position;
            continue;
        }
        const QString line = text.mid(range.location, range.length);
        if (!std::all_of(line.begin(), line.end(), CharacterSet::isWhiteSpaceOrNewline))
            lines.push_back({range, selection->bounds(page)});
        position = range.end() + 1;
    }
    std::stable_sort(lines.begin(), lines.end(), [](const Line &a, const Line &b) {
        return std::pair(-a.bounds.minY(), a.bounds.minX()) <
               std::pair(-b.bounds.minY(), b.bounds.minX());
    });
    std::vector<TextRange> ranges;
    ranges.reserve(lines.size());
    for (const Line &line : lines)
        ranges.push_back(line.range);
    return ranges;
}

} // namespace

TEST(CachedText, ColumnsInterleaveByHeight)
{
    PDFBuilder pdf;
    const QStringList left{u"left one runs to the gutter"_s, u"left two runs to the gutter"_s,
                           u"left three runs to the gap"_s, u"left four runs to the gap"_s};
    QStringList right = left;
    right.replaceInStrings(u"left"_s, u"right"_s);
    pdf.addPage().column(72, 700, 12, left).column(300, 700, 12, right);
    const auto document = CachingPDFDocument::open(pdf.build());
    QStringList expected;
    for (int row = 0; row < left.size(); ++row)
        expected += {left[row], right[row]};
    EXPECT_EQ(lineTexts(*document->page(0)), expected);
}

TEST(CachedText, FirstCharacterIsNoProbe)
{
    PDFBuilder pdf;
    pdf.addPage().text(72, 700, u"x"_s);
    pdf.addPage();
    pdf.addPage().text(72, 700, u"1"_s).text(72, 600, u"body"_s);
    const auto document = CachingPDFDocument::open(pdf.build());
    const StandardErrorCapture errors;
    EXPECT_TRUE(LineFinder::lines(*document->page(0)).empty());
    EXPECT_TRUE(LineFinder::lines(*document->page(1)).empty());
    EXPECT_EQ(lineTexts(*document->page(2)), QStringList{u"body"_s});
    EXPECT_EQ(errors.text(), QString()) << "an empty page has a text, if an empty one";
}

TEST(CachedText, IsTheSameForEveryWayToAsk)
{
    PDFBuilder pdf;
    pdf.addPage().text(72, 700, u"Body"_s).text(120, 700, u"bold"_s, {.font = Font::HelveticaBold});
    const auto document = CachingPDFDocument::open(pdf.build());
    const auto page = document->page(0);
    const auto text = document->textForPage(0);
    ASSERT_TRUE(text);
    EXPECT_EQ(document->textFor(*page), text);
    const auto styled = document->attributedTextFor(*page);
    ASSERT_TRUE(styled);
    EXPECT_EQ(document->attributedTextForPage(0), styled);
    EXPECT_EQ(styled->string(), *text);
    EXPECT_TRUE(styled->attributesAt(text->indexOf(u"bold"_s)).font->isBold());
    EXPECT_FALSE(document->textForPage(1));
    EXPECT_FALSE(document->textForPage(-1));
    const auto other = CachingPDFDocument::open(pdf.build());
    EXPECT_FALSE(other->textFor(*page)) << "a page of another document";
}

TEST(CachedText, LinesAreThoseOfProbingEveryCharacter)
{
    for (const QString &name : {u"fhs.pdf"_s, u"slepc.pdf"_s}) {
        const auto path = corpusFile(name);
        if (!path)
            GTEST_SKIP() << noCorpus;
        const auto document = CachingPDFDocument::open(QUrl::fromLocalFile(*path));
        int different = 0;
        int lines = 0;
        for (int index = 0; index < document->pageCount(); index += 5) {
            const auto page = document->page(index);
            const auto quick = LineFinder::lines(*page);
            lines += static_cast<int>(quick.size());
            different += quick != probedLines(*page);
        }
        EXPECT_GT(lines, 300);
        EXPECT_EQ(different, 0) << name.toStdString();
    }
}

TEST(CachedTextConcurrency, ThreadsReadOneDocument)
{
    PDFBuilder pdf;
    constexpr int pages = 40;
    for (int page = 0; page < pages; ++page)
        pdf.addPage().text(72, 700, u"Page %1"_s.arg(page)).text(72, 680, u"and its body"_s);
    const auto document = CachingPDFDocument::open(pdf.build());
    std::atomic<int> right = 0;
    const auto read = [&](unsigned seed) {
        std::mt19937 random(seed);
        for (int time = 0; time < 100; ++time) {
            const int index = static_cast<int>(random() % pages);
            const auto page = document->page(index);
            const bool isRight =
                document->textFor(*page) == u"Page %1\nand its body"_s.arg(index) &&
                LineFinder::lines(*page).size() == 2 &&
                document->attributedTextForPage(index)->length() > 0;
            right += isRight;
        }
    };
    std::vector<std::thread> threads;
    for (unsigned seed = 0; seed < 8; ++seed)
        threads.emplace_back(read, seed);
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(right, 800);
}
