#include "Files/Gltf/Read/qxGltfNodes.h"

#include "Files/Gltf/Common/qxGltfCores.h"
#include "Files/Gltf/Common/qxGltfExtras.h"
#include "Files/Gltf/Common/qxGltfLights.h"
#include "Files/Gltf/Read/qxGltfEnvironments.h"
#include "Files/Gltf/Read/qxGltfModel.h"
#include "Files/Gltf/Read/qxGltfTransforms.h"
#include "OSGOverlayCore.h"
#include "Scene/qxTransformStates.h"
#include "qxNodeUtils.h"
#include "qxNodeWalk.h"
#include "qxText.h"

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitch.h>

#include <algorithm>

namespace {

bool isVisible(const qxJson &node)
{
    const qxJson &visibility =
        qxGltfMember(qxGltfMember(node, "extensions"), "KHR_node_visibility");
    const qxJson &visible = qxGltfMember(visibility, "visible");
    return !visible.is_boolean() || visible.get<bool>();
}

void hide(const osg::NodePtr &node)
{
    const osg::CPEditor edit(node, osg::Node::TravMaskFieldMask);
    node->setTravMask(0);
}

void setCore(const osg::NodePtr &node, const osg::NodeCorePtr &core)
{
    const osg::CPEditor edit(node, osg::Node::CoreFieldMask);
    node->setCore(core);
}

bool movesNodes(const osg::NodeCorePtr &core)
{
    return osg::TransformPtr::dcast(core) != osg::NullFC;
}

} // namespace

qxGltfNodes::qxGltfNodes(qxGltfModel &model, qxGltfScene &scene)
    : m_model(model), m_scene(scene), m_made(model.typed.nodes.size())
{
}

osg::NodePtr qxGltfNodes::node(int index) const
{
    return m_made[std::size_t(index)].node.get();
}

osg::NodePtr qxGltfNodes::placedNode(int index) const
{
    const Made &made = m_made[std::size_t(index)];
    osg::NodePtr at = made.node.get();
    while (!movesNodes(at->getCore()) && at != made.upper.get())
        at = at->getParent();
    return movesNodes(at->getCore()) ? at : made.node.get();
}

void qxGltfNodes::warn(int index, const QString &text)
{
    m_model.warnings << qxGltfLabel("node", index, m_model.node(index)) + ": " + text;
}

void qxGltfNodes::build()
{
    findOrder();
    for (const int index : m_order)
        make(index);
    for (const int index : m_order)
        share(index);
    // From the leaves up: adding to a node without ancestors costs the same in every scene.
    for (auto index = m_order.rbegin(); index != m_order.rend(); ++index)
        assemble(*index);
    for (const int root : m_model.roots()) {
        if (!m_made[std::size_t(root)].moved)
            m_scene.roots.push_back(m_made[std::size_t(root)].upper);
    }
    for (const int index : m_order) {
        const Made &made = m_made[std::size_t(index)];
        if (made.environment)
            m_scene.environment = made.upper;
        else if (made.moved)
            m_scene.overlays.push_back(made.upper);
    }
}

void qxGltfNodes::findOrder()
{
    const auto place = [this](const std::vector<int> &nodes, int parent) {
        for (std::size_t i = 0; i < nodes.size(); ++i)
            m_made[std::size_t(nodes[i])].place = {parent, int(i)};
    };
    place(m_model.roots(), -1);
    qxWalkTree(m_model.roots(), [&](int index, std::vector<int> &below) {
        m_order.push_back(index);
        findOverlay(index);
        findEnvironment(index);
        const std::vector<int> &children = m_model.typed.nodes[std::size_t(index)].children;
        place(children, index);
        below.insert(below.end(), children.begin(), children.end());
    });
}

