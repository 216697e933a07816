#include "Contract.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGMaterialPool.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>
#include <OpenSG/OSGTextureChunk.h>

using namespace osg;

namespace {

/// Gives an owner the same thing twice: it takes one reference and releases it when it goes.
template <class Owner, class Thing, class Give>
void expectCounted(const char *how, Give give)
{
    const auto thing = held<Thing>();
    auto owner = held<Owner>();
    typename Thing::Ptr given = thing.get();
    give(owner.get(), given);
    give(owner.get(), given);
    EXPECT_EQ(given.getRefCount(), 2) << how;
    owner = NullFC;
    EXPECT_EQ(given.getRefCount(), 1) << how;
}

#define EXPECT_COUNTED(Owner, Thing, call) \
    expectCounted<Owner, Thing>(#call, \
                                [](const Owner::Ptr &owner, Thing::Ptr &thing) { owner->call; })

} // namespace

TEST(References, AreCountedOnceByWhoeverIsGivenAnObject)
{
    EXPECT_COUNTED(Node, Switch, setCore(thing));
    EXPECT_COUNTED(Node, Node, addChild(thing));
    EXPECT_COUNTED(Node, Name, addAttachment(thing));
    EXPECT_COUNTED(MaterialPool, SimpleMaterial, add(MaterialPtr(thing)));
    EXPECT_COUNTED(MaterialGroup, SimpleMaterial, setMaterial(thing));
    EXPECT_COUNTED(Geometry, SimpleMaterial, setMaterial(thing));
    EXPECT_COUNTED(Geometry, GeoPositions3f, setPositions(thing));
    EXPECT_COUNTED(TextureChunk, Image, setImage(thing));
    EXPECT_COUNTED(SwitchMaterial, SimpleMaterial,
                   hasMaterial(thing) ? void() : owner->addMaterial(thing));
}

TEST(References, StartAtNoneAndTurnTheHandedInPointerToNullWithTheLastRelease)
{
    const UInt32 id = NodeRefPtr(Node::create()).get().getFieldContainerId();
    EXPECT_FALSE(isAlive(id)); // The passing holder was the only one.
    const NodePtr node = Node::create();
    EXPECT_EQ(node.getRefCount(), 0);
    addRefCP(node);
    subRefCP(node);
    EXPECT_EQ(node, NullFC);

    const auto parent = held<Node>();
    const NodePtr child = Node::create();
    parent->addChild(child);
    parent->subChild(child);
    EXPECT_EQ(child, NullFC);
}

TEST(References, AreExchangedBySetRefdAndDroppedByClearRef)
{
    const auto first = held<Node>(), second = held<Node>();
    NodePtr slot;
    clearRefCP(slot);
    setRefdCP(slot, first.get());
    setRefdCP(slot, first.get());
    EXPECT_EQ(first.get().getRefCount(), 2);
    setRefdCP(slot, second.get());
    EXPECT_EQ(first.get().getRefCount(), 1);
    clearRefCP(slot);
    EXPECT_EQ(second.get().getRefCount(), 1);
    EXPECT_EQ(slot, NullFC);
}
