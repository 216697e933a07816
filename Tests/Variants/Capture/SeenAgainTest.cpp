#include "Internal/Scene/qxPathLookup.h"
#include "qxVariantCaptureChecker.h"
#include "qxVariantReader.h"

#include "Cameras/qxMainView.h"
#include "CaptureFixture.h"
#include "Files/qxSceneFile.h"
#include "Scene/qxTransformStates.h"
#include "qxLights.h"
#include "qxTestPaths.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <QDirIterator>

#include <map>
#include <random>

/// What is seen of a scene: the camera, and a fact for each node and for what it shows.
typedef std::map<std::string, std::string> Facts;

static std::string text(const osg::Matrix &matrix)
{
    const auto *const values = matrix.getValues();
    return testing::PrintToString(std::vector<osg::Real32>(values, values + 16));
}

/// The name of the plain material that is seen in the end.
static std::string shownName(osg::MaterialPtr material)
{
    for (auto choices = osg::SwitchMaterialPtr::dcast(material); choices != osg::NullFC;
         choices = osg::SwitchMaterialPtr::dcast(material)) {
        if (choices->getChoice() >= choices->getMaterials().size())
            return "(nothing)";
        material = choices->getMaterials(choices->getChoice());
    }
    return qxMaterials::getName(material);
}

static void addFacts(const std::string &way, const osg::NodePtr &node, Facts &facts)
{
    facts[way] = qxNodeUtils::getName(node);
    const auto choices = osg::SwitchPtr::dcast(node->getCore());
    if (choices != osg::NullFC && choices->getChoice() < osg::Int32(node->getNChildren()))
        facts[way + " choice"] = choices->getChoice() < 0
            ? "(none)" // clones below a switch share their name and look the same
            : qxNodeUtils::getName(node->getChild(osg::UInt32(choices->getChoice())));
    const auto place = osg::TransformPtr::dcast(node->getCore());
    if (place != osg::NullFC)
        facts[way + " place"] = text(place->getMatrix());
    if (qxLights::isLight(node))
        facts[way + " light"] = qxLights::getOn(node) ? "on" : "off";
    if (qxNodeUtils::getMaterial(node) != osg::NullFC)
        facts[way + " material"] = shownName(qxNodeUtils::getMaterial(node));
    if (osg::MaterialGroupPtr::dcast(node->getCore()) != osg::NullFC)
        facts[way + " ignored"] = qxMaterials::getIgnoreMaterialGroup(node) ? "yes" : "no";
}

/// Visits what is active and below active nodes, each node with the way to it, which no renaming
/// changes.
template <class Visit>
static void visitActive(const std::string &way, const osg::NodePtr &node, const Visit &visit)
{
    if (node == osg::NullFC || !node->getActive())
        return;
    visit(way, node);
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i)
        visitActive(way + '/' + std::to_string(i), node->getChild(i), visit);
}

/// A scene that changes at random between captures and selections.
class SeenAgainTest : public CaptureFixture {
protected:
    /// A switch that is hidden by its variant is also searched for a child called "!Disable".
    void TearDown() override
    {
        for (const std::string &line : takeErrors())
            EXPECT_NE(line.find(" does not have a child called !Disable"), line.npos) << line;
        CaptureFixture::TearDown();
    }

