#include "Files/qxGltfNodes.h"

#include "Files/qxGltfExtras.h"
#include "Files/qxGltfModel.h"
#include "Files/qxGltfTransforms.h"
#include "Scene/qxTransformStates.h"

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

void qxGltfNodes::warn(int index, const QString &text)
{
    m_model.warnings << qxGltfCalled("node", index, m_model.node(index)) + ": " + text;
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
    for (const int root : m_model.roots())
        m_scene.roots.push_back(m_made[std::size_t(root)].upper);
}

void qxGltfNodes::findOrder()
{
    const std::vector<int> roots = m_model.roots();
    std::vector<int> open(roots.rbegin(), roots.rend());
    while (!open.empty()) {
        const int index = open.back();
        open.pop_back();
        m_order.push_back(index);
        const std::vector<int> &children = m_model.typed.nodes[std::size_t(index)].children;
        open.insert(open.end(), children.rbegin(), children.rend());
    }
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
    setCore(node, own != osg::NullFC ? own : qxGltfTransform(values));
    if (own != osg::NullFC) {
        m_scene.origin.coreOwners[own.getFieldContainerId()] = index;
        if (osg::getName(node))
            m_switches.emplace(values.name, index);
    }
    if (extras.has(qxGltfKeys::poses))
        setPoses(index, node, extras);
}

void qxGltfNodes::describe(int index, const osg::NodePtr &node)
{
    const qxJson &json = m_model.node(index);
    const qxJson &name = qxGltfMember(json, "name");
    if (name.is_string())
        osg::setName(node, name.get<std::string>());
    if (isVisible(json))
        return;
    const osg::CPEditor edit(node, osg::Node::TravMaskFieldMask);
    node->setTravMask(0);
}

void qxGltfNodes::setPoses(int index, const osg::NodePtr &node, qxGltfExtras &extras)
{
    const std::vector<osg::Matrix> poses = extras.transforms(qxGltfKeys::poses);
    const std::vector<std::string> names = extras.texts(qxGltfKeys::poseNames);
    if (names.size() != poses.size())
        warn(index, QString("%1 poses with %2 names").arg(poses.size()).arg(names.size()));
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
        warn(index, "a switch cannot be put into poses");
    qxTransformStates::set(node, states, extras.integer(qxGltfKeys::pose).value_or(-1));
}

/// The core that node `index` takes over from another one; null when it has none to take over.
osg::NodeCorePtr qxGltfNodes::sharedCore(int index)
{
    const qxGltfExtras extras(index, m_model.node(index), m_model.warnings);
    const std::optional<std::string> name = extras.text(qxGltfKeys::sharesCoreOf);
    if (!name)
        return osg::NodeCorePtr();
    const auto owner = m_switches.find(*name);
    if (owner == m_switches.end()) {
        warn(index,
             QString("there is no switch \"%1\" to share").arg(QString::fromStdString(*name)));
        return osg::NodeCorePtr();
    }
    return node(owner->second)->getCore();
}

/// Gives clones their core, puts the transform of a switch above it, and groups what has nothing.
void qxGltfNodes::share(int index)
{
    Made &made = m_made[std::size_t(index)];
    const osg::NodePtr node = made.node.get();
    const bool owner = node->getCore() != osg::NullFC
        && m_scene.origin.coreOwners.count(node->getCore().getFieldContainerId()) > 0;
    const osg::NodeCorePtr shared = owner ? osg::NodeCorePtr() : sharedCore(index);
    if (shared != osg::NullFC)
        setCore(node, shared);
    else if (node->getCore() == osg::NullFC)
        setCore(node, osg::Group::create());

    if (movesNodes(node->getCore()) || !(owner || shared != osg::NullFC))
        return;
    const osg::NodeCorePtr transform = qxGltfTransform(m_model.typed.nodes[std::size_t(index)]);
    if (transform == osg::NullFC)
        return;
    made.upper = osg::makeNodeFor(transform);
    m_scene.origin.uppers[made.upper.get().getFieldContainerId()] = index;
}

void qxGltfNodes::assemble(int index)
{
    const tinygltf::Node &values = m_model.typed.nodes[std::size_t(index)];
    const Made &made = m_made[std::size_t(index)];
    const osg::NodePtr node = made.node.get();
    const osg::CPEditor edit(node, osg::Node::ChildrenFieldMask);
    for (const int child : values.children)
        node->addChild(m_made[std::size_t(child)].upper.get());
    if (values.mesh >= 0)
        addParts(index, node, values.mesh);
    if (made.upper.get() == node)
        return;
    const osg::CPEditor editUpper(made.upper.get(), osg::Node::ChildrenFieldMask);
    made.upper->addChild(node);
}

void qxGltfNodes::addParts(int index, const osg::NodePtr &node, int mesh) const
{
    const qxGltfExtras extras(index, m_model.node(index), m_model.warnings);
    const std::vector<int> hidden = extras.integers(qxGltfKeys::hiddenParts);
    int position = 0;
    for (const qxGltfGeometryRef &part : m_scene.meshes[std::size_t(mesh)]) {
        if (part == osg::NullFC)
            continue;
        const osg::NodePtr child = osg::makeNodeFor(part.get());
        if (std::find(hidden.begin(), hidden.end(), position++) != hidden.end()) {
            const osg::CPEditor edit(child, osg::Node::TravMaskFieldMask);
            child->setTravMask(0);
        }
        node->addChild(child);
    }
}
