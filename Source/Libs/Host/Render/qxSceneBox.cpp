#include "Render/qxSceneBox.h"

#include "Animation/OSGDeformation.h"
#include "Render/qxRenderShape.h"
#include "Render/qxShownWalk.h"
#include "qxNodeWalk.h"

namespace {

bool hasSkins(const osg::NodePtr &top)
{
    return !qxWalkNodes(top, [](const osg::NodePtr &node) {
        const osg::DeformationPtr deformation = osg::Deformation::of(node);
        return deformation == osg::NullFC || deformation->getJoints().empty();
    });
}

void extend(osg::DynamicVolume &box, osg::DynamicVolume part, const osg::Matrix &toWorld)
{
    if (part.isEmpty())
        return;
    part.transform(toWorld);
    box.extendBy(part);
}

/// The volumes of nodes have a mesh where it was made. A joint takes it elsewhere, and maybe to
/// another size.
osg::DynamicVolume boxOfParts(const osg::NodePtr &top, const osg::Matrix &above)
{
    osg::DynamicVolume box;
    qxRenderShapes shapes;
    qxShownListener listener;
    listener.part = [&](const qxShownPart &part) {
        const osg::NodePtr node = qxNodeWithId(part.node);
        const qxRenderShape shape = shapes.of(node);
        osg::Matrix toWorld = above;
        toWorld.mult(part.toWorld);
        if (!shape.isSkinned())
            extend(box, node->getVolume(true), toWorld);
        for (const osg::Matrix &joint : shape.joints)
            extend(box, node->getVolume(true), joint);
    };
    qxWalkShown(top, listener);
    return box;
}

} // namespace

osg::DynamicVolume qxSceneBox(const osg::NodePtr &node)
{
    osg::DynamicVolume box;
    if (node == osg::NullFC)
        return box;
    const osg::NodePtr parent = node->getParent();
    const osg::Matrix above = parent == osg::NullFC ? osg::Matrix() : parent->getToWorld();
    if (hasSkins(node))
        return boxOfParts(node, above);
    extend(box, node->getVolume(true), above);
    return box;
}
