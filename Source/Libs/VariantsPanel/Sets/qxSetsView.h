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

/// The sets as a list by groups or as a gallery of previews, with a common selection.
class qxSetsView : public QStackedWidget {
    Q_OBJECT

public:
    enum Form { List, Gallery };

    qxSetsView(qxPanelEvents *events, qxSetEdits *edits, QWidget *parent = nullptr);

    Form form() const { return Form(currentIndex()); }
    void setForm(Form form);
    void setSearch(const QString &text);
    /// Whether to show hidden groups.
    void setHiddenShown(bool shown);
    void setTakenKeys(const qxTakenKeys *taken);
    /// How many sets the search finds; -1 without a search.
    int foundCount() const;

    /// The selected sets in the order of the view.
    QStringList selectedSets() const { return selected(false); }
    QStringList selectedGroups() const { return selected(true); }
    /// The current set, or group; empty for none.
    QString currentSet() const;
    QString currentGroup() const;
    void showSet(const QString &name);
    /// Selects only these sets; the first one becomes current.
    void selectSets(const QStringList &names);
    void showGroup(const QString &name);
    /// Shows the first set that the search finds.
    void showFirst();
    void renameCurrent();
    /// The position of a menu for the current row, in global coordinates.
    QPoint placeOfCurrent() const;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

Q_SIGNALS:
    /// The user wants to select this set.
    void activated(const QString &set);
    /// Another set or group is current, or its name or group has changed.
    void currentChanged();
    void selectionChanged();
    /// foundCount may have changed.
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
    QPair<QString, QString> m_told; ///< current set and group
    QSet<QString> m_closedGroups;
    QString m_search;
    QString m_sought; ///< current set that the search has hidden; empty for none
    QLabel *m_note; ///< shown if there are no sets
};
