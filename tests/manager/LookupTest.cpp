// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <utility>

#include <Tavrin/model/SpecificationRegistry.h>
#include <Tavrin/model/ViewControllerFactory.h>

#include "StoreFixture.h"

namespace Tavrin
{

/// Where there are no windows, a view is what was asked for.
class ViewController
{
public:
    QString kind = {};
    QString text = {};
    QString buttonTitle = {};
    std::function<void()> pressed = {};
    std::shared_ptr<Specification> specification = {};
    std::shared_ptr<SpecificationEntry> entry = {};
    ReferenceCoverage coverage = {};
};

} // namespace Tavrin

namespace
{

/// Makes views, unless it is told that one kind can't be made.
class RecordingFactory : public ViewControllerFactory
{
public:
    QString failing;
    std::vector<std::shared_ptr<Specification>> bound;

    void documentBound(const std::shared_ptr<Specification> &specification) override
    {
        bound.push_back(specification);
    }

    ViewControllerPtr summary(const std::shared_ptr<SpecificationEntry> &entry) override
    {
        return make({.kind = u"summary"_s,
                     .specification = entry ? entry->specification() : nullptr,
                     .entry = entry});
    }
    ViewControllerPtr pdfDetail(const std::shared_ptr<Specification> &specification,
                                const std::shared_ptr<SpecificationEntry> &entry) override
    {
        return make({.kind = u"detail"_s, .specification = specification, .entry = entry});
    }
    ViewControllerPtr error(const QString &message, const QString &buttonTitle,
                            std::function<void()> pressed) override
    {
        return make({.kind = u"prompt"_s,
                     .text = message,
                     .buttonTitle = buttonTitle,
                     .pressed = std::move(pressed)});
    }
    ViewControllerPtr auxiliaryFileBrowser(SpecificationManager & /*manager*/,
                                           const std::optional<QString> &instruction) override
    {
        return make({.kind = u"browser"_s, .text = instruction.value_or(u"its own"_s)});
    }
    bool showReferenceCoverage(ViewController &detail, const ReferenceCoverage &coverage) override
    {
        detail.coverage = coverage;
        return detail.kind == u"detail"_s;
    }

private:
    ViewControllerPtr make(ViewController view) const
    {
        return view.kind == failing ? nullptr : std::make_shared<ViewController>(std::move(view));
    }
};

/// A kind of specification that a host brings, with detail views of its own.
class HostSpecification : public Specification
{
public:
    std::vector<std::optional<QString>> asked;

    ViewControllerPtr detailViewController(const std::optional<QString> &label) override
    {
        asked.push_back(label);
        return std::make_shared<ViewController>(ViewController{.kind = u"host's"_s});
    }
};

/// Two specifications, "alpha" and "beta", whose PDFs lie ready. Both have the entry "1", and each
/// one that is named after it.
class Lookup : public StoreFixture
{
protected:
    Lookup()
    {
        auto installed = std::make_unique<RecordingFactory>();
        factory = installed.get();
        ViewControllerFactory::install(std::move(installed));
        for (const QString &word : {u"alpha"_s, u"beta"_s})
            sampleMap(word)
                .entry({.label = word, .name = word})
                .write(files, u"maps/%1.xml"_s.arg(word));
        files.write(u"maps/alpha.dtd"_s, MapBuilder::grammar());
        files.write(u"maps/beta.dtd"_s, MapBuilder::grammar());
        manager = start();
    }
    void TearDown() override
    {
        ViewControllerFactory::install(nullptr);
        StoreFixture::TearDown();
    }

