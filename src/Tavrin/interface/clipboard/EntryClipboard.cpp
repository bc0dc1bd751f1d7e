// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/clipboard/EntryClipboard.h>

#include <Tavrin/model/SpecURL.h>
#include <Tavrin/model/Specification.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

const QString uriList = u"text/uri-list"_s;

/// Hands out the URL as it is. QMimeData itself would keep it as a QUrl, which takes the
/// label 4.2.1 for an address.
class EntryMimeData : public QMimeData
{
public:
    explicit EntryMimeData(const QString &url) : m_uriList(url.toUtf8() + "\r\n") {}

    QStringList formats() const override { return QMimeData::formats() << uriList; }
    bool hasFormat(const QString &format) const override { return formats().contains(format); }

protected:
    QVariant retrieveData(const QString &format, QMetaType type) const override
    {
        return format == uriList ? QVariant(m_uriList) : QMimeData::retrieveData(format, type);
    }

private:
    QByteArray m_uriList;
};

QString specURL(const SpecificationEntry &entry)
{
    const auto specification = entry.specification();
    return specification
               ? specification->generateURL(entry, !specification->identifier().isEmpty(), false)
               : SpecURL::shortForm(entry.label());
}

} // namespace

std::unique_ptr<QMimeData> EntryClipboard::mimeData(const SpecificationEntry &entry)
{
    const QString title = entry.displayTitle().simplified();
    const QString url = specURL(entry);
    auto data = std::make_unique<EntryMimeData>(url);
    data->setText(title + u'\n' + url);
    data->setHtml(u"<a href=\"%1\">%2</a>"_s.arg(url.toHtmlEscaped(), title.toHtmlEscaped()));
    return data;
}

void EntryClipboard::copy(const SpecificationEntry &entry)
{
    QGuiApplication::clipboard()->setMimeData(mimeData(entry).release());
}

} // namespace Tavrin
