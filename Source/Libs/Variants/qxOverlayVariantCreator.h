#pragma once

#include "qxVariantCreator.h"

/// Graph operation that creates an overlay variant for every switch node of the overlay tree that
/// has children.
class qxOverlayVariantCreator : public qxVariantCreator {
public:
    qxOverlayVariantCreator();

    /// A new operation of this class, owned by the caller.
    osg::GraphOp *create() override;
    /// A switch with children.
    bool takes(const osg::NodePtr &node) const override;

    /// Always goes on, also below a node that gave a variant.
    osg::Action::ResultE traverseEnter(qxGraphOpNode node) override;
};
