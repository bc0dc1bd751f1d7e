// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <memory>
#include <optional>

#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/pdfspec/PDFSpecification.h>

namespace Tavrin::Testing
{

/// The path of a real document, such as "slepc.pdf", in the folder that TAVRIN_CORPUS names;
/// nothing where the variable is not set or the file is not there. A test then skips:
///
///     if (!corpusFile(u"slepc.pdf"_s))
///         GTEST_SKIP() << noCorpus;
std::optional<QString> corpusFile(const QString &name);

/// The same for the tables of what the documents really hold, which TAVRIN_TRUTH names.
std::optional<QString> truthFile(const QString &name);

/// A sample, such as "slepc", registered and bound to its document; null where that is not there.
std::shared_ptr<PDFSpecification> bindCorpusSample(SpecificationManager &manager,
                                                   const QString &name);

inline constexpr char noCorpus[] =
    "TAVRIN_CORPUS is not set, or lacks the document; scripts/corpus fetches the documents";
inline constexpr char noTruth[] = "TAVRIN_TRUTH is not set, or lacks the table";

} // namespace Tavrin::Testing
