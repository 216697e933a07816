#pragma once

#include <OpenSG/OSGNodeCore.h>

#include <QCoreApplication>

/// What nodes are called by people.
class qxNodeKind {
    Q_DECLARE_TR_FUNCTIONS(qxNodeKind)

public:
    /// Such as "Group" or "Mesh"; the type's name for cores of other programs, empty for null.
    static QString word(const osg::NodeCorePtr &core);
    /// The name of the core's type; empty for null.
    static QString typeName(const osg::NodeCorePtr &core);
};
