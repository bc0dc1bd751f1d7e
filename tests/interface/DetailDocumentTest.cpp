// SPDX-License-Identifier: Apache-2.0
// What becomes of an open detail view when its specification or file is another, or gone.
#include <QFile>

#include <Tavrin/manager/TavrinConstants.h>
#include <manager/StoreFixture.h>

#include "DetailFixture.h"

namespace
{

class DetailDocumentTest : public DetailFixture
{
protected:
    static void postFilesChanged(const SpecificationManager &manager)
    {
        NotificationCenter::shared().post(
            TavrinConstants::SpecManagerAuxiliaryFilesChangedNotification, &manager);
    }
    /// The same print with another page in front.
    QByteArray secondEdition() const
    {
        PDFBuilder second;
        for (int i = 0; i < 5; ++i)
            second.addPage().text(left, 720, u"1 Scope"_s, heading);
        return second.build();
    }
};

TEST_F(DetailDocumentTest, AnotherSpecificationIsShownWithoutTheMarksOfTheFirst)
{
    controller->setAllowsEntrySelection(true);
    controller->selectEntry(scope);
    controller->setReferenceCoverage(ReferenceCoverage{{u"1"_s, u"here"_s}});
    show();
    controller->highlightReferenceCoverage();
    ASSERT_TRUE(waitForCoverage());
    const auto other = load(secondEdition());
    other->setTitle(u"Other"_s);
    controller->setSpecification(other);
    settle();
    EXPECT_FALSE(controller->entry());
    EXPECT_EQ(view().document(), other->document());
    EXPECT_EQ(controller->title(), u"Other"_s);
    EXPECT_EQ(list->specification(), other);
    EXPECT_FALSE(list->entry());
    EXPECT_FALSE(view().pageRects);
    EXPECT_FALSE(coverage());
    // And back at an entry.
    controller->selectEntry(terms);
    settle();
    EXPECT_EQ(view().document(), specification->document());
    EXPECT_TRUE(isAtTop(terms));
}

TEST_F(DetailDocumentTest, AFileBoundAnewIsFollowed)
{
    controller->setEntry(terms);
    show();
    specification->loadPDFStructure(CachingPDFDocument::open(secondEdition()));
    SpecificationManager manager;
    manager.setSpecifications({specification});
    postFilesChanged(manager);
    settle();
    EXPECT_EQ(view().document(), specification->document());
    EXPECT_EQ(controller->entry(), terms);
    EXPECT_TRUE(isAtTop(terms));
    // Also where nobody tells, as soon as the view appears again.
    controller->view()->hide();
    specification->loadPDFStructure(CachingPDFDocument::open(pdf.build()));
    controller->view()->show();
    settle();
    EXPECT_EQ(view().document(), specification->document());
}

TEST_F(DetailDocumentTest, WithoutADocumentTheViewSaysWhatToDo)
{
    const auto unbound = Specification::make<PDFSpecification>();
    unbound->setTitle(u"Unbound"_s);
    controller->setSpecification(unbound);
    controller->view()->resize(900, 700);
    controller->view()->show();
    EXPECT_FALSE(view().document());
    EXPECT_FALSE(view().viewport()->grab().toImage().isNull());
    controller->setSpecification(nullptr);
    EXPECT_EQ(controller->title(), u"Unbound"_s);
}

TEST_F(DetailDocumentTest, AFileThatIsDeletedOrCutOffIsTold)
{
    const QUrl url = files.write(u"spec.pdf"_s, pdf.build());
    class Bound : public PDFSpecification
    {
    public:
        using PDFSpecification::setPDFURL;
    };
    const auto bound = Specification::make<Bound>();
    bound->loadPDFDocument(url);
    bound->setPDFURL(url);
    controller->setSpecification(bound);
    show();
    EXPECT_EQ(notice(), QString());
    QFile(url.toLocalFile()).resize(700);
    ASSERT_TRUE(QTest::qWaitFor([this] { return notice().contains(u"changed"_s); }));
    // Whatever is left of it, one can go on.
    for (int page = 0; page < 4; ++page) {
        view().goToPage(page);
        ASSERT_TRUE(QTest::qWaitFor([this] { return view().isFullyDrawn(); }));
        view().viewport()->grab();
    }
    QFile::remove(url.toLocalFile());
    ASSERT_TRUE(QTest::qWaitFor([this] { return notice().contains(u"deleted"_s); }));
    controller->setSpecification(specification);
    EXPECT_EQ(notice(), QString());
}

/// With the files that a user imports, and forgets.
class DetailStoreTest : public StoreFixture
{
protected:
    std::shared_ptr<PDFSpecification> registered(const SpecificationManager &manager) const
    {
        return std::dynamic_pointer_cast<PDFSpecification>(manager.specifications().front());
    }
};

TEST_F(DetailStoreTest, AForgottenFileLeavesAnEmptyViewThatComesBackWithIt)
{
    writeMap(u"Alpha"_s);
    const auto manager = start();
    const QUrl source = writeDocument(u"Alpha"_s, u"alpha.pdf"_s);
    const QUrl stored = manager->registerAuxiliaryFile(source);
    const auto first = registered(*manager);
    const auto controller = SpecPDFViewController::make(first->entry(u"1"_s));
    controller->view()->resize(900, 700);
    controller->view()->show();
    auto &view = controller->viewer()->pdfView();
    ASSERT_TRUE(QTest::qWaitFor([&] { return view.isFullyDrawn(); }));

    manager->unregisterAuxiliaryFile(stored);
    EXPECT_NE(controller->specification(), first);
    EXPECT_EQ(controller->specification(), registered(*manager));
    EXPECT_FALSE(view.document());
    view.viewport()->grab();

    manager->registerAuxiliaryFile(source);
    EXPECT_EQ(view.document(), registered(*manager)->document());
    ASSERT_TRUE(controller->entry());
    EXPECT_EQ(controller->entry()->label(), u"1"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return view.isFullyDrawn(); }));
}

} // namespace
