#pragma once

#include <QPair>
#include <QSet>
#include <QStackedWidget>

class QAbstractItemView;
class QLabel;
class qxPanelEvents;
class qxSetEdits;
class qxSetsModel;
class qxTakenKeys;

/// The sets as a list by groups or as a gallery of their previews; both show and select the same.
class qxSetsView : public QStackedWidget {
    Q_OBJECT

public:
    enum Form { List, Gallery };

    qxSetsView(qxPanelEvents *events, qxSetEdits *edits, QWidget *parent = nullptr);

    Form form() const { return Form(currentIndex()); }
    void setForm(Form form);
    void setSearch(const QString &text);
    /// Whether groups that are not to be shown are.
    void setHiddenShown(bool shown);
    void setTakenKeys(const qxTakenKeys *taken);
    /// How many sets the search leaves; -1 without a search.
    int foundCount() const;

    /// The selected sets in the order of the view.
    QStringList selectedSets() const { return selected(false); }
    QStringList selectedGroups() const { return selected(true); }
    /// The set under the cursor, or else the group; empty for none.
    QString currentSet() const;
    QString currentGroup() const;
    void showSet(const QString &name);
    /// Selects these sets alone; the first one is under the cursor.
    void selectSets(const QStringList &names);
    void showGroup(const QString &name);
    /// Shows the first set that the search leaves.
    void showFirst();
    void renameCurrent();
    /// Where a menu for the row under the cursor belongs, in global coordinates.
    QPoint placeOfCurrent() const;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

signals:
    /// The user wants this set applied.
    void activated(const QString &set);
    /// Another set or group is under the cursor, or it has another name or group.
    void currentChanged();
    void selectionChanged();
    /// foundCount may be another.
    void searched();
    void menuRequested(const QPoint &globalPosition);

private:
    /// One form: a model and its view.
    struct Face {
        qxSetsModel *model;
        QAbstractItemView *view;
    };

    Face makeFace(QAbstractItemView *view, qxSetsModel *model);
    const Face &face() const { return m_faces[currentIndex()]; }
    QStringList selected(bool groups) const;
    void search();
    QModelIndex current() const;
    void setCurrent(const QModelIndex &index);
    void tellCurrent();

    void openGroups();
    void noteOpen(const QModelIndex &group, bool isOpen);
    void showNote();

    Face m_faces[2];
    QPair<QString, QString> m_told; ///< set and group under the cursor
    QSet<QString> m_closedGroups;
    QString m_search;
    QString m_sought; ///< set under the cursor before the search hid it; empty for none
    QLabel *m_note; ///< in the place of sets where there are none
};
