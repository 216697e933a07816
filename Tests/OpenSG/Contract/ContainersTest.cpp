#include "Contract.h"

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGMaterialPool.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>
#include <OpenSG/OSGTransform.h>

using namespace osg;

namespace {

/// The names of a type and of all that it is derived from.
std::string chainOf(const FieldContainerType *type)
{
    std::string chain;
    for (; type; type = type->getParent())
        chain += chain.empty() ? type->getCName() : std::string(" ") + type->getCName();
    return chain;
}

} // namespace

TEST(Types, StandInTheirChainsOfParents)
{
    const std::string container = "AttachmentContainer FieldContainer";
    const std::string group = "Group NodeCore " + container;
    const std::string attachment = "Attachment FieldContainer";
    for (const std::string &chain :
         {"Node " + container, "Switch " + group, "ComponentTransform Transform " + group,
          "MaterialGroup " + group, "MaterialPool " + group, "SpotLight PointLight Light " + group,
          "DirectionalLight Light " + group,
          "Geometry MaterialDrawable Drawable NodeCore " + container,
          "SimpleTexturedMaterial SimpleMaterial ChunkMaterial Material " + container,
          "SwitchMaterial Material " + container, "MultiPassMaterial Material " + container,
          "Image " + container, "GeoPositions3f GeoPositions " + attachment,
          "Name " + attachment}) {
        const std::string name = chain.substr(0, chain.find(' '));
        EXPECT_EQ(chainOf(FieldContainerFactory::the()->findType(name.c_str())), chain);
    }
    EXPECT_EQ(FieldContainerFactory::the()->findType("Nothing"), nullptr);
}

TEST(Types, AreDerivedFromThemselvesAndUpwardsOnly)
{
    const FieldContainerType &type = Switch::getClassType();
    EXPECT_TRUE(type.isDerivedFrom(type));
    EXPECT_TRUE(type.isDerivedFrom(NodeCore::getClassType()));
    EXPECT_FALSE(Group::getClassType().isDerivedFrom(type));
    EXPECT_TRUE(type.isNodeCore() && !type.isNode() && !type.isAbstract());
    EXPECT_TRUE(NodeCore::getClassType().isAbstract());
    EXPECT_TRUE(Name::getClassType().isAttachment());
    EXPECT_NE(Name::getClassType().getGroupId(), Name::getClassGroupId());
}

TEST(Containers, AreCreatedByNameAndFoundByIdWhileTheyLive)
{
    NodeCoreRefPtr core(FieldContainerFactory::the()->createNodeCore("Switch"));
    const UInt32 id = core.get().getFieldContainerId();
    EXPECT_STREQ(core->getType().getCName(), "Switch");
    EXPECT_EQ(FieldContainerFactory::the()->getContainer(id), core.get());
    core = NullFC;
    EXPECT_EQ(FieldContainerFactory::the()->getContainer(id), NullFC);
    EXPECT_GT(held<Switch>().get().getFieldContainerId(), id);
    EXPECT_EQ(FieldContainerFactory::the()->createFieldContainer("Nothing"), NullFC);
}

TEST(Types, AreAbstractWhereNoInstanceMakesSense)
{
    for (const char *name : {"FieldContainer", "AttachmentContainer", "Attachment", "NodeCore",
                             "Light", "Material", "Drawable", "MaterialDrawable"}) {
        const FieldContainerType *type = FieldContainerFactory::the()->findType(name);
        ASSERT_NE(type, nullptr) << name;
        EXPECT_TRUE(type->isAbstract()) << name;
        EXPECT_EQ(type->getPrototype(), NullFC) << name;
        EXPECT_EQ(FieldContainerFactory::the()->createFieldContainer(name), NullFC) << name;
    }
}

