// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QUrl>

#include <map>
#include <memory>
#include <optional>

#include <Tavrin/CoreExport.h>
#include <Tavrin/pdf/CachingPDFDocument.h>
#include <Tavrin/platform/HostPDFError.h>

namespace Tavrin
{

/// While one lives, a PDF that is opened on this thread to see which specification it belongs to
/// stays open until it is bound, and why one can't be opened is known. Where they nest, the
/// outermost counts.
///
/// Only the file looked at last is remembered, since dozens may be offered; and those that a host
/// has opened itself.
class TAVRIN_CORE_EXPORT CandidateReading
{
public:
    CandidateReading();
    ~CandidateReading();
    CandidateReading(const CandidateReading &) = delete;
    CandidateReading &operator=(const CandidateReading &) = delete;

    /// Opens a file that is going to be offered, and remembers it. Throws HostPDFError.
    std::shared_ptr<CachingPDFDocument> open(const QUrl &url);

    /// The document of a file, open already if anything lives that remembers it. Throws
    /// HostPDFError.
    static std::shared_ptr<CachingPDFDocument> document(const QUrl &url);
    /// Why the file looked at last couldn't be opened; nothing if that is another or was opened.
    static std::optional<HostPDFError> failure(const QUrl &url);

private:
    /// A file with its document, or with the reason why there is none.
    struct Candidate {
        QUrl url;
        std::shared_ptr<CachingPDFDocument> document;
        std::optional<HostPDFError> failure;
    };
    static Candidate read(const QUrl &url);

    static thread_local CandidateReading *s_outermost;

    std::map<QUrl, std::shared_ptr<CachingPDFDocument>> m_opened;
    std::optional<Candidate> m_last;
};

} // namespace Tavrin
