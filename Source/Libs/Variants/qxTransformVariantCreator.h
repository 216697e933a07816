#pragma once

#include "qxVariantCreator.h"

/// Graph operation that creates a transform variant for every node with named transform states.
class qxTransformVariantCreator : public qxVariantCreator {
public:
    qxTransformVariantCreator();

    /// A new operation of this class, owned by the caller.
    osg::GraphOp *create() override;
    /// A node with named transform states.
    bool takes(const osg::NodePtr &node) const override;
    /// Walks the tree and then announces "transformVariantChanged", also when nothing was created.
    bool traverse(osg::NodePtr node) override;

    /// Always goes on, also below a node that gave a variant.
    osg::Action::ResultE traverseEnter(qxGraphOpNode node) override;
};
