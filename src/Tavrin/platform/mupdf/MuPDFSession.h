// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <mupdf/fitz.h>
#include <mupdf/pdf.h>

#include <QByteArray>
#include <QString>

#include <cstdio>
#include <memory>
#include <mutex>
#include <type_traits>

namespace Tavrin
{

/// Where the bytes of a document are: in a file, or in memory.
struct MuPDFSource {
    QString path;
    QByteArray data;
    QString password;

    bool isFile() const { return !path.isEmpty(); }
    QString name() const { return isFile() ? path : QStringLiteral("data"); }
};

/// One opening of a document by the engine, with a context of its own.
///
/// Contexts share nothing, so sessions of one document work in parallel; one session is used
/// under its mutex.
class MuPDFSession
{
public:
    /// Throws HostPDFError.
    explicit MuPDFSession(const MuPDFSource &source);
    ~MuPDFSession();
    MuPDFSession(const MuPDFSession &) = delete;
    MuPDFSession &operator=(const MuPDFSession &) = delete;

    fz_context *context() const { return m_context; }
    pdf_document *document() const { return m_document; }
    std::timed_mutex &mutex() const { return m_mutex; }

    /// Runs a call group and tells whether the engine got through it. The engine leaves failing
    /// code by longjmp, past all destructors: the group may hold plain C data only.
    template <class Group>
    bool run(const Group &group) const
    {
        static_assert(std::is_trivially_destructible_v<Group>);
        fz_context *context = m_context;
        bool succeeded = false;
        fz_var(succeeded);
        fz_try(context)
        {
            group(context, m_document);
            succeeded = true;
        }
        fz_catch(context)
        {
            succeeded = false;
        }
        return succeeded;
    }

private:
    struct FileCloser {
        void operator()(std::FILE *file) const { std::fclose(file); }
    };

    QByteArray head(const MuPDFSource &source);
    void open(const MuPDFSource &source);
    void authenticate(const MuPDFSource &source);

    /// What the engine reads from; null for a document in memory.
    std::unique_ptr<std::FILE, FileCloser> m_file;
    fz_context *m_context = nullptr;
    pdf_document *m_document = nullptr;
    mutable std::timed_mutex m_mutex;
};

} // namespace Tavrin
