// SPDX-License-Identifier: Apache-2.0
// How much memory a big document takes at the most: its summaries against the engine's own text of
// all pages, held at once, and making a whole map, and an audit of everything, against the
// summaries.
//
// usage: tavrin_memory_benchmark [--check]
//
// Each work is done by a process of its own, this program with the work's name, so that no one
// finds memory that another has left; what a process needs that does nothing is taken off.
#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTextStream>

#include <map>
#include <stdexcept>

#include <Tavrin/audit/PDFSpecAuditor.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>

#include <support/BareEngine.h>
#include <support/RatioBenchmark.h>
#include <support/Workloads.h>

using namespace Tavrin;
using namespace Tavrin::Benchmarks;
using namespace Qt::StringLiterals;

namespace
{

void holdStructuredText(const QString &pdf)
{
    const BareEngine engine(pdf);
    std::vector<fz_stext_page *> pages;
    for (int index = 0; index < engine.pageCount(); ++index)
        pages.push_back(engine.structuredText(index));
    for (fz_stext_page *page : pages)
        fz_drop_stext_page(engine.context, page);
}

void readSummaries(const QString &map, const QString &pdf)
{
    const auto specification = bound(map, pdf);
    for (const auto &entry : specification->entries())
        std::dynamic_pointer_cast<PDFSpecification::Entry>(entry)->computeDisplay();
}

/// A report over everything, into a device that keeps nothing.
void writePage(const QString &map, const QString &pdf)
{
    const auto specification = bound(map, pdf);
    std::vector<AuditReference> references;
    for (const auto &entry : specification->entries())
        references.push_back({entry->label(), {}, {}});
    QFile nowhere(QProcess::nullDevice());
    if (!nowhere.open(QIODevice::WriteOnly))
        throw std::runtime_error("there is no device that takes everything");
    PDFSpecAuditor::write(PDFSpecAuditor(specification).report(references), AuditFormat::HTML,
                          nowhere);
}

using Work = std::function<void(const QString &map, const QString &pdf)>;

const std::map<QString, Work> &works()
{
    static const std::map<QString, Work> all = {
        {u"nothing"_s, [](const QString &, const QString &) {}},
        {u"engine"_s, [](const QString &, const QString &pdf) { holdStructuredText(pdf); }},
        {u"summaries"_s, readSummaries},
        {u"page"_s, writePage},
        {u"enhance"_s, [](const QString &map, const QString &pdf) { enhanced(map, pdf); }},
    };
    return all;
}

/// The most memory that this process has had, in MiB, by the system's account.
double peak()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        throw std::runtime_error("the system doesn't tell how much memory a process takes");
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).simplified().split(' ').first().toDouble() / 1024;
    }
    throw std::runtime_error("the system doesn't tell the most memory of a process");
}

/// The peak of a process that does the work, which is the last line that it prints.
double measured(const QString &work, const QString &map, const QString &pdf)
{
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(QCoreApplication::applicationFilePath(), {work, map, pdf});
    constexpr int longest = 10 * 60 * 1000;
    if (!process.waitForFinished(longest) || process.exitCode() != 0)
        throw std::runtime_error("no memory was measured for " + work.toStdString());
    return process.readAllStandardOutput().trimmed().split('\n').last().toDouble();
}

/// Prints a figure, and tells whether it is within its limit.
bool report(const char *name, double floor, double value, double limit)
{
    const double ratio = value / floor;
    std::printf("%-52s %12.1f %12.1f %8.2f %8.2f%s\n", name, floor, value, ratio, limit,
                ratio <= limit ? "" : "  OVER");
    return ratio <= limit;
}

bool measureAll()
{
    const QString pdf = corpusDocument(u"cplusplus.pdf"_s);
    if (pdf.isEmpty())
        return true;
    const Skeleton skeleton(pdf);
    const auto net = [&](const QString &work) {
        return measured(work, skeleton.path(), pdf) - measured(u"nothing"_s, skeleton.path(), pdf);
    };
    const double summaries = net(u"summaries"_s);
    std::printf("%-52s %12s %12s %8s %8s\n", "", "floor MiB", "measured MiB", "ratio", "limit");
    const bool reads =
        report("memory of all summaries / engine's text held", net(u"engine"_s), summaries, 3);
    const bool makes =
        report("memory of a whole map / of all summaries", summaries, net(u"enhance"_s), 2);
    const bool writes =
        report("memory of an audit as HTML / of all summaries", summaries, net(u"page"_s), 1.3);
    return reads && makes && writes;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    try {
        if (const auto work = works().find(arguments.value(1)); work != works().end()) {
            work->second(arguments.value(2), arguments.value(3));
            std::printf("\n%f\n", peak());
            return 0;
        }
        return measureAll() || !arguments.contains(u"--check"_s) ? 0 : 1;
    } catch (const std::exception &error) {
        QTextStream(stderr) << "memory benchmark: " << error.what() << '\n';
        return 1;
    }
}
