#include "HostFixture.h"
#include "qxController.h"
#include "qxMaterials.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGMultiPassMaterial.h>

namespace {

class EnvironmentTest : public HostFixture {
protected:
    static std::vector<std::string> usersOf(const osg::MaterialPtr &material)
    {
        std::vector<qxNodePtr> nodes;
        qxMaterials::getNodesWithMaterial(nodes, material);
        std::vector<std::string> names;
        for (const qxNodePtr &node : nodes)
            names.push_back(qxNodeUtils::getName(node));
        return names;
    }

    static std::string uniqueName(const std::string &wanted)
    {
        qxMessage message;
        message.set("Switch", wanted);
        qxController::call("MaterialGetUniqueName", message, 1);
        const auto *reply = message.get<std::string>("newname");
        return reply ? *reply : "(no reply)";
    }
};

TEST_F(EnvironmentTest, StandsOutsideOfTheTreeAndIsFoundByNameBehindIt)
{
    EXPECT_EQ(qxScenegraph::environmentGeometrySwitch(), osg::NullFC);
    const TestNode environments = scene.addEnvironments("Environments", {"Studio", "Dusk"});
    const TestNode inTree = scene.add("Dusk");

    EXPECT_EQ(qxScenegraph::environmentGeometrySwitch(), environments.node());
    EXPECT_TRUE(qxNodeUtils::isEnvironmentGeometrySwitch(environments));
    EXPECT_FALSE(qxNodeUtils::isEnvironmentGeometrySwitch(environments.child(0)));
    EXPECT_FALSE(qxNodeUtils::isEnvironmentGeometrySwitch(osg::NullFC));
    EXPECT_EQ(environments.node()->getParent(), osg::NullFC);
    for (const bool cached : {false, true}) {
        if (cached)
            qxScenegraph::initFindCache();
        EXPECT_EQ(qxScenegraph::findNode("Environments"), environments.node());
        EXPECT_EQ(qxScenegraph::findNodes("Dusk"),
                  (std::vector<qxNodePtr>{inTree.node(), environments.child(1).node()}));
    }
}

TEST_F(EnvironmentTest, UsersOfAMaterialAreFoundInItAsSoonAsItIsThere)
{
    const TestMaterial sky = scene.addMaterial("Sky");
    scene.addGeometry("Body", sky);
    EXPECT_EQ(usersOf(sky), (std::vector<std::string>{"Body"}));
    const TestNode environments = scene.addEnvironments("Environments", {"Studio"});
    scene.addGeometry("Dome", sky, environments.child(0));
    EXPECT_EQ(usersOf(sky), (std::vector<std::string>{"Body", "Dome"}));
    scene.addEnvironments("Others", {});
    EXPECT_EQ(usersOf(sky), (std::vector<std::string>{"Body"}));
}

TEST_F(EnvironmentTest, MaterialsCountAsMadeForItByThemselvesOrByWhatTheyContain)
{
    const TestMaterial sky = scene.addEnvironmentMaterial("Sky");
    const TestMaterial paint = scene.addMaterial("Paint");
    const osg::MultiPassMaterialPtr passes = osg::MultiPassMaterial::create();
    const osg::MaterialRefPtr kept{osg::MaterialPtr(passes)};
    EXPECT_FALSE(qxMaterials::isEnvironmentMaterial(passes));
    passes->addMaterial(paint);
    EXPECT_FALSE(qxMaterials::isEnvironmentMaterial(passes));
    passes->addMaterial(sky);

    EXPECT_TRUE(qxMaterials::isEnvironmentMaterial(sky));
    EXPECT_FALSE(qxMaterials::isEnvironmentMaterial(paint));
    EXPECT_FALSE(qxMaterials::isEnvironmentMaterial(osg::NullFC));
    EXPECT_TRUE(qxMaterials::isEnvironmentMaterial(passes));
    EXPECT_TRUE(
        qxMaterials::isEnvironmentMaterial(scene.addSwitchMaterial("Skies", {"Paint", "Sky"})));
    EXPECT_FALSE(qxMaterials::isEnvironmentMaterial(scene.addSwitchMaterial("Paints", {"Paint"})));
}

TEST_F(EnvironmentTest, NamesOfNewMaterialsAreNumberedWhenTaken)
{
    EXPECT_EQ(uniqueName("Paint Switch"), "Paint Switch");
    scene.addSwitchMaterial("Paint Switch", {"Paint"});
    EXPECT_EQ(uniqueName("Paint Switch"), "Paint Switch 2");
    EXPECT_EQ(uniqueName("Paint"), "Paint 2");
    scene.addMaterial("Paint Switch 2");
    EXPECT_EQ(uniqueName("Paint Switch"), "Paint Switch 3");
    EXPECT_EQ(uniqueName("Grün"), "Grün");
}

} // namespace
