// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/pdf/HostPDFDocument.h>

#include <Tavrin/platform/HostPDFError.h>

#include <utility>

namespace Tavrin
{

using namespace Qt::StringLiterals;

HostPDFDocument::HostPDFDocument(std::unique_ptr<PDFEngineDocument> engine)
    : m_engine(std::move(engine)), m_pages(static_cast<std::size_t>(m_engine->pageCount()))
{
}

HostPDFDocument::~HostPDFDocument() = default;

std::unique_ptr<PDFEngineDocument> HostPDFDocument::openEngine(const QUrl &url,
                                                               const QString &password)
{
    if (!url.isLocalFile()) {
        throw HostPDFError(HostPDFError::Kind::Unreadable, url.toString(),
                           u"only local files can be opened"_s);
    }
    return PDFEngine::standard().open(url.toLocalFile(), password);
}

std::shared_ptr<HostPDFDocument> HostPDFDocument::open(const QUrl &url, const QString &password)
{
    return std::shared_ptr<HostPDFDocument>(new HostPDFDocument(openEngine(url, password)));
}

std::shared_ptr<HostPDFDocument> HostPDFDocument::open(const QByteArray &data,
                                                       const QString &password)
{
    return std::shared_ptr<HostPDFDocument>(
        new HostPDFDocument(PDFEngine::standard().open(data, password)));
}

int HostPDFDocument::pageCount() const
{
    return m_engine->pageCount();
}

std::shared_ptr<HostPDFPage> HostPDFDocument::page(int index) const
{
    if (index < 0 || index >= pageCount())
        return nullptr;
    const std::scoped_lock lock(m_mutex);
    auto &page = m_pages[static_cast<std::size_t>(index)];
    if (!page) {
        if (const auto geometry = m_engine->pageGeometry(index)) {
            const auto self = std::const_pointer_cast<HostPDFDocument>(shared_from_this());
            page = std::shared_ptr<HostPDFPage>(new HostPDFPage(self, index, *geometry));
        }
    }
    return page;
}

std::optional<int> HostPDFDocument::indexForPage(const HostPDFPage &page) const
{
    const bool isOurs = page.document().get() == this;
    return isOurs ? std::optional(page.index()) : std::nullopt;
}

const QHash<QString, QString> &HostPDFDocument::documentAttributes() const
{
    std::call_once(m_attributesOnce, [this] { m_attributes = m_engine->attributes(); });
    return m_attributes;
}

std::optional<HostPDFOutline> HostPDFDocument::outlineRoot() const
{
    std::call_once(m_outlineOnce, [this] {
        const auto items = m_engine->outline();
        if (!items.empty()) {
            const auto self = std::const_pointer_cast<HostPDFDocument>(shared_from_this());
            m_outline = HostPDFOutline::makeTable(items, self);
        }
    });
    return m_outline ? std::optional(HostPDFOutline(m_outline, 0)) : std::nullopt;
}

const PDFObjectParser &HostPDFDocument::objects() const
{
    return m_engine->objects();
}

std::optional<StyledText> HostPDFDocument::attributedTextForPage(int index) const
{
    const auto found = page(index);
    return found ? found->attributedString() : std::nullopt;
}

std::optional<StyledText> HostPDFDocument::attributedTextFor(const HostPDFPage &page) const
{
    return page.attributedString();
}

std::optional<QString> HostPDFDocument::textForPage(int index) const
{
    const auto found = page(index);
    return found ? found->string() : std::nullopt;
}

std::optional<QString> HostPDFDocument::textFor(const HostPDFPage &page) const
{
    return page.string();
}

} // namespace Tavrin
