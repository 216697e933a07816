#pragma once

#include "Undo/qxRegistryRecord.h"

#include <QDateTime>
#include <QFile>
#include <QJsonObject>
#include <QLockFile>

#include <memory>

struct qxDocument;

/// The edits of variants and sets since a scene was opened or saved, in a file that outlives the
/// program when it is killed. It is a journal: each entry has only what has changed, so that
/// writing it is quick. The file is removed when this is destroyed.
class qxRecoveryFile {
public:
    /// Edits that a program left behind which is no longer running.
    struct Left {
        QString path; ///< of the recovery file
        QString scene; ///< the scene file that was edited; empty for none
        QDateTime time; ///< of the last edit
        int steps = 0; ///< how many entries there are
        std::shared_ptr<QLockFile> lock; ///< keeps others from taking it

        /// Brings the document of the scene file, settled, to what it was with all edits, and says
        /// what of the scene was other, see qxSceneNames. What came into the scene file meanwhile
        /// stays. What cannot be read of the file is
        /// passed over, from the first such entry on.
        QJsonObject apply(qxDocument &document) const;
        /// Removes the file.
        void discard() const;
    };

    /// Where the files are: $XDG_STATE_HOME/qxVariants/recovery.
    static QString folder();
    /// All that is left behind, the latest first.
    static QList<Left> left();

    /// For edits of that scene, in which things stand in that order. No file is made before the
    /// first of them.
    qxRecoveryFile(const QString &scene, const qxRegistryOrder &order);
    ~qxRecoveryFile();
    qxRecoveryFile(const qxRecoveryFile &) = delete;

    /// Adds an entry. What goes wrong is logged once, and nothing is kept from then on: false.
    bool append(const qxRegistryRecord::Changes &changes, const QJsonObject &sceneNames);
    /// Removes the file until the next entry: all edits are taken back.
    void clear();

private:
    bool open();
    bool write(const QByteArray &bytes);

    QString m_scene;
    qxRegistryOrder m_order;
    QFile m_file;
    std::unique_ptr<QLockFile> m_lock;
    bool m_hasFailed = false;
};
