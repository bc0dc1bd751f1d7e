// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/audit/AuditWriter.h>

#include <QIODevice>

#include <Tavrin/audit/AuditError.h>
#include <Tavrin/audit/CSVAuditWriter.h>
#include <Tavrin/audit/HTMLAuditWriter.h>
#include <Tavrin/audit/JSONAuditWriter.h>
#include <Tavrin/audit/JUnitAuditWriter.h>
#include <Tavrin/audit/RTFAuditWriter.h>

namespace Tavrin
{

std::unique_ptr<AuditWriter> AuditWriter::make(AuditFormat format)
{
    switch (format) {
    case AuditFormat::RTF:
        return std::make_unique<RTFAuditWriter>();
    case AuditFormat::HTML:
        return std::make_unique<HTMLAuditWriter>();
    case AuditFormat::CSV:
        return std::make_unique<CSVAuditWriter>();
    case AuditFormat::JSON:
        return std::make_unique<JSONAuditWriter>();
    case AuditFormat::JUnit:
        return std::make_unique<JUnitAuditWriter>();
    }
    qFatal("An audit is asked for in a format that does not exist");
}

void AuditWriter::put(QIODevice &device, const QByteArray &bytes)
{
    if (device.write(bytes) != bytes.size())
        throw AuditError(device.errorString());
}

void AuditWriter::put(QIODevice &device, const QString &text)
{
    put(device, text.toUtf8());
}

void AuditWriter::tell(const Progress &progress, std::size_t done, std::size_t all)
{
    if (progress)
        progress(double(done) / double(all));
}

} // namespace Tavrin
