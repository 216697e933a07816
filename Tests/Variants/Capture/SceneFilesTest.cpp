#include "qxVariantReader.h"

#include "Cameras/qxMainView.h"
#include "Files/qxSceneFile.h"
#include "Scene/qxTransformStates.h"
#include "SeenFixture.h"
#include "qxLights.h"
#include "qxMaterials.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>

#include <random>

namespace {

bool isClone(const osg::NodePtr &node)
{
    return osg::GeometryPtr::dcast(node->getCore()) != osg::NullFC
        && node->getCore()->getParents().size() > 1;
}

/// A scene from a file, and its changes at random.
class SceneFilesTest : public SeenFixture {
protected:
    int below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_random); }

    /// Changes everything that a capture of the whole scene keeps. It keeps neither which nodes of
    /// the environment and which clones of a geometry are hidden, nor a pose that has no name: a
    /// node that stands in none is left there. Choices of transforms are no part of it either.
    void shuffle()
    {
        for (const qxNodePtr &node : qxNodeUtils::getSceneNodes())
            change(node);
        for (const qxNodePtr &node : qxNodeUtils::getSubTreeNodes(scene.root())) {
            if (node != qxScenegraph::getRoot() && !isClone(node))
                TestNode(node).setMask(below(8) == 0 ? 0 : 0xFFFFFFFF);
        }
        placeCamera();
    }

    void placeCamera()
    {
        qxMainView::the().camera.fieldOfView = 0.5f + 0.01f * float(below(50));
        qxMainView::the().camera.toWorld.setTranslate(float(below(1000)), 1, 2);
    }

    void change(const osg::NodePtr &node)
    {
        if (osg::SwitchPtr::dcast(node->getCore()) != osg::NullFC)
            TestNode(node).choose(below(int(node->getNChildren()) + 1) - 1);
        if (qxLights::isLight(node))
            qxLights::setOn(node, below(2) == 0);
        if (qxNodeUtils::isTransformVariantInState(node))
            qxTransformStates::select(node, below(qxNodeUtils::getTransformVariantCount(node)));
        qxMaterials::setIgnoreMaterialGroup(node, below(2) == 0);
        const auto choices = osg::SwitchMaterialPtr::dcast(qxNodeUtils::getMaterial(node));
        if (choices != osg::NullFC && !choices->getMaterials().empty())
            TestMaterial(choices).choose(unsigned(below(int(choices->getMaterials().size()))));
    }

    /// Loads the scene with its variants, and lets the guard rename what is ambiguous.
    void load(const QString &path)
    {
        clearRegistry();
        host.clearScene();
        qxSceneFile file;
        ASSERT_TRUE(file.load(path)) << file.errorString().toStdString();
        if (!file.variantsDocument().isEmpty())
            qxVariantReader().read(file.variantsDocument().constData());
        settleNames();
        placeCamera(); // one that shows nothing is not captured
    }

    void captureAndReturn(const QString &path)
    {
        SCOPED_TRACE(path.toStdString());
        ASSERT_NO_FATAL_FAILURE(load(path));
        const Facts asLoaded = capture("As loaded, captured");
        shuffle();
        const Facts changed = capture("As changed, captured");
        EXPECT_NE(changed, asLoaded);
        for (int round = 0; round < 3; ++round) {
            shuffle();
            qxVariants::selectVariantSet("As loaded, captured", false);
            expectSeen(asLoaded);
            shuffle();
            qxVariants::selectVariantSet("As changed, captured", false);
            expectSeen(changed);
        }
    }

private:
    std::mt19937 m_random{7};
};

TEST_F(SceneFilesTest, TheDemoComesBackNodeByNode)
{
    const QTemporaryDir folder;
    QProcess generator;
    generator.setStandardOutputFile(QProcess::nullDevice());
    generator.start(QStringLiteral(QX_DEMOS "/Roadster/make-roadster"), {folder.path()});
    ASSERT_TRUE(generator.waitForFinished(-1));
    ASSERT_EQ(generator.exitCode(), 0);
    captureAndReturn(folder.filePath("roadster.gltf"));
}

TEST_F(SceneFilesTest, RealScenesComeBackNodeByNode)
{
    if (qEnvironmentVariableIsEmpty("QX_SCENES"))
        GTEST_SKIP() << "QX_SCENES names no folder of real scenes";
    int scenes = 0;
    QDirIterator walk(qEnvironmentVariable("QX_SCENES"), {"*.gltf", "*.glb"}, QDir::Files,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        if (path.contains("/edge-cases/"))
            continue;
        ++scenes;
        captureAndReturn(path);
    }
    EXPECT_GT(scenes, 0);
}

} // namespace