/// The topmost nodes of overlays move to the overlay tree, unless their parent would miss them.
void qxGltfNodes::findOverlay(int index)
{
    const qxGltfExtras extras(index, m_model.node(index), m_model.warnings);
    const int parent = m_made[std::size_t(index)].place.parent;
    Made &made = m_made[std::size_t(index)];
    const bool below = parent >= 0 && m_made[std::size_t(parent)].inOverlay;
    made.overlay = extras.flag(qxGltfKeys::overlay, false);
    if (made.overlay && !below && parent >= 0 && qxGltfCountsChildren(m_model.node(parent))) {
        warn(index, qxFileText::tr("a child of a switch cannot be an overlay"));
        made.overlay = false;
    }
    made.moved = made.overlay && !below;
    made.inOverlay = made.overlay || below;
}

/// The first switch that is marked so moves out of the tree, unless its parent would miss it.
void qxGltfNodes::findEnvironment(int index)
{
    const qxJson &json = m_model.node(index);
    const qxGltfExtras extras(index, json, m_model.warnings);
    if (!extras.flag(qxGltfKeys::environment, false))
        return;
    Made &made = m_made[std::size_t(index)];
    const int parent = made.place.parent;
    const auto isOne = [](const Made &each) { return each.environment; };
    if (!extras.has(qxGltfKeys::switchChoice) || made.inOverlay)
        return warn(index, qxFileText::tr("an environment is a switch and no overlay"));
    if (parent >= 0 && qxGltfCountsChildren(m_model.node(parent)))
        return warn(index, qxFileText::tr("a child of a switch cannot be the environment"));
    if (std::any_of(m_made.begin(), m_made.end(), isOne))
        return warn(index, qxFileText::tr("the scene has an environment already"));
    made.environment = true;
    made.moved = true;
}

osg::NodeCorePtr qxGltfNodes::ownCore(int index, qxGltfExtras &extras)
{
    const tinygltf::Node &values = m_model.typed.nodes[std::size_t(index)];
    if (const std::optional<int> choice = extras.integer(qxGltfKeys::switchChoice)) {
        const osg::SwitchPtr core = osg::Switch::create();
        const osg::CPEditor edit(core, osg::Switch::ChoiceFieldMask);
        core->setChoice(*choice);
        return core;
    }
    if (extras.has(qxGltfKeys::transformStates)) {
        const std::vector<osg::Matrix> states = extras.transforms(qxGltfKeys::transformStates);
        const int choice = extras.integer(qxGltfKeys::transformChoice).value_or(0);
        if (!states.empty())
            return qxGltfTransformSwitch(values, states, osg::UInt32(choice));
    }
    return osg::NodeCorePtr();
}

/// The light that node `index` is; null when it is none.
osg::NodeCorePtr qxGltfNodes::lightCore(int index, const qxGltfExtras &extras)
{
    const int light = qxGltfLightOf(m_model.node(index));
    if (light < 0)
        return osg::NodeCorePtr();
    for (const char *key : {qxGltfKeys::switchChoice, qxGltfKeys::transformStates,
                            qxGltfKeys::sharesCoreOf, qxGltfKeys::poses}) {
        if (!extras.has(key))
            continue;
        warn(index, qxFileText::tr("a switch or a node with poses cannot be a light"));
        return osg::NodeCorePtr();
    }
    const osg::UberLightPtr core = qxGltfMakeLight(m_model.document.json, light);
    if (core == osg::NullFC) {
        warn(index, qxFileText::tr("light %1 is of an unknown kind").arg(light));
        return osg::NodeCorePtr();
    }
    const osg::CPEditor edit(core, osg::UberLight::OnFieldMask);
    core->setOn(extras.flag(qxGltfKeys::lightOn, true));
    return core;
}

