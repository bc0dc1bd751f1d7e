// SPDX-License-Identifier: Apache-2.0
// How often the tagger is right on texts that people have tagged, how fast it is on one core, and
// how long its data take to load.
//
// usage: tavrin_tagger_benchmark [--check] [--errors FILE]
//
// TAVRIN_TAGGER names the directory with gold-test.tsv and tech.tsv. --check fails where a figure
// misses its limit; --errors prints the words of one file that came out wrong.
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTextStream>

#include <algorithm>

#include <Tavrin/platform/LinguisticTagger.h>

#include <support/TaggedText.h>

using namespace Tavrin;
using namespace Tavrin::Benchmarks;
using namespace Qt::StringLiterals;

namespace
{

constexpr double leastTokensPerSecond = 1'000'000;
constexpr double longestLoadMs = 150;

class Table
{
public:
    void add(const QString &name, double value, double limit, bool isWithinLimit)
    {
        m_out << name.leftJustified(34) << QString::number(value, 'f', 2).rightJustified(12)
              << (limit > 0 ? QString::number(limit, 'f', 1) : QString()).rightJustified(12)
              << (isWithinLimit ? QString() : u"  over the limit"_s) << Qt::endl;
        m_isWithinLimits = m_isWithinLimits && isWithinLimit;
    }
    void atLeast(const QString &name, double value, double limit)
    {
        add(name, value, limit, value >= limit);
    }

    bool isWithinLimits() const { return m_isWithinLimits; }

private:
    QTextStream m_out{stdout};
    bool m_isWithinLimits = true;
};

double milliseconds(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

void addLoading(Table &table)
{
    double best = 1e9;
    for (int run = 0; run < 5; ++run) {
        QElapsedTimer timer;
        timer.start();
        English::EnglishModel::load(English::ModelDirectories::installed());
        best = std::min(best, milliseconds(timer));
    }
    table.add(u"loading, ms"_s, best, longestLoadMs, best <= longestLoadMs);
}

/// Everything that counting terms asks of a text.
int readWholly(const QString &text)
{
    int tokens = 0;
    const auto tagger = LinguisticTagger::make();
    tagger->setString(text);
    tagger->enumerateTags(
        {0, text.size()}, TagScheme::TokenType,
        [&](std::optional<LinguisticTag> type, TextRange token, TextRange, bool &) {
            if (type == LinguisticTag::Whitespace)
                return;
            ++tokens;
            tagger->tagAt(token.location, TagScheme::LexicalClass);
            tagger->lemmaAt(token.location);
        });
    return tokens;
}

void addSpeed(Table &table, const QString &text)
{
    double best = 0;
    for (int run = 0; run < 9; ++run) {
        QElapsedTimer timer;
        timer.start();
        const int tokens = readWholly(text);
        best = std::max(best, 1000.0 * tokens / milliseconds(timer));
    }
    table.atLeast(u"tokens a second, class and lemma"_s, best, leastTokensPerSecond);
}

struct Limits {
    double classes = 0;
    double lemmas = 0;
};

void addAccuracy(Table &table, const QString &name, const TaggedText &text, const Limits &limits)
{
    const auto accuracy = text.measure(*English::EnglishModel::shared(), false);
    table.atLeast(name + u", class %"_s, accuracy.classes, limits.classes);
    table.atLeast(name + u", lemma %"_s, accuracy.lemmas, limits.lemmas);
    const std::array classes = {u"noun"_s, u"verb"_s, u"adjective"_s};
    for (std::size_t index = 0; index < classes.size(); ++index)
        table.atLeast(name + u", F1 of "_s + classes[index], accuracy.nounVerbAdjectiveF1[index],
                      0);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QDir directory(qEnvironmentVariable("TAVRIN_TAGGER"));
    const TaggedText prose(directory.filePath(u"gold-test.tsv"_s));
    const TaggedText manuals(directory.filePath(u"tech.tsv"_s));
    if (prose.isEmpty() || manuals.isEmpty()) {
        QTextStream(stderr) << "tagger benchmark: left out, since TAVRIN_TAGGER names no directory "
                               "with gold-test.tsv and tech.tsv\n";
        return 0;
    }
    try {
        if (const qsizetype option = arguments.indexOf(u"--errors"_s); option > 0) {
            const TaggedText text(directory.filePath(arguments.value(option + 1)));
            text.measure(*English::EnglishModel::shared(), true);
            return 0;
        }
        Table table;
        addLoading(table);
        addSpeed(table, prose.plainText());
        addAccuracy(table, u"prose of the web"_s, prose, {96.0, 96.9});
        addAccuracy(table, u"manuals"_s, manuals, {96.4, 0});
        return arguments.contains(u"--check"_s) && !table.isWithinLimits() ? 1 : 0;
    } catch (const LinguisticTaggerError &error) {
        QTextStream(stderr) << "tagger benchmark: " << error.message << '\n';
        return 1;
    }
}