TEST(Containers, KnowTheirTypeAndTheFieldsItLists)
{
    const auto core = held<Switch>();
    const FieldContainerType &type = core->getType();
    EXPECT_TRUE(type == Switch::getClassType() && type != Group::getClassType());
    EXPECT_STREQ(core->getTypeName(), type.getName().str());
    EXPECT_EQ(core->getTypeId(), Switch::getClassTypeId());

    EXPECT_EQ(type.getNumFieldDescs(), 3u); // Those of the parents come first.
    ASSERT_NE(type.findFieldDescription("choice"), nullptr);
    EXPECT_EQ(type.findFieldDescription("choice"), type.getFieldDescription(Switch::ChoiceFieldId));
    EXPECT_EQ(core->getField("choice"), core->getSFChoice());
    EXPECT_EQ(core->getField(Switch::ChoiceFieldId), core->getSFChoice());
    EXPECT_EQ(core->getField("matrix"), nullptr);
}

TEST(Containers, AreCopiesOfTheirPrototypeUnlessCreatedEmpty)
{
    const SwitchPtr prototype = SwitchPtr::dcast(Switch::getClassType().getPrototype());
    prototype->setChoice(5);
    const auto copy = held<Switch>();
    const SwitchRefPtr empty(Switch::createEmpty());
    prototype->setChoice(Switch::NONE);
    EXPECT_EQ(copy->getChoice(), 5);
    EXPECT_EQ(empty->getChoice(), Switch::NONE);
}

TEST(Containers, AreCreatedByTheNameOfTheirKindOnly)
{
    const FieldContainerFactory *factory = FieldContainerFactory::the();
    EXPECT_NE(NodeRefPtr(factory->createNode("Node")).get(), NullFC);
    const RefPtr<AttachmentPtr> name(factory->createAttachment("Name"));
    EXPECT_NE(NamePtr::dcast(name.get()), NullFC);
    EXPECT_EQ(factory->createNodeCore("Nothing"), NullFC);
    EXPECT_EQ(factory->getContainer(4000000000u), NullFC);
}

TEST(FieldMasks, HaveTheBitsOfTheOrderOfFields)
{
    const std::pair<BitVector, BitVector> masks[] = {
        {Node::AttachmentsFieldMask, 2},
        {Node::VolumeFieldMask, 4},
        {Node::TravMaskFieldMask, 8},
        {Node::ParentFieldMask, 16},
        {Node::ChildrenFieldMask, 32},
        {Node::CoreFieldMask, 64},
        {NodeCore::AttachmentsFieldMask, 2},
        {NodeCore::ParentsFieldMask, 4},
        {Switch::ChoiceFieldMask, 8},
        {Transform::MatrixFieldMask, 8},
        {MaterialGroup::MaterialFieldMask, 8},
        {MaterialPool::MaterialsFieldMask, 8},
        {MaterialDrawable::MaterialFieldMask, 8},
        {Material::SortKeyFieldMask, 4},
        {Material::TransparencyModeFieldMask, 8},
        {SwitchMaterialBase::MaterialsFieldMask, 16},
        {SwitchMaterial::ChoiceFieldMask, 32},
        {FieldBits::AllFields, ~BitVector(0)},
        {FieldBits::NoField, 0},
    };
    for (const auto &[mask, bits] : masks)
        EXPECT_EQ(mask, bits) << "row " << &mask - &masks[0].first;
}

TEST(MultiFields, InsertFindAndEraseInPlace)
{
    MFUInt32 field;
    for (UInt32 value : {3, 5, 7})
        field.push_back(value);
    field.insert(field.begin(), 1);
    field.erase(field.find(5));
    EXPECT_EQ(field.getValues(), (std::vector<UInt32>{1, 3, 7}));
    EXPECT_EQ(field.find(5), field.end());
    EXPECT_EQ(field.front() + *field.rbegin(), 8u);
    field.resize(5);
    EXPECT_EQ(field.getSize(), 5u);
    field.clear();
    EXPECT_TRUE(field.empty());
}
