// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/mupdf/MuPDFDocument.h>

#include <Tavrin/platform/HostPDFError.h>
#include <Tavrin/platform/mupdf/MuPDFAnnotationReader.h>
#include <Tavrin/platform/mupdf/MuPDFGlyphReader.h>
#include <Tavrin/platform/mupdf/MuPDFOutlineReader.h>
#include <Tavrin/platform/mupdf/MuPDFPageTree.h>
#include <Tavrin/platform/mupdf/MuPDFPainter.h>

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

namespace Tavrin
{

namespace
{

using Clock = std::chrono::steady_clock;
/// Waiting for a lock by the steady clock is a call that thread sanitizers don't know.
using WaitingClock = std::chrono::system_clock;

/// Adds the time that it took.
std::vector<std::unique_ptr<MuPDFSession>> firstSession(const MuPDFSource &source,
                                                        Clock::duration &time)
{
    const auto begin = Clock::now();
    std::vector<std::unique_ptr<MuPDFSession>> sessions;
    sessions.push_back(std::make_unique<MuPDFSession>(source));
    time += Clock::now() - begin;
    return sessions;
}

} // namespace

MuPDFDocument::MuPDFDocument(MuPDFSource source)
    : m_source(std::move(source)),
      m_sessions(firstSession(m_source, m_openingTime)),
      m_first(*m_sessions.front()),
      m_sessionLimit(std::max(1U, std::thread::hardware_concurrency())),
      m_objects(*m_sessions.front())
{
    const auto begin = Clock::now();
    m_pageCount = MuPDFPageTree::repair(first());
    m_openingTime += Clock::now() - begin;
}

MuPDFDocument::~MuPDFDocument() = default;

MuPDFDocument::Lease MuPDFDocument::anySession() const
{
    bool mayOpen = false;
    const MuPDFSession *busy = nullptr;
    {
        const std::scoped_lock pool(m_poolMutex);
        for (const auto &session : m_sessions) {
            std::unique_lock lock(session->mutex(), std::try_to_lock);
            if (lock.owns_lock())
                return {*session, std::move(lock)};
        }
        busy = m_sessions.back().get();
        mayOpen = m_sessions.size() < m_sessionLimit;
    }
    if (!mayOpen)
        return {*busy, std::unique_lock(busy->mutex())};
    // Most of what is done with a page is done sooner than the file is opened once more.
    std::unique_lock lock(busy->mutex(), WaitingClock::now() + m_openingTime);
    if (lock.owns_lock())
        return {*busy, std::move(lock)};
    const MuPDFSession &last = openedSession();
    return {last, std::unique_lock(last.mutex())};
}

const MuPDFSession &MuPDFDocument::openedSession() const
{
    // One at a time, so that there are no more than the limit; the pool serves on meanwhile.
    const std::scoped_lock opening(m_openingMutex);
    std::unique_ptr<MuPDFSession> session;
    if (sessionCount() < m_sessionLimit) {
        try {
            session = std::make_unique<MuPDFSession>(m_source);
            MuPDFPageTree::repair(*session);
        } catch (const HostPDFError &) {
            // The file has gone or changed meanwhile; what is open serves on.
            session.reset();
        }
    }
    const std::scoped_lock pool(m_poolMutex);
    if (session)
        m_sessions.push_back(std::move(session));
    return *m_sessions.back();
}

std::size_t MuPDFDocument::sessionCount() const
{
    const std::scoped_lock pool(m_poolMutex);
    return m_sessions.size();
}

std::optional<PageGeometry> MuPDFDocument::pageGeometry(int page) const
{
    const std::scoped_lock lock(first().mutex());
    return hasPage(page) ? MuPDFPageTree::geometry(first(), page) : std::nullopt;
}

std::optional<PageGlyphs> MuPDFDocument::pageGlyphs(int page) const
{
    const Lease lease = anySession();
    const auto geometry =
        hasPage(page) ? MuPDFPageTree::geometry(lease.session, page) : std::nullopt;
    return geometry ? MuPDFGlyphReader(lease.session, *geometry).read(page) : std::nullopt;
}

QImage MuPDFDocument::draw(int page, const Rect &area, const PageDrawing &drawing) const
{
    const Lease lease = anySession();
    const auto geometry =
        hasPage(page) ? MuPDFPageTree::geometry(lease.session, page) : std::nullopt;
    return geometry ? MuPDFPainter::paint(lease.session, page, *geometry, area, drawing) : QImage();
}

std::optional<QString> MuPDFDocument::pageLabel(int page) const
{
    const std::scoped_lock lock(first().mutex());
    if (!m_pageLabels)
        m_pageLabels = std::make_unique<MuPDFPageLabels>(first());
    return hasPage(page) ? m_pageLabels->label(page) : std::nullopt;
}

const MuPDFDestinations &MuPDFDocument::destinations() const
{
    if (!m_destinations)
        m_destinations = std::make_unique<MuPDFDestinations>(first(), m_pageCount);
    return *m_destinations;
}

std::vector<PDFAnnotationRecord> MuPDFDocument::annotations(int page) const
{
    const std::scoped_lock lock(first().mutex());
    if (!hasPage(page))
        return {};
    return MuPDFAnnotationReader::read(first(), destinations(), page);
}

std::vector<PDFOutlineItem> MuPDFDocument::outline() const
{
    const std::scoped_lock lock(first().mutex());
    return MuPDFOutlineReader::read(first(), destinations());
}

QHash<QString, QString> MuPDFDocument::attributes() const
{
    const std::scoped_lock lock(first().mutex());
    QHash<QString, QString> result;
    fz_context *context = first().context();
    pdf_obj *info = nullptr;
    first().run([&info](fz_context *c, pdf_document *document) {
        info = pdf_resolve_indirect_chain(
            c, pdf_dict_get(c, pdf_trailer(c, document), PDF_NAME(Info)));
    });
    for (int index = 0; index < pdf_dict_len(context, info); ++index) {
        const char *text = nullptr;
        first().run([=, &text](fz_context *c, pdf_document *) {
            pdf_obj *value = pdf_dict_get_val(c, info, index);
            text = pdf_is_string(c, value) ? pdf_to_text_string(c, value) : nullptr;
        });
        if (text) {
            const char *key = pdf_to_name(context, pdf_dict_get_key(context, info, index));
            result.insert(QString::fromUtf8(key), QString::fromUtf8(text));
        }
    }
    return result;
}

} // namespace Tavrin
