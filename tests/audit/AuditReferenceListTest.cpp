// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <Tavrin/audit/AuditReferenceList.h>

namespace
{

QString fault(const QByteArray &text)
{
    try {
        AuditReferenceList::parse(text, u"refs"_s);
    } catch (const AuditReferenceList::Error &error) {
        return QString::fromUtf8(error.what());
    }
    return {};
}

} // namespace

TEST(AuditReferenceList, ReadsAReferenceALine)
{
    const auto references = AuditReferenceList::parse("\xEF\xBB\xBF# heading\n"
                                                      "4.2.1\r\n"
                                                      "\n"
                                                      "  \xC2\xA7 4.2  # as printed\n"
                                                      "REQ 1\tFig. 3-7\n",
                                                      u"refs"_s);
    const std::vector<AuditReference> expected{{u"4.2.1"_s, {}, u"refs:2"_s},
                                               {u"§ 4.2"_s, {}, u"refs:4"_s},
                                               {u"Fig. 3-7"_s, u"REQ 1"_s, u"refs:5"_s}};
    EXPECT_EQ(references, expected);
    EXPECT_EQ(AuditReferenceList::parse("\tC#\n#1\n", u"refs"_s).front().reference, u"C#"_s);
    EXPECT_TRUE(AuditReferenceList::parse("", u"refs"_s).empty());
    EXPECT_EQ(AuditReferenceList::parse("1", u"refs"_s).size(), 1U) << "without a line end";
}

TEST(AuditReferenceList, SaysWhichLineIsBad)
{
    EXPECT_TRUE(fault("1\nREQ\t\n").startsWith(u"refs:2: no reference"_s));
    EXPECT_TRUE(fault("REQ\t# nothing").startsWith(u"refs:1: no reference"_s));
    EXPECT_TRUE(fault("a\tb\tc").startsWith(u"refs:1: more than one tab"_s));
    EXPECT_TRUE(fault("1\n2\n\xff\xfe").startsWith(u"refs:3: not UTF-8"_s));
    EXPECT_TRUE(fault(QByteArray("1\0\n2", 4)).startsWith(u"refs:1: "_s));
}