/// Makes node `index` with all it has but its children and the core that it may share.
void qxGltfNodes::make(int index)
{
    qxGltfExtras extras(index, m_model.node(index), m_model.warnings);
    Made &made = m_made[std::size_t(index)];
    made.node = osg::Node::create();
    made.upper = made.node;
    const osg::NodePtr node = made.node.get();
    describe(index, node);
    m_scene.origin.nodes[node.getFieldContainerId()] = index;

    const osg::NodeCorePtr own = ownCore(index, extras);
    const tinygltf::Node &values = m_model.typed.nodes[std::size_t(index)];
    const osg::NodeCorePtr light = lightCore(index, extras);
    // A core that no node takes is a leak: the transform is made only when it is the node's core.
    const osg::NodeCorePtr special = own != osg::NullFC ? own : light;
    setCore(node, special != osg::NullFC ? special : qxGltfTransform(values));
    if (own != osg::NullFC) {
        m_scene.origin.coreOwners[own.getFieldContainerId()] = index;
        if (osg::getName(node))
            m_switches.emplace(osg::getName(node), index);
    }
    if (extras.has(qxGltfKeys::poses))
        setTransformStates(index, node, extras);
}

void qxGltfNodes::describe(int index, const osg::NodePtr &node)
{
    const qxJson &json = m_model.node(index);
    const qxJson &name = qxGltfMember(json, "name");
    if (name.is_string())
        osg::setName(node, name.get<std::string>());
    if (!isVisible(json))
        hide(node);
}

void qxGltfNodes::setTransformStates(int index, const osg::NodePtr &node, qxGltfExtras &extras)
{
    const std::vector<osg::Matrix> poses = extras.transforms(qxGltfKeys::poses);
    const std::vector<std::string> names = extras.texts(qxGltfKeys::poseNames);
    if (names.size() != poses.size())
        warn(index, qxFileText::tr("%1 poses with %2 names").arg(poses.size()).arg(names.size()));
    std::vector<qxTransformState> states;
    for (std::size_t i = 0; i < std::min(poses.size(), names.size()); ++i)
        states.push_back({names[i], poses[i]});
    if (states.empty())
        return;
    if (node->getCore() == osg::NullFC) {
        const osg::ComponentTransformPtr transform = osg::ComponentTransform::create();
        setCore(node, transform);
    }
    if (!movesNodes(node->getCore()))
        warn(index, qxFileText::tr("a switch cannot be put into poses"));
    const int selected = extras.integer(qxGltfKeys::pose).value_or(-1);
    qxTransformStates::set(node, states, selected);
    if (extras.flag(qxGltfKeys::inPose, false))
        qxTransformStates::select(node, selected);
}

/// Whether node `index` is there and describes a core that others may share.
bool qxGltfNodes::ownsCore(int index) const
{
    if (index < 0 || std::size_t(index) >= m_made.size() || node(index) == osg::NullFC
        || node(index)->getCore() == osg::NullFC)
        return false;
    const auto owner = m_scene.origin.coreOwners.find(node(index)->getCore().getFieldContainerId());
    return owner != m_scene.origin.coreOwners.end() && owner->second == index;
}

/// The core that node `index` takes over from another one; null when it has none to take over.
osg::NodeCorePtr qxGltfNodes::sharedCore(int index)
{
    const qxGltfExtras extras(index, m_model.node(index), m_model.warnings);
    if (!extras.has(qxGltfKeys::sharesCoreOf))
        return osg::NodeCorePtr();
    QString called;
    int owner = -1;
    if (extras.isNumber(qxGltfKeys::sharesCoreOf)) {
        const int stated = extras.integer(qxGltfKeys::sharesCoreOf).value_or(-1);
        called = QString::number(stated);
        owner = ownsCore(stated) ? stated : -1;
    } else if (const std::optional<std::string> name = extras.text(qxGltfKeys::sharesCoreOf)) {
        called = '"' + qxText::fromUtf8(*name) + '"';
        const auto first = m_switches.find(name->c_str());
        owner = first == m_switches.end() ? -1 : first->second;
    } else {
        return osg::NodeCorePtr();
    }
    if (owner < 0)
        warn(index, qxFileText::tr("there is no switch %1 to share").arg(called));
    return owner < 0 ? osg::NodeCorePtr() : node(owner)->getCore();
}

