// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMimeData>

#include <memory>
#include <optional>

#include <Tavrin/interface/tokens/TokenContent.h>

namespace Tavrin
{

/// What a token field puts on the clipboard and into drags: plain text for all, and beside it,
/// under a type of its own, CBOR (RFC 8949) that keeps what the tokens stand for: an array with a
/// string for each run of text, and an array of one for each token.
///
/// Objects that CBOR can't carry leave the text alone.
namespace TokenMimeData
{

std::unique_ptr<QMimeData> make(const TokenContent &content, const QString &text);
/// Tokens come without their display strings. Absent if there are none, or if the data is not as
/// make() writes it; anybody may have written it.
std::optional<TokenContent> read(const QMimeData &data);

} // namespace TokenMimeData

} // namespace Tavrin
