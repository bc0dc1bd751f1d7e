// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <support/MapBuilder.h>

namespace Tavrin::Testing
{

/// A PDF of one section, "1 Scope" at 72, 512, that is told from others by a word on its first
/// page; with so many bytes more that nothing reads.
QByteArray sampleDocument(const QString &word, qsizetype padding = 0);

/// The map that recognises it, with the word as identifier.
MapBuilder sampleMap(const QString &word);

} // namespace Tavrin::Testing
