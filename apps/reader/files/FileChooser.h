// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFileDialog>

#include <functional>

namespace Tavrin::Reader
{

/// Asks for files or a directory over a window, beginning in the folder where one was chosen the
/// last time that the same was asked for.
class FileChooser
{
public:
    using Choice = std::function<void(const QStringList &paths)>;

    /// The name is what the folder is remembered by.
    FileChooser(QString name, QString title, QFileDialog::FileMode mode, QString filter = {});

    /// Goes on with what is chosen, if anything, and if the window is still there.
    void open(QWidget &window, const Choice &then) const;

private:
    QString folderKey() const;

    QString m_name;
    QString m_title;
    QFileDialog::FileMode m_mode;
    QString m_filter;
};

} // namespace Tavrin::Reader
