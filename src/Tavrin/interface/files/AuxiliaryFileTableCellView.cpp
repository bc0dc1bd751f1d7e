// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/files/AuxiliaryFileTableCellView.h>

#include <Tavrin/interface/files/AuxiliaryFileArrayController.h>
#include <Tavrin/interface/files/AuxiliaryFileTableColorTransformer.h>
#include <Tavrin/platform/StringLocalizer.h>

#include <QFileIconProvider>
#include <QFileInfo>
#include <QMimeDatabase>

namespace Tavrin
{

using namespace Qt::StringLiterals;

namespace
{

QIcon iconOfType(const QString &extension)
{
    const QIcon anyFile = QFileIconProvider().icon(QFileIconProvider::File);
    const QMimeType type =
        QMimeDatabase().mimeTypeForFile(u"file."_s + extension, QMimeDatabase::MatchExtension);
    return QIcon::fromTheme(type.iconName(), QIcon::fromTheme(type.genericIconName(), anyFile));
}

} // namespace

QString AuxiliaryFileTableCellView::fileName(const AuxiliaryFile *row)
{
    if (!row)
        return {};
    if (!row->isPrimary())
        return row->fileName();
    return row->fileName() + u" ("_s +
           localized("latest", "status indicating that this version of the spec is latest") + u')';
}

QIcon AuxiliaryFileTableCellView::fileIcon(const AuxiliaryFile &row) const
{
    const QString extension =
        row.urls().empty() ? QString() : QFileInfo(row.urls().front().fileName()).suffix();
    auto icon = m_icons.find(extension);
    if (icon == m_icons.end())
        icon = m_icons.insert(extension, iconOfType(extension));
    return *icon;
}

void AuxiliaryFileTableCellView::initStyleOption(QStyleOptionViewItem *option,
                                                 const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const auto *rows = qobject_cast<const AuxiliaryFileArrayController *>(index.model());
    const AuxiliaryFilePtr row = rows ? rows->row(index.row()) : nullptr;
    if (!row)
        return;
    option->palette.setColor(QPalette::Text, AuxiliaryFileTableColorTransformer::transformedValue(
                                                 row->isEnabled(), option->palette));
    if (index.column() != AuxiliaryFileArrayController::NameColumn)
        return;
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->icon = fileIcon(*row);
    option->textElideMode = Qt::ElideMiddle;
}

} // namespace Tavrin
