#include "Contract.h"

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGMaterialPool.h>

using namespace osg;

static auto &factory = *FieldContainerFactory::the();

/// The names of a type and of all that it is derived from.
static std::string chainOf(const FieldContainerType *type)
{
    std::string chain;
    for (; type; type = type->getParent())
        chain += chain.empty() ? type->getCName() : std::string(" ") + type->getCName();
    return chain;
}

static NamePtr nameOf(const NodePtr &node)
{
    return NamePtr::dcast(node->findAttachment(Name::getClassType()));
}

TEST(Types, StandInTheirChainsOfParentsAndAreAbstractWhereNoInstanceMakesSense)
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
        EXPECT_EQ(chainOf(factory.findType(name.c_str())), chain);
    }
    EXPECT_EQ(factory.findType("Nothing"), nullptr);

    for (const char *name : {"FieldContainer", "AttachmentContainer", "Attachment", "NodeCore",
                             "Light", "Material", "Drawable", "MaterialDrawable"}) {
        const FieldContainerType &type = *factory.findType(name);
        EXPECT_TRUE(type.isAbstract() && type.getPrototype() == NullFC) << name;
        EXPECT_EQ(factory.createFieldContainer(name), NullFC) << name;
    }
}

TEST(Containers, AreCreatedByNameAndFoundByIdWhileTheyLive)
{
    NodeCoreRefPtr core(factory.createNodeCore("Switch"));
    const UInt32 id = core.get().getFieldContainerId();
    EXPECT_STREQ(core->getType().getCName(), "Switch");
    EXPECT_EQ(factory.getContainer(id), core.get());
    core = NullFC;
    EXPECT_FALSE(isAlive(id) || isAlive(4000000000u));
    EXPECT_GT(held<Switch>().get().getFieldContainerId(), id);
    EXPECT_EQ(factory.createFieldContainer("Nothing"), NullFC);
    const RefPtr<AttachmentPtr> name(factory.createAttachment("Name"));
    EXPECT_NE(NamePtr::dcast(name.get()), NullFC);
}

TEST(Names, AreMissingEmptyOrTextAndNotTheNameFieldOfAnImage)
{
    const NodeRefPtr node(makeCoredNode<Switch>());
    EXPECT_EQ(getName(NodePtr()), nullptr);
    EXPECT_EQ(getName(node.get()), nullptr);
    setName(node.get(), "");
    EXPECT_STREQ(getName(node.get()), "");
    setName(node.get(), std::string("Räder"));
    EXPECT_EQ(nameOf(node)->getField().getValue(), "Räder");
    const auto sharing = held<Node>();
    sharing->addAttachment(nameOf(node));
    setName(node.get(), "Wheels"); // In place: all that share the name see it.
    EXPECT_STREQ(getName(sharing.get()), "Wheels");
    forgetRecords();
    setName(node.get(), nullptr);
    EXPECT_EQ(getName(node.get()), nullptr);
    EXPECT_EQ(timesRecorded(node.get(), Node::AttachmentsFieldMask), 0u);
    setName(node->getCore(), "core"); // The core has a name of its own.
    EXPECT_EQ(getName(node.get()), nullptr);
    EXPECT_TRUE(warns([] { setName(NodePtr(), std::string("lost")); }));

    const auto image = held<Image>();
    image->setName("file.png");
    EXPECT_EQ(getName(image.get()), nullptr);
    setName(image.get(), "decal");
    EXPECT_EQ(image->getName(), "file.png");
}

TEST(Attachments, ReplaceThoseOfTheSameKindAndBinding)
{
    const auto node = held<Node>();
    const auto first = held<Name>(), second = held<Name>(), bound = held<Name>();
    node->addAttachment(first.get());
    node->addAttachment(bound.get(), 1);
    node->addAttachment(second.get());
    EXPECT_EQ(nameOf(node), second.get());
    EXPECT_EQ(node->findAttachment(Name::getClassType().getGroupId(), 1), bound.get());
    EXPECT_EQ(first.get().getRefCount(), 1);
    node->subAttachment(second.get());
    EXPECT_EQ(nameOf(node), NullFC);
    EXPECT_EQ(bound.get().getRefCount(), 2);
}
