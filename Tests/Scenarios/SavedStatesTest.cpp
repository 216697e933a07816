#include "qxMaterialVariant.h"
#include "qxVariantCaptureChecker.h"
#include "qxVariantGroup.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"
#include "qxVariantWriter.h"
#include "qxVariants.h"

#include "Commands/qxAmbiguousNodes.h"
#include "Program.h"
#include "RandomScene.h"
#include "Scene/qxNodeName.h"
#include "Scene/qxTransformStates.h"
#include "Script/qxScriptRunner.h"
#include "Script/qxVariantBindings.h"
#include "Session/qxSession.h"
#include "ShownScene.h"
#include "TestScene.h"
#include "qxFindCache.h"
#include "qxMaterials.h"
#include "qxTestPaths.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <QDir>
#include <QMap>
#include <QRegularExpression>

#include <algorithm>
#include <memory>

namespace {

/// Changes the opened scene as people do through variants, and as other parts of a host do.
class RandomEdits {
public:
    /// `mayMove`: whether nodes may leave their parents, which is nothing that people can do here.
    /// `isImported`: whether the variants are those of the file, which are made anew with the names
    /// that its materials have then.
    RandomEdits(RandomChoices &random, bool mayMove, bool isImported)
        : m_random(random), m_mayMove(mayMove), m_isImported(isImported)
    {
    }

    void make(unsigned count)
    {
        for (; count > 0; --count)
            make();
    }

private:
    typedef void (RandomEdits::*Edit)();

    void make()
    {
        const Edit edit = m_random.of<Edit>({&RandomEdits::selectSet, &RandomEdits::selectState,
                                             &RandomEdits::selectState, &RandomEdits::selectState,
                                             &RandomEdits::createVariants, &RandomEdits::capture,
                                             &RandomEdits::editNode, &RandomEdits::editNode,
                                             &RandomEdits::addNodes, &RandomEdits::editMaterial});
        (this->*edit)();
    }
    void selectSet()
    {
        if (!qxVariants::_variantSets.empty())
            qxVariants::selectVariantSet(
                qxVariants::_variantSets[any(qxVariants::_variantSets.size())]
                    ->name.toUtf8()
                    .constData(),
                false);
    }
    void selectState()
    {
        QList<qxVariant *> all;
        qxVariantKinds::visit([&](const qxVariantKind &, qxVariant &each) { all += &each; });
        if (all.isEmpty())
            return;
        qxVariant *const variant = all[int(any(std::size_t(all.size())))];
        if (!variant->options.empty())
            variant->onSelect(
                variant->options[int(any(std::size_t(variant->options.size())))].name);
    }
    void createVariants()
    {
        const osg::NodePtr node = anyNode();
        if (!osg::getName(node))
            return;
        qxVariants::createNodeVariant(node, false);
        if (qxNodeUtils::hasTransformVariants(node))
            qxVariants::createTransformVariant(node, false);
        std::vector<osg::MaterialPtr> pool;
        qxScenegraph::getMaterialPool()->get(pool);
        if (!pool.empty())
            qxVariants::createMaterialVariant(pool[any(pool.size())], false);
    }
    void capture()
    {
        // A part that gets a name stands below a node of that name when it comes back, where it is
        // found by the name of its mesh again.
        qxVariantCaptureChecker checker;
        checker.findAmbiguousNodes();
        const std::vector<osg::NodePtr> ambiguous = checker.getAmbiguousNodes();
        if (std::any_of(ambiguous.begin(), ambiguous.end(), qxIsPart))
            return;
        qxAmbiguousNodes().rename();
        qxVariants::createAndCaptureVariantSet(m_random.of({"Captured", "A", "B"}), "Group");
    }
    void editNode()
    {
        const TestNode node(anyNode());
        switch (m_random.below(5)) {
        case 0:
            node.setMask(node.mask() == 0 ? 0xFFFFFFFF : 0);
            break;
        case 1:
            qxNodeUtils::setName(node, m_random.name(), m_random.percent(50),
                                 qxScenegraph::getRoot());
            break;
        case 2:
            qxTransformStates::select(node, int(m_random.below(3)));
            break;
        case 3:
            if (m_mayMove && isInTree(node) && m_random.percent(50))
                node.remove();
            break;
        default:
            const TestNode parent(anyParent());
            if (m_mayMove && isInTree(node) && !isBelow(parent, node))
                node.moveTo(parent);
        }
    }
    void addNodes()
    {
        const osg::NodePtr parent = anyParent();
        switch (m_random.below(5)) {
        case 0:
            m_scene.addSwitch(m_random.name(), {m_random.name(), m_random.name()}, parent)
                .choose(int(m_random.below(4)) - 2);
            break;
        case 1:
            m_scene.addTransformSwitch(m_random.name(), 2, parent).choose(1);
            break;
        case 2:
            m_scene.addClone(anyNode(), qxScenegraph::getRoot());
            break;
        case 3:
            m_scene.addLight(m_random.name(), parent);
            break;
        default:
            qxUberCamera camera;
            camera.name = m_random.name();
            (m_random.percent(50) ? camera.fieldOfView : camera.height) = m_random.positive();
            camera.farPlane = 40;
            camera.toWorld.setTransform(osg::Vec3f(1, 2, 3),
                                        osg::Quaternion(osg::Vec3f(0, 1, 0), 0.5f));
            qxUberCameraPool::the()->add(camera);
        }
    }
    void editMaterial()
    {
        std::vector<osg::MaterialPtr> pool;
        qxScenegraph::getMaterialPool()->get(pool);
        if (pool.empty())
            return;
        const osg::MaterialPtr material = pool[any(pool.size())];
        const bool isSwitch = osg::SwitchMaterialPtr::dcast(material) != osg::NullFC;
        if (isSwitch)
            TestMaterial(material).choose(m_random.below(4));
        else if (!m_isImported && m_random.percent(50))
            qxMaterials::setName(material, ("My " + m_random.name()).c_str(), false);
        else if (!qxMaterials::getName(material).empty())
            m_scene.addSwitchMaterial(m_random.name(), {qxMaterials::getName(material)});
    }

