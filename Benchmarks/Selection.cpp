#include "qxNodeVariant.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxBenchScene.h"
#include "qxController.h"
#include "qxFindCache.h"
#include "qxMessage.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGNodeCore.h>
#include <OpenSG/OSGSwitch.h>

#include <QHash>

#include <benchmark/benchmark.h>

const int Switches = 20000; // 100,000 nodes

/// One listener, as the smallest user interface has it.
class Ear {
public:
    Ear() : m_id(qxController::addListener([this](const char *, qxMessage *, int) { ++m_heard; }))
    {
    }
    Ear(const Ear &) = delete;
    ~Ear() { qxController::removeListener(m_id); }

private:
    int m_heard = 0;
    int m_id;
};

/// Two sets that put the same switches into different states, so that every selection changes all.
static qxVariantSet *makeSet(int child, int states)
{
    qxVariantSet *set =
        qxVariants::createVariantSet(qxBenchScene::childName(child), false, nullptr);
    for (int i = 0; i < states; ++i)
        set->addNodeVariant(qxBenchScene::switchName(i), qxBenchScene::childName(child));
    return set;
}

static void selectSet(benchmark::State &state)
{
    const qxBenchScene scene(Switches, int(state.range(0)));
    qxVariantSet *sets[] = {makeSet(1, int(state.range(0))), makeSet(2, int(state.range(0)))};
    const Ear ear;
    const qxFindCache cache(state.range(1) != 0);
    int turn = 0;
    for (auto _ : state)
        sets[turn ^= 1]->select(false, true);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// What a selection has to do at least, with the choice known beforehand.
static void announce(const osg::NodePtr &node, int choice, const std::string &variantName)
{
    std::vector<std::string> visible, invisible;
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i)
        (int(i) == choice ? visible : invisible).push_back(qxNodeUtils::getName(node->getChild(i)));
    const std::string name = qxNodeUtils::getName(node);
    qxMessage message;
    message.set("variantName", variantName, true);
    message.set("visible", visible, true);
    message.set("invisible", invisible, true);
    message.set("parent", name, true);
    message.set("path", name + "|", true);
    qxController::call("variantsNodesChanged", message, 1);
}

static void selectBare(benchmark::State &state)
{
    const qxBenchScene scene(Switches, int(state.range(0)));
    std::vector<std::pair<QString, int>> states;
    QHash<QString, qxNodeVariant *> variants;
    for (int i = 0; i < int(state.range(0)); ++i) {
        states.push_back({qxBenchScene::switchName(i), 1});
        variants[states.back().first] = qxVariants::findNodeVariant(states.back().first);
    }
    const Ear ear;
    const qxFindCache cache(state.range(1) != 0);
    int turn = 1;
    for (auto _ : state) {
        turn = 3 - turn;
        const qxFindCache own(state.range(1) == 0);
        for (const auto &entry : states) {
            qxNodeVariant *variant = variants.value(entry.first);
            const std::string variantName = variant->name.toStdString();
            for (const qxNodePtr &node :
                 qxScenegraph::findNodes(variant->nodeName.toUtf8().constData())) {
                const auto core = osg::SwitchPtr::dcast(node->getCore());
                osg::beginEditCP(core, osg::Switch::ChoiceFieldMask);
                core->setChoice(turn);
                osg::endEditCP(core, osg::Switch::ChoiceFieldMask);
                announce(node, turn, variantName);
            }
            qxMessage selected;
            selected.set("variant", static_cast<void *>(variant), true);
            qxController::call("nodeVariantSelected", selected, 1);
        }
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

// Arguments: number of states, and whether the cache was there before the selection.
BENCHMARK(selectSet)
    ->Name("Selection/set")
    ->ArgsProduct({{250, 1000, 4000}, {0, 1}})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(selectBare)
    ->Name("Selection/bare")
    ->ArgsProduct({{250, 1000, 4000}, {0, 1}})
    ->Unit(benchmark::kMicrosecond);
