#include "qxVariantCaptureChecker.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxHost.h"
#include "qxMaterials.h"
#include "qxMessage.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

static osg::NodePtr add(const osg::NodePtr &parent, const osg::NodeCorePtr &core,
                        const std::string &name)
{
    const osg::NodePtr node = osg::makeNodeFor(core);
    osg::setName(node, name);
    parent->addChild(node);
    return node;
}

/// Adds it to the pool, under that name.
static osg::MaterialPtr add(const osg::MaterialPtr &material, const std::string &name)
{
    qxMaterials::setName(material, name.c_str(), true);
    qxScenegraph::getMaterialPool()->add(material);
    return material;
}

/// Groups of nine geometries each. The first geometry of a group is hidden; there is an active node
/// of its name in every second group.
class CapturedScene {
public:
    explicit CapturedScene(int nodes)
    {
        const osg::MaterialPtr paint = add(osg::SimpleMaterial::create(), "Paint");
        for (int i = 0; i < nodes / 10; ++i) {
            const std::string number = std::to_string(i);
            const osg::NodePtr group =
                add(qxScenegraph::getRoot(), osg::Group::create(), "Group " + number);
            for (int part = 0; part < 9; ++part)
                addPart(group, paint, number, part);
        }
        set = qxVariants::createVariantSet(QStringLiteral("Sport"), false, nullptr);
    }
    CapturedScene(const CapturedScene &) = delete;
    ~CapturedScene() { m_host.clearScene(); }

    qxVariantSet *set;

private:
    static void addPart(const osg::NodePtr &group, const osg::MaterialPtr &paint,
                        const std::string &number, int part)
    {
        const osg::GeometryPtr core = osg::Geometry::create();
        core->setMaterial(paint);
        const bool isNamesake = part == 1 && number.back() % 2 == 0;
        const int called = isNamesake ? 0 : part;
        const std::string name = "Part " + number + ' ' + std::to_string(called);
        // A namesake stands one level lower, so that its path is its own.
        const osg::NodePtr parent = isNamesake ? add(group, osg::Group::create(), "Inner") : group;
        add(parent, core, name)->setActive(part != 0);
    }

    qxHost m_host;
};

/// Geometries in groups of ten: of each ten two are clones of the one before them, and three share
/// a switch material. The first set holds their first materials.
class RepaintedScene {
public:
    explicit RepaintedScene(int nodes)
    {
        for (const char *name : {"Red", "Green", "Blue", "White"})
            m_plain.push_back(add(osg::SimpleMaterial::create(), name));
        const osg::SwitchMaterialPtr shared = osg::SwitchMaterial::create();
        shared->addMaterial(m_plain[0]);
        shared->addMaterial(m_plain[1]);
        add(shared, "Shared");
        for (int i = 0; i < nodes; ++i)
            addPart(i, i % 10 < 3 ? osg::MaterialPtr(shared) : m_plain[std::size_t(i % 2)]);
        capture(QStringLiteral("First"));
    }
    RepaintedScene(const RepaintedScene &) = delete;
    ~RepaintedScene() { m_host.clearScene(); }

    /// Gives other materials to all nodes but every tenth.
    void repaint() const
    {
        for (std::size_t i = 0; i < m_parts.size(); ++i) {
            if (i % 10 != 0)
                qxNodeUtils::setMaterial(m_parts[i], m_plain[2 + i / 10 % 2], false, false);
        }
    }

    static void capture(const QString &name)
    {
        qxVariants::captureVariantsFromRootNodes(qxVariants::createVariantSet(name, false, nullptr),
                                                 {qxScenegraph::getRoot()}, true, true, true, true,
                                                 true, true, false, true);
    }

private:
    void addPart(int index, const osg::MaterialPtr &material)
    {
        if (index % 10 == 0)
            m_group = add(qxScenegraph::getRoot(), osg::Group::create(),
                          "Group " + std::to_string(index));
        const bool isClone = index % 10 == 5 || index % 10 == 6;
        osg::GeometryPtr core;
        if (isClone) {
            core = osg::GeometryPtr::dcast(m_parts.back()->getCore());
        } else {
            core = osg::Geometry::create();
            core->setMaterial(material);
        }
        const int number = isClone ? index / 10 * 10 + 4 : index;
        m_parts.push_back(add(m_group, core, "Part " + std::to_string(number)));
    }