    std::size_t any(std::size_t count) { return m_random.below(unsigned(count)); }
    osg::NodePtr anyNode()
    {
        std::vector<qxNodePtr> nodes = qxNodeUtils::getSceneNodes();
        const auto isPart = [](const qxNodePtr &node) {
            return osg::GeometryPtr::dcast(node->getCore()) != osg::NullFC;
        };
        nodes.erase(std::remove_if(nodes.begin(), nodes.end(), isPart), nodes.end());
        return nodes[any(nodes.size())];
    }
    /// Parts stand behind all children that a file tells, and so would one that is added. Where it
    /// has the name of a mesh, that name would find another one of them.
    osg::NodePtr anyParent()
    {
        const osg::NodePtr node = anyNode();
        const osg::MFNodePtr &children = *node->getMFChildren();
        const bool hasParts = std::any_of(children.begin(), children.end(), qxIsPart);
        return hasParts ? qxScenegraph::getRoot() : node;
    }
    static bool isBelow(osg::NodePtr node, const osg::NodePtr &top)
    {
        while (node != osg::NullFC && node != top)
            node = node->getParent();
        return node == top;
    }
    static bool isInTree(const TestNode &node) { return node.node()->getParent() != osg::NullFC; }
    RandomChoices &m_random;
    const bool m_mayMove;
    const bool m_isImported;
    TestScene m_scene;
};

} // namespace

/// Scenes that are saved and opened again.
class SavedStatesTest : public testing::Test, protected TestFolder {
protected:
    void checkSeed(unsigned seed);
    /// Saves the opened scene, opens it and saves it again.
    void checkSave(const QString &saved);
    /// Expects what the set asks for. Steps are no states to come back to.
    static void expectStatesOf(qxVariantSet &set);

    std::unique_ptr<qxSession> session = std::make_unique<qxSession>();
};

void SavedStatesTest::checkSave(const QString &saved)
{
    const std::string shown = shownScene();
    const QByteArray document = qxVariantWriter().write();
    ASSERT_TRUE(session->save(saved)) << session->failure().toStdString();
    EXPECT_EQ(shownScene(), shown) << "saving changes nothing";
    const QByteArray bytes = bytesOf(saved);
    SCOPED_TRACE("saved: " + bytes.toStdString());
    ASSERT_TRUE(session->open(saved)) << session->failure().toStdString();
    EXPECT_EQ(shownScene(), shown);
    EXPECT_EQ(qxVariantWriter().write(), document);
    ASSERT_TRUE(session->save(saved)) << session->failure().toStdString();
    EXPECT_EQ(bytesOf(saved), bytes);
}

void SavedStatesTest::checkSeed(unsigned seed)
{
    RandomChoices random(seed);
    const bool isExternal = random.percent(20);
    const QString place = path(QString::number(seed));
    QDir().mkpath(place + "/other");
    if (isExternal)
        write(QString::number(seed) + "/data.bin", randomSceneData());
    const QByteArray text = QByteArray::fromStdString(randomScene(random, isExternal).dump());
    const QString first = write(QString::number(seed) + "/a.gltf", text);
    SCOPED_TRACE("made: " + text.toStdString());
    ASSERT_TRUE(session->open(first)) << session->failure().toStdString();
    const unsigned edits = random.percent(30) ? 0 : 1 + random.below(6);
    // A node that no longer is in the scene takes its camera along, and overlays go back to places
    // among nodes that are gone.
    RandomEdits(random, !text.contains("\"camera\"") && !text.contains("qxOverlay\":true"),
                !session->file().materialVariants().empty())
        .make(edits);
    const QString saved = place + random.of({"/a.gltf", "/b.gltf", "/b.glb", "/other/c.gltf"});
    checkSave(saved);
    if (edits == 0 && session->isEmpty() && saved.endsWith(".gltf")) {
        EXPECT_EQ(bytesOf(saved), text);
    }
    if (!HasFailure())
        QDir(place).removeRecursively();
}

