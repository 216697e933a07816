#include "Contract.h"

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitch.h>

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
