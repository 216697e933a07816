#include "Contract.h"

#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSwitch.h>

using namespace osg;

namespace {

Pnt3f moved(const TransformPtr &transform, const Pnt3f &point)
{
    Pnt3f result;
    transform->getMatrix().multMatrixPnt(point, result);
    return result;
}

} // namespace

TEST(Cores, KnowTheirNodesInTheOrderInWhichTheyWereSet)
{
    SwitchPtr core;
    NodeRefPtr first(makeCoredNode<Switch>(&core));
    const NodeRefPtr second(makeNodeFor(core));
    EXPECT_EQ(core->getParents().getValues(), (std::vector<NodePtr>{first, second}));
    EXPECT_EQ(core.getRefCount(), 2);
    EXPECT_EQ(core->getChoice(), -1); // A new switch shows nothing.
    core->setChoice(-5);
    EXPECT_EQ(core->getChoice(), -5);
    EXPECT_EQ(Switch::ALL * 10 + Switch::NONE, -21);
    first->setCore(core);
    EXPECT_EQ(core->getParents().getValues(), (std::vector<NodePtr>{second, first}));
    first = NullFC;
    EXPECT_EQ(core->getMFParents()->getValues(), (std::vector<NodePtr>{second}));
    const SwitchRefPtr kept(core);
    second->setCore(Group::create());
    const UInt32 replaced = second->getCore().getFieldContainerId();
    second->setCore(NullFC);
    EXPECT_FALSE(isAlive(replaced));
    EXPECT_TRUE(core->getParents().empty());
    EXPECT_EQ(core.getRefCount(), 1);
}

TEST(ComponentTransforms, ScaleThenRotateAboutTheCentreThenTranslateWhenTheEditEnds)
{
    const auto owner = held<ComponentTransform>();
    const ComponentTransformPtr transform = owner.get();
    transform->setScale(Vec3f(2, 1, 1));
    transform->setRotation(Quaternion(Vec3f(0, 0, 1), 1.5707963f));
    transform->setCenter(Vec3f(1, 0, 0));
    transform->setTranslation(Vec3f(0, 0, 5));
    EXPECT_EQ(moved(transform, Pnt3f(2, 0, 0)), Pnt3f(2, 0, 0));
    endEditCP(transform, ComponentTransform::CenterFieldMask);
    EXPECT_TRUE(moved(transform, Pnt3f(2, 0, 0)).equals(Pnt3f(1, 2, 5), 1e-4f));
    EXPECT_TRUE(moved(transform, Pnt3f(1, 0, 0)).equals(Pnt3f(1, 0, 5), 1e-4f));
}

TEST(ComponentTransforms, StartWithoutEffectAndOverwriteAMatrixThatWasSetDirectly)
{
    const auto owner = held<ComponentTransform>();
    EXPECT_EQ(owner->getScale(), Vec3f(1, 1, 1));
    const TransformPtr transform = owner.get();
    Matrix matrix;
    matrix.setTranslate(7, 0, 0);
    transform->setMatrix(matrix);
    endEditCP(transform, Transform::MatrixFieldMask);
    EXPECT_EQ(moved(transform, Pnt3f(1, 2, 3)), Pnt3f(8, 2, 3));
    endEditCP(transform, ComponentTransform::ScaleFieldMask);
    EXPECT_EQ(moved(transform, Pnt3f(1, 2, 3)), Pnt3f(1, 2, 3));
}
