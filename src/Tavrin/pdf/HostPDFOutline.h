// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <memory>
#include <optional>
#include <vector>

#include <Tavrin/CoreExport.h>
#include <Tavrin/pdf/HostPDFDestination.h>
#include <Tavrin/platform/PDFEngine.h>

namespace Tavrin
{

class HostPDFDocument;

/// One item of a document's outline: a light handle into a table that all items share, so an
/// outline of any depth is copied and dropped in constant stack. Immutable; any thread.
///
/// The places that it leads to are absent once the document is gone; labels stay. Most documents
/// have GoTo actions, so that a host which wants the place of an item asks for both, or
/// PDFSpecification::destination().
class TAVRIN_CORE_EXPORT HostPDFOutline
{
public:
    struct Table;

    /// Nothing for the root and for items without a title.
    std::optional<QString> label() const;

    /// Where the item's own "Dest" leads.
    std::optional<HostPDFDestination> destination() const;

    /// Where its GoTo action leads; most producers write this in place of "Dest".
    std::optional<HostPDFDestination> actionDestination() const;

    /// Of those right below this item.
    qsizetype numberOfChildren() const;
    /// The child at a position from 0; absent beyond the count.
    std::optional<HostPDFOutline> childAtIndex(qsizetype index) const;

    /// Same item of the same document.
    friend bool operator==(const HostPDFOutline &, const HostPDFOutline &) = default;

private:
    friend class HostPDFDocument;
    HostPDFOutline(std::shared_ptr<const Table> table, std::size_t index);

    static std::shared_ptr<const Table> makeTable(const std::vector<PDFOutlineItem> &items,
                                                  const std::shared_ptr<HostPDFDocument> &document);

    std::shared_ptr<const Table> m_table;
    std::size_t m_index = 0;
};

} // namespace Tavrin
