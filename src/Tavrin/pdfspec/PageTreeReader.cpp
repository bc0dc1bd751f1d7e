// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/PageTreeReader.h>

#include <Tavrin/pdf/PDFArray.h>

#include <QSet>

namespace Tavrin::PageTreeReader
{

std::vector<PDFDictionaryPtr> leaves(const PDFDictionaryPtr &root)
{
    std::vector<PDFDictionaryPtr> pages;
    QSet<PDFObjectHandle> visited;
    std::vector<PDFDictionaryPtr> pending{root};
    while (!pending.empty()) {
        const PDFDictionaryPtr node = pending.back();
        pending.pop_back();
        const auto kids = node->object<PDFArray>("Kids");
        if (!kids) {
            pages.push_back(node);
            continue;
        }
        const PDFObjectHandle handle = node->lowLevelObject()->handle;
        if (visited.contains(handle))
            continue;
        visited.insert(handle);
        for (auto kid = kids->objects().rbegin(); kid != kids->objects().rend(); ++kid) {
            if (auto dictionary = std::dynamic_pointer_cast<PDFDictionary>(*kid))
                pending.push_back(std::move(dictionary));
        }
    }
    return pages;
}

} // namespace Tavrin::PageTreeReader
