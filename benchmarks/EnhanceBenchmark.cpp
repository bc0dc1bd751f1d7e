// SPDX-License-Identifier: Apache-2.0
// Making a whole map of a big document (links, keywords, related entries) from a drafted one,
// against the engine's own structured text of all its pages; and how the relations grow.
#include <Tavrin/platform/StandardError.h>
#include <Tavrin/platform/StandardOutput.h>

#include <support/Figures.h>
#include <support/RatioBenchmark.h>
#include <support/Workloads.h>

namespace Tavrin::Benchmarks
{

using namespace Qt::StringLiterals;

namespace
{

/// Keeps what is printed out of the table of figures.
struct Silence {
    StandardErrorRedirection errors{[](const QString &) {}};
    StandardOutputRedirection output{[](const QString &) {}};
};

/// Entries of one document, and the first half of them: from the one to the other the pages, the
/// terms and what is shared all double.
struct Doubling {
    Doubling(const QString &skeleton, const QString &pdf)
    {
        const Silence silence;
        enhancer = enhanced(skeleton, pdf);
        all = enhancer->sortedEntries();
        half.assign(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(all.size() / 2));
    }

    void relate(const std::vector<PDFXMLEnhancer::PDFEntryPtr> &entries) const
    {
        enhancer->setSortedEntries(entries);
        enhancer->computeRelatedEntries();
    }

    std::shared_ptr<PDFXMLEnhancer> enhancer;
    std::vector<PDFXMLEnhancer::PDFEntryPtr> all;
    std::vector<PDFXMLEnhancer::PDFEntryPtr> half;
};

} // namespace

void registerEnhanceFigures()
{
    const QString path = corpusDocument(u"cplusplus.pdf"_s);
    if (path.isEmpty())
        return;
    const auto skeleton = std::make_shared<Skeleton>(path);
    registerRatio({"a whole map of 1,151 pages / engine's text", 4, [path] { bareTextPass(path); },
                   [path, skeleton] {
                       const Silence silence;
                       benchmark::DoNotOptimize(
                           enhanced(skeleton->path(), path)->writeSpecToXMLString({}));
                   }});
    const auto doubling = std::make_shared<Doubling>(skeleton->path(), path);
    registerRatio({"related entries of all / of half the document", 2.5,
                   [doubling] { doubling->relate(doubling->half); },
                   [doubling] { doubling->relate(doubling->all); }});
}

} // namespace Tavrin::Benchmarks
