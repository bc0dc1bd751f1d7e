// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/audit/AuditReferenceList.h>

#include <QRegularExpression>
#include <QStringDecoder>

namespace Tavrin::AuditReferenceList
{

using namespace Qt::StringLiterals;

namespace
{

/// Without its comment. A label may hold a number sign, so one starts a comment only where no
/// other character stands in front of it.
QString withoutComment(const QString &line)
{
    static const QRegularExpression comment(u"(?:^|(?<=\\s))#.*$"_s);
    return line.left(comment.match(line).hasMatch() ? comment.match(line).capturedStart() : -1);
}

AuditReference parseLine(const QString &line, const QString &location)
{
    if (!line.contains(u'\t'))
        return {line.trimmed(), {}, location};
    const QStringList fields = line.split(u'\t');
    if (fields.size() > 2)
        throw Error(location,
                    u"more than one tab; a line is a reference, or LABEL<TAB>REFERENCE"_s);
    AuditReference reference{fields[1].trimmed(), fields[0].trimmed(), location};
    if (reference.reference.isEmpty())
        throw Error(location, u"no reference behind the tab"_s);
    return reference;
}

} // namespace

Error::Error(const QString &location, const QString &message)
    : std::runtime_error((location + u": "_s + message).toStdString())
{
}

std::vector<AuditReference> parse(QByteArrayView utf8, const QString &name)
{
    std::vector<AuditReference> references;
    int number = 0;
    for (qsizetype from = 0; from < utf8.size();) {
        const qsizetype end = utf8.indexOf('\n', from);
        const QByteArrayView bytes = utf8.sliced(from, (end < 0 ? utf8.size() : end) - from);
        from += bytes.size() + 1;
        const QString location = u"%1:%2"_s.arg(name).arg(++number);
        QStringDecoder decoder(QStringDecoder::Utf8);
        const QString line = decoder.decode(bytes);
        if (decoder.hasError() || line.contains(QChar(0)))
            throw Error(location, u"not UTF-8 text"_s);
        const QString content = withoutComment(line);
        if (!content.trimmed().isEmpty())
            references.push_back(parseLine(content, location));
    }
    return references;
}

} // namespace Tavrin::AuditReferenceList
