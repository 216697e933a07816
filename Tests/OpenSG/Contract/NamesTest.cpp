#include "Contract.h"

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitch.h>

using namespace osg;

namespace {

NamePtr nameOf(const NodePtr &node)
{
    return NamePtr::dcast(node->findAttachment(Name::getClassType()));
}

} // namespace

TEST(Names, AreMissingEmptyOrText)
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
    setName(node.get(), nullptr);
    EXPECT_EQ(getName(node.get()), nullptr);
    setName(node->getCore(), "core"); // The core has a name of its own.
    EXPECT_EQ(getName(node.get()), nullptr);
    EXPECT_TRUE(warns([] { setName(NodePtr(), std::string("lost")); }));
}

TEST(Names, AreSetWithinAnEditAndRemovedWithoutOne)
{
    const auto node = held<Node>();
    forgetRecords();
    setName(node.get(), "name");
    EXPECT_GE(timesRecorded(node.get(), Node::AttachmentsFieldMask), 1u);
    forgetRecords();
    setName(node.get(), nullptr);
    EXPECT_EQ(timesRecorded(node.get(), Node::AttachmentsFieldMask), 0u);
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
    EXPECT_EQ(second.get().getRefCount(), 1);
    EXPECT_EQ(bound.get().getRefCount(), 2);
}

TEST(Names, OfAnImageAreNotItsNameField)
{
    const auto image = held<Image>();
    image->setName("file.png");
    EXPECT_EQ(getName(image.get()), nullptr);
    setName(image.get(), "decal");
    EXPECT_EQ(image->getName(), "file.png");
}
