// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/PDFEngine.h>

namespace Tavrin
{

// Out of line, so that each class has one home for its virtual table.
PDFObjectParser::~PDFObjectParser() = default;
PDFEngineDocument::~PDFEngineDocument() = default;
PDFEngine::~PDFEngine() = default;

} // namespace Tavrin
