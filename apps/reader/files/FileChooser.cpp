// SPDX-License-Identifier: Apache-2.0
#include <reader/files/FileChooser.h>

#include <QSettings>

#include <utility>

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;

FileChooser::FileChooser(QString name, QString title, QFileDialog::FileMode mode, QString filter)
    : m_name(std::move(name)), m_title(std::move(title)), m_mode(mode), m_filter(std::move(filter))
{
}

void FileChooser::open(QWidget &window, const Choice &then) const
{
    const QString folder = QSettings().value(folderKey()).toString();
    auto *dialog = new QFileDialog(&window, m_title, folder, m_filter);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(m_mode);
    QObject::connect(dialog, &QFileDialog::filesSelected, &window,
                     [then, key = folderKey()](const QStringList &paths) {
                         QSettings().setValue(key, QFileInfo(paths.front()).absolutePath());
                         then(paths);
                     });
    dialog->open();
}

QString FileChooser::folderKey() const
{
    return u"Reader.Folder.%1"_s.arg(m_name);
}

} // namespace Tavrin::Reader
