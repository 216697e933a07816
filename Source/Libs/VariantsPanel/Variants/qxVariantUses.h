#pragma once

#include "Undo/qxVariantMemento.h"

#include <OpenSG/OSGNode.h>

#include <QTreeWidget>

/// What uses a variant: sets with the states that they hold, and the things of the scene that it
/// moves. It is gathered when asked for.
class qxVariantUses : public QTreeWidget {
    Q_OBJECT

public:
    qxVariantUses();

    /// Shows them for that variant; nothing for an empty name.
    void showUses(const qxVariantName &variant);

Q_SIGNALS:
    ///@{
    /// The user wants to see that set or that node.
    void setWanted(const QString &set);
    void nodeWanted(const osg::NodePtr &node);
    ///@}

protected:
    void changeEvent(QEvent *event) override;

private:
    void addSets(const qxVariant &variant);
    void addThings(const qxVariant &variant);
    QTreeWidgetItem *addGroup(const QString &text);
    void follow(QTreeWidgetItem *item);

    qxVariantName m_variant{};
};
