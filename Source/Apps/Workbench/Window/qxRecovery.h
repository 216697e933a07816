#pragma once

#include "Session/qxRecoveryFile.h"
#include "Session/qxSceneNames.h"

#include <QObject>
#include <QTimer>

class QUndoStack;
class QWidget;
class qxPanelEvents;

/// Keeps the edits of the window in a recovery file after each step, and offers those that a window
/// left behind which did not end by itself.
class qxRecovery : public QObject {
    Q_OBJECT

public:
    /// Follows steps and events, which must outlive this.
    qxRecovery(const QUndoStack *steps, qxPanelEvents *events, QWidget *window);
    ~qxRecovery() override;

    /// The registry is as that file has it, because it was opened or saved; the edits that were
    /// kept are needed no longer. An empty path is a scene without a file.
    void begin(const QString &scene);
    /// Keeps what has changed, now; nothing, once all is as in the file again. False when it cannot
    /// be kept.
    bool keep();

    ///@{
    /// Asks about edits that were left behind: of all files, or of that one. Each is asked about
    /// once by a window.
    void offerAll();
    void offer(const QString &scene);
    ///@}
    /// Brings registry and scene, which are as their file has them, to what was left behind.
    void recover(const qxRecoveryFile::Left &left);

Q_SIGNALS:
    /// The user wants these edits back: the receiver opens the scene and calls recover.
    void recoverWanted(const qxRecoveryFile::Left &left);

private:
    void keepSoon();
    void ask(const qxRecoveryFile::Left &left);

    const QUndoStack *m_steps;
    QWidget *m_window;
    QTimer m_idle; ///< what was edited is shown first
    qxRegistryRecord m_ofFile;
    qxRegistryRecord m_record; ///< as it was kept last
    qxSceneNames m_names; ///< of the file
    QJsonObject m_changedNames; ///< as they were kept last
    std::unique_ptr<qxRecoveryFile> m_file;
    std::unique_ptr<qxRecoveryFile::Left> m_taken; ///< recovered, but could not be kept anew
    QStringList m_asked; ///< recovery files
};
