// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/audit/HTMLAuditWriter.h>

#include <QIODevice>

#include <optional>

#include <Tavrin/audit/HTMLAuditPage.h>

namespace Tavrin
{

void HTMLAuditWriter::write(const AuditReport &report, QIODevice &device,
                            const Progress &progress) const
{
    const HTMLAuditPage page(report);
    put(device, page.opening());
    std::optional<std::size_t> chapter;
    std::size_t done = 0;
    for (const AuditReport::Citation &citation : report.citations) {
        if (chapter != citation.chapter) {
            chapter = citation.chapter;
            put(device, page.chapter(*chapter));
        }
        put(device, page.entry(citation));
        tell(progress, ++done, report.citations.size());
    }
    put(device, page.closing());
}

} // namespace Tavrin
