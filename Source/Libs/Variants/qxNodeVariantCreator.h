#pragma once

#include "qxVariantCreator.h"

/// Graph operation that creates a node variant for every switch node that has children.
class qxNodeVariantCreator : public qxVariantCreator {
public:
    qxNodeVariantCreator();

    /// A new operation of this class, owned by the caller.
    osg::GraphOp *create() override;
    /// A switch with children.
    bool takes(const osg::NodePtr &node) const override;

    /// Always goes on, also below a node that gave a variant.
    osg::Action::ResultE traverseEnter(qxGraphOpNode node) override;
};
