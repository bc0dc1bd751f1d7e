// SPDX-License-Identifier: Apache-2.0
// Text, styled text and lines of every page of a big document, against the engine's own
// structured text of the same pages.
#include <QUrl>

#include <Tavrin/pdf/CachingPDFDocument.h>
#include <Tavrin/pdf/LineFinder.h>

#include <support/Figures.h>
#include <support/RatioBenchmark.h>
#include <support/Workloads.h>

namespace Tavrin::Benchmarks
{

using namespace Qt::StringLiterals;

namespace
{

void readEveryPage(const QString &path)
{
    const auto document = CachingPDFDocument::open(QUrl::fromLocalFile(path));
    for (int index = 0; index < document->pageCount(); ++index) {
        const auto page = document->page(index);
        benchmark::DoNotOptimize(document->textFor(*page));
        benchmark::DoNotOptimize(document->attributedTextFor(*page));
        benchmark::DoNotOptimize(LineFinder::lines(*page));
    }
}

} // namespace

void registerPageTextFigures()
{
    const QString path = corpusDocument(u"cplusplus.pdf"_s);
    if (path.isEmpty())
        return;
    registerRatio({"text, styles and lines of 1,151 pages / engine's text", 1.5,
                   [path] { bareTextPass(path); }, [path] { readEveryPage(path); }});
}

} // namespace Tavrin::Benchmarks
