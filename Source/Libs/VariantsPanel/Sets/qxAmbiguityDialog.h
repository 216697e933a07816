#pragma once

#include <QDialog>

class QTableWidget;

/// Asks whether nodes that a capture could not tell apart may be renamed, and shows the names that
/// they would get.
class qxAmbiguityDialog : public QDialog {
    Q_OBJECT

public:
    /// A node before and after.
    struct Renaming {
        QString name;
        QString newName;
        QString path; ///< before
    };

    /// `isReferredTo` says whether sets refer to one of the nodes.
    qxAmbiguityDialog(const QList<Renaming> &renamings, bool isReferredTo, QWidget *parent);

    /// Renames the ambiguous nodes of the scene, as the module does it before a capture, when the
    /// user agrees; the log tells each renaming. False when there are such nodes and they keep
    /// their names.
    static bool settleNames(QWidget *parent);

private:
    QTableWidget *tableOf(const QList<Renaming> &renamings);
};
