// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <memory>
#include <mutex>
#include <vector>

#include <Tavrin/platform/PDFEngine.h>
#include <Tavrin/platform/mupdf/MuPDFDestinations.h>
#include <Tavrin/platform/mupdf/MuPDFObjectParser.h>
#include <Tavrin/platform/mupdf/MuPDFPageLabels.h>
#include <Tavrin/platform/mupdf/MuPDFSession.h>

namespace Tavrin
{

/// A document as MuPDF reads it.
///
/// The engine reads one document from one thread at a time. So the file is opened again, up to
/// once a processor, when several threads want pages; with one thread it is opened once.
class MuPDFDocument : public PDFEngineDocument
{
public:
    /// Throws HostPDFError.
    explicit MuPDFDocument(MuPDFSource source);
    ~MuPDFDocument() override;

    int pageCount() const override { return m_pageCount; }
    std::optional<PageGeometry> pageGeometry(int page) const override;
    std::optional<PageGlyphs> pageGlyphs(int page) const override;
    std::optional<QString> pageLabel(int page) const override;
    std::vector<PDFAnnotationRecord> annotations(int page) const override;
    QImage draw(int page, const Rect &area, const PageDrawing &drawing) const override;
    QHash<QString, QString> attributes() const override;
    std::vector<PDFOutlineItem> outline() const override;
    const PDFObjectParser &objects() const override { return m_objects; }

private:
    /// A session of one's own, locked.
    struct Lease {
        const MuPDFSession &session;
        std::unique_lock<std::timed_mutex> lock;
    };
    Lease anySession() const;
    /// Opens the file once more if that may be; the session opened last.
    const MuPDFSession &openedSession() const;
    std::size_t sessionCount() const;
    const MuPDFSession &first() const { return m_first; }
    /// Under the lock of the first session.
    const MuPDFDestinations &destinations() const;
    bool hasPage(int page) const { return page >= 0 && page < m_pageCount; }

    MuPDFSource m_source;
    int m_pageCount = 0;
    /// How long it took to open the file.
    std::chrono::steady_clock::duration m_openingTime{};
    mutable std::mutex m_openingMutex;
    /// Of the list of sessions, which only grows.
    mutable std::mutex m_poolMutex;
    mutable std::vector<std::unique_ptr<MuPDFSession>> m_sessions;
    /// By itself, since the list of sessions moves when it grows.
    const MuPDFSession &m_first;
    std::size_t m_sessionLimit;
    MuPDFObjectParser m_objects;
    mutable std::unique_ptr<MuPDFDestinations> m_destinations;
    mutable std::unique_ptr<MuPDFPageLabels> m_pageLabels;
};

} // namespace Tavrin
