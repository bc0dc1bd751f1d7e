// SPDX-License-Identifier: Apache-2.0
// Starting with 50 maps and 50 imported documents, against the engines alone: reading a map as
// often as it has to be, opening a document and reading its first page each time that it is offered
// to a map, and reading the page tree and the names of what is bound. In one figure the order of
// names lets every map find its document at once, in the other as late as can be.
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>

#include <algorithm>
#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <numeric>
#include <stdexcept>
#include <thread>
#include <vector>

#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/pdfspec/PDFSpecification.h>
#include <Tavrin/platform/HostApplication.h>

#include <support/BareEngine.h>
#include <support/BareXML.h>
#include <support/Figures.h>
#include <support/RatioBenchmark.h>

namespace Tavrin::Benchmarks
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int documentCount = 50;

/// Documents that there are sample maps of.
const std::array<QString, 3> names{u"icccm"_s, u"slepc"_s, u"theora"_s};

void require(bool condition, const char *what)
{
    if (!condition)
        throw std::runtime_error(what);
}

/// Which document is the map of this number made for; 17 maps of each follow one another.
std::size_t kindOfMap(int number)
{
    return std::size_t(number) * names.size() / documentCount;
}

/// Does the work as a program that has just been started: nothing is remembered from run to run.
void inNewProcess(const std::function<void()> &work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        try {
            work();
        } catch (const std::exception &error) {
            std::fprintf(stderr, "%s\n", error.what());
            ::_exit(1);
        }
        ::_exit(0);
    }
    int status = -1;
    require(::waitpid(child, &status, 0) == child && status == 0, "the start failed");
}

/// A host's maps, and what its user imported.
class Installation
{
public:
    enum class Order { Same, Opposite };

    explicit Installation(Order order) : m_order(order)
    {
        for (int number = 0; number < documentCount; ++number) {
            const QString sample = QStringLiteral(TAVRIN_SAMPLES "/") + names[kindOfMap(number)];
            copy(sample + u".xml"_s, mapFile(number, u"xml"_s));
            copy(QStringLiteral(TAVRIN_SAMPLES "/spec.dtd"), mapFile(number, u"dtd"_s));
            copy(corpusDocument(names[kindOfFile(number)] + u".pdf"_s), storedFile(number));
        }
        // Users don't start in the second in which they import.
        std::this_thread::sleep_for(std::chrono::milliseconds(1100));
    }

    void start() const
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_directory.filePath(u"data"_s)));
        setHostIdentifier(u"host"_s);
        Specification::registerSpecType(
            SpecType::of<PDFSpecification>([](PDFSpecification &specification) {
                specification.setReadingPolicy(PDFReadingPolicy::Common);
            }),
            true, [](const Specification &) { return true; });
        // A host that has started keeps it.
        auto *manager = new SpecificationManager;
        manager->loadSpecInformation(QUrl::fromLocalFile(m_directory.filePath(u"maps"_s)));
        const auto &specifications = manager->specifications();
        require(specifications.size() == documentCount &&
                    std::all_of(specifications.begin(), specifications.end(),
                                [](const auto &specification) {
                                    return specification->areFileRequirementsSatisfied();
                                }),
                "a document was not bound");
    }

    /// What the engines have to do for it: a map is read, all documents that are free are offered
    /// to it, in order, until it has one.
    void readBare() const
    {
        std::vector<int> free(documentCount);
        std::iota(free.begin(), free.end(), 0);
        for (int map = 0; map < documentCount; ++map) {
            parseAndValidate(m_directory.filePath(mapFile(map, u"xml"_s)),
                             m_directory.filePath(mapFile(map, u"dtd"_s)));
            const auto taken = std::find_if(free.begin(), free.end(), [&](int file) {
                auto engine = std::make_unique<BareEngine>(m_directory.filePath(storedFile(file)));
                fz_drop_stext_page(engine->context, engine->structuredText(0));
                if (kindOfFile(file) != kindOfMap(map))
                    return false;
                require(engine->readPageTree() > 0, "a document has no pages");
                benchmark::DoNotOptimize(engine->readNames());
                // A document that is bound stays open.
                static_cast<void>(engine.release());
                return true;
            });
            free.erase(taken);
        }
    }

private:
    static QString mapFile(int number, const QString &extension)
    {
        return u"maps/%1.%2"_s.arg(number, 2, 10, QChar(u'0')).arg(extension);
    }
    static QString storedFile(int number)
    {
        return u"data/tavrin/host/%1.pdf"_s.arg(number, 2, 10, QChar(u'0'));
    }
    std::size_t kindOfFile(int number) const
    {
        return kindOfMap(m_order == Order::Same ? number : documentCount - 1 - number);
    }
    void copy(const QString &from, const QString &to) const
    {
        const QString target = m_directory.filePath(to);
        QDir().mkpath(QFileInfo(target).path());
        require(QFile::copy(from, target), "a file can't be copied");
    }

    QTemporaryDir m_directory;
    Order m_order;
};

void registerFigure(const std::string &name, Installation::Order order)
{
    const auto installation = std::make_shared<Installation>(order);
    registerRatio({.name = name,
                   .limit = 1.3,
                   .floor = [=] { inNewProcess([&] { installation->readBare(); }); },
                   .measured = [=] { inNewProcess([&] { installation->start(); }); }});
}

} // namespace

void registerStartUpFigures()
{
    for (const QString &name : names) {
        if (corpusDocument(name + u".pdf"_s).isEmpty())
            return;
    }
    registerFigure("start with 50 maps and PDFs in one order / engines", Installation::Order::Same);
    registerFigure("start with 50 maps and PDFs in opposite order / engines",
                   Installation::Order::Opposite);
}

} // namespace Tavrin::Benchmarks
