#include "qxVariantCaptureChecker.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Core/qxHost.h"
#include "qxMaterials.h"
#include "qxMessage.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleMaterial.h>

#include <benchmark/benchmark.h>

#include <string>

namespace {

/// Groups of nine geometries each. The first geometry of a group is hidden; there is an active node
/// of its name in every second group.
class CapturedScene {
public:
    explicit CapturedScene(int nodes)
    {
        const osg::MaterialPtr paint = osg::SimpleMaterial::create();
        qxMaterials::setName(paint, "Paint", true);
        qxScenegraph::getMaterialPool()->add(paint);
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
    static osg::NodePtr add(const osg::NodePtr &parent, const osg::NodeCorePtr &core,
                            const std::string &name)
    {
        const osg::NodePtr node = osg::makeNodeFor(core);
        osg::setName(node, name);
        parent->addChild(node);
        return node;
    }

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

void captureScene(benchmark::State &state)
{
    const CapturedScene scene(int(state.range(0)));
    for (auto _ : state)
        qxVariants::captureVariantsFromRootNodes(scene.set, {qxScenegraph::getRoot()}, true, true,
                                                 true, true, true, true, false, true);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void checkScene(benchmark::State &state)
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
BENCHMARK(checkScene)->Name("CaptureCheck/scene")->Arg(1000)->Arg(10000)->Arg(100000);

} // namespace
