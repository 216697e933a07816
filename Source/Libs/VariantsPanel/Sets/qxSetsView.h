#pragma once

#include <QPair>
#include <QSet>
#include <QStackedWidget>

class QAbstractItemView;
class QLabel;
class qxGallery;
class qxPanelEvents;
class qxPreviewAge;
class qxSetEdits;
class qxSetsModel;
class qxTakenKeys;

/// The sets as a list by groups or as a gallery of previews, with a common selection.
class qxSetsView : public QStackedWidget {
    Q_OBJECT

public:
    /// How the sets are shown.
    enum Form { List, Gallery };

    /// Follows the events and edits through `edits`, which must both outlive this.
    qxSetsView(qxPanelEvents *events, qxSetEdits *edits, QWidget *parent = nullptr);

    ///@{
    /// The form that is shown; the list at start. Another one takes over search and current set.
    Form form() const { return Form(currentIndex()); }
    void setForm(Form form);
    ///@}
    /// Shows only what has this text in it; an empty one shows everything.
    void setSearch(const QString &text);
    /// Whether to show hidden groups.
    void setHiddenShown(bool shown);
    /// Marks stale previews. It must outlive this.
    void setPreviewAge(const qxPreviewAge *age);
    /// The tiles, for their size.
    qxGallery *gallery() const;
    /// Marks hotkeys that the window uses itself; null marks none. It must outlive this.
    void setTakenKeys(const qxTakenKeys *taken);
    /// The sets in the order of the view, also those in closed groups; only those that the search
    /// finds.
    QStringList shownSets() const;
    /// How many sets the search finds; -1 without a search.
    int foundCount() const;

    ///@{
    /// The names of the selected sets, or groups, in the order of the view.
    QStringList selectedSets() const { return selected(false); }
    QStringList selectedGroups() const { return selected(true); }
    ///@}
    /// The name of the current set; empty when none is, or when a group is.
    QString currentSet() const;
    /// The name of the current group, or of that of the current set; empty for none.
    QString currentGroup() const;
    /// Makes the set current and scrolls to it; nothing for one that is not shown.
    void showSet(const QString &name);
    /// Selects only these sets; the first one becomes current.
    void selectSets(const QStringList &names);
    /// Makes the group current and scrolls to it; nothing for one that is not shown.
    void showGroup(const QString &name);
    /// Shows the first set that the search finds.
    void showFirst();
    /// Lets the user edit the name of the current set or group in its place; nothing for none.
    void renameCurrent();
    /// The position of a menu for the current row, in global coordinates.
    QPoint placeOfCurrent() const;

protected:
    ///@{
    /// Qt calls these.
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    ///@}

Q_SIGNALS:
    /// The user wants to select this set.
    void activated(const QString &set);
    /// Another set or group is current, or its name or group has changed.
    void currentChanged();
    /// The selected sets or groups are others.
    void selectionChanged();
    /// foundCount may have changed.
    void searched();
    /// The user wants a menu for what is selected, at that position.
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
    void setOpen(const QString &group, bool isOpen);
    void toggle(const QString &group);
    void activate(const QModelIndex &index);
    void showNote();

    Face m_faces[2];
    QPair<QString, QString> m_told; ///< current set and group
    QSet<QString> m_closedGroups;
    QString m_search;
    QString m_sought; ///< current set that the search has hidden; empty for none
    QLabel *m_note; ///< shown if there are no sets
};
