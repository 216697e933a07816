#include "qxVariantCaptureChecker.h"
#include "qxVariantReader.h"
#include "qxVariantSet.h"

#include "Cameras/qxMainView.h"
#include "CaptureFixture.h"
#include "Files/qxSceneFile.h"
#include "Scene/qxTransformStates.h"
#include "qxLights.h"
#include "qxMaterials.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <QDirIterator>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <map>
#include <random>
#include <sstream>

namespace {

std::string text(const osg::Matrix &matrix)
{
    std::ostringstream out;
    for (osg::UInt32 column = 0; column < 4; ++column) {
        for (osg::UInt32 row = 0; row < 4; ++row)
            out << matrix[column][row] << ' ';
    }
    return out.str();
}

/// The plain material that is seen in the end.
osg::MaterialPtr shown(osg::MaterialPtr material)
{
    for (auto choices = osg::SwitchMaterialPtr::dcast(material);
         choices != osg::NullFC && choices->getChoice() < choices->getMaterials().size();
         choices = osg::SwitchMaterialPtr::dcast(material))
        material = choices->getMaterials(choices->getChoice());
    return material;
}

bool isClone(const osg::NodePtr &node)
{
    return osg::GeometryPtr::dcast(node->getCore()) != osg::NullFC
        && node->getCore()->getParents().size() > 1;
}

/// What is seen of a scene from a file, and its changes at random.
class SceneFilesTest : public CaptureFixture {
protected:
    typedef std::map<std::string, std::string> Facts;

    /// A switch that is hidden by its variant is also searched for a child called "!Disable".
    void TearDown() override
    {
        const QRegularExpression known("^Nodevariant .* does not have a child called !Disable$");
        for (const std::string &line : logged(qxLog::Error)) {
            if (known.match(QString::fromStdString(line)).hasMatch())
                expectError(line);
        }
        CaptureFixture::TearDown();
    }

    /// A node by the way to it, which no renaming changes; only what is active and below active
    /// nodes. The environment stands beside the root.
    static std::vector<std::pair<std::string, osg::NodePtr>> activeNodes()
    {
        std::vector<std::pair<std::string, osg::NodePtr>> found;
        std::vector<std::pair<std::string, osg::NodePtr>> open{
            {"environment", qxScenegraph::environmentGeometrySwitch()},
            {"root", qxScenegraph::getRoot()}};
        while (!open.empty()) {
            const auto each = open.back();
            open.pop_back();
            if (each.second == osg::NullFC || !each.second->getActive())
                continue;
            found.push_back(each);
            for (osg::UInt32 i = 0; i < each.second->getNChildren(); ++i)
                open.emplace_back(each.first + '/' + std::to_string(i), each.second->getChild(i));
        }
        return found;
    }

    static Facts seen()
    {
        Facts facts;
        const qxUberCamera &camera = qxMainView::the().camera;
        facts["camera"] = text(camera.toWorld) + std::to_string(camera.fieldOfView);
        for (const auto &each : activeNodes())
            addFacts(each.first, each.second, facts);
        return facts;
    }

    static void addFacts(const std::string &way, const osg::NodePtr &node, Facts &facts)
    {
        facts[way] = std::to_string(node->getTravMask()) + ' ' + qxNodeUtils::getName(node);
        const auto choices = osg::SwitchPtr::dcast(node->getCore());
        if (choices != osg::NullFC && choices->getChoice() < osg::Int32(node->getNChildren()))
            facts[way + " choice"] = std::to_string(choices->getChoice());
        const auto place = osg::TransformPtr::dcast(node->getCore());
        if (place != osg::NullFC)
            facts[way + " place"] = text(place->getMatrix());
        if (qxLights::isLight(node))
            facts[way + " light"] = qxLights::getOn(node) ? "on" : "off";
        if (qxNodeUtils::getMaterial(node) != osg::NullFC)
            facts[way + " material"] = qxMaterials::getName(shown(qxNodeUtils::getMaterial(node)));
        facts[way + " ignored"] = qxMaterials::getIgnoreMaterialGroup(node) ? "yes" : "no";
    }

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
        qxVariantCaptureChecker checker;
        checker.findAmbiguousNodes();
        for (const osg::NodePtr &node : checker.getAmbiguousNodes())
            qxNodeUtils::setName(node, qxNodeUtils::getName(node), true, scene.root());
        ASSERT_TRUE(qxVariants::verifyNodeNames());
        placeCamera(); // one that shows nothing is not captured
    }

    static void capture(const QString &name)
    {
        qxVariantSet *const set = qxVariants::createVariantSet(name, false, nullptr);
        ASSERT_TRUE(set);
        qxVariants::captureVariantsFromRootNodes(set, {qxScenegraph::getRootNode()}, true, true,
                                                 true, true, true, true, true, true);
    }

    /// Every fact of both is the same in the other.
    static void expectSame(const Facts &now, const Facts &then)
    {
        for (const auto &fact : then) {
            const auto found = now.find(fact.first);
            EXPECT_EQ(found == now.end() ? "(not seen)" : found->second, fact.second) << fact.first;
        }
        for (const auto &fact : now)
            EXPECT_EQ(then.count(fact.first), 1u) << fact.first << " was hidden";
    }

    void captureAndReturn(const QString &path)
    {
        SCOPED_TRACE(path.toStdString());
        ASSERT_NO_FATAL_FAILURE(load(path));
        const Facts asLoaded = seen();
        capture("As loaded, captured");
        expectSame(seen(), asLoaded);
        shuffle();
        const Facts changed = seen();
        EXPECT_NE(changed, asLoaded);
        capture("As changed, captured");
        for (int round = 0; round < 3; ++round) {
            shuffle();
            qxVariants::selectVariantSet("As loaded, captured", false);
            expectSame(seen(), asLoaded);
            shuffle();
            qxVariants::selectVariantSet("As changed, captured", false);
            expectSame(seen(), changed);
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
