// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QString>
#include <QUrl>

#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include <Tavrin/CoreExport.h>
#include <Tavrin/pdf/HostPDFOutline.h>
#include <Tavrin/pdf/HostPDFPage.h>
#include <Tavrin/platform/PDFEngine.h>

namespace Tavrin
{

/// An open PDF document.
///
/// Held by std::shared_ptr; its pages point back weakly, so whoever works with pages keeps the
/// document. Page objects are made on first request and are the same object ever after. All
/// reads are safe from any thread.
class TAVRIN_CORE_EXPORT HostPDFDocument : public std::enable_shared_from_this<HostPDFDocument>
{
public:
    /// Opens a local file, or a document held in memory. Throws HostPDFError.
    static std::shared_ptr<HostPDFDocument> open(const QUrl &url, const QString &password = {});
    static std::shared_ptr<HostPDFDocument> open(const QByteArray &data,
                                                 const QString &password = {});

    virtual ~HostPDFDocument();
    HostPDFDocument(const HostPDFDocument &) = delete;
    HostPDFDocument &operator=(const HostPDFDocument &) = delete;

    int pageCount() const;
    /// Null for an index outside the document, and for a page that the file has broken.
    std::shared_ptr<HostPDFPage> page(int index) const;
    /// The page's index, if it is a page of this document.
    std::optional<int> indexForPage(const HostPDFPage &page) const;

    /// The document information as text, by the file's own keys: "Title", "Author", "Producer".
    const QHash<QString, QString> &documentAttributes() const;

    /// The invisible root above the outline's first level; nothing in a document without outline.
    /// Read from the file once.
    std::optional<HostPDFOutline> outlineRoot() const;

    /// The low-level objects, valid while the document lives.
    const PDFObjectParser &objects() const;
    const PDFEngineDocument &engine() const { return *m_engine; }

    /// Plain and styled text of a page; nothing if there is no such page or it cannot be read.
    /// Virtual, so that a document can remember what it has read.
    virtual std::optional<StyledText> attributedTextForPage(int index) const;
    virtual std::optional<StyledText> attributedTextFor(const HostPDFPage &page) const;
    virtual std::optional<QString> textForPage(int index) const;
    virtual std::optional<QString> textFor(const HostPDFPage &page) const;

protected:
    explicit HostPDFDocument(std::unique_ptr<PDFEngineDocument> engine);

    /// Shared by the `open` of every subclass. Throws HostPDFError.
    static std::unique_ptr<PDFEngineDocument> openEngine(const QUrl &url, const QString &password);

private:
    friend class HostPDFPage;

    std::unique_ptr<PDFEngineDocument> m_engine;
    mutable std::mutex m_mutex;
    mutable std::vector<std::shared_ptr<HostPDFPage>> m_pages;
    mutable std::once_flag m_outlineOnce;
    mutable std::shared_ptr<const HostPDFOutline::Table> m_outline;
    mutable std::once_flag m_attributesOnce;
    mutable QHash<QString, QString> m_attributes;
};

} // namespace Tavrin
