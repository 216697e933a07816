#include "Contract.h"

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGThread.h>

using namespace osg;

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
    forgetRecords();
    { // Editors end them with their scope.
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
    const auto transform = held<ComponentTransform>();
    const BitVector mask = ComponentTransform::TranslationFieldMask;
    transform->setTranslation(Vec3f(1, 0, 0));
    changedCP(transform.get(), mask);
    EXPECT_EQ(transform->getMatrix()[3][0], 1);
    EXPECT_EQ(timesRecorded(transform.get(), mask), 0u);
    transform->setTranslation(Vec3f(2, 0, 0));
    endEditNotChangedCP(transform.get(), mask);
    EXPECT_EQ(transform->getMatrix()[3][0], 1);
    EXPECT_EQ(timesRecorded(transform.get(), mask), 1u);
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

TEST_F(Edits, OfMasksComponentsAndNamesReachWhatDependsOnThem)
{
    m_node->addChild(Node::create());
    const NodePtr child = m_node->getChild(0);
    m_node->updateVolume();
    forgetRecords();
    child->setTravMask(0);
    endEditCP(child, Node::TravMaskFieldMask);
    EXPECT_EQ(timesRecorded(child, Node::TravMaskFieldMask), 1u);
    EXPECT_GE(timesRecorded(m_node.get(), Node::VolumeFieldMask), 1u);

    const auto transform = held<ComponentTransform>();
    endEditCP(transform.get(), ComponentTransform::ScaleFieldMask);
    EXPECT_GE(timesRecorded(transform.get(), Transform::MatrixFieldMask), 1u);

    setName(child, "name");
    EXPECT_GE(timesRecorded(child, Node::AttachmentsFieldMask), 1u);
    forgetRecords();
    setName(child, "other name");
    const auto name = child->findAttachment(Name::getClassType());
    EXPECT_GE(timesRecorded(name, FieldBits::AllFields), 1u);
}

TEST_F(Edits, OfNullAndThoseInAReadOnlyListAreNotRecorded)
{
    ChangeList *list = Thread::getCurrentChangeList();
    beginEditCP(NullFC);
    endEditCP(NodePtr(), Node::TravMaskFieldMask);
    changedCP(SwitchPtr());
    endEditNotChangedCP(NodeCorePtr());
    list->setReadOnly(true);
    endEditCP(m_core, Switch::ChoiceFieldMask);
    list->setReadOnly(false);
    EXPECT_EQ(list->sizeChanged(), 0u);
}

TEST_F(Edits, StayInTheListAfterTheirObjectUntilItIsCleared)
{
    ChangeList *list = Thread::getCurrentChangeList();
    auto passing = held<Switch>();
    const UInt32 id = passing.get().getFieldContainerId();
    list->clearAll();
    list->addChanged(passing.get(), Switch::ChoiceFieldMask);
    endEditCP(passing.get());
    passing = NullFC;
    EXPECT_FALSE(isAlive(id));
    const std::vector<ChangeList::ChangeEntry> left(list->beginChanged(), list->endChanged());
    EXPECT_EQ(left, (decltype(left){{id, Switch::ChoiceFieldMask}, {id, FieldBits::AllFields}}));
    list->clearAll();
    EXPECT_TRUE(list->empty());
}