    qxHost m_host;
    std::vector<osg::MaterialPtr> m_plain;
    std::vector<osg::NodePtr> m_parts;
    osg::NodePtr m_group;
};

/// Geometries with a material each.
class NamesakeScene {
public:
    /// The first set holds materials that all have one name.
    explicit NamesakeScene(int nodes)
    {
        for (int i = 0; i < nodes; ++i)
            add(qxScenegraph::getRoot(), osg::Geometry::create(), "Part " + std::to_string(i));
        paintEach([](int) { return std::string("Paint"); });
        RepaintedScene::capture(QStringLiteral("First"));
    }
    NamesakeScene(const NamesakeScene &) = delete;
    ~NamesakeScene() { m_host.clearScene(); }

    /// Gives each node a new material with the name for its number.
    template <class Name>
    static void paintEach(const Name &name)
    {
        for (int i = 0; i < int(qxScenegraph::getRoot()->getNChildren()); ++i)
            paint(i, add(osg::SimpleMaterial::create(), name(i)));
    }
    /// Gives all nodes one switch material, which holds that many materials.
    static void paintAll(int choices)
    {
        const osg::SwitchMaterialPtr shared = osg::SwitchMaterial::create();
        add(shared, "Shared");
        for (int i = 0; i < choices; ++i)
            shared->addMaterial(add(osg::SimpleMaterial::create(), "Choice " + std::to_string(i)));
        for (int i = 0; i < int(qxScenegraph::getRoot()->getNChildren()); ++i)
            paint(i, shared);
    }

private:
    static void paint(int node, const osg::MaterialPtr &material)
    {
        qxNodeUtils::setMaterial(qxScenegraph::getRoot()->getChild(osg::UInt32(node)), material,
                                 false, false);
    }

    qxHost m_host;
};

/// Measures a second capture, of a scene that was captured and changed.
template <class Scene, class Change>
static void captureAgain(benchmark::State &state, const Change &change)
{
    for (auto _ : state) {
        state.PauseTiming();
        {
            const Scene scene(int(state.range(0)));
            change(scene);
            state.ResumeTiming();
            RepaintedScene::capture(QStringLiteral("Second"));
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

static void captureNamesakes(benchmark::State &state)
{
    captureAgain<NamesakeScene>(state, [](const NamesakeScene &) {
        NamesakeScene::paintEach([](int) { return std::string("Coat"); });
    });
}

/// As many choices as nodes.
static void captureShared(benchmark::State &state)
{
    const int choices = int(state.range(0));
    captureAgain<NamesakeScene>(
        state, [choices](const NamesakeScene &) { NamesakeScene::paintAll(choices); });
}

/// What the nodes share now cannot be shared by sets that saw them different.
static void captureParted(benchmark::State &state)
{
    captureAgain<NamesakeScene>(state, [](const NamesakeScene &) {
        NamesakeScene::paintEach([](int node) { return "Paint " + std::to_string(node); });
        RepaintedScene::capture(QStringLiteral("Between"));
        NamesakeScene::paintAll(3);
    });
}

static void captureScene(benchmark::State &state)
{
    const CapturedScene scene(int(state.range(0)));
    for (auto _ : state)
        qxVariants::captureVariantsFromRootNodes(scene.set, {qxScenegraph::getRoot()}, true, true,
                                                 true, true, true, true, false, true);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

static void captureSnapshots(benchmark::State &state)
{
    captureAgain<RepaintedScene>(state, [](const RepaintedScene &scene) { scene.repaint(); });
}

static void checkScene(benchmark::State &state)
{
    const CapturedScene scene(int(state.range(0)));
    for (auto _ : state) {
        qxVariantCaptureChecker checker;
        checker.findAmbiguousNodes();
        if (!checker.getAmbiguousNodes().empty())
            return state.SkipWithError("the scene is ambiguous");
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(captureScene)->Name("Capture/scene")->Arg(1000)->Arg(10000)->Arg(100000);
BENCHMARK(captureSnapshots)->Name("Capture/snapshots")->Arg(1000)->Arg(10000);
BENCHMARK(captureNamesakes)->Name("Capture/namesakes")->Arg(1000)->Arg(10000);
BENCHMARK(captureShared)->Name("Capture/shared")->Arg(1000)->Arg(10000);
BENCHMARK(captureParted)->Name("Capture/parted")->Arg(1000)->Arg(10000);
BENCHMARK(checkScene)->Name("CaptureCheck/scene")->Arg(1000)->Arg(10000)->Arg(100000);
