#include "Contract.h"

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGTransform.h>

#include <set>
#include <sstream>

using namespace osg;

static const NodePtr madeBeforeMain = NullFC;

TEST(Pointers, AreNullWhenMadeBeforeTheLibraryStarts)
{
    EXPECT_EQ(madeBeforeMain, NodePtr());
    EXPECT_EQ(madeBeforeMain.getCPtr(), nullptr);
    EXPECT_EQ(madeBeforeMain.getRefCount(), 0);
}

TEST(Pointers, ToOneObjectAreEqualWhateverTheirTypes)
{
    const auto owner = held<Switch>();
    const SwitchPtr asSwitch = owner.get();
    const GroupPtr asGroup = asSwitch;
    const FieldContainerPtr asContainer = asGroup;
    EXPECT_EQ(asContainer.getRefCount(), 1); // Copies do not count.
    EXPECT_TRUE(asContainer == asSwitch && !(asGroup != asContainer));
    EXPECT_FALSE(asSwitch < asContainer || asContainer < asSwitch);
    EXPECT_EQ((std::set<NodeCorePtr>{asSwitch, asGroup}).size(), 1u);
    EXPECT_TRUE(NodeCorePtr() < asSwitch); // Null sorts first.
    EXPECT_FALSE(asSwitch < NullFC);
}

TEST(Pointers, CastDownToWhatTheObjectIsElseToNull)
{
    const auto owner = held<Switch>();
    const NodeCorePtr core = owner.get();
    EXPECT_EQ(SwitchPtr::dcast(core), core);
    EXPECT_EQ(dynamic_fcptr_cast<GroupPtr>(core), core);
    EXPECT_EQ(TransformPtr::dcast(core), NullFC);
    EXPECT_EQ(NodePtr::dcast(core), NullFC);
    EXPECT_EQ(SwitchPtr::dcast(NodeCorePtr()), NullFC);
    EXPECT_EQ(SwitchPtr(owner.getCPtr()), core);
}

TEST(Pointers, PrintNullAndObjectsDifferently)
{
    const auto node = held<Node>();
    std::ostringstream ofNode, ofNull;
    ofNode << node.get();
    ofNull << NodePtr();
    EXPECT_NE(ofNode.str(), ofNull.str());
    EXPECT_NE(ofNode.str(), "");
}
