// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>

#include <Tavrin/platform/PDFEngine.h>
#include <Tavrin/platform/mupdf/MuPDFSession.h>

namespace Tavrin::MuPDFPainter
{

/// Draws an area of page space; see PDFEngineDocument::draw. The caller holds the session's lock.
QImage paint(const MuPDFSession &session, int page, const PageGeometry &geometry, const Rect &area,
             const PageDrawing &drawing);

} // namespace Tavrin::MuPDFPainter
