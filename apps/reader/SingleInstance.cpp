// SPDX-License-Identifier: Apache-2.0
#include "SingleInstance.h"

#include <QCryptographicHash>
#include <QGuiApplication>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QTimer>

namespace Tavrin::Reader
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int connectTime = 1000;
/// A reader that begins or opens a large document may take a moment.
constexpr int answerTime = 10000;
constexpr int requestTime = 5000;
constexpr int mostRequests = 16;
constexpr auto answer = "taken\n";

/// Different displays are different readers: a window on the other one is of no use.
QString displayName()
{
    const QByteArray display = QGuiApplication::platformName().toUtf8() + ' ' +
                               qgetenv("WAYLAND_DISPLAY") + ' ' + qgetenv("DISPLAY");
    const auto hash = QCryptographicHash::hash(display, QCryptographicHash::Sha256);
    return u"tavrin-reader-"_s + QString::fromLatin1(hash.toHex().first(16));
}

} // namespace

SingleInstance::SingleInstance(const QString &directory, const QString &name)
    : m_path(directory + u'/' + name), m_lock(m_path + u".lock"_s)
{
    // How long a reader has run says nothing of whether it lives.
    m_lock.setStaleLockTime(0);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    m_server.setMaxPendingConnections(mostRequests);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::accept);
}

std::unique_ptr<SingleInstance> SingleInstance::ofSession()
{
    QString directory = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (directory.isEmpty())
        directory = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    return std::make_unique<SingleInstance>(directory, displayName());
}

bool SingleInstance::handOver(const ReaderArguments &arguments) const
{
    const QByteArray line = arguments.toLine();
    if (line.size() > lengthLimit)
        return false;
    QLocalSocket connection;
    connection.connectToServer(m_path);
    if (!connection.waitForConnected(connectTime))
        return false;
    connection.write(line);
    QByteArray reply;
    while (!reply.endsWith('\n') && connection.waitForReadyRead(answerTime))
        reply += connection.readAll();
    return reply == answer;
}

bool SingleInstance::listen()
{
    if (!m_lock.tryLock())
        return false;
    // Whoever holds the lock is the only one that listens, so a socket that is there is nobody's.
    QLocalServer::removeServer(m_path);
    return m_server.listen(m_path);
}

void SingleInstance::accept()
{
    while (QLocalSocket *connection = m_server.nextPendingConnection()) {
        connect(connection, &QLocalSocket::disconnected, connection, &QObject::deleteLater);
        connect(connection, &QLocalSocket::readyRead, this,
                [this, connection] { read(*connection); });
        // Whoever says nothing gives way.
        QTimer::singleShot(requestTime, connection, &QLocalSocket::abort);
        connection->setReadBufferSize(lengthLimit);
        if (connection->bytesAvailable() > 0)
            read(*connection);
    }
}

void SingleInstance::read(QLocalSocket &connection)
{
    if (!connection.canReadLine()) {
        if (connection.bytesAvailable() >= lengthLimit)
            connection.abort();
        return;
    }
    const auto arguments = ReaderArguments::fromLine(connection.readLine(lengthLimit));
    if (!arguments) {
        connection.abort();
        return;
    }
    connection.write(answer);
    // Opening a document may take longer than the other one waits.
    connection.flush();
    connection.disconnectFromServer();
    Q_EMIT requested(*arguments);
}

} // namespace Tavrin::Reader
