// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/audit/AuditFormat.h>

#include <utility>

namespace Tavrin
{

using namespace Qt::StringLiterals;

std::optional<AuditFormat> auditFormatFromText(QStringView text)
{
    const std::pair<QStringView, AuditFormat> formats[] = {{u"rtf", AuditFormat::RTF},
                                                           {u"html", AuditFormat::HTML},
                                                           {u"csv", AuditFormat::CSV},
                                                           {u"json", AuditFormat::JSON},
                                                           {u"junit", AuditFormat::JUnit}};
    for (const auto &[name, format] : formats) {
        if (text == name)
            return format;
    }
    return std::nullopt;
}

} // namespace Tavrin
