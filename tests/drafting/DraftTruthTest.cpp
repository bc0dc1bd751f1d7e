// SPDX-License-Identifier: Apache-2.0
#include <support/Corpus.h>
#include <support/Test.h>

#include <QFile>
#include <QUrl>

#include <Tavrin/drafting/MapDrafter.h>
#include <Tavrin/drafting/TextKey.h>

namespace
{

struct Heading {
    QString kind;
    QString label;
    QString title;
    int page = 0;
    double top = 0;
};

/// The headings or the captions of a table that were confirmed on their page.
std::vector<Heading> confirmed(const QString &path, const QStringList &kinds)
{
    QFile file(path);
    std::vector<Heading> result;
    if (!file.open(QIODevice::ReadOnly))
        return result;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString &line : lines) {
        const QStringList fields = line.split(u'\t');
        if (kinds.contains(fields[0]) && fields.size() > 15 && fields[15] != u"0")
            result.push_back(
                {fields[0], fields[1], fields[2], fields[12].toInt(), fields[10].toDouble()});
    }
    return result;
}

bool isHeading(const DraftEntry &entry)
{
    return isTextual(entry.type);
}

/// The number of a figure or table in a table of the truth is the one in a link's name, which
/// uncaptioned ones count too; so a caption is known by its title and place.
bool isCaption(const DraftEntry &entry, const Heading &caption)
{
    return textForm(entry.type) == caption.kind && entry.page == caption.page &&
           TextKey::fold(entry.title) == TextKey::fold(caption.title) &&
           std::abs(entry.place.y - caption.top) <= 6;
}

bool isFound(const Heading &heading, const MapDraft &draft)
{
    const auto isIt = [&](const DraftEntry &entry) {
        return entry.label == heading.label && entry.page == heading.page &&
               TextKey::fold(entry.title) == TextKey::fold(heading.title) &&
               std::abs(entry.place.y - heading.top) <= 6;
    };
    return std::any_of(draft.entries.begin(), draft.entries.end(), isIt);
}

class DraftTruthTest : public testing::TestWithParam<const char *>
{
};

} // namespace

TEST_P(DraftTruthTest, FindsHeadingsAndCaptionsWithTitlePageAndHeight)
{
    const QString name = QString::fromLatin1(GetParam());
    const auto pdf = corpusFile(name + u".pdf"_s);
    const auto truth = truthFile(name + u".tsv"_s);
    if (!pdf || !truth)
        GTEST_SKIP() << noCorpus << "; " << noTruth;
    const MapDraft draft = MapDrafter::draft(CachingPDFDocument::open(QUrl::fromLocalFile(*pdf)));
    const std::vector<Heading> wanted = confirmed(*truth, {u"chapter"_s, u"section"_s});
    ASSERT_FALSE(wanted.empty());
    const auto found = std::count_if(wanted.begin(), wanted.end(), [&](const Heading &heading) {
        return isFound(heading, draft);
    });
    EXPECT_GE(double(found), 0.99 * double(wanted.size()));
    const auto textual = std::count_if(draft.entries.begin(), draft.entries.end(), isHeading);
    EXPECT_LE(textual, wanted.size() + 10);

    const auto captions = confirmed(*truth, {u"figure"_s, u"table"_s});
    std::vector<DraftEntry> graphical = draft.entries;
    std::erase_if(graphical, isHeading);
    const auto known = std::count_if(captions.begin(), captions.end(), [&](const Heading &caption) {
        const bool isKnown =
            std::any_of(graphical.begin(), graphical.end(),
                        [&](const DraftEntry &entry) { return isCaption(entry, caption); });
        EXPECT_TRUE(isKnown || !qEnvironmentVariableIsSet("TAVRIN_VERBOSE"))
            << caption.kind.toStdString() << ' ' << caption.label.toStdString() << " on page "
            << caption.page;
        return isKnown;
    });
    EXPECT_GE(double(known), 0.97 * double(captions.size()));
    const auto right =
        std::count_if(graphical.begin(), graphical.end(), [&](const DraftEntry &entry) {
            const bool isRight =
                std::any_of(captions.begin(), captions.end(),
                            [&](const Heading &caption) { return isCaption(entry, caption); });
            EXPECT_TRUE(isRight || !qEnvironmentVariableIsSet("TAVRIN_VERBOSE"))
                << entry.label.toStdString() << ' ' << entry.title.toStdString() << " on page "
                << entry.page;
            return isRight;
        });
    EXPECT_GE(double(right), 0.99 * double(graphical.size()));
}

INSTANTIATE_TEST_SUITE_P(Corpus, DraftTruthTest,
                         testing::Values("theora", "slepc", "policy", "ngspice"));
