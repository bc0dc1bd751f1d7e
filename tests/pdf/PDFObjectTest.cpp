// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <Tavrin/pdf/CachingPDFDocument.h>
#include <Tavrin/pdf/PDFArray.h>
#include <Tavrin/pdf/PDFBool.h>
#include <Tavrin/pdf/PDFDictionary.h>
#include <Tavrin/pdf/PDFNumber.h>
#include <Tavrin/pdf/PDFString.h>
#include <support/PDFBuilder.h>

namespace
{

/// The catalog of a document whose catalog has one more entry, "Test".
class PDFObjects : public testing::Test
{
protected:
    PDFDictionaryPtr catalogWith(const QByteArray &source)
    {
        builder.addPage().text(72, 700, u"text"_s);
        builder.catalogEntry("Test", source);
        document = CachingPDFDocument::open(builder.build());
        const std::shared_ptr<const PDFObjectParser> parser(document, &document->objects());
        return std::make_shared<PDFDictionary>(PDFLowLevelObject{*parser->catalog(), parser});
    }

    PDFBuilder builder;
    std::shared_ptr<CachingPDFDocument> document;
};

} // namespace

TEST_F(PDFObjects, AreTypedAndNullsTakeNoPlace)
{
    const auto array =
        catalogWith("[/Name null 12 -0.5 true (Name) [1] << /A 1 >>]")->object<PDFArray>("Test");
    ASSERT_TRUE(array);
    EXPECT_EQ(array->count(), 8) << "the file's own count, before anything is read";
    ASSERT_EQ(array->objects().size(), 7U);
    EXPECT_EQ(array->count(), 7);
    const auto name = std::dynamic_pointer_cast<PDFString>((*array)[0]);
    const auto string = std::dynamic_pointer_cast<PDFString>((*array)[4]);
    ASSERT_TRUE(name && string);
    EXPECT_EQ(*name, *string) << "names and strings are not told apart";
    EXPECT_EQ(std::dynamic_pointer_cast<PDFNumber>((*array)[1])->value(), 12);
    EXPECT_EQ(std::dynamic_pointer_cast<PDFNumber>((*array)[2])->value(), -0.5);
    EXPECT_TRUE(std::dynamic_pointer_cast<PDFBool>((*array)[3])->value());
    EXPECT_EQ(array->description(), u"PDFArray(\n\tPDFString(Name)\n\tPDFNumber(12.0)\n\t"
                                    "PDFNumber(-0.5)\n\tPDFBool(true)\n\tPDFString(Name)\n\t"
                                    "PDFArray(1 objects)\n\tPDFDictionary(1 objects)\n)"_s);
}

TEST_F(PDFObjects, StreamsAreNone)
{
    const int stream = builder.addStream("/Length 4", "data");
    const auto test = catalogWith("<< /S " + QByteArray::number(stream) + " 0 R /N 1 >>")
                          ->object<PDFDictionary>("Test");
    ASSERT_TRUE(test);
    EXPECT_FALSE(test->object("S"));
    EXPECT_EQ(test->dict().keys(), QStringList{u"N"_s});
    EXPECT_EQ(test->debugDescription(), u"{\n\tN: PDFNumber(1.0)\n}"_s);
}

TEST_F(PDFObjects, CyclesCostNothingUntilWalked)
{
    const auto catalog = catalogWith("null");
    EXPECT_FALSE(catalog->object("Test"));
    const auto pages = catalog->object<PDFDictionary>("Pages");
    const auto page =
        std::dynamic_pointer_cast<PDFDictionary>(pages->object<PDFArray>("Kids")->objects()[0]);
    const auto parent = page->object<PDFDictionary>("Parent");
    ASSERT_TRUE(parent);
    EXPECT_TRUE(parent->isSameObject(*pages)) << "two references to one object are one handle";
    EXPECT_FALSE(parent->isSameObject(*page));
    EXPECT_EQ(page->dict().value(u"Parent"_s)->description(),
              u"PDFDictionary(%1 objects)"_s.arg(pages->count()));
    EXPECT_LT(page->debugDescription().size(), 2000);
}

TEST_F(PDFObjects, OutliveTheirDocument)
{
    auto catalog = catalogWith("[1 2 3]");
    document.reset();
    EXPECT_EQ(catalog->object<PDFArray>("Test")->objects().size(), 3U);
}
