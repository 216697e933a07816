#pragma once

#include <QLockFile>
#include <QObject>
#include <QString>

#include <memory>

class QLocalServer;

/// That a window of this user has a file open, as long as this lives: another program that wants
/// the file can bring that window to the front instead. Programs that were killed claim nothing.
class qxFileClaim : public QObject {
    Q_OBJECT

public:
    /// Claims the file unless another claim holds it.
    explicit qxFileClaim(const QString &file);
    ~qxFileClaim() override;

    /// False when another claim, of this program or of another one, holds the file. Where nothing
    /// can be claimed, such as without a folder for it, every claim is held.
    bool isHeld() const { return !m_isOthers; }
    /// Brings the window that holds the file to the front. False when it does not answer within
    /// seconds.
    bool showHolder() const;
    /// Whether this is about that file, by whatever path.
    bool isOf(const QString &file) const { return m_place == placeOf(file); }

Q_SIGNALS:
    /// Another program wants to see the window.
    void wanted();

private:
    static QString placeOf(const QString &file);
    void listen();

    QString m_place; ///< path of the lock, and of the socket but for its ending
    QLockFile m_lock;
    bool m_isOthers = false;
    std::unique_ptr<QLocalServer> m_server;
};