    void import(const QString &word)
    {
        manager->bindAuxiliaryFile(writeDocument(word, word + u".pdf"_s));
    }
    std::shared_ptr<Specification> specification(const QString &word) const
    {
        return manager->specificationWhere(
            [&](const Specification &candidate) { return candidate.identifier() == word; });
    }
    void displayDetails()
    {
        manager->setDetailViewControllerDisplayBlock(
            [this](const ViewControllerPtr &view) { displayed.push_back(view); });
    }
    void offerImport()
    {
        manager->setAuxiliaryFileBrowserDisplayBlock(
            [this](const ViewControllerPtr &view) { browsers.push_back(view); });
    }
    static SpecificationManager::SpecificationPredicate only(const QString &word)
    {
        return [word](const Specification &candidate) { return candidate.identifier() == word; };
    }
    /// "alpha 1", for example; the kind alone of what shows no specification.
    static QString contents(const ViewControllerPtr &view)
    {
        if (!view || !view->specification)
            return view ? view->kind : u"nothing"_s;
        return view->specification->identifier() + u' ' +
               (view->entry ? view->entry->label() : u"whole"_s);
    }

    RecordingFactory *factory;
    std::unique_ptr<SpecificationManager> manager;
    std::vector<ViewControllerPtr> displayed;
    std::vector<ViewControllerPtr> browsers;
};

const QString noDisplayBlock =
    u"Tried to display a detail view controller, but the application hasn't set up a detail view "
    "controller display block."_s;

} // namespace

TEST_F(Lookup, AsksThePrimaryFirstAndThenTheListInOrder)
{
    import(u"alpha"_s);
    import(u"beta"_s);
    const auto detailOf = [this](const QString &label, const auto &...predicate) {
        displayed.clear();
        manager->showDetailViewController(label, predicate...);
        return displayed.empty() ? u"nothing"_s : contents(displayed.front());
    };
    displayDetails();
    EXPECT_EQ(contents(manager->summaryLookup(u"1"_s)), u"alpha 1"_s);
    EXPECT_EQ(detailOf(u"1"_s), u"alpha 1"_s);
    EXPECT_EQ(contents(manager->summaryLookup(u"1"_s, only(u"beta"_s))), u"beta 1"_s);
    EXPECT_EQ(detailOf(u"1"_s, only(u"beta"_s)), u"beta 1"_s);
    EXPECT_EQ(contents(manager->summaryLookup(u"spec://1/beta/1"_s)), u"beta 1"_s);
    EXPECT_EQ(detailOf(u"spec://1/beta/1"_s), u"beta 1"_s);

    manager->setPrimarySpecification(specification(u"beta"_s));
    EXPECT_EQ(contents(manager->summaryLookup(u"1"_s)), u"beta 1"_s);
    EXPECT_EQ(detailOf(u"1"_s), u"beta 1"_s);
    EXPECT_EQ(contents(manager->summaryLookup(u"alpha"_s)), u"alpha alpha"_s);
    EXPECT_EQ(contents(manager->summaryLookup(u"1"_s, only(u"alpha"_s))), u"alpha 1"_s)
        << "the primary is asked only if it is accepted";
    EXPECT_THAT(log.takeMessages(), IsEmpty());
}

TEST_F(Lookup, PassesOverSpecificationsWhoseFileIsMissing)
{
    import(u"beta"_s);
    displayDetails();
    EXPECT_EQ(contents(manager->summaryLookup(u"1"_s)), u"beta 1"_s);
    manager->showDetailViewController(u"1"_s);
    ASSERT_EQ(displayed.size(), 1U);
    EXPECT_EQ(contents(displayed.front()), u"beta 1"_s);
    EXPECT_THAT(specification(u"alpha"_s)->summaryViewController(u"1"_s), IsNull());
    EXPECT_THAT(specification(u"alpha"_s)->detailViewController(u"1"_s), IsNull());
    EXPECT_THAT(specification(u"beta"_s)->detailViewController(u"alpha"_s), IsNull())
        << "a label that it lacks is no request for the whole";
}

