#include "Contract.h"

#include <OpenSG/OSGSimpleGeometry.h>

using namespace osg;

/// A node with three children, all named; the first one has a switch as its core.
class Family : public testing::Test {
protected:
    Family()
    {
        setName(m_root.get(), "root");
        for (const char *name : {"a", "b", "c"}) {
            m_root->addChild(Node::create());
            setName(m_root->getChild(m_root->getNChildren() - 1), name);
        }
        child(0)->setCore(Switch::create());
        child(1)->setTravMask(5);
    }

    std::string names() const
    {
        std::string all;
        for (const NodePtr &each : *m_root->getMFChildren())
            all += getName(each);
        return all;
    }
    NodePtr child(UInt32 index) const { return m_root->getChild(index); }

    const NodeRefPtr m_root = held<Node>(), m_other = held<Node>();
};

static Pnt3f moved(const TransformPtr &transform, const Pnt3f &point)
{
    Pnt3f result;
    transform->getMatrix().multMatrixPnt(point, result);
    return result;
}

static NodePtr nodeAt(const Vec3f &translation)
{
    TransformPtr transform;
    const NodePtr node = makeCoredNode<Transform>(&transform);
    transform->getMatrix().setTranslate(translation);
    endEditCP(transform, Transform::MatrixFieldMask);
    return node;
}

TEST_F(Family, AChildThatIsAddedAgainMoves)
{
    m_root->addChild(child(0));
    EXPECT_EQ(names(), "bca");
    const NodePtr moved = child(1);
    m_other->addChild(moved);
    EXPECT_EQ(names(), "ba");
    EXPECT_TRUE(moved->getParent() == m_other.get() && moved.getRefCount() == 1);
}

TEST_F(Family, ChildrenAreFoundInsertedAndReplacedByPosition)
{
    const auto added = held<Node>();
    setName(added.get(), "x");
    EXPECT_EQ(m_root->findChild(child(2)), 2);
    EXPECT_EQ(m_root->findChild(m_other), -1);
    m_root->insertChild(1, added);
    EXPECT_EQ(names(), "axbc");
    m_root->subChild(UInt32(1));
    EXPECT_TRUE(m_root->replaceChildBy(child(1), added));
    EXPECT_EQ(names(), "axc");
    EXPECT_FALSE(m_root->replaceChildBy(child(0), NullFC));
    EXPECT_FALSE(m_other->replaceChildBy(m_root, child(0)));
    EXPECT_TRUE(warns([&] { m_root->subChild(m_other); }));
    EXPECT_EQ(names(), "axc");
}

TEST_F(Family, ARemovedChildIsDestroyedWithItsSubtreeUnlessHeld)
{
    const NodeRefPtr kept(child(1));
    child(2)->addChild(child(0));
    const UInt32 core = child(1)->getChild(0)->getCore().getFieldContainerId();
    m_root->subChild(UInt32(1));
    m_root->subChild(kept);
    EXPECT_FALSE(isAlive(core));
    EXPECT_STREQ(getName(kept.get()), "b");
    EXPECT_EQ(kept->getParent(), NullFC);
}

TEST_F(Family, AClonedTreeSharesCoresButNoNamesAndADeepOneIsACopyOfEverything)
{
    const NodeRefPtr clone(cloneTree(m_root));
    EXPECT_EQ(clone->getChild(0)->getCore(), child(0)->getCore());
    EXPECT_EQ(clone->getChild(1)->getTravMask(), 5u);
    EXPECT_EQ(getName(clone->getChild(0)), nullptr);

    SwitchPtr::dcast(child(0)->getCore())->setChoice(3);
    const NodeRefPtr copy(deepCloneTree(m_root));
    const SwitchPtr core = SwitchPtr::dcast(copy->getChild(0)->getCore());
    EXPECT_NE(core, child(0)->getCore());
    EXPECT_EQ(core->getChoice(), 3);
    EXPECT_EQ(copy->getChild(1)->getTravMask(), 5u);
    setName(copy.get(), "copy");
    EXPECT_STREQ(getName(m_root.get()), "root");
    EXPECT_STREQ(getName(copy->getChild(2)), "c");
}

