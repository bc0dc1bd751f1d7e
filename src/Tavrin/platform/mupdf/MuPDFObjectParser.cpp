// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/mupdf/MuPDFObjectParser.h>

#include <cmath>
#include <vector>

namespace Tavrin
{

namespace
{

using Lock = std::scoped_lock<std::timed_mutex>;

} // namespace

MuPDFObjectParser::MuPDFObjectParser(const MuPDFSession &session) : m_session(session) {}

MuPDFObjectParser::~MuPDFObjectParser()
{
    for (auto it = m_kept.keyBegin(); it != m_kept.keyEnd(); ++it)
        pdf_drop_obj(m_session.context(), native(*it));
}

pdf_obj *MuPDFObjectParser::native(PDFObjectHandle object)
{
    return reinterpret_cast<pdf_obj *>(object.id);
}

PDFObjectHandle MuPDFObjectParser::handle(pdf_obj *object) const
{
    pdf_obj *resolved = nullptr;
    bool isStream = false;
    m_session.run([object, &resolved, &isStream](fz_context *context, pdf_document *) {
        resolved = pdf_resolve_indirect_chain(context, object);
        isStream = pdf_is_stream(context, object) != 0;
    });
    const PDFObjectHandle result{reinterpret_cast<quintptr>(resolved)};
    if (!m_kept.contains(result)) {
        pdf_keep_obj(m_session.context(), resolved);
        m_kept.insert(result, isStream);
    }
    return result;
}

std::optional<PDFObjectHandle> MuPDFObjectParser::knownHandle(pdf_obj *object) const
{
    return object ? std::optional(handle(object)) : std::nullopt;
}

std::optional<PDFObjectHandle> MuPDFObjectParser::catalog() const
{
    const Lock lock(m_session.mutex());
    pdf_obj *root = nullptr;
    m_session.run([&root](fz_context *context, pdf_document *document) {
        pdf_obj *found = pdf_dict_get(context, pdf_trailer(context, document), PDF_NAME(Root));
        if (pdf_is_dict(context, found))
            root = found;
    });
    return knownHandle(root);
}

PDFObjectType MuPDFObjectParser::typeOf(PDFObjectHandle object) const
{
    fz_context *context = m_session.context();
    pdf_obj *raw = native(object);
    if (pdf_is_bool(context, raw))
        return PDFObjectType::Boolean;
    if (pdf_is_int(context, raw))
        return PDFObjectType::Integer;
    if (pdf_is_real(context, raw))
        return PDFObjectType::Real;
    if (pdf_is_name(context, raw))
        return PDFObjectType::Name;
    if (pdf_is_string(context, raw))
        return PDFObjectType::String;
    if (pdf_is_array(context, raw))
        return PDFObjectType::Array;
    if (pdf_is_dict(context, raw) && !m_kept.value(object))
        return PDFObjectType::Dictionary;
    return PDFObjectType::Other;
}

PDFObjectType MuPDFObjectParser::type(PDFObjectHandle object) const
{
    const Lock lock(m_session.mutex());
    return typeOf(object);
}

std::optional<bool> MuPDFObjectParser::booleanOf(pdf_obj *object) const
{
    fz_context *context = m_session.context();
    return pdf_is_bool(context, object) ? std::optional(pdf_to_bool(context, object) != 0)
                                        : std::nullopt;
}

std::optional<double> MuPDFObjectParser::numberOf(pdf_obj *object) const
{
    fz_context *context = m_session.context();
    if (pdf_is_int(context, object))
        return static_cast<double>(pdf_to_int64(context, object));
    const double real = pdf_is_real(context, object)
                            ? static_cast<double>(pdf_to_real(context, object))
                            : std::nan("");
    return std::isfinite(real) ? std::optional(real) : std::nullopt;
}

std::optional<bool> MuPDFObjectParser::boolean(PDFObjectHandle object) const
{
    const Lock lock(m_session.mutex());
    return booleanOf(native(object));
}

std::optional<double> MuPDFObjectParser::number(PDFObjectHandle object) const
{
    const Lock lock(m_session.mutex());
    return numberOf(native(object));
}

std::optional<QByteArray> MuPDFObjectParser::name(PDFObjectHandle object) const
{
    const Lock lock(m_session.mutex());
    if (typeOf(object) != PDFObjectType::Name)
        return std::nullopt;
    return QByteArray(pdf_to_name(m_session.context(), native(object)));
}

std::optional<QString> MuPDFObjectParser::text(PDFObjectHandle object) const
{
    const Lock lock(m_session.mutex());
    if (typeOf(object) != PDFObjectType::String)
        return std::nullopt;
    const char *text = nullptr;
    const bool decoded = m_session.run([object, &text](fz_context *context, pdf_document *) {
        text = pdf_to_text_string(context, native(object));
    });
    return decoded && text ? std::optional(QString::fromUtf8(text)) : std::nullopt;
}

qsizetype MuPDFObjectParser::arrayCount(PDFObjectHandle array) const
{
    const Lock lock(m_session.mutex());
    return pdf_array_len(m_session.context(), native(array));
}

pdf_obj *MuPDFObjectParser::element(PDFObjectHandle array, qsizetype index) const
{
    pdf_obj *object = nullptr;
    m_session.run([=, &object](fz_context *context, pdf_document *) {
        if (index >= 0 && index < pdf_array_len(context, native(array)))
            object = pdf_array_get(context, native(array), static_cast<int>(index));
    });
    return object;
}

std::optional<PDFObjectHandle> MuPDFObjectParser::arrayElement(PDFObjectHandle array,
                                                               qsizetype index) const
{
    const Lock lock(m_session.mutex());
    return knownHandle(element(array, index));
}

std::optional<bool> MuPDFObjectParser::arrayBoolean(PDFObjectHandle array, qsizetype index) const
{
    const Lock lock(m_session.mutex());
    return booleanOf(element(array, index));
}

std::optional<double> MuPDFObjectParser::arrayNumber(PDFObjectHandle array, qsizetype index) const
{
    const Lock lock(m_session.mutex());
    return numberOf(element(array, index));
}

qsizetype MuPDFObjectParser::dictionaryCount(PDFObjectHandle dictionary) const
{
    const Lock lock(m_session.mutex());
    return pdf_dict_len(m_session.context(), native(dictionary));
}

pdf_obj *MuPDFObjectParser::value(PDFObjectHandle dictionary, const char *key) const
{
    pdf_obj *object = nullptr;
    m_session.run([=, &object](fz_context *context, pdf_document *) {
        object = pdf_dict_gets(context, native(dictionary), key);
    });
    return object;
}

std::optional<PDFObjectHandle> MuPDFObjectParser::dictionaryValue(PDFObjectHandle dictionary,
                                                                  const char *key) const
{
    const Lock lock(m_session.mutex());
    return knownHandle(value(dictionary, key));
}

std::optional<bool> MuPDFObjectParser::dictionaryBoolean(PDFObjectHandle dictionary,
                                                         const char *key) const
{
    const Lock lock(m_session.mutex());
    return booleanOf(value(dictionary, key));
}

std::optional<double> MuPDFObjectParser::dictionaryNumber(PDFObjectHandle dictionary,
                                                          const char *key) const
{
    const Lock lock(m_session.mutex());
    return numberOf(value(dictionary, key));
}

void MuPDFObjectParser::enumerateDictionary(PDFObjectHandle dictionary, Enumerator callback,
                                            void *context) const
{
    // Collected first: the callback reads objects itself, and so takes the lock.
    std::vector<std::pair<QByteArray, PDFObjectHandle>> pairs;
    {
        const Lock lock(m_session.mutex());
        fz_context *engine = m_session.context();
        const int count = pdf_dict_len(engine, native(dictionary));
        for (int index = 0; index < count; ++index) {
            pdf_obj *key = pdf_dict_get_key(engine, native(dictionary), index);
            pdf_obj *object = pdf_dict_get_val(engine, native(dictionary), index);
            pairs.emplace_back(pdf_to_name(engine, key), handle(object));
        }
    }
    for (const auto &[key, object] : pairs)
        callback(key, object, context);
}

} // namespace Tavrin