TEST_F(Lookup, PromptsByWhatIsImportedAndCanBe)
{
    struct Row {
        bool isImported;
        bool offersImport;
        QString message;
        QString button;
    };
    const Row rows[] = {
        {false, false, u"You have not imported any specs yet."_s, {}},
        {false, true,
         u"You have not imported any specs yet. Would you like to choose a file now?"_s,
         u"Import Specs"_s},
        {true, true,
         u"You have not imported a spec for this reference yet. Would you like to choose a file "
         "now?"_s,
         u"Import Specs"_s},
        {true, false, u"You have not imported a spec for this reference."_s, {}},
    };
    for (const Row &row : rows) {
        if (row.isImported && !specification(u"beta"_s)->areFileRequirementsSatisfied())
            import(u"beta"_s);
        manager->setAuxiliaryFileBrowserDisplayBlock({});
        if (row.offersImport)
            offerImport();
        EXPECT_EQ(manager->canDisplayAuxiliaryFileBrowser(), row.offersImport);
        const auto prompt = manager->makeNoSpecsController();
        EXPECT_EQ(prompt->text, row.message);
        EXPECT_EQ(prompt->buttonTitle, row.button);
        browsers.clear();
        prompt->pressed();
        EXPECT_EQ(browsers.size(), row.offersImport ? 1U : 0U);
    }
}

TEST_F(Lookup, TellsAWrongLabelFromAMissingDocument)
{
    const auto nothingImported = manager->summaryLookup(u"nonsense"_s);
    EXPECT_EQ(nothingImported->text, u"You have not imported any specs yet."_s);
    EXPECT_THAT(log.takeMessages(), IsEmpty());

    import(u"beta"_s);
    displayDetails();
    for (const auto &empty :
         {manager->summaryLookup(u"nonsense"_s),
          manager->summaryLookup(u"1"_s, [](const Specification &) { return false; })}) {
        EXPECT_EQ(empty->kind, u"summary"_s);
        EXPECT_THAT(empty->entry, IsNull());
    }
    EXPECT_THAT(log.takeMessages(),
                ElementsAre(u"Could not find label nonsense in any specification"_s,
                            u"Could not find label 1 in any specification"_s));
    manager->showDetailViewController(u"nonsense"_s);
    ASSERT_EQ(displayed.size(), 1U);
    EXPECT_EQ(displayed.front()->text, u"You have not imported a spec for this reference."_s);
    EXPECT_THAT(log.takeMessages(),
                ElementsAre(u"Could not find label nonsense in any specification"_s));
}

TEST_F(Lookup, KeepsWhichDetailViewIsOnShow)
{
    import(u"alpha"_s);
    bool wasStoredBefore = false;
    EXPECT_FALSE(manager->canDisplayDetailViewController());
    manager->setDetailViewControllerDisplayBlock([&](const ViewControllerPtr &view) {
        wasStoredBefore = manager->currentDetailViewController() == view;
        displayed.push_back(view);
        // A host may well take its block away while it is called.
        manager->setDetailViewControllerDisplayBlock({});
    });
    EXPECT_TRUE(manager->canDisplayDetailViewController());
    manager->showDetailViewController(u"1"_s);
    EXPECT_TRUE(wasStoredBefore);
    EXPECT_EQ(manager->currentDetailViewController(), displayed.front());
    displayed.clear();
    EXPECT_THAT(manager->currentDetailViewController(), IsNull()) << "it isn't kept alive";

    displayDetails();
    manager->showDetailViewController(specification(u"alpha"_s));
    EXPECT_EQ(manager->currentDetailViewController(), displayed.back());
    EXPECT_EQ(contents(displayed.back()), u"alpha whole"_s);
    const auto other = manager->detailLookup(manager->entry(u"1"_s));
    EXPECT_EQ(contents(other), u"alpha 1"_s);
    EXPECT_EQ(manager->currentDetailViewController(), displayed.back());
    EXPECT_EQ(displayed.size(), 1U) << "looking up displays nothing";
    manager->showDetailViewController(u"nonsense"_s);
    EXPECT_EQ(displayed.back()->kind, u"prompt"_s);
    EXPECT_THAT(manager->currentDetailViewController(), IsNull());
}

TEST_F(Lookup, StoresNothingWithoutABlockToDisplayIt)
{
    import(u"alpha"_s);
    manager->showDetailViewController(u"1"_s);
    manager->showDetailViewController(specification(u"alpha"_s));
    manager->showSpecCoverage({{u"1"_s, u"test 7"_s}}, specification(u"alpha"_s));
    EXPECT_THAT(manager->currentDetailViewController(), IsNull());
    EXPECT_THAT(log.takeMessages(), ElementsAre(noDisplayBlock, noDisplayBlock, noDisplayBlock));
    manager->showAuxiliaryFileBrowser();
    EXPECT_THAT(log.takeMessages(), IsEmpty());
}

