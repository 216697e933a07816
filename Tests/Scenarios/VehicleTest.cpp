#include "qxNodeVariant.h"
#include "qxNodeVariantCreator.h"
#include "qxVariantGroup.h"
#include "qxVariantReader.h"
#include "qxVariantSet.h"
#include "qxVariantWriter.h"
#include "qxVariants.h"

#include "Core/qxHost.h"
#include "Files/qxSceneFile.h"
#include "NotificationLog.h"
#include "TestScene.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGSwitch.h>

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace {

TestNode find(const char *name)
{
    const qxNodePtr node = qxScenegraph::findNode(name);
    EXPECT_TRUE(node != osg::NullFC) << name;
    return TestNode(node);
}

QString currentState(const char *variant)
{
    const qxNodeVariant *found = qxVariants::findNodeVariant(variant);
    return found ? found->onCurrent() : QStringLiteral("no variant");
}

/// The names of everything that is drawn: switches show what they choose, and hidden nodes nothing.
void addDrawn(const osg::NodePtr &node, std::vector<std::string> &names)
{
    if (node->getTravMask() == 0)
        return;
    names.push_back(qxNodeUtils::getName(node));
    const osg::SwitchPtr choices = osg::SwitchPtr::dcast(node->getCore());
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i) {
        const bool chosen = choices == osg::NullFC || choices->getChoice() == osg::Switch::ALL
            || choices->getChoice() == osg::Int32(i);
        if (chosen)
            addDrawn(node->getChild(i), names);
    }
}

bool isDrawn(const std::string &name)
{
    std::vector<std::string> names;
    addDrawn(qxScenegraph::getRoot(), names);
    return std::find(names.begin(), names.end(), name) != names.end();
}

size_t countOfNodes()
{
    return qxNodeUtils::getSubTreeNodes(qxScenegraph::getRoot()).size();
}

} // namespace

/// A real vehicle that is made configurable in one session and configured in later ones.
class VehicleTest : public testing::Test {
protected:
    void SetUp() override
    {
        if (qEnvironmentVariableIsEmpty("QX_SCENES"))
            GTEST_SKIP() << "QX_SCENES names no folder of real scenes";
        start();
        load(qEnvironmentVariable("QX_SCENES") + "/vehicle_example/vehicle_example.gltf");
    }

    /// Ends the host with all that it knows and starts another one.
    void start()
    {
        m_file.reset();
        m_host.reset();
        m_host = std::make_unique<qxHost>();
        m_file = std::make_unique<qxSceneFile>();
    }

    void load(const QString &path)
    {
        m_host->clearScene();
        ASSERT_TRUE(m_file->load(path)) << m_file->errorString().toStdString();
        if (!m_file->variantsDocument().isEmpty())
            qxVariantReader().read(m_file->variantsDocument().constData());
    }

    void save(const QString &path)
    {
        m_file->setVariantsDocument(qxVariantWriter().write());
        ASSERT_TRUE(m_file->save(path)) << m_file->errorString().toStdString();
    }

    void saveAndStartAgain()
    {
        save(m_folder.filePath("vehicle.gltf"));
        start();
        ASSERT_EQ(qxVariants::_variantSets.size(), 0u);
        load(m_folder.filePath("vehicle.gltf"));
    }

    TestScene m_scene;

private:
    QTemporaryDir m_folder;
    std::unique_ptr<qxHost> m_host;
    std::unique_ptr<qxSceneFile> m_file;
};

TEST_F(VehicleTest, DoorsBelowANewSwitchAreChosenInALaterSession)
{
    const size_t nodes = countOfNodes();
    const TestNode doors = m_scene.addSwitch("Doors", {}, find("Grp_Exterior_Dynamic"));
    for (const char *door : {"Grp_Door_Left_0", "Grp_Door_Right_0"})
        find(door).moveTo(doors);
    qxNodeVariantCreator().traverse(qxScenegraph::getRoot());
    ASSERT_EQ(qxVariants::_nodeVariants.size(), 1u);
    qxVariantSet *left = qxVariants::createVariantSet("Left door", true, nullptr);
    left->addNodeVariant("Doors", "Grp_Door_Left_0");
    qxVariantGroup *group = qxVariants::createVariantGroup("One door", true, true);
    qxVariantSet *right = qxVariants::createVariantSet("Right door", true, group);
    right->addNodeVariant("Doors", "Grp_Door_Right_0");
    right->select(true, false);
    EXPECT_FALSE(isDrawn("Door_FL"));

    saveAndStartAgain();
    EXPECT_EQ(countOfNodes(), nodes + 1);
    EXPECT_EQ(find("Doors").choice(), 1);
    EXPECT_EQ(currentState("Doors"), "Grp_Door_Right_0");
    EXPECT_TRUE(isDrawn("Door_FR") && isDrawn("Side_Mirror_R"));
    EXPECT_FALSE(isDrawn("Door_FL") || isDrawn("Side_Mirror_L"));
    ASSERT_NE(qxVariants::findVariantGroup("One door"), nullptr);
    EXPECT_EQ(qxVariants::findVariantGroup("One door")->sets.size(), 1u);

    const NotificationLog heard;
    qxVariants::selectVariantSet("Left door", false);
    EXPECT_EQ(find("Doors").choice(), 0);
    EXPECT_TRUE(isDrawn("Door_FL") && isDrawn("Side_Mirror_L"));
    EXPECT_FALSE(isDrawn("Door_FR") || isDrawn("Side_Mirror_R"));
    ASSERT_EQ(heard.all("variantsNodesChanged").size(), 1u);
    EXPECT_EQ(heard.all("variantsNodesChanged")[0].text(),
              "variantsNodesChanged variantName=Doors visible=[Grp_Door_Left_0] "
              "invisible=[Grp_Door_Right_0] parent=Doors "
              "path=Grp_Root|Grp_Exterior|Grp_Exterior_Dynamic|Doors|");

    saveAndStartAgain();
    EXPECT_EQ(find("Doors").choice(), 0);
    EXPECT_TRUE(isDrawn("Door_FL"));
}
