// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <map>
#include <optional>

#include <Tavrin/platform/mupdf/MuPDFSession.h>

namespace Tavrin
{

/// The printed page numbers that a document declares (ISO 32000-1, 12.4.2).
class MuPDFPageLabels
{
public:
    /// Reads the number tree, each node once. The caller holds the session's lock.
    explicit MuPDFPageLabels(const MuPDFSession &session);

    /// Nothing where the document declares no labels.
    std::optional<QString> label(int page) const;

private:
    struct Range {
        QString prefix;
        char style = 0;
        int first = 1;
    };

    void readNode(const MuPDFSession &session, pdf_obj *node);

    /// By the index of the first page of the range.
    std::map<int, Range> m_ranges;
};

} // namespace Tavrin
