// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLocalServer>
#include <QLockFile>

#include "ReaderArguments.h"

namespace Tavrin::Reader
{

/// One reader for all that a user opens on one display: the first one listens at a socket, and what
/// is started later hands its arguments over.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    /// Longer arguments are not taken.
    static constexpr qint64 lengthLimit = 65536;

    /// The socket lies in the directory, which must be the user's alone. `name` parts displays from
    /// each other.
    SingleInstance(const QString &directory, const QString &name);

    /// The one for this session. To be made once there is an application.
    static std::unique_ptr<SingleInstance> ofSession();

    /// Hands over to the reader that runs; true once that has taken it. If none runs, or it does
    /// not answer, false. Waits some seconds at most.
    bool handOver(const ReaderArguments &arguments) const;

    /// Becomes the reader that later ones hand over to, unless there is one. A socket that a crash
    /// left behind is replaced.
    bool listen();

Q_SIGNALS:
    /// Another start has handed its arguments over.
    void requested(const Tavrin::Reader::ReaderArguments &arguments);

private:
    void accept();
    void read(QLocalSocket &connection);

    QString m_path;
    /// Held for as long as this one listens; the system drops it with the process.
    QLockFile m_lock;
    QLocalServer m_server;
};

} // namespace Tavrin::Reader
