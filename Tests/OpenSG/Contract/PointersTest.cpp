#include "Contract.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGMaterialPool.h>
#include <OpenSG/OSGMultiPassMaterial.h>
#include <OpenSG/OSGTextureChunk.h>

#include <set>
#include <sstream>

using namespace osg;

/// Gives an owner the same thing twice: it takes one reference and releases it when it goes.
template <class Owner, class Thing, class Give>
static void expectCounted(const char *how, Give give)
{
    const auto thing = held<Thing>();
    auto owner = held<Owner>();
    auto given = thing.get();
    give(owner.get(), given);
    give(owner.get(), given);
    EXPECT_EQ(given.getRefCount(), 2) << how;
    owner = NullFC;
    EXPECT_EQ(given.getRefCount(), 1) << how;
}

#define EXPECT_COUNTED(Owner, Thing, call) \
    expectCounted<Owner, Thing>(#call, [](const auto &owner, auto &thing) { owner->call; })

static std::string counts(const NodeRefPtr &first, const NodeRefPtr &second)
{
    return std::to_string(first.get().getRefCount()) + " "
        + std::to_string(second.get().getRefCount());
}

const NodePtr madeBeforeMain = NullFC;

TEST(Pointers, AreNullWhenMadeBeforeTheLibraryStarts)
{
    EXPECT_EQ(madeBeforeMain, NodePtr());
    EXPECT_EQ(madeBeforeMain.getCPtr(), nullptr);
    EXPECT_EQ(madeBeforeMain.getRefCount(), 0);
}

TEST(Pointers, ToOneObjectAreEqualAndAreCastDownToWhatItIs)
{
    const auto owner = held<Switch>();
    const SwitchPtr asSwitch = owner.get();
    const GroupPtr asGroup = asSwitch;
    const FieldContainerPtr asContainer = asGroup;
    EXPECT_EQ(asContainer.getRefCount(), 1); // Copies do not count.
    EXPECT_TRUE(asContainer == asSwitch && !(asGroup != asContainer));
    EXPECT_FALSE(asSwitch < asContainer || asContainer < asSwitch);
    EXPECT_TRUE(NodeCorePtr() < asSwitch && !(asSwitch < NullFC)); // Null sorts first.
    std::ostringstream printed, ofNull;
    printed << asSwitch;
    ofNull << NodePtr();
    EXPECT_NE(printed.str(), ofNull.str());
    EXPECT_NE(printed.str(), "");

    const NodeCorePtr core = owner.get();
    EXPECT_EQ(SwitchPtr::dcast(core), core);
    EXPECT_EQ(dynamic_fcptr_cast<GroupPtr>(core), core);
    EXPECT_EQ(TransformPtr::dcast(core), NullFC);
    EXPECT_EQ(NodePtr::dcast(core), NullFC);
    EXPECT_EQ(SwitchPtr::dcast(NodeCorePtr()), NullFC);
    EXPECT_EQ(SwitchPtr(owner.getCPtr()), core);
}

TEST(References, AreCountedOnceByWhoeverIsGivenAnObjectButNotByBaseClassSetters)
{
    EXPECT_COUNTED(Node, Switch, setCore(thing));
    EXPECT_COUNTED(Node, Node, addChild(thing));
    EXPECT_COUNTED(Node, Name, addAttachment(thing));
    EXPECT_COUNTED(MaterialPool, SimpleMaterial, add(MaterialPtr(thing)));
    EXPECT_COUNTED(MaterialGroup, SimpleMaterial, setMaterial(thing));
    EXPECT_COUNTED(Geometry, SimpleMaterial, setMaterial(thing));
    EXPECT_COUNTED(Geometry, GeoPositions3f, setPositions(thing));
    EXPECT_COUNTED(Geometry, GeoNormals3f, setNormals(thing));
    EXPECT_COUNTED(Geometry, GeoColors3f, setColors(thing));
    EXPECT_COUNTED(Geometry, GeoTexCoords2f, setTexCoords(thing));
    EXPECT_COUNTED(Geometry, GeoIndicesUI32, setIndices(thing));
    EXPECT_COUNTED(Geometry, GeoPTypesUI8, setTypes(thing));
    EXPECT_COUNTED(Geometry, GeoPLengthsUI32, setLengths(thing));
    EXPECT_COUNTED(TextureChunk, Image, setImage(thing));
    EXPECT_COUNTED(SwitchMaterial, SimpleMaterial,
                   hasMaterial(thing) ? void() : owner->addMaterial(thing));
    EXPECT_COUNTED(MultiPassMaterial, SimpleMaterial,
                   hasMaterial(thing) ? void() : owner->addMaterial(thing));

    const auto material = held<SimpleMaterial>();
    const auto group = held<MaterialGroup>();
    static_cast<MaterialGroupBase &>(*group.get()).setMaterial(material.get());
    EXPECT_EQ(material.get().getRefCount(), 1);
    static_cast<MaterialGroupBase &>(*group.get()).setMaterial(NullFC);
}

TEST(References, TurnTheHandedInPointerToNullWithTheLastRelease)
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

TEST(References, AreExchangedBySetRefd)
{
    const auto first = held<Node>(), second = held<Node>();
    NodePtr slot;
    addRefCP(slot); // All take null.
    subRefCP(slot);
    clearRefCP(slot);
    setRefdCP(slot, NodePtr());
    EXPECT_EQ(slot, NullFC);
    setRefdCP(slot, first.get());
    setRefdCP(slot, first.get());
    EXPECT_EQ(counts(first, second), "2 1");
    setRefdCP(slot, second.get());
    EXPECT_EQ(counts(first, second), "1 2");
    clearRefCP(slot);
    EXPECT_EQ(counts(first, second), "1 1");
    EXPECT_EQ(slot, NullFC);
}

TEST(References, OfChildrenAreReleasedWhenTheyAreReplaced)
{
    const auto child = held<Node>(), other = held<Node>(), root = held<Node>();
    root->insertChild(0, child);
    root->replaceChild(0, other);
    EXPECT_EQ(counts(child, other), "1 2");
    EXPECT_TRUE(root->replaceChildBy(other, child));
    EXPECT_EQ(counts(child, other), "2 1");
    EXPECT_EQ(root.get().getRefCount(), 1); // Not by the links of children to their parent.
    root->setCore(Switch::create());
    root->setCore(root->getCore()); // The node alone holds it.
    EXPECT_EQ(root->getCore().getRefCount(), 1);
}

TEST(RefPtrs, ReleaseWhatTheyHeldWhenTheyAreGivenMore)
{
    const auto first = held<Node>();
    NodeRefPtr other(first);
    other = Node::create();
    EXPECT_EQ(counts(first, other), "1 1");
    const UInt32 id = other.get().getFieldContainerId();
    other = first;
    EXPECT_FALSE(isAlive(id));
    EXPECT_EQ(counts(first, other), "2 2");
    EXPECT_TRUE(other == first && other != NullFC);
}
