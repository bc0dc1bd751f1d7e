// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <memory>
#include <vector>

#include <Tavrin/pdfspec/PDFSpecification.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>

namespace Tavrin::Benchmarks
{

/// A specification with an entry for each item of a manual's outline, bound. Nothing of the
/// document's text has been read.
class Manual
{
public:
    using EntryPtr = std::shared_ptr<PDFSpecification::Entry>;

    explicit Manual(const QString &path);

    const EntryPtr &middle() const { return entries[entries.size() / 2]; }

    std::shared_ptr<PDFSpecification> specification;
    std::vector<EntryPtr> entries;

private:
    void add(const HostPDFOutline &item);
};

} // namespace Tavrin::Benchmarks
