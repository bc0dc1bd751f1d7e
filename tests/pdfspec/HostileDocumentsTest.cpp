// SPDX-License-Identifier: Apache-2.0
#include "PDFFixture.h"

#include <Tavrin/pdf/LineFinder.h>
#include <Tavrin/platform/HostPDFError.h>
#include <support/HostilePDF.h>

using HostileDocuments = PDFFixture;

TEST_F(HostileDocuments, PageTreesThatLieOrLoop)
{
    for (const QByteArray &bytes :
         {HostilePDF::cyclicPageTree(), HostilePDF::hugePageCount(), HostilePDF::withoutPages()}) {
        const auto specification = load(bytes, PDFReadingPolicy::Common);
        const int count = specification->document()->pageCount();
        EXPECT_LE(count, 1);
        EXPECT_EQ(specification->pageDictionaries().size(), static_cast<std::size_t>(count));
        EXPECT_EQ(specification->sortedDestinations().size(), static_cast<std::size_t>(count));
        for (int page = 0; page < count; ++page)
            EXPECT_TRUE(specification->document()->textForPage(page));
    }
}

TEST_F(HostileDocuments, PageTreesOfAnyShapeGiveTheirPages)
{
    const auto texts = [this](const QByteArray &bytes) {
        const auto specification = load(bytes, PDFReadingPolicy::Common);
        const auto &document = specification->document();
        QStringList result;
        for (int page = 0; page < document->pageCount(); ++page)
            result += document->textForPage(page).value_or(u"unread"_s);
        EXPECT_EQ(specification->pageDictionaries().size(), std::size_t(result.size()));
        return result;
    };
    EXPECT_EQ(texts(HostilePDF::deepPageTree(100000)), QStringList{QString()});
    EXPECT_EQ(texts(HostilePDF::wrongInnerPageCounts()), (QStringList{u"first"_s, u"second"_s}));
    EXPECT_EQ(texts(HostilePDF::inlinePage()), (QStringList{u"first"_s, u"A page"_s}));
    EXPECT_EQ(CachingPDFDocument::open(HostilePDF::catalogLostInRepair())->pageCount(), 0);
    EXPECT_THROW(load(HostilePDF::streamForPages()), PDFSpecification::ParseError);
    EXPECT_EQ(CachingPDFDocument::open(HostilePDF::streamForPages())->pageCount(), 0);
}

TEST_F(HostileDocuments, NameTreesThatLoop)
{
    const auto specification = load(HostilePDF::cyclicNameTree());
    EXPECT_EQ(specification->linkDestinationMapping().keys(), QStringList{u"here"_s});
}

TEST_F(HostileDocuments, OutlinesThatLoopOrGoDeep)
{
    for (const QByteArray &bytes : {HostilePDF::outlineLoop(), HostilePDF::outlineChildLoop()}) {
        const auto specification = load(bytes, PDFReadingPolicy::Common);
        EXPECT_LE(specification->documentOutline().size(), 2);
    }
    const auto deep = load(HostilePDF::deepOutline(10000), PDFReadingPolicy::Common);
    EXPECT_TRUE(deep->documentOutline().isEmpty()); // None of the items leads anywhere.
    int depth = 0;
    auto item = deep->document()->outlineRoot();
    for (; item && item->numberOfChildren() > 0; item = item->childAtIndex(0))
        ++depth;
    EXPECT_EQ(depth, 10000);
}

TEST_F(HostileDocuments, FilesThatAreNoPDF)
{
    const auto kind = [this](const QByteArray &bytes) {
        try {
            CachingPDFDocument::open(files.write(u"file.pdf"_s, bytes));
        } catch (const HostPDFError &error) {
            EXPECT_THAT(error.what(), testing::HasSubstr("file.pdf"));
            return std::optional(error.kind);
        }
        return std::optional<HostPDFError::Kind>();
    };
    EXPECT_EQ(kind("no PDF at all"), HostPDFError::Kind::NotAPDF);
    EXPECT_EQ(kind(""), HostPDFError::Kind::NotAPDF);
    EXPECT_EQ(kind("%PDF-1.7\n"), HostPDFError::Kind::Damaged);
    EXPECT_THROW(CachingPDFDocument::open(files.url(u"gone.pdf"_s)), HostPDFError);
    EXPECT_THROW(CachingPDFDocument::open(QUrl(u"https://example.org/a.pdf"_s)), HostPDFError);
    // What is left of a file may be readable; then it is read, else refused.
    kind(HostilePDF::truncated());
}

TEST_F(HostileDocuments, EncryptedOnesNeedTheirPassword)
{
    pdf.addPage().text(72, 700, u"secret"_s);
    const auto bytes = encrypted(pdf.build(), u"pass"_s);
    if (!bytes)
        GTEST_SKIP() << "qpdf is not installed";
    try {
        CachingPDFDocument::open(*bytes);
        FAIL() << "it opens without the password";
    } catch (const HostPDFError &error) {
        EXPECT_EQ(error.kind, HostPDFError::Kind::PasswordNeeded);
        EXPECT_EQ(error.message, u"the PDF is encrypted and needs a password"_s);
    }
    EXPECT_THROW(CachingPDFDocument::open(*bytes, u"wrong"_s), HostPDFError);
    EXPECT_EQ(CachingPDFDocument::open(*bytes, u"pass"_s)->textForPage(0), u"secret"_s);
}

TEST_F(HostileDocuments, FormsThatDrawFormsEnd)
{
    // Each level draws the one below ten times: 10^12 drawings in a few hundred bytes.
    int form = pdf.addStream("/Type /XObject /Subtype /Form /BBox [0 0 9 9]", "0 0 1 1 re f");
    for (int level = 0; level < 12; ++level) {
        const QByteArray resources =
            "/Resources << /XObject << /F " + QByteArray::number(form) + " 0 R >> >>";
        form = pdf.addStream("/Type /XObject /Subtype /Form /BBox [0 0 9 9] " + resources,
                             QByteArray("/F Do ").repeated(10));
    }
    pdf.addPage()
        .text(72, 700, u"before"_s)
        .entry("Resources", "<< /XObject << /F " + QByteArray::number(form) + " 0 R >> >>")
        .operators("/F Do");
    const auto document = CachingPDFDocument::open(pdf.build());
    EXPECT_TRUE(document->textForPage(0));
}

TEST_F(HostileDocuments, MegabyteLabelsAreLabels)
{
    pdf.addPage();
    const auto specification = load();
    const QString label(1 << 20, u'x');
    EXPECT_EQ(specification->entry(label), nullptr);
    EXPECT_EQ(specification->destination(label), std::nullopt);
    EXPECT_EQ(specification->destination(u"destination:"_s + label), std::nullopt);
    EXPECT_EQ(specification->entry(u"spec://"_s + label), nullptr);
}
