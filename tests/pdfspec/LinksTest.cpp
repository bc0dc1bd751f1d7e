// SPDX-License-Identifier: Apache-2.0
#include "PDFFixture.h"

namespace
{

class Links : public PDFFixture
{
protected:
    Links()
    {
        for (int page = 0; page < 3; ++page)
            pdf.addPage();
        specification = load();
    }

    std::shared_ptr<PDFSpecification> specification;
};

} // namespace

TEST_F(Links, NamePointsAndRectangles)
{
    EXPECT_EQ(place(specification->destinationForLink(u"destination:2,72.5,-540"_s)),
              (Place{2, {72.5, -540}}));
    PDFSpecification::PageRects rects;
    EXPECT_EQ(place(specification->destinationForLink(u"rects:2,0,0,10,10;1,5,6,10,20"_s, &rects)),
              (Place{1, {5, 26}}));
    EXPECT_EQ(rects.size(), 2U);
    EXPECT_EQ(rects.at(1), (Rect{{5, 6}, {10, 20}}));
    EXPECT_EQ(specification->destinationForLink(u"rects:9,0,0,1,1"_s, &rects), std::nullopt);
    EXPECT_EQ(rects.size(), 1U) << "rectangles are handed over even where there is no page";
    EXPECT_EQ(specification->destinationForLink(u"destination"_s), std::nullopt);
}

TEST_F(Links, BrokenOnesSaySo)
{
    const std::vector<std::pair<QString, QString>> cases{
        {u"destination:3,10"_s, u"Unsupported destination syntax: 3,10. Expected format "
                                "\"destination:[page],[x],[y]\""_s},
        {u"destination:x,1,2"_s, u"Unsupported destination syntax: x,1,2. Expected format "
                                 "\"destination:[page],[x],[y]\""_s},
        {u"destination:0,inf,nan"_s, u"Unsupported destination syntax: 0,inf,nan. Expected format "
                                     "\"destination:[page],[x],[y]\""_s},
        {u"rects:"_s, u"Unsupported destination rect syntax: . Expected components of the form "
                      "\"[page],[x],[y],[width],[height]\""_s},
        {u"rects:0,1,2,3,4;1,2"_s, u"Unsupported destination rect syntax: 1,2. Expected components "
                                   "of the form \"[page],[x],[y],[width],[height]\""_s},
    };
    for (const auto &[link, message] : cases) {
        const StandardErrorCapture own;
        EXPECT_EQ(specification->destinationForLink(link), std::nullopt);
        EXPECT_EQ(own.messages(), QStringList{message});
    }
    const StandardErrorCapture own;
    EXPECT_EQ(specification->destinationForLink(u"destination:9,1,2"_s), std::nullopt);
    EXPECT_EQ(own.text(), QString()) << "a page that is not there is no fault of the syntax";
}

TEST_F(Links, PrintAsTheyRead)
{
    const HostPDFDestination destination(specification->document()->page(2), {72.9, -0.4});
    EXPECT_EQ(specification->internalLink(destination), u"destination:2,72,0"_s);
    EXPECT_EQ(specification->internalLink(HostPDFDestination(nullptr, {1, 2})),
              u"destination:0,1,2"_s);
    const PDFSpecification::PageRects rects{{2, {{0.5, -0.5}, {10, 10.9}}}, {0, {{1, 2}, {3, 4}}}};
    EXPECT_EQ(specification->internalLink(rects),
              u"rects:0,1.0,2.0,3.0,4.0;2,0.0,-1.0,10.0,10.0"_s);
    EXPECT_DEATH(specification->internalLink(HostPDFDestination(nullptr, {std::nan(""), 0})),
                 "isn't finite");
}

TEST_F(Links, OfEntriesComeFirst)
{
    const auto add = [this](const QString &label, const QString &link) {
        auto entry = std::static_pointer_cast<PDFSpecification::Entry>(specification->newEntry());
        entry->setLabel(label);
        entry->setInternalLink(link);
        specification->initializeEntry(*entry);
        specification->add(entry);
        return entry;
    };
    add(u"destination:1,1,1"_s, u"destination:2,5,6"_s);
    EXPECT_EQ(place(specification->destination(u"destination:1,1,1"_s)), (Place{2, {5, 6}}));
    EXPECT_EQ(place(specification->destination(u"destination:1,7,8"_s)), (Place{1, {7, 8}}))
        << "a link may stand in place of a label";
    const auto boxed = add(u"box"_s, u"rects:1,5,6,10,20"_s);
    ASSERT_TRUE(boxed->destinationRects());
    EXPECT_EQ(boxed->destinationRects()->at(1), (Rect{{5, 6}, {10, 20}}));
}
