// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QUrl>

#include <optional>
#include <vector>

namespace Tavrin
{

/// The directory of the files that users gave to this host: one flat directory, without an index,
/// for each host of the library. Trouble with it is logged and never thrown. Several processes may
/// use it at once.
namespace AuxiliaryFileStore
{

/// The directory, made if need be. Absent, which is logged, if there is no place for one, and
/// absent without a word if it can't be made.
std::optional<QString> directory();

/// The files in it, by name, without hidden ones; also takes away what a crash left half written.
/// Makes no directory: without one there are no files.
std::vector<QUrl> files();

/// Copies a file into the store, under its own name or, where something has that name, the next
/// free one: report.pdf, report_1.pdf, report_2.pdf. The copy is there whole or not at all.
/// Returns where it is; the source itself if it can't be stored.
QUrl add(const QUrl &source);

/// Deletes a stored file, a locked one too. Files outside the store are left alone.
void remove(const QUrl &file);

} // namespace AuxiliaryFileStore

} // namespace Tavrin
