#pragma once

#include "qxVariantCreator.h"

/// Graph operation that creates a light variant for every light node.
class qxLightVariantCreator : public qxVariantCreator {
public:
    qxLightVariantCreator();

    /// A new operation of this class, owned by the caller.
    osg::GraphOp *create() override;
    /// A light.
    bool takes(const osg::NodePtr &node) const override;
    /// Walks the tree and then announces "lightVariantChanged", also when nothing was created.
    bool traverse(osg::NodePtr node) override;

    /// Always goes on, also below a node that gave a variant.
    osg::Action::ResultE traverseEnter(qxGraphOpNode node) override;
};