void SavedStatesTest::expectStatesOf(qxVariantSet &set)
{
    static const QRegularExpression step("^(!Next|!Previous|!Toggle)");
    const qxFindCache cache(true);
    qxVariantKinds::visit([&](const qxVariantKind &kind, const qxVariant &variant) {
        const qxVariantState *const entry = (set.*kind.states).find(variant.name);
        const bool isState = entry && !step.match(entry->state).hasMatch();
        EXPECT_TRUE(!isState || variant.shown().state() == entry->state)
            << variant.name.toStdString();
    });
}

TEST_F(SavedStatesTest, WhatASceneShowsIsShownAgainAfterSavingAndLoading)
{
    const QStringList range = qEnvironmentVariable("QX_SEEDS", "1:200").split(':');
    const unsigned begin = range.first().toUInt();
    for (unsigned seed = begin; seed < begin + range.last().toUInt(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        checkSeed(seed);
        if (HasFailure())
            return;
    }
}

TEST_F(SavedStatesTest, WhatWasLostOnceIsKept)
{
    const QByteArray switches[] = {
        // A variant whose base is a plain material.
        R"("materials": [{"name": "Red"}, {"name": "Blue"}], "extras": {"qxVariants":
            "<Variants><MaterialVariant name='Red' base='Red'><State name='Red'/><State name='Blue'/>
            </MaterialVariant></Variants>"}, "nodes": [{"name": "Red"}])",
        // Rotations whose matrix would overflow.
        R"("nodes": [{"name": "Lid", "extras": {"qxTransformStates":
            [0,0,0, 1e20,0,0,0, 1,1,1, 0,0,0, 0,3e38,0,3e38, 1e20,1,1]}},
            {"name": "Red", "rotation": [1e20, 0, 0, 1e20]}])",
        // A clone in an overlay, of a switch whose namesake comes first in the tree.
        R"("nodes": [{"name": "Red", "extras": {"qxOverlay": true, "qxSwitch": 0}},
            {"name": "Red", "extras": {"qxSwitch": -1}},
            {"name": "Blue", "extras": {"qxOverlay": true, "qxSharesCoreOf": "Red"}}])",
        // Without a scene every node without a parent is shown.
        R"("nodes": [{"name": "Red"}, {"name": "Blue", "camera": 0}], "cameras":
            [{"type": "perspective", "perspective": {"yfov": 1, "znear": 1}}])"};
    for (const QByteArray &members : switches) {
        SCOPED_TRACE(members.toStdString());
        const QByteArray text = R"({"asset": {"version": "2.0"}, )" + members + "}";
        ASSERT_TRUE(session->open(write("a.gltf", QByteArray(text).replace('\n', ' '))));
        for (const qxVariantKind *kind : qxVariantKinds::all()) {
            if (qxVariant *variant = kind->find("Red"))
                variant->onSelect("Blue");
        }
        TestScene().addViewpoint("Side");
        qxNodeUtils::setName(qxScenegraph::findNode("Blue"), "Green", false, osg::NullFC);
        if (qxVariants::_materialVariants.empty())
            qxNodeUtils::setName(qxScenegraph::findNode("Red"), "Blue", false, osg::NullFC);
        else
            EXPECT_EQ(qxVariants::_materialVariants[0]->onCurrent(), "Blue");
        checkSave(path("b.gltf"));
    }
}

TEST_F(SavedStatesTest, EverySetOfTheDemoShowsItsStatesAndIsShownAgain)
{
    qxVariantBindings::setArguments({});
    ASSERT_TRUE(session->open(QX_DEMO_SCENE));
    std::vector<QString> names;
    for (const qxVariantSet *set : qxVariants::_variantSets)
        names.push_back(set->name);
    ASSERT_GE(names.size(), 10u);
    for (std::size_t i = 0; i < names.size(); ++i) {
        SCOPED_TRACE(names[i].toStdString());
        qxVariants::selectVariantSet(names[i].toUtf8(), false);
        expectStatesOf(*qxVariants::findVariantSet(names[i]));
        if (i % 6 == 5)
            checkSave(path("demo.gltf"));
    }
    EXPECT_FALSE(qxScriptRunner::haveFailed());
}
