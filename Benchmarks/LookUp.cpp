#include "qxNodeVariant.h"
#include "qxVariants.h"

#include "Core/qxHost.h"
#include "Script/qxScriptRunner.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <benchmark/benchmark.h>

// Finding a variant by name must cost the same however many there are.
static void findVariant(benchmark::State &state)
{
    const int count = int(state.range(0));
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names += QStringLiteral("Variant %1").arg(i);
        qxVariants::createNodeVariant(names.last(), false);
    }
    int i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(qxVariants::findNodeVariant(names.at(i)));
        i = (i + 7919) % count;
    }
    qxVariants::clearNodeVariants();
}

// What a captured script does: a look-up by path and an edit for each of the nodes.
static void hideByPath(benchmark::State &state)
{
    qxHost host;
    const int count = int(state.range(0));
    const osg::NodePtr root = qxScenegraph::getRoot();
    osg::beginEditCP(root, osg::Node::ChildrenFieldMask);
    for (int i = 0; i < count; ++i) {
        const osg::NodePtr node = osg::makeNodeFor(osg::Group::create());
        osg::setName(node, "Node " + std::to_string(i));
        root->addChild(node);
    }
    osg::endEditCP(root, osg::Node::ChildrenFieldMask);
    const std::string script = "for i in range(" + std::to_string(count)
        + "): findNodePath('Node %d' % i).setActive(i % 2 == 0)";
    for (auto _ : state)
        qxScriptRunner::run(script, "hide");
    state.SetItemsProcessed(state.iterations() * count);
    host.clearScene();
}

BENCHMARK(findVariant)->Name("LookUp/registry")->Arg(10)->Arg(1000)->Arg(100000);
BENCHMARK(hideByPath)->Name("ScriptPaths/hide")->Arg(1000)->Arg(10000);