TEST(Nodes, LeaveTheVolumeWhenHidden)
{
    const NodeRefPtr root(nodeAt(Vec3f(5, 0, 0)));
    root->addChild(nodeAt(Vec3f(0, 7, 0)));
    const NodePtr child = root->getChild(0);
    child->addChild(makeBox(2, 4, 6, 1, 1, 1));
    EXPECT_EQ(child->getToWorld()[3], Vec4f(5, 7, 0, 1));
    Pnt3f low, high;
    root->updateVolume();
    root->getVolume().getBounds(low, high);
    EXPECT_TRUE(low.equals(Pnt3f(4, 5, -3), 1e-4f) && high.equals(Pnt3f(6, 9, 3), 1e-4f));
    beginEditCP(child, Node::TravMaskFieldMask);
    child->setTravMask(0);
    endEditCP(child, Node::TravMaskFieldMask);
    root->updateVolume();
    EXPECT_TRUE(root->getVolume().isEmpty());
}

TEST_F(Family, ADestroyedParentLeavesHeldChildren)
{
    NodeRefPtr parent = held<Node>();
    parent->addChild(NullFC);
    EXPECT_EQ(parent->getNChildren(), 0u);
    parent->addChild(m_other);
    parent = NullFC;
    EXPECT_EQ(m_other->getParent(), NullFC);
    m_other->addChild(m_other); // Nothing keeps a node from being its own parent.
    EXPECT_EQ(m_other->getParent(), m_other.get());
    m_other->subChild(UInt32(0));
    EXPECT_EQ(m_other.get().getRefCount(), 1);
}

TEST_F(Family, AShallowCopySharesCoreAndAttachmentsAndHasNoChildren)
{
    m_root->setCore(Group::create());
    NodeRefPtr copy(NodePtr::dcast(m_root->shallowCopy()));
    EXPECT_EQ(copy->getCore(), m_root->getCore());
    EXPECT_STREQ(getName(copy.get()), "root");
    EXPECT_EQ(copy->getNChildren(), 0u);
    copy = NullFC;
    EXPECT_EQ(m_root->getCore().getRefCount(), 1);
    EXPECT_STREQ(getName(m_root.get()), "root");
}

TEST(Clones, ShareWhatIsOfANamedType)
{
    const auto choices = held<SwitchMaterial>();
    choices->addMaterial(SimpleMaterial::create());
    const auto clone = [&](const char *shared) {
        return SwitchMaterialRefPtr(SwitchMaterialPtr::dcast(deepClone(choices.get(), shared)));
    };
    EXPECT_EQ(clone("Material")->getMaterial(0), choices->getMaterial(0));
    EXPECT_NE(clone("")->getMaterial(0), choices->getMaterial(0));
    EXPECT_EQ(choices->getMaterial(0).getRefCount(), 1);
}

TEST(Cores, KnowTheirNodesInTheOrderInWhichTheyWereSet)
{
    SwitchPtr core;
    NodeRefPtr first(makeCoredNode<Switch>(&core));
    const NodeRefPtr second(makeNodeFor(core));
    EXPECT_EQ(core->getParents().getValues(), (std::vector<NodePtr>{first, second}));
    EXPECT_EQ(core.getRefCount(), 2);
    EXPECT_EQ(core->getChoice(), -1); // A new switch shows nothing.
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
    const auto transform = held<ComponentTransform>();
    transform->setScale(Vec3f(2, 1, 1));
    transform->setRotation(Quaternion(Vec3f(0, 0, 1), 1.5707963f));
    transform->setCenter(Vec3f(1, 0, 0));
    transform->setTranslation(Vec3f(0, 0, 5));
    EXPECT_EQ(moved(transform.get(), Pnt3f(2, 0, 0)), Pnt3f(2, 0, 0));
    endEditCP(transform.get(), ComponentTransform::CenterFieldMask);
    EXPECT_TRUE(moved(transform.get(), Pnt3f(2, 0, 0)).equals(Pnt3f(1, 2, 5), 1e-4f));
    EXPECT_TRUE(moved(transform.get(), Pnt3f(1, 0, 0)).equals(Pnt3f(1, 0, 5), 1e-4f));
}

TEST(ComponentTransforms, OverwriteAMatrixThatWasSetDirectly)
{
    const auto owner = held<ComponentTransform>();
    const TransformPtr transform = owner.get();
    Matrix matrix;
    matrix.setTranslate(7, 0, 0);
    transform->setMatrix(matrix);
    endEditCP(transform, Transform::MatrixFieldMask);
    EXPECT_EQ(moved(transform, Pnt3f(1, 2, 3)), Pnt3f(8, 2, 3));
    endEditCP(transform, ComponentTransform::ScaleFieldMask); // The components had no effect yet.
    EXPECT_EQ(moved(transform, Pnt3f(1, 2, 3)), Pnt3f(1, 2, 3));
}