    int below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(random); }
    template <class Objects>
    auto any(const Objects &objects)
    {
        return objects[std::size_t(below(int(objects.size())))];
    }

    /// Changes everything that a capture of the whole scene keeps. It keeps neither which nodes of
    /// the environment are hidden, nor a pose that has no name: a node that stands in none is left
    /// there. Choices of transforms are no part of it either.
    void shuffle()
    {
        std::vector<osg::MaterialPtr> pool;
        qxScenegraph::getMaterialPool()->get(pool);
        for (const osg::MaterialPtr &material : pool) {
            const auto choices = osg::SwitchMaterialPtr::dcast(material);
            if (choices != osg::NullFC && !choices->getMaterials().empty())
                TestMaterial(material).choose(unsigned(below(int(choices->getMaterials().size()))));
        }
        for (const qxNodePtr &node : qxNodeUtils::getSceneNodes()) {
            if (osg::SwitchPtr::dcast(node->getCore()) != osg::NullFC) // also out of range
                TestNode(node).choose(below(int(node->getNChildren()) + 3) - 2);
            if (qxLights::isLight(node))
                qxLights::setOn(node, below(2) == 0);
            if (qxNodeUtils::isTransformVariantInState(node))
                qxTransformStates::select(node, below(qxNodeUtils::getTransformVariantCount(node)));
            qxMaterials::setIgnoreMaterialGroup(node, below(2) == 0);
        }
        for (const qxNodePtr &node : qxNodeUtils::getSubTreeNodes(scene.root())) {
            // A capture cannot tell clones from each other, nor nodes that share a path.
            const std::string path = qxPathLookup::utf8Path(node);
            if (node->getCore()->getParents().size() == 1
                && qxPathLookup::findHash(qxPathLookup::hashOf(path.c_str())).size() == 1)
                TestNode(node).setMask(below(7) == 0 ? 0 : 0xFFFFFFFF);
        }
        placeCamera();
    }

    void placeCamera()
    {
        qxMainView::the().camera.fieldOfView = 0.5f + 0.01f * float(below(50));
        qxMainView::the().camera.toWorld.setTranslate(float(below(1000)), 1, 2);
    }

    /// Gives every seventh visible geometry or material group another paint.
    void paint()
    {
        visitActive("root", scene.root(), [this](const std::string &, const osg::NodePtr &node) {
            if (!paints.empty() && qxNodeUtils::getMaterial(node) != osg::NullFC && below(7) == 0)
                qxNodeUtils::setMaterial(node, any(paints), false, true);
        });
    }

    static Facts seen()
    {
        const qxUberCamera &camera = qxMainView::the().camera;
        Facts facts{{"camera", text(camera.toWorld) + std::to_string(camera.fieldOfView)}};
        const auto add = [&facts](const std::string &way, const osg::NodePtr &node) {
            addFacts(way, node, facts);
        };
        visitActive("environment", qxScenegraph::environmentGeometrySwitch(), add);
        visitActive("root", qxScenegraph::getRoot(), add);
        return facts;
    }

    /// Everything that was seen is seen again, and nothing that was hidden. What a node shows is
    /// free when it showed nothing then.
    static void expectSeen(const Facts &expected)
    {
        const Facts now = seen();
        for (const auto &fact : expected) {
            const auto found = now.find(fact.first);
            EXPECT_EQ(found == now.end() ? "(not seen)" : found->second, fact.second) << fact.first;
        }
        for (const auto &fact : now) {
            const bool isOfANode = fact.first.find(' ') == std::string::npos;
            EXPECT_TRUE(!isOfANode || expected.count(fact.first)) << fact.first << " was hidden";
        }
    }

    /// Captures the whole scene as it is and after changes, and expects that each set brings back
    /// what was seen. What is ambiguous is renamed before, as a user would let the guard do, and so
    /// are lights: those of one name are switched together.
    void captureAndReturn()
    {
        qxVariantCaptureChecker checker;
        checker.findAmbiguousNodes();
        std::vector<osg::NodePtr> renamed = checker.getAmbiguousNodes();
        for (const qxNodePtr &light : qxLights::getLights())
            renamed.push_back(light);
        for (const osg::NodePtr &node : renamed)
            qxNodeUtils::setName(node, qxNodeUtils::getName(node), true, scene.root());
        EXPECT_TRUE(qxVariants::verifyNodeNames());
        placeCamera(); // one that shows nothing is not captured

        const char *const names[] = {"First, captured", "Second, captured", "Third, captured"};
        std::vector<Facts> facts;
        for (const char *name : names) {
            SCOPED_TRACE(name);
            paint();
            facts.push_back(seen());
            captureAll(newSet(name));
            expectSeen(facts.back());
            shuffle();
        }
        for (const std::size_t index : {0u, 2u, 1u, 0u, 1u}) {
            SCOPED_TRACE(names[index]);
            qxVariants::selectVariantSet(names[index], false);
            expectSeen(facts[index]);
            if (below(2) == 0)
                shuffle();
        }
    }

    void loadCaptureAndReturn(const QString &path)
    {
        SCOPED_TRACE(path.toStdString());
        host.clearScene();
        qxSceneFile file;
        ASSERT_TRUE(file.load(path)) << file.errorString().toStdString();
        if (!file.variantsDocument().isEmpty())
            qxVariantReader().read(file.variantsDocument().constData());
        captureAndReturn();
    }

    /// Makes up a scene. Switches, lights and posed nodes have names of their own, everything else
    /// at least a path.
    void build(unsigned int seed)
    {
        host.clearScene();
        random.seed(seed);
        paints.clear();
        for (const char *name : {"Red", "Blue", "Grün", "a/b", "\"Silk\""})
            paints.push_back(scene.addMaterial(name));
        std::vector<osg::MaterialPtr> materials = paints;
        materials.push_back(scene.addSwitchMaterial("Paints", {"Red", "Blue", "Grün"}));
        materials.push_back(scene.addSwitchMaterial("Cloth", {"a/b", "\"Silk\""}));
        materials.push_back(scene.addSwitchMaterial("Nested", {"Red", "Cloth"}));
        std::vector<osg::NodePtr> parents{scene.root().node()};
        for (int number = 10 + below(40); number > 0; --number) {
            const osg::NodePtr parent = any(parents);
            const TestNode node = add(std::to_string(number), any(materials), parent);
            if (osg::GeometryPtr::dcast(node.core()) == osg::NullFC)
                parents.push_back(node);
            else if (below(4) == 0)
                scene.addClone(node, parent);
        }
    }

    TestNode add(const std::string &number, const osg::MaterialPtr &material,
                 const osg::NodePtr &parent)
    {
        const std::string step = std::to_string(parent->getNChildren()); // unlike its siblings
        switch (below(8)) {
        case 0:
            return scene.addSwitch("Switch " + number, {"One", "Zwei", "a\\b"}, parent);
        case 1:
            return scene.addLight("Lamp " + number, parent);
        case 2:
            return scene.addPoses("Lid " + number, {"Closed", "Open", "Ajar"}, parent);
        case 3:
            return scene.addMaterialGroup("Group \"" + step, material, parent);
        case 4:
        case 5:
            return scene.addGeometry("Tür " + step, material, parent);
        default:
            return scene.add("Part/" + step, parent);
        }
    }

    std::mt19937 random{7};
    std::vector<osg::MaterialPtr> paints;
};

TEST_F(SeenAgainTest, TheDemoComesBackNodeByNode)
{
    loadCaptureAndReturn(QX_DEMO_SCENE);
}

TEST_F(SeenAgainTest, RealScenesComeBackNodeByNode)
{
    if (qEnvironmentVariableIsEmpty("QX_SCENES"))
        GTEST_SKIP() << "QX_SCENES names no folder of real scenes";
    QDirIterator walk(qEnvironmentVariable("QX_SCENES"), {"*.gltf", "*.glb"}, QDir::Files,
                      QDirIterator::Subdirectories);
    EXPECT_TRUE(walk.hasNext());
    while (walk.hasNext()) {
        const QString path = walk.next();
        if (!path.contains("/edge-cases/"))
            loadCaptureAndReturn(path);
    }
}

TEST_F(SeenAgainTest, RandomScenesComeBackNodeByNode)
{
    for (unsigned int seed = 1; seed <= 300 && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        build(seed);
        captureAndReturn();
    }
}
