#include "qxNodeVariant.h"
#include "qxVariants.h"

#include "Script/qxScriptRunner.h"
#include "qxHost.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <benchmark/benchmark.h>

static QStringList addVariants(int count)
{
    const qxUnchangedNames unchanged;
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names += QStringLiteral("Variant %1").arg(i);
        qxVariants::createNodeVariant(names.last(), false);
    }
    return names;
}

template <class Find>
static void findEach(benchmark::State &state, const QStringList &names, const Find &find)
{
    int i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(find(names.at(i)));
        i = (i + 7919) % names.size();
    }
    qxVariants::clearNodeVariants();
}

// Finding a variant by name must cost the same however many there are.
static void findVariant(benchmark::State &state)
{
    findEach(state, addVariants(int(state.range(0))),
             [](const QString &name) { return qxVariants::findNodeVariant(name); });
}

// The least that a look-up costs: a table that nobody checks.
static void findInHash(benchmark::State &state)
{
    const QStringList names = addVariants(int(state.range(0)));
    QHash<QString, qxNodeVariant *> table;
    for (const QString &name : names)
        table.insert(name, qxVariants::findNodeVariant(name));
    findEach(state, names, [&table](const QString &name) { return table.value(name); });
}

// A name that nobody bears, while names may change at any time.
static void missVariant(benchmark::State &state)
{
    addVariants(int(state.range(0)));
    findEach(state, {"Nobody"},
             [](const QString &name) { return qxVariants::findNodeVariant(name); });
}

// Removing all by name, in the order in which they were made.
static void removeVariants(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        const QStringList names = addVariants(int(state.range(0)));
        state.ResumeTiming();
        for (const QString &name : names)
            qxVariants::removeNodeVariant(name);
    }
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

BENCHMARK(findVariant)->Name("LookUp/registry")->RangeMultiplier(10)->Range(10, 100000);
BENCHMARK(findInHash)->Name("LookUp/bare")->RangeMultiplier(10)->Range(10, 100000);
BENCHMARK(missVariant)->Name("LookUp/miss")->RangeMultiplier(10)->Range(10, 100000);
BENCHMARK(removeVariants)->Name("Removal/byName")->Arg(1000)->Arg(10000)->Arg(100000);
BENCHMARK(hideByPath)->Name("ScriptPaths/hide")->Arg(1000)->Arg(10000);