TEST_F(Lookup, AnswersForAnEntryFromWhicheverSpecificationHasItsLabel)
{
    import(u"alpha"_s);
    import(u"beta"_s);
    const auto ofBeta = specification(u"beta"_s)->entry(u"1"_s);
    EXPECT_EQ(contents(manager->detailLookup(ofBeta)), u"alpha 1"_s);

    const auto unbound = start();
    const auto stranger = specification(u"beta"_s)->entry(u"beta"_s);
    EXPECT_EQ(contents(unbound->detailLookup(stranger)), u"prompt"_s);
    EXPECT_THAT(
        log.takeMessages(),
        ElementsAre(u"Could not get detail view controller for beta in any specification"_s));
}

TEST_F(Lookup, ShowsSpecificationsOfEachKind)
{
    displayDetails();
    manager->showDetailViewController(specification(u"alpha"_s));
    EXPECT_EQ(displayed.back()->text, u"You have not imported any specs yet."_s)
        << "its file is missing";
    const auto plain = Specification::make<Specification>();
    manager->showDetailViewController(plain);
    EXPECT_EQ(displayed.back()->kind, u"prompt"_s);
    manager->showDetailViewController(std::shared_ptr<Specification>());
    EXPECT_EQ(displayed.size(), 3U) << "the primary one of nothing, for example";
    EXPECT_THAT(log.takeMessages(), IsEmpty());

    const auto hosts = Specification::make<HostSpecification>();
    manager->showDetailViewController(hosts);
    EXPECT_EQ(displayed.back()->kind, u"host's"_s);
    EXPECT_THAT(hosts->asked, ElementsAre(std::nullopt));

    factory->failing = u"prompt"_s;
    manager->showDetailViewController(plain);
    const QStringList messages = log.takeMessages();
    ASSERT_EQ(messages.size(), 1);
    EXPECT_EQ(messages.front(),
              u"Could not load detail view controller for "_s + plain->debugDescription());
}

TEST_F(Lookup, ShowsCoverage)
{
    displayDetails();
    const auto alpha = specification(u"alpha"_s);
    manager->showSpecCoverage({{u"1"_s, u"test 7"_s}}, alpha);
    EXPECT_THAT(displayed, IsEmpty()) << "no prompt is offered here";
    EXPECT_THAT(log.takeMessages(), ElementsAre(u"Could not load detail view controller for "_s +
                                                alpha->debugDescription()));
    import(u"alpha"_s);
    manager->showSpecCoverage({{u"1"_s, u"test 7"_s}, {u"2"_s, u"test 8"_s}}, alpha);
    ASSERT_EQ(displayed.size(), 1U);
    EXPECT_EQ(contents(displayed.front()), u"alpha whole"_s);
    EXPECT_EQ(displayed.front()->coverage.size(), 2U);
    EXPECT_EQ(displayed.front()->coverage.back().reference, u"test 8"_s);
    EXPECT_EQ(manager->currentDetailViewController(), displayed.front());
}

TEST_F(Lookup, GivesTheBrowserTheHostsInstruction)
{
    EXPECT_EQ(manager->auxiliaryFileBrowser()->text, u"its own"_s);
    manager->setAuxiliaryFileBrowserHelpText(u"Get the manual first."_s);
    offerImport();
    manager->showAuxiliaryFileBrowser();
    manager->showAuxiliaryFileBrowser();
    ASSERT_EQ(browsers.size(), 2U);
    EXPECT_EQ(browsers.front()->text, u"Get the manual first."_s);
    EXPECT_NE(browsers.front(), browsers.back());
}

