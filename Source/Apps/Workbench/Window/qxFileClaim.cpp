#include "qxFileClaim.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>

namespace {

const int patience = 3000; ///< milliseconds; a window that opens a large scene answers later
const char *const wish = "show\n";
const char *const answer = "shown\n";

QString socketOf(const QString &place)
{
    return place + QStringLiteral(".socket");
}

} // namespace

qxFileClaim::qxFileClaim(const QString &file) : m_place(placeOf(file)), m_lock(m_place)
{
    m_lock.setStaleLockTime(0); // However long a window is open: only a dead process leaves it.
    if (m_lock.tryLock())
        listen();
    else
        m_isOthers = m_lock.error() == QLockFile::LockFailedError;
}

qxFileClaim::~qxFileClaim() = default;

QString qxFileClaim::placeOf(const QString &file)
{
    const QFileInfo info(file);
    const QString whole = info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
    const QByteArray hash = QCryptographicHash::hash(whole.toUtf8(), QCryptographicHash::Sha1);
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
    return folder.filePath(QStringLiteral("workbench-")
                           + QString::fromLatin1(hash.toHex().left(16)));
}

void qxFileClaim::listen()
{
    const QString name = socketOf(m_place);
    QLocalServer::removeServer(name); // A program that was killed leaves its own.
    m_server = std::make_unique<QLocalServer>();
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server.get(), &QLocalServer::newConnection, this, [this] {
        QLocalSocket *const caller = m_server->nextPendingConnection();
        connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        connect(caller, &QLocalSocket::readyRead, this, [this, caller] {
            if (caller->readAll() != wish)
                return caller->abort();
            Q_EMIT wanted();
            caller->write(answer);
            caller->flush();
        });
    });
    m_server->listen(name);
}

bool qxFileClaim::showHolder() const
{
    QLocalSocket socket;
    socket.connectToServer(socketOf(m_place));
    if (!socket.waitForConnected(patience))
        return false;
    socket.write(wish);
    return socket.waitForReadyRead(patience) && socket.readAll() == answer;
}
