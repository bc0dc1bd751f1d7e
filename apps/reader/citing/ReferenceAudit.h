// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include <Tavrin/interface/toolkit/ViewController.h>
#include <Tavrin/manager/EntryFinder.h>
#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/model/ReferenceCoverage.h>
#include <Tavrin/pdfspec/PDFSpecification.h>

namespace Tavrin::Reader
{

/// References of a work held against the specification that most of them lead into.
class ReferenceAudit
{
public:
    ReferenceAudit(EntryFinder &finder, const ReferenceCoverage &references);

    /// Null if no reference leads into a specification whose PDF is there.
    const std::shared_ptr<PDFSpecification> &specification() const { return m_specification; }
    /// Those that lead into the specification, as spec URLs, and those that lead nowhere, as they
    /// are: an audit tells of them.
    const ReferenceCoverage &references() const { return m_references; }
    /// The first one's that leads into the specification; null without a specification.
    const std::shared_ptr<SpecificationEntry> &firstEntry() const { return m_firstEntry; }

    /// A browser of them that opens entries by the manager, with a column for what refers.
    ViewControllerPtr browser(SpecificationManager &manager) const;

    /// The references of a file, one a line. Throws what is wrong with the file.
    static ReferenceCoverage readFile(const QString &path);

private:
    std::shared_ptr<PDFSpecification> m_specification;
    ReferenceCoverage m_references;
    std::shared_ptr<SpecificationEntry> m_firstEntry;
};

} // namespace Tavrin::Reader
