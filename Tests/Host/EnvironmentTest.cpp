#include "HostFixture.h"
#include "qxMaterials.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGMultiPassMaterial.h>

typedef std::vector<qxNodePtr> Nodes;

class EnvironmentTest : public HostFixture {};

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
                  (Nodes{inTree.node(), environments.child(1).node()}));
    }
}

TEST_F(EnvironmentTest, UsersOfAMaterialAreFoundInItAsSoonAsItIsThere)
{
    const TestMaterial sky = scene.addMaterial("Sky");
    const auto users = [&sky] {
        Nodes nodes;
        qxMaterials::getNodesWithMaterial(nodes, sky);
        return nodes;
    };
    const TestNode body = scene.addGeometry("Body", sky);
    EXPECT_EQ(users(), (Nodes{body.node()}));
    const TestNode environments = scene.addEnvironments("Environments", {"Studio"});
    const TestNode dome = scene.addGeometry("Dome", sky, environments.child(0));
    EXPECT_EQ(users(), (Nodes{body.node(), dome.node()}));
    scene.addEnvironments("Others", {});
    EXPECT_EQ(users(), (Nodes{body.node()}));
}

TEST_F(EnvironmentTest, MaterialsCountAsMadeForItByThemselvesOrByWhatTheyContain)
{
    const TestMaterial sky = scene.addEnvironmentMaterial("Sky");
    const TestMaterial paint = scene.addMaterial("Paint");
    const auto passes = osg::MultiPassMaterial::create();
    const osg::MaterialRefPtr kept{osg::MaterialPtr(passes)};
    passes->addMaterial(paint);
    for (const osg::MaterialPtr &other :
         {osg::MaterialPtr(), paint.material(), osg::MaterialPtr(passes),
          scene.addSwitchMaterial("Paints", {"Paint"}).material()})
        EXPECT_FALSE(qxMaterials::isEnvironmentMaterial(other));
    passes->addMaterial(sky);
    for (const osg::MaterialPtr &made :
         {sky.material(), osg::MaterialPtr(passes),
          scene.addSwitchMaterial("Skies", {"Paint", "Sky"}).material()})
        EXPECT_TRUE(qxMaterials::isEnvironmentMaterial(made));
}
