// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdfspec/CandidateReading.h>

namespace Tavrin
{

thread_local CandidateReading *CandidateReading::s_outermost = nullptr;

CandidateReading::CandidateReading()
{
    if (!s_outermost)
        s_outermost = this;
}

CandidateReading::~CandidateReading()
{
    if (s_outermost == this)
        s_outermost = nullptr;
}

std::shared_ptr<CachingPDFDocument> CandidateReading::open(const QUrl &url)
{
    auto document = CandidateReading::document(url);
    if (s_outermost)
        s_outermost->m_opened[url] = document;
    return document;
}

std::shared_ptr<CachingPDFDocument> CandidateReading::document(const QUrl &url)
{
    if (!s_outermost)
        return CachingPDFDocument::open(url);
    if (const auto it = s_outermost->m_opened.find(url); it != s_outermost->m_opened.end())
        return it->second;
    auto &last = s_outermost->m_last;
    if (!last || last->url != url)
        last = read(url);
    if (last->failure)
        throw HostPDFError(*last->failure);
    return last->document;
}

std::optional<HostPDFError> CandidateReading::failure(const QUrl &url)
{
    const auto *last = s_outermost && s_outermost->m_last ? &*s_outermost->m_last : nullptr;
    return last && last->url == url ? last->failure : std::nullopt;
}

CandidateReading::Candidate CandidateReading::read(const QUrl &url)
{
    try {
        return {url, CachingPDFDocument::open(url), std::nullopt};
    } catch (const HostPDFError &error) {
        return {url, nullptr, error};
    }
}

} // namespace Tavrin
