#include "qxMaterialVariant.h"
#include "qxVariants.h"

#include "qxController.h"
#include "qxHost.h"
#include "qxMaterials.h"
#include "qxMessage.h"
#include "qxModuleBase.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <benchmark/benchmark.h>

#include <unordered_map>

/// A switch material of two materials, `primitives` nodes that show it, and between them as many
/// that show a plain one.
class PaintedScene {
public:
    explicit PaintedScene(int primitives)
    {
        const osg::MaterialPtr red = addMaterial(osg::SimpleMaterial::create(), "Red");
        const osg::MaterialPtr blue = addMaterial(osg::SimpleMaterial::create(), "Blue");
        const osg::SwitchMaterialPtr choices = osg::SwitchMaterial::create();
        choices->addMaterial(red);
        choices->addMaterial(blue);
        paint = addMaterial(choices, "Paint");
        for (int i = 0; i < primitives; ++i) {
            addPrimitive(i, paint);
            addPrimitive(i, red);
        }
    }
    PaintedScene(const PaintedScene &) = delete;
    ~PaintedScene() { m_host.clearScene(); }

    osg::MaterialPtr paint;

private:
    static osg::MaterialPtr addMaterial(const osg::MaterialPtr &material, const char *name)
    {
        qxMaterials::setName(material, name, true);
        qxScenegraph::getMaterialPool()->add(material);
        return material;
    }

    static void addPrimitive(int number, const osg::MaterialPtr &material)
    {
        const osg::GeometryPtr core = osg::Geometry::create();
        core->setMaterial(material);
        const osg::NodePtr node = osg::makeNodeFor(core);
        osg::setName(node, "Part " + std::to_string(number));
        qxScenegraph::getRoot()->addChild(node);
    }

    qxHost m_host;
};

static void findUsers(benchmark::State &state)
{
    const PaintedScene scene(int(state.range(0)));
    for (auto _ : state) {
        std::vector<qxNodePtr> nodes;
        qxMaterials::getNodesWithMaterial(nodes, scene.paint);
        benchmark::DoNotOptimize(nodes.data());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// The same by asking every node, as it would be without an index.
static void findUsersBare(benchmark::State &state)
{
    const PaintedScene scene(int(state.range(0)));
    for (auto _ : state) {
        std::vector<qxNodePtr> nodes;
        const osg::NodePtr root = qxScenegraph::getRoot();
        for (osg::UInt32 i = 0; i < root->getNChildren(); ++i) {
            const osg::NodePtr node = root->getChild(i);
            const osg::GeometryPtr core = osg::GeometryPtr::dcast(node->getCore());
            if (core != osg::NullFC && core->getMaterial() == scene.paint)
                nodes.push_back(node);
        }
        benchmark::DoNotOptimize(nodes.data());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// The first look-up after the host said that materials changed in ways it cannot follow.
static void findUsersAnew(benchmark::State &state)
{
    const PaintedScene scene(int(state.range(0)));
    for (auto _ : state) {
        qxMessage changed(qxModuleBase::MaterialsChanged);
        qxModuleBase::sendMessage(changed, false);
        std::vector<qxNodePtr> nodes;
        qxMaterials::getNodesWithMaterial(nodes, scene.paint);
        benchmark::DoNotOptimize(nodes.data());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

static void selectMaterial(benchmark::State &state)
{
    const PaintedScene scene(int(state.range(0)));
    qxMaterialVariant *const variant = qxVariants::createMaterialVariant(scene.paint, false);
    const QString states[] = {QStringLiteral("Red"), QStringLiteral("Blue")};
    int turn = 0;
    for (auto _ : state)
        variant->onSelect(states[turn ^= 1]);
}

/// What a selection has to do at least: find material and choice by name, write the choice, send
/// its two messages.
static void selectMaterialBare(benchmark::State &state)
{
    const PaintedScene scene(int(state.range(0)));
    const std::string names[] = {"Red", "Blue"};
    int turn = 0;
    for (auto _ : state) {
        const std::string &name = names[turn ^= 1];
        for (const osg::MaterialPtr &material : qxMaterials::findMaterials("Paint")) {
            const auto choices = osg::SwitchMaterialPtr::dcast(material);
            osg::UInt32 choice = 0;
            while (qxMaterials::getName(choices->getMaterials()[choice]) != name)
                ++choice;
            osg::beginEditCP(choices, osg::SwitchMaterial::ChoiceFieldMask);
            choices->setChoice(choice);
            osg::endEditCP(choices, osg::SwitchMaterial::ChoiceFieldMask);
            qxMessage changed;
            changed.set("variantName", std::string("Paint"), true);
            changed.set("materialName", name, true);
            changed.set("materialBaseName", std::string("Paint"), true);
            qxController::call("variantsMaterialChanged", changed, 1);
        }
        qxMessage selected;
        selected.set("variant", static_cast<void *>(nullptr), true);
        qxController::call("materialVariantSelected", selected, 1);
    }
}

static void buildFindCache(benchmark::State &state)
{
    const PaintedScene scene(int(state.range(0)));
    for (auto _ : state) {
        qxScenegraph::initFindCache();
        qxScenegraph::clearFindCache();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// The same with containers of the standard library.
static void buildFindCacheBare(benchmark::State &state)
{
    const PaintedScene scene(int(state.range(0)));
    for (auto _ : state) {
        std::unordered_map<std::string, std::vector<osg::NodePtr>> nodes;
        const osg::NodePtr root = qxScenegraph::getRoot();
        for (osg::UInt32 i = 0; i < root->getNChildren(); ++i)
            nodes[qxNodeUtils::getName(root->getChild(i))].push_back(root->getChild(i));
        benchmark::DoNotOptimize(nodes.size());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

// Argument: number of primitives with the material; as many others stand between them.
BENCHMARK(findUsers)->Name("MaterialUsers/find")->Arg(1000)->Arg(10000);
BENCHMARK(findUsersBare)->Name("MaterialUsers/bare")->Arg(1000)->Arg(10000);
BENCHMARK(findUsersAnew)->Name("MaterialUsers/anew")->Arg(1000)->Arg(10000);
BENCHMARK(selectMaterial)->Name("MaterialSelection/variant")->Arg(1000)->Arg(10000);
BENCHMARK(selectMaterialBare)->Name("MaterialSelection/bare")->Arg(1000)->Arg(10000);
BENCHMARK(buildFindCache)->Name("FindCache/build")->Arg(1000)->Arg(10000);
BENCHMARK(buildFindCacheBare)->Name("FindCache/bare")->Arg(1000)->Arg(10000);
