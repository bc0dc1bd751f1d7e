// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <memory>

#include <Tavrin/pdfspec/PDFSpecification.h>

/// What the fuzzers share. Every one of them prints nothing: standard error belongs to libFuzzer.
namespace Tavrin::Fuzzing
{

/// The input as libFuzzer holds it, not copied: valid during one run.
QByteArray bytes(const std::uint8_t *data, std::size_t size);
/// The input as UTF-8; what is none of it becomes replacement characters.
QString text(const std::uint8_t *data, std::size_t size);

/// Ends the process if a property doesn't hold, so that libFuzzer keeps the input.
void require(bool holds, const char *property);

/// A specification with entries of every type and links of every form, bound to nothing.
std::shared_ptr<PDFSpecification> specification();

} // namespace Tavrin::Fuzzing
