#pragma once

#include "qxSetEntry.h"

#include <QLineEdit>

class QStringListModel;
class qxPanelEvents;

/// A line that finds variants, viewpoints and animations by parts of their names, to be added to a
/// set. Enter takes the first one that is found, or the one that is marked in the list.
class qxEntrySearch : public QLineEdit {
    Q_OBJECT

public:
    explicit qxEntrySearch(qxPanelEvents *events);

    /// The viewpoints and animations of the scene.
    static std::vector<qxSetEntry> othersToAdd();

Q_SIGNALS:
    /// The user wants this one; of a variant without a state.
    void chosen(const qxSetEntry &entry);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void read();
    void take(int found);
    void takeTyped();

    QStringListModel *m_texts;
    std::vector<qxSetEntry> m_entries; ///< that the texts stand for
    bool m_isRead = false;
};
