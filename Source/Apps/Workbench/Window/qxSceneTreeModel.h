#pragma once

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodePtr.h>

#include <QAbstractItemModel>

#include <vector>

/// The nodes of the scene below its root. The first column has the name with a check box for the
/// visibility, the second what the node is.
///
/// Rows are those of the last refresh; visibility is always read from the scene.
class qxSceneTreeModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { NameColumn, CoreColumn, ColumnCount };

    explicit qxSceneTreeModel(QObject *parent = nullptr);

    /// Reads the scene again. If nodes were added, removed or renamed, views keep expanded and
    /// selected rows that still exist.
    void refresh();
    /// Call it after a change of language: views update all texts.
    void retranslate();
    osg::NodePtr nodeAt(const QModelIndex &index) const;
    QModelIndex indexOf(const osg::NodePtr &node) const;

    QModelIndex index(int row, int column, const QModelIndex &parent) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent) const override;
    int columnCount(const QModelIndex &) const override { return ColumnCount; }
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    /// The user showed or hid this node.
    void visibilityTicked(const QModelIndex &index);

private:
    struct Row {
        osg::NodeRefPtr node;
        QString name;
        int parent; ///< place in m_rows, -1 at the top
        int row; ///< among its siblings
        std::vector<int> children;
    };
    typedef std::vector<Row> Rows;

    static void append(Rows &rows, const osg::NodePtr &node, int parent, int row);
    static Rows readScene();
    static bool isSame(const Rows &one, const Rows &other);
    void exchange(Rows rows);
    const Row *rowAt(const QModelIndex &index) const;

    Rows m_rows; ///< the first is the root, which is not shown
};
