// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include <memory>
#include <vector>

#include <Tavrin/interface/detail/CoverageMarks.h>
#include <Tavrin/interface/toolkit/BackgroundWork.h>
#include <Tavrin/model/ReferenceCoverage.h>
#include <Tavrin/pdfspec/PDFSpecificationEntry.h>

namespace Tavrin
{

/// Finds the places of references in a document, in the background.
///
/// The specification and the entries live until that is done. A file may be bound to the
/// specification meanwhile, which waits for one entry at most; places in the file before it are
/// worth nothing then, and no result comes. Dropping the object calls off what hasn't begun, and
/// nothing is told any more. Main thread.
class CoverageComputation : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Looks the labels up and begins. An entry without a place is told in the log. Once.
    void start(const std::shared_ptr<PDFSpecification> &specification,
               const ReferenceCoverage &coverage);

Q_SIGNALS:
    /// The share of the references that came before the one just found: below 1.0. Not each is
    /// told where they come quickly.
    void progressed(double share);
    void finished(const CoverageMarks::Marks &marks);
    /// Another file was bound meanwhile.
    void outdated();

private:
    std::unique_ptr<BackgroundWork> m_work;
};

} // namespace Tavrin
