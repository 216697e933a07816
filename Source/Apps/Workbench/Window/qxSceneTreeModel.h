#pragma once

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodePtr.h>

#include <QAbstractItemModel>
#include <QHash>

#include <vector>

/// The nodes of the scene below its root. The first column has the name with a check box for the
/// visibility, the second what the node is. Nodes can be dragged (qxDragData).
///
/// Rows are those of the last refresh; visibility is always read from the scene.
class qxSceneTreeModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { NameColumn, KindColumn, ColumnCount };

    explicit qxSceneTreeModel(QObject *parent = nullptr);

    /// Reads the scene again. If nodes were added, removed or renamed, views keep expanded and
    /// selected rows that still exist.
    void refresh();
    /// Call it after a change of language: views update all texts.
    void retranslate();
    osg::NodePtr nodeAt(const QModelIndex &index) const;
    /// Invalid for a node that has no row now.
    QModelIndex indexOf(const osg::NodePtr &node, int column = NameColumn) const;

    /// Leaves the rows whose name or kind contains each word of the text, and what is above them;
    /// an empty text leaves all. A text that goes on looks only at what the last one has found.
    void setFilter(const QString &text);
    bool isFiltered() const { return !m_filter.isEmpty(); }
    int rowsShown() const { return m_shownCount; }
    int matchCount() const { return int(m_matches.size()); }
    /// The next match below a row, or above it, going round; the first or last one for an invalid
    /// row. Invalid without matches.
    QModelIndex matchBeside(const QModelIndex &index, bool isBelow) const;

    QModelIndex index(int row, int column, const QModelIndex &parent) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent) const override;
    int columnCount(const QModelIndex &) const override { return ColumnCount; }
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;

Q_SIGNALS:
    /// The user wants to show or hide this node; whoever receives that does it.
    void visibilityTicked(const QModelIndex &index, bool isShown);

private:
    struct Row {
        osg::NodeRefPtr node;
        QString name;
        int parent; ///< place in m_rows, -1 at the top
        int row; ///< among its siblings that are shown
        int order = 0; ///< from top to bottom of the whole tree
        std::vector<int> children; ///< all of them
        std::vector<int> shown; ///< those of them that the filter leaves
    };
    typedef std::vector<Row> Rows;

    static void append(Rows &rows, const osg::NodePtr &node, int parent);
    static Rows readScene();
    static void order(Rows &rows);
    static bool isSame(const Rows &one, const Rows &other);
    void take(Rows rows);
    /// Lets `change` change the rows while views keep what they know of rows that stay.
    template <class Change>
    void rearrange(const Change &change);
    void readTexts();
    void match(const QString &text, bool goesOn);
    void showMatches();
    int orderOf(int place) const { return m_rows[std::size_t(place)].order; }
    QModelIndex indexAt(int place, int column = NameColumn) const;
    const Row &rowAt(const QModelIndex &index) const;

    Rows m_rows; ///< the first is the root, which is not shown
    QHash<osg::UInt32, int> m_places; ///< of nodes in m_rows, by their ids
    std::vector<QString> m_texts; ///< what the filter looks at; empty until it is needed
    QString m_filter;
    std::vector<int> m_matches; ///< places, from top to bottom
    std::vector<bool> m_isShown; ///< by place
    int m_shownCount = 0;
};
