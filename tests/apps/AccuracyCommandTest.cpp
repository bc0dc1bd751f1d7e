// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include "DraftedManual.h"

namespace
{

/// A table of what the manual's last section really holds.
class AccuracyCommand : public DraftedManual
{
protected:
    struct Row {
        QByteArray title = "Things to do last";
        QByteArray page = "3";
        QByteArray baseline = "380";
        QByteArray body = "Text that goes on and on, at height 360, in a plain style.";
    };

    static QString table(const Row &row)
    {
        return written("# a comment\nkind\tlabel\ttitle\ty\ttx\tty\tttop\ttpage\tok\tbody\tbodyok\n"
                       "section\t3.2\t" +
                       row.title + "\t\t72\t" + row.baseline + "\t392\t" + row.page + "\t1\t" +
                       row.body + "\t1\n");
    }

    static QString written(const QByteArray &text)
    {
        files().write(u"truth.tsv"_s, text);
        return files().path(u"truth.tsv"_s);
    }

    static ProgramRun measure(const QString &truth, const QStringList &options = {})
    {
        return runTavrin(QStringList{u"accuracy"_s, map(), pdf(), truth} + options);
    }

    static QJsonObject share(const QString &truth, const QString &name)
    {
        return measure(truth, {u"--json"_s}).object()[name].toObject();
    }
};

} // namespace

TEST_F(AccuracyCommand, AcceptsWhatIsReadRight)
{
    const ProgramRun run = measure(table({}), {u"--min-places"_s, u"100"_s});
    EXPECT_EQ(run.exitCode, 0) << run.output.toStdString() << run.errors.toStdString();
    for (const QString &name : {u"places"_s, u"headings"_s, u"first-words"_s}) {
        const QJsonObject found = share(table({}), name);
        EXPECT_EQ(found[u"right"_s].toInt(), 1) << name.toStdString();
        EXPECT_EQ(found[u"all"_s].toInt(), 1) << name.toStdString();
    }
}

TEST_F(AccuracyCommand, TellsWhatIsReadWrong)
{
    const QString elsewhere = table({.page = "2"});
    EXPECT_EQ(share(elsewhere, u"places"_s)[u"right"_s].toInt(), 0);
    EXPECT_EQ(measure(elsewhere, {u"--min-places"_s, u"100"_s}).exitCode, 1);
    EXPECT_EQ(measure(elsewhere, {u"--min-places"_s, u"0"_s, u"--min-headings"_s, u"0"_s}).exitCode,
              0);

    const QString otherText = table({.body = "Words that the manual has nowhere in this chapter"});
    EXPECT_EQ(share(otherText, u"first-words"_s)[u"right"_s].toInt(), 0);
    const ProgramRun run = measure(otherText, {u"--faults"_s});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.output, Holds(u"3.2"_s));
}

TEST_F(AccuracyCommand, RefusesWhatIsNoTable)
{
    const auto refused = [](const QString &truth, const QString &fault) {
        expectRefusal(measure(truth), fault);
    };
    refused(table({.baseline = "low"}), u"truth.tsv:3: ty \"low\" is no number"_s);
    refused(written("kind\tlabel\n"), u"truth.tsv:1: no column is named \"title\""_s);
    refused(written("# nothing\n"), u"truth.tsv: no table of what a document holds"_s);
    refused(files().path(u"none.tsv"_s), u"none.tsv: can't be read"_s);
    EXPECT_EQ(measure(table({}), {u"--min-places"_s, u"101"_s}).exitCode, 2);
}
