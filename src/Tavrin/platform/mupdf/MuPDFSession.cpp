// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/mupdf/MuPDFSession.h>

#include <Tavrin/platform/HostPDFError.h>
#include <Tavrin/platform/Logging.h>

#include <QFile>

#include <cerrno>
#include <new>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

/// What the engine may keep of fonts and images between pages.
constexpr size_t storeSize = size_t(64) << 20;

/// A PDF may have this much before its header (ISO 32000-1, annex H.3.4.1).
constexpr qsizetype headerWindow = 1024;

void logMessage(void * /*user*/, const char *message)
{
    qCDebug(pdfLog, "%s", message);
}

} // namespace

MuPDFSession::MuPDFSession(const MuPDFSource &source)
{
    if (source.isFile())
        m_file.reset(std::fopen(QFile::encodeName(source.path).constData(), "rbe"));
    if (!head(source).contains("%PDF-")) {
        throw HostPDFError(HostPDFError::Kind::NotAPDF, source.name(), u"this is no PDF"_s);
    }
    m_context = fz_new_context(nullptr, nullptr, storeSize);
    if (!m_context)
        throw std::bad_alloc();
    fz_set_warning_callback(m_context, logMessage, nullptr);
    fz_set_error_callback(m_context, logMessage, nullptr);
    try {
        open(source);
        authenticate(source);
    } catch (...) {
        pdf_drop_document(m_context, m_document);
        fz_drop_context(m_context);
        throw;
    }
}

MuPDFSession::~MuPDFSession()
{
    if (m_document->fwd_page_map)
        pdf_drop_page_tree(m_context, m_document);
    pdf_drop_document(m_context, m_document);
    fz_drop_context(m_context);
}

/// The first bytes, or an error if there are none to be had.
QByteArray MuPDFSession::head(const MuPDFSource &source)
{
    if (!source.isFile())
        return source.data.left(headerWindow);
    QByteArray bytes(headerWindow, '\0');
    const auto wanted = static_cast<size_t>(headerWindow);
    const size_t size = m_file ? std::fread(bytes.data(), 1, wanted, m_file.get()) : 0;
    if (!m_file || std::ferror(m_file.get()) != 0) {
        throw HostPDFError(HostPDFError::Kind::Unreadable, source.name(), qt_error_string(errno));
    }
    std::rewind(m_file.get());
    bytes.truncate(static_cast<qsizetype>(size));
    return bytes;
}

void MuPDFSession::open(const MuPDFSource &source)
{
    std::FILE *file = m_file.get();
    const auto *bytes = reinterpret_cast<const unsigned char *>(source.data.constData());
    const auto size = static_cast<size_t>(source.data.size());
    pdf_document **document = &m_document;
    const bool opened = run([=](fz_context *context, pdf_document *) {
        fz_stream *stream =
            file ? fz_open_file_ptr_no_close(context, file) : fz_open_memory(context, bytes, size);
        fz_try(context) *document = pdf_open_document_with_stream(context, stream);
        fz_always(context) fz_drop_stream(context, stream);
        fz_catch(context) fz_rethrow(context);
    });
    if (!opened) {
        throw HostPDFError(HostPDFError::Kind::Damaged, source.name(),
                           u"the PDF is broken beyond repair (%1)"_s.arg(
                               QString::fromUtf8(fz_caught_message(m_context))));
    }
}

void MuPDFSession::authenticate(const MuPDFSource &source)
{
    const QByteArray password = source.password.toUtf8();
    const char *text = password.constData();
    int isOpen = 0;
    int *result = &isOpen;
    const bool answered = run([=](fz_context *context, pdf_document *document) {
        *result = !pdf_needs_password(context, document) ||
                  pdf_authenticate_password(context, document, text);
    });
    if (!answered || !isOpen) {
        throw HostPDFError(HostPDFError::Kind::PasswordNeeded, source.name(),
                           source.password.isEmpty()
                               ? u"the PDF is encrypted and needs a password"_s
                               : u"the PDF is encrypted and the password does not open it"_s);
    }
}

} // namespace Tavrin
