// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>

#include <Tavrin/platform/PDFObjectParser.h>
#include <Tavrin/platform/mupdf/MuPDFSession.h>

namespace Tavrin
{

/// The low-level objects of a document, read from one session.
///
/// A handle is the address of the object behind all references. Each object that was handed out
/// is kept until the parser goes, so an address never comes to mean another object.
class MuPDFObjectParser : public PDFObjectParser
{
public:
    explicit MuPDFObjectParser(const MuPDFSession &session);
    ~MuPDFObjectParser() override;

    std::optional<PDFObjectHandle> catalog() const override;
    PDFObjectType type(PDFObjectHandle object) const override;
    std::optional<bool> boolean(PDFObjectHandle object) const override;
    std::optional<double> number(PDFObjectHandle object) const override;
    std::optional<QByteArray> name(PDFObjectHandle object) const override;
    std::optional<QString> text(PDFObjectHandle object) const override;
    qsizetype arrayCount(PDFObjectHandle array) const override;
    std::optional<PDFObjectHandle> arrayElement(PDFObjectHandle array,
                                                qsizetype index) const override;
    std::optional<bool> arrayBoolean(PDFObjectHandle array, qsizetype index) const override;
    std::optional<double> arrayNumber(PDFObjectHandle array, qsizetype index) const override;
    qsizetype dictionaryCount(PDFObjectHandle dictionary) const override;
    std::optional<PDFObjectHandle> dictionaryValue(PDFObjectHandle dictionary,
                                                   const char *key) const override;
    std::optional<bool> dictionaryBoolean(PDFObjectHandle dictionary,
                                          const char *key) const override;
    std::optional<double> dictionaryNumber(PDFObjectHandle dictionary,
                                           const char *key) const override;
    void enumerateDictionary(PDFObjectHandle dictionary, Enumerator callback,
                             void *context) const override;

    /// The engine's object behind a handle.
    static pdf_obj *native(PDFObjectHandle object);

private:
    // Each of these runs under the session's lock, which the caller holds.
    PDFObjectHandle handle(pdf_obj *object) const;
    std::optional<PDFObjectHandle> knownHandle(pdf_obj *object) const;
    PDFObjectType typeOf(PDFObjectHandle object) const;
    pdf_obj *element(PDFObjectHandle array, qsizetype index) const;
    pdf_obj *value(PDFObjectHandle dictionary, const char *key) const;
    std::optional<bool> booleanOf(pdf_obj *object) const;
    std::optional<double> numberOf(pdf_obj *object) const;

    const MuPDFSession &m_session;
    /// What was handed out, and whether it is the dictionary of a stream.
    mutable QHash<PDFObjectHandle, bool> m_kept;
};

} // namespace Tavrin