/// Gives clones their core, puts above a node what it has no place for, and groups what has
/// nothing.
void qxGltfNodes::share(int index)
{
    Made &made = m_made[std::size_t(index)];
    const osg::NodePtr node = made.node.get();
    const osg::NodeCorePtr shared = ownsCore(index) ? osg::NodeCorePtr() : sharedCore(index);
    if (shared != osg::NullFC)
        setCore(node, shared);
    else if (node->getCore() == osg::NullFC && !made.overlay)
        setCore(node, osg::Group::create());

    if (made.environment && qxGltfHasTransform(m_model.typed.nodes[std::size_t(index)]))
        warn(index,
             qxFileText::tr("an environment surrounds everything: its transform has no effect"));
    else if (qxGltfNeedsPose(node->getCore()))
        putAbove(index, qxGltfTransform(m_model.typed.nodes[std::size_t(index)]));
    if (made.overlay)
        makeOverlay(index);
    if (made.moved)
        m_scene.origin.moved[made.upper.get().getFieldContainerId()] = made.place;
}

void qxGltfNodes::putAbove(int index, const osg::NodeCorePtr &core)
{
    if (core == osg::NullFC)
        return;
    Made &made = m_made[std::size_t(index)];
    const osg::NodePtr upper = osg::makeNodeFor(core);
    const osg::CPEditor edit(upper, osg::Node::ChildrenFieldMask);
    upper->addChild(made.upper.get());
    made.upper = upper;
    m_scene.origin.uppers[upper.getFieldContainerId()] = index;
}

void qxGltfNodes::makeOverlay(int index)
{
    const qxGltfExtras extras(index, m_model.node(index), m_model.warnings);
    const int layer = extras.integer(qxGltfKeys::overlayLayer).value_or(0);
    const osg::OverlayCorePtr core = osg::OverlayCore::create();
    {
        const osg::CPEditor edit(core, osg::OverlayCore::LayerFieldMask);
        core->setLayer(osg::UInt32(std::max(layer, 0)));
    }
    const osg::NodePtr node = m_made[std::size_t(index)].node.get();
    if (node->getCore() == osg::NullFC)
        setCore(node, core);
    else
        putAbove(index, core);
}

void qxGltfNodes::assemble(int index)
{
    const tinygltf::Node &values = m_model.typed.nodes[std::size_t(index)];
    const osg::NodePtr node = m_made[std::size_t(index)].node.get();
    const osg::CPEditor edit(node, osg::Node::ChildrenFieldMask);
    for (const int child : values.children) {
        if (!m_made[std::size_t(child)].moved)
            node->addChild(m_made[std::size_t(child)].upper.get());
        if (m_made[std::size_t(index)].environment)
            qxGltfSetEnvironmentPicture(m_model, child, m_made[std::size_t(child)].upper.get());
    }
    if (values.mesh >= 0)
        addParts(index, node, values.mesh);
}

void qxGltfNodes::addParts(int index, const osg::NodePtr &node, int mesh) const
{
    const qxGltfExtras extras(index, m_model.node(index), m_model.warnings);
    const std::vector<int> hidden = extras.integers(qxGltfKeys::hiddenParts);
    const qxGltfMeshParts &parts = m_scene.meshes[std::size_t(mesh)];
    const bool isAll = node->getNChildren() == 0 && parts.size() == 1;
    int position = 0;
    for (const qxGltfGeometryRef &part : parts) {
        if (part == osg::NullFC)
            continue;
        const osg::NodePtr child = osg::makeNodeFor(part.get());
        node->addChild(child);
        if (std::find(hidden.begin(), hidden.end(), position++) != hidden.end())
            hidePart(child, isAll);
    }
}

/// No variant reaches a part that has its node's name. Hidden with the node it would stay hidden
/// when that is shown again, and if it is all that the node shows, hiding the node does the same.
void qxGltfNodes::hidePart(const osg::NodePtr &part, bool isAll)
{
    const osg::NodePtr node = part->getParent();
    if (qxNodeUtils::isFoundByName(part))
        hide(part);
    else if (isAll)
        hide(node);
    else if (node->getTravMask() != 0)
        hide(part);
}
