#include "Contract.h"

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGThread.h>

using namespace osg;

namespace {

/// Nothing is recorded yet.
class Edits : public testing::Test {
protected:
    Edits() { forgetRecords(); }
    ~Edits() override { forgetRecords(); }

    std::size_t choices() const { return timesRecorded(m_core, Switch::ChoiceFieldMask); }

    const SwitchRefPtr m_owner = held<Switch>();
    const NodeRefPtr m_node = held<Node>();
    const SwitchPtr m_core = m_owner;
};

} // namespace

TEST_F(Edits, AreRecordedOncePerBracketWhateverHappensInIt)
{
    m_core->setChoice(2);
    EXPECT_EQ(Thread::getCurrentChangeList()->sizeChanged(), 0u);
    beginEditCP(m_core, Switch::ChoiceFieldMask);
    beginEditCP(m_core, Switch::ChoiceFieldMask);
    EXPECT_EQ(choices(), 0u);
    endEditCP(m_core, Switch::ChoiceFieldMask);
    EXPECT_EQ(choices(), 1u);
    endEditCP(m_core, Switch::ChoiceFieldMask);
    EXPECT_EQ(choices(), 2u);
}

TEST_F(Edits, EndWithTheScopeOfAnEditor)
{
    {
        CPEdit(m_core, Switch::ChoiceFieldMask);
        CPEditAll(m_node);
        CPEditor editor(m_core, Switch::ChoiceFieldMask);
        EXPECT_EQ(choices(), 0u);
    }
    EXPECT_EQ(choices(), 2u);
    EXPECT_EQ(timesRecorded(m_node.get(), FieldBits::AllFields), 1u);
}

TEST_F(Edits, CanNotifyWithoutARecordOrRecordWithoutNotifying)
{
    const auto owner = held<ComponentTransform>();
    const ComponentTransformPtr transform = owner.get();
    const BitVector mask = ComponentTransform::TranslationFieldMask;
    transform->setTranslation(Vec3f(1, 0, 0));
    changedCP(transform, mask);
    EXPECT_EQ(transform->getMatrix()[3][0], 1);
    EXPECT_EQ(timesRecorded(transform, mask), 0u);
    transform->setTranslation(Vec3f(2, 0, 0));
    endEditNotChangedCP(transform, mask);
    EXPECT_EQ(transform->getMatrix()[3][0], 1);
    EXPECT_EQ(timesRecorded(transform, mask), 1u);
}

TEST_F(Edits, OfChildrenAndCoresReachWhatIsLinked)
{
    const auto former = held<Node>();
    const NodeRefPtr child(Node::create());
    former->addChild(child);
    forgetRecords();
    m_node->addChild(child);
    EXPECT_GE(timesRecorded(child.get(), Node::ParentFieldMask), 1u);
    EXPECT_GE(timesRecorded(former.get(), Node::ChildrenFieldMask), 1u);
    forgetRecords();
    m_node->subChild(child);
    EXPECT_GE(timesRecorded(child.get(), Node::ParentFieldMask), 1u);
    m_node->setCore(m_core);
    EXPECT_GE(timesRecorded(m_core, NodeCore::ParentsFieldMask), 1u);
}
