#pragma once

#include "qxSetMatch.h"

#include <QAbstractItemModel>
#include <QSet>

#include <vector>

class qxPanelEvents;
class qxPreviewAge;
class qxSetEdits;
class qxTakenKeys;
class qxVariantGroup;
class qxVariantSet;

/// Groups with their sets, then the sets without a group, updated by qxPanelEvents: as a tree, or
/// as sections one below the other.
///
/// Views keep selection, scroll position and expanded groups through every change. Names and
/// comments are edited in place, sets and groups are moved by drag and drop; both can be undone.
class qxSetsModel : public QAbstractItemModel {
    Q_OBJECT

public:
    /// Sections are headings with their sets behind them, all at the top. Those in no group have a
    /// heading, too, where there are others: its name to edit (Qt::EditRole) is empty.
    enum Shape { Tree, Sections };
    enum Role {
        IsGroupRole = Qt::UserRole, ///< bool
        GroupRole, ///< QString: name of the set's group, empty for none
        HotkeyRole, ///< QString, as shown
        KeyTakenRole, ///< bool: the window uses the key itself, so it does not select the set
        CommentRole, ///< QString
        PreviewRole, ///< QByteArray, an encoded picture; empty for none
        StaleRole, ///< bool: the preview was made of something else than the set is now
        ClosedRole, ///< bool: the section does not show its sets
        CountRole, ///< states of a set; sets of a group, such as "1 of 4" during a search
        HiddenRole, ///< bool: the group is not to be shown
        EmptyRole, ///< bool: selecting the set does nothing, the group has no sets
        UnusedRole, ///< bool: the set refers to something, but nothing of it exists
        CurrentRole ///< bool: the scene shows the set now
    };

    qxSetsModel(Shape shape, qxPanelEvents *events, qxSetEdits *edits, QObject *parent = nullptr);

    /// Shows only sets, with their groups, whose name, comment, hotkey or group name contain every
    /// word, ignoring case; and groups whose name does.
    void setSearch(const QString &text);

    /// Keys that do not select sets; none before this call.
    void setTakenKeys(const qxTakenKeys *taken);

    /// Tells which previews are stale; none before this call.
    void setPreviewAge(const qxPreviewAge *age);

    /// Whether to show hidden groups with their sets.
    void setHiddenShown(bool shown);

    /// The groups whose sections show no sets, unless there is a search; the empty name stands for
    /// the sets in no group.
    void setClosed(const QSet<QString> &groups);

    /// The sets that are to be shown in their order, also those of closed sections.
    QStringList setsInOrder() const;

    /// The set of a row, or its group; null for a row of the other kind and for a removed object.
    qxVariantSet *setAt(const QModelIndex &index) const;
    qxVariantGroup *groupAt(const QModelIndex &index) const;
    QModelIndex indexOfSet(const QString &name) const;
    QModelIndex indexOfGroup(const QString &name) const;

    QModelIndex index(int row, int column, const QModelIndex &parent) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent) const override;
    int columnCount(const QModelIndex &) const override { return 1; }
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                         const QModelIndex &parent) const override;
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

private:
    /// The content of a row. The pointer may be dangling while notifications are pending.
    struct Row {
        const void *object;
        QString name;
        bool isGroup;
        int parent; ///< row of the group, -1 at the top
        std::vector<int> children; ///< places in m_rows
        int row; ///< among its siblings
        QString group = QString(); ///< that it belongs to, or is; empty for none
        int found = 0; ///< the sets of a group that are to be shown
    };
    typedef std::vector<Row> Rows;

    /// The target of dragged sets.
    struct Target {
        QString group; ///< empty for none
        QString before; ///< a set there; empty for the end
    };

    typedef std::vector<const qxVariantSet *> Sets;

    Target targetOf(int row, const QModelIndex &parent) const;
    QString groupBehind(int row) const;
    QString nameIn(const std::vector<int> &places, int row) const;
    bool isFound(const QString &text) const;
    bool isFound(const qxVariantSet &set) const;
    void refresh();
    void refreshStates();
    void readRows();
    void readGroup(const void *object, const QString &name, const Sets &found);
    bool isToBeShown(const qxVariantGroup &group) const;
    Sets foundIn(const qxVariantGroup &group) const;
    Sets foundAlone() const;
    int appendRow(const Row &row);
    void keepPersistentIndexes(const Rows &before);
    int placeOf(const Row &row) const;
    const Row *rowAt(const QModelIndex &index) const;
    QModelIndex indexOfRow(int place) const;
    void rowsShowAnew();
    QVariant groupData(const Row &row, const qxVariantGroup *group, int role) const;
    QVariant setDataOf(qxVariantSet &set, int role) const;
    QString toolTip(qxVariantSet &set) const;
    QString spokenText(qxVariantSet &set) const;
    bool isStale(const qxVariantSet &set) const;
    QString keyFlaw(const qxVariantSet &set) const;

    Shape m_shape;
    QStringList m_words; ///< of the search
    bool m_showsHidden = false;
    qxSetEdits *m_edits;
    const qxTakenKeys *m_taken = nullptr;
    const qxPreviewAge *m_age = nullptr;
    QSet<QString> m_closed; ///< groups
    Rows m_rows;
    std::vector<int> m_top;
    QHash<QString, int> m_sets; ///< places of the sets in m_rows
    QHash<QString, int> m_groups;
    mutable qxSetMatch m_match;
};
