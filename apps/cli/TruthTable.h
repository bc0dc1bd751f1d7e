// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <optional>
#include <vector>

#include <Tavrin/model/SpecificationEntryType.h>
#include <Tavrin/platform/Geometry.h>

namespace Tavrin::Cli
{

/// What a document really holds, one row an item: read from a table with tabs between the columns,
/// the names of the columns in the first line that is no comment ("#").
struct TruthRow {
    SpecificationEntryType kind = SpecificationEntryType::Section;
    /// The number as printed.
    QString label;
    QString title;
    /// Where the heading or caption is printed: page from 0, start of its baseline, and top.
    int page = 0;
    Point baseline;
    double top = 0;
    /// The height that the document's own destination has, if it says one.
    std::optional<double> destinationY;
    /// The first characters of the text behind the heading; empty where nobody confirmed them.
    QString body;
};

/// The rows whose heading or caption was found. Throws CommandLineError.
std::vector<TruthRow> readTruth(const QString &path);

} // namespace Tavrin::Cli