TEST_F(Lookup, SurvivesWhatCannotBeMade)
{
    factory->failing = u"prompt"_s;
    displayDetails();
    const auto empty = manager->summaryLookup(u"1"_s);
    EXPECT_EQ(empty->kind, u"summary"_s);
    EXPECT_THAT(empty->entry, IsNull());
    manager->showDetailViewController(u"1"_s);
    EXPECT_THAT(displayed, IsEmpty());
    EXPECT_THAT(log.takeMessages(), ElementsAre(u"Could not find label 1 in any specification"_s,
                                                u"Could not find label 1 in any specification"_s));

    factory->failing.clear();
    offerImport();
    const auto prompt = manager->makeNoSpecsController();
    manager.reset();
    prompt->pressed();
    EXPECT_THAT(browsers, IsEmpty()) << "the manager has gone";
}

TEST_F(Lookup, HandsItselfToTheSpecificationsThatItKeeps)
{
    const auto own = std::make_shared<RecordingFactory>();
    manager->setViewControllerFactory(own);
    import(u"beta"_s);
    import(u"alpha"_s);
    const auto alpha = specification(u"alpha"_s);
    EXPECT_THAT(own->bound, ElementsAre(specification(u"beta"_s), alpha));
    EXPECT_THAT(factory->bound, IsEmpty()) << "it is installed, and not this manager's";
    const auto registry = alpha->registry();
    ASSERT_TRUE(registry);
    EXPECT_EQ(registry->primarySpecification(), alpha);
    EXPECT_EQ(registry->specifications(), manager->specifications());
    EXPECT_EQ(registry->entry(u"beta"_s)->specification(), specification(u"beta"_s));
    own->failing = u"summary"_s;
    EXPECT_THAT(alpha->summaryViewController(u"1"_s), IsNull());
    EXPECT_EQ(contents(manager->detailLookup(alpha->entry(u"1"_s))), u"alpha 1"_s);

    SpecificationManager other;
    other.setSpecifications({alpha});
    manager->setSpecifications({});
    EXPECT_EQ(alpha->registry()->specifications(), other.specifications()) << "it was taken over";
    EXPECT_EQ(contents(alpha->summaryViewController(u"1"_s)), u"alpha 1"_s);
    other.setSpecifications({});
    EXPECT_EQ(alpha->registry(), nullptr);

    manager->setSpecifications({alpha});
    EXPECT_EQ(alpha->registry(), registry);
    manager.reset();
    EXPECT_EQ(registry->entry(u"1"_s), nullptr) << "whoever holds it learns nothing more";
    EXPECT_THAT(registry->specifications(), IsEmpty());
}

TEST_F(Lookup, MakesNoViewsWithoutWindows)
{
    ViewControllerFactory::install(nullptr);
    import(u"alpha"_s);
    displayDetails();
    offerImport();
    EXPECT_THAT(manager->summaryLookup(u"1"_s), IsNull());
    EXPECT_THAT(manager->makeNoSpecsController(), IsNull());
    EXPECT_THAT(manager->auxiliaryFileBrowser(), IsNull());
    manager->showAuxiliaryFileBrowser();
    const QStringList messages = log.takeMessages();
    EXPECT_EQ(messages.size(), 4);
    for (const QString &message : messages)
        EXPECT_EQ(message, u"No view can be made, since Tavrin::Widgets isn't linked"_s);
    manager->showDetailViewController(u"1"_s);
    manager->showDetailViewController(specification(u"alpha"_s));
    EXPECT_THAT(manager->detailLookup(manager->entry(u"1"_s)), IsNull());
    EXPECT_THAT(displayed, IsEmpty());
    EXPECT_THAT(browsers, IsEmpty());
}

using LookupDeathTest = Lookup;

template <class Action>
static void withPlainLog(Action action)
{
    qInstallMessageHandler(nullptr);
    action();
}

TEST_F(LookupDeathTest, StopsWhereViewsThatNeedNothingCannotBeMade)
{
    import(u"alpha"_s);
    factory->failing = u"summary"_s;
    EXPECT_DEATH(withPlainLog([this] { manager->summaryLookup(u"nonsense"_s); }),
                 "Couldn't initialize summary view controller");
    factory->failing = u"browser"_s;
    EXPECT_DEATH(withPlainLog([this] { manager->auxiliaryFileBrowser(); }),
                 "Tavrin was unable to initialize the auxiliary file browser");
}
