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
///
/// Hosts that show or read an imported document get theirs from PDFSpecification::document(). Pages
/// count from 0. A reader may have to wait for another thread that reads the same file.
class TAVRIN_CORE_EXPORT HostPDFDocument : public std::enable_shared_from_this<HostPDFDocument>
{
public:
    /// Opens a local file, or a document held in memory. Throws HostPDFError. Reads the structure
    /// of the file, and no page; the file stays open. A URL that is no local file is refused.
    static std::shared_ptr<HostPDFDocument> open(const QUrl &url, const QString &password = {});
    /// The same for a document in memory, whose bytes are kept as long as it is open.
    static std::shared_ptr<HostPDFDocument> open(const QByteArray &data,
                                                 const QString &password = {});

    virtual ~HostPDFDocument();
    HostPDFDocument(const HostPDFDocument &) = delete;
    HostPDFDocument &operator=(const HostPDFDocument &) = delete;

    /// The pages that the file really has, whatever it claims.
    int pageCount() const;
    /// Null for an index outside the document, and for a page that the file has broken.
    ///
    /// Made on first request, which reads boxes and rotation and no content.
    std::shared_ptr<HostPDFPage> page(int index) const;
    /// The page's index, if it is a page of this document.
    ///
    /// Absent for a page of another document, even if that is the same file opened once more.
    std::optional<int> indexForPage(const HostPDFPage &page) const;

    /// The document information as text, by the file's own keys: "Title", "Author", "Producer".
    ///
    /// Read once; valid while the document lives.
    const QHash<QString, QString> &documentAttributes() const;

    /// The invisible root above the outline's first level; nothing in a document without outline.
    /// Read from the file once.
    std::optional<HostPDFOutline> outlineRoot() const;

    /// The low-level objects, valid while the document lives. To wrap them as PDFDictionary and its
    /// kin, keep the document with them: see PDFLowLevelObject.
    const PDFObjectParser &objects() const;
    /// The file as the engine reads it, without any caching. Valid while the document lives.
    const PDFEngineDocument &engine() const { return *m_engine; }

    /// The text of a page with fonts and colours; absent if there is no such page or it cannot be
    /// read. Virtual, so that a document can remember what it has read. See HostPDFPage::string for
    /// what the text is like.
    virtual std::optional<StyledText> attributedTextForPage(int index) const;
    /// The same for a page, which should be one of this document: a CachingPDFDocument gives
    /// nothing for others.
    virtual std::optional<StyledText> attributedTextFor(const HostPDFPage &page) const;
    /// The text of a page without its looks.
    virtual std::optional<QString> textForPage(int index) const;
    /// The same for a page of this document.
    virtual std::optional<QString> textFor(const HostPDFPage &page) const;

protected:
    /// Takes the file over; `engine` must not be null.
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
