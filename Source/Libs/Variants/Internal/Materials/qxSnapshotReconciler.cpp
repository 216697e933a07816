#include "Internal/Materials/qxSnapshotReconciler.h"

#include "Internal/Materials/qxSwitchMaterials.h"
#include "Internal/Registry/qxNotify.h"
#include "Internal/Registry/qxSceneVariants.h"
#include "Internal/Scene/qxPathLookup.h"
#include "Internal/Scene/qxSceneEdits.h"
#include "qxMaterialVariant.h"
#include "qxVariantLists.h"
#include "qxVariantSet.h"

#include "qxMaterialParts.h"
#include "qxNames.h"
#include "qxNodeWalk.h"

#include <OpenSG/OSGMaterialPool.h>

#include <algorithm>

namespace {

using qxNames::nameOf;
using qxSwitchMaterials::chosen;
using qxSwitchMaterials::switchOf;
using qxSwitchMaterials::usersOf;

/// Sets record materials by name, so those that they see get one: the material and, when it is a
/// switch material, what it shows.
void giveNames(osg::MaterialPtr material, std::set<osg::MaterialPtr> &named)
{
    while (material != osg::NullFC && named.insert(material).second) {
        const osg::SwitchMaterialPtr choices = switchOf(material);
        const bool isSwitch = choices != osg::NullFC;
        if (nameOf(material).isEmpty())
            qxMaterials::setName(material, isSwitch ? "Material Switch" : "Material", false);
        material = isSwitch ? chosen(choices) : osg::MaterialPtr();
    }
}

/// The state that the set chooses in that material variant; empty for none.
QString stateIn(qxVariantSet *set, const QString &variant)
{
    const qxVariantState *state = set->findMaterialVariant(variant);
    return state ? state->state : QString();
}

void addOnce(std::vector<osg::MaterialPtr> &materials, const osg::MaterialPtr &material)
{
    if (material != osg::NullFC
        && std::find(materials.begin(), materials.end(), material) == materials.end())
        materials.push_back(material);
}

} // namespace

qxSnapshotReconciler::qxSnapshotReconciler(const qxVariantSet *set) : m_index(set) {}

qxSnapshotReconciler::~qxSnapshotReconciler()
{
    if (m_changed)
        qxNotify::sceneMaterialsChanged();
}

void qxSnapshotReconciler::handle(const osg::NodePtr &node, const QString &path,
                                  const osg::MaterialPtr &material, const Scope &scope)
{
    if (material == osg::NullFC || isClone(node) || scope.paths.contains(path))
        return;
    scope.paths.insert(path);
    const Needs needs = needsAt(path, material);
    if (scope.capture || !needs.empty())
        giveNames(material, scope.materials);
    if (!needs.empty())
        reconcile(node, path, material, needs, scope);
}

bool qxSnapshotReconciler::isClone(const osg::NodePtr &node)
{
    if (node->getParent() == osg::NullFC)
        return false;
    const osg::UInt32 core = node->getCore().getFieldContainerId();
    osg::NodeRefPtr &first = m_firstOfCore[core];
    if (first == osg::NullFC || first->getParent() == osg::NullFC)
        first = node;
    return first.get() != node && qxNodeUtils::isCloneOf(node, first.get());
}

/// What the other sets want at that path; empty when they all want this material. What they
/// recorded may be gone, or chosen by nothing: that is no need.
qxSnapshotReconciler::Needs qxSnapshotReconciler::needsAt(const QString &path,
                                                          const osg::MaterialPtr &material)
{
    Needs needs;
    bool differ = false;
    const QString own = nameOf(material);
    for (auto entry = m_index.first(path); entry; entry = m_index.next(*entry))
        differ = differ || entry->material != own;
    if (!differ)
        return needs;
    differ = false;
    for (auto entry = m_index.first(path); entry; entry = m_index.next(*entry)) {
        const bool isOwn = entry->material == own;
        const osg::MaterialPtr recorded = isOwn ? material : qxNames::findMaterial(entry->material);
        if (recorded == osg::NullFC)
            continue;
        Need need{entry->set, switchOf(recorded), recorded, entry->material};
        if (need.from != osg::NullFC) {
            need.state = stateIn(entry->set, entry->material);
            need.leaf = heldBy(need.from, need.state);
        }
        if (need.state.isEmpty())
            continue;
        differ = differ || !isOwn;
        needs.push_back(need);
    }
    return differ ? needs : Needs();
}

void qxSnapshotReconciler::reconcile(const osg::NodePtr &node, const QString &path,
                                     const osg::MaterialPtr &material, const Needs &needs,
                                     const Scope &scope)
{
    const osg::SwitchMaterialPtr own = switchOf(material);
    const osg::SwitchMaterialPtr target = own != osg::NullFC ? fromSwitch(node, own, needs, scope)
                                                             : fromPlain(material, needs, scope);
    if (target != own)
        qxSceneEdits::setMaterial(node, target);
    std::vector<qxVariantSet *> sets;
    for (const Need &need : needs)
        sets.push_back(need.set);
    m_index.rewrite(path, sets, nameOf(target));
    if (qxMaterialVariant *variant = qxVariantLists::_materialVariants.find(nameOf(target)))
        scope.set->add(variant, nameOf(chosen(target)));
    m_changed = true;
}

/// What the sets would have to choose in this switch material, as far as they do not yet.
qxSnapshotReconciler::States
qxSnapshotReconciler::missingStates(const osg::SwitchMaterialPtr &choices, const Needs &needs)
{
    States states;
    const QString name = nameOf(choices);
    for (const Need &need : needs) {
        if (need.from != choices && stateIn(need.set, name) != need.state)
            states.emplace_back(need.set, need.state);
    }
    return states;
}

/// The switch material for a node that has one: its own one, or a duplicate when other nodes have
/// it, too, and would change along in one of the sets.
osg::SwitchMaterialPtr qxSnapshotReconciler::fromSwitch(const osg::NodePtr &node,
                                                        const osg::SwitchMaterialPtr &own,
                                                        const Needs &needs, const Scope &scope)
{
    const States states = missingStates(own, needs);
    osg::SwitchMaterialRefPtr &settled = m_settled[Case(own, states)];
    if (settled != osg::NullFC && !states.empty())
        return settled.get();
    settled = states.empty() || mayTake(node, own, states) ? own : duplicate(own, scope);
    extend(settled.get(), osg::NullFC, needs, scope);
    chooseIn(settled.get(), states);
    return settled.get();
}

/// The switch material for a node with an ordinary one: a switch material that a set saw there,
/// when it is free, else a new one.
osg::SwitchMaterialPtr qxSnapshotReconciler::fromPlain(const osg::MaterialPtr &own,
                                                       const Needs &needs, const Scope &scope)
{
    States states;
    for (const Need &need : needs)
        states.emplace_back(need.set, need.state);
    osg::SwitchMaterialRefPtr &settled = m_settled[Case(own, states)];
    if (settled != osg::NullFC)
        return settled.get();
    const auto usable = std::find_if(needs.begin(), needs.end(), [&](const Need &need) {
        return need.from != osg::NullFC && mayReuse(need.from, own, needs);
    });
    settled = usable == needs.end() ? build(own, needs) : usable->from;
    extend(settled.get(), own, needs, scope);
    if (chosen(settled.get()) != own)
        qxSwitchMaterials::choose(settled.get(), own);
    chooseIn(settled.get(), states);
    return settled.get();
}

/// Whether the sets can choose these states in the node's own switch material: it must be new to
/// them, and all other nodes that have it, wherever they are, must need just the same.
bool qxSnapshotReconciler::mayTake(const osg::NodePtr &node, const osg::SwitchMaterialPtr &own,
                                   const States &states)
{
    const QString name = nameOf(own);
    const auto chooses = [&name](const States::value_type &state) {
        return !stateIn(state.first, name).isEmpty();
    };
    if (!qxMaterials::isEditable(own) || isContained(own)
        || std::any_of(states.begin(), states.end(), chooses))
        return false;
    const auto needsElse = [&](const osg::NodePtr &user) {
        return missingStates(own, needsAt(qxPathLookup::getNodePath(user), own)) != states;
    };
    const osg::NodePtr last = lastUser(own);
    if (last != osg::NullFC && last->getCore() != node->getCore() && needsElse(last))
        return false;
    QSet<osg::UInt32> cores = {node->getCore().getFieldContainerId()};
    for (const qxNodePtr &user : usersOf(own)) {
        const osg::UInt32 core = user->getCore().getFieldContainerId();
        if (cores.contains(core))
            continue;
        cores.insert(core);
        if (needsElse(user))
            return false;
    }
    return true;
}

/// A node of the scene with that material, the last one; null when there is none. To ask for all
/// costs as much as there are, so what was found out counts as long as it is true.
osg::NodePtr qxSnapshotReconciler::lastUser(const osg::MaterialPtr &material)
{
    osg::NodeRefPtr &known = m_lastUsers[material.getFieldContainerId()];
    if (known == osg::NullFC || known->getParent() == osg::NullFC
        || qxNodeUtils::getMaterial(known.get()) != material) {
        const std::vector<qxNodePtr> users = usersOf(material);
        known = users.empty() ? osg::NodePtr() : osg::NodePtr(users.back());
    }
    return known.get();
}

/// Whether a switch material that a set saw can show `shown` again on a node: nobody has it by now,
/// or those who have it show just that, and no set wants anything else of it.
bool qxSnapshotReconciler::mayReuse(const osg::SwitchMaterialPtr &old,
                                    const osg::MaterialPtr &shown, const Needs &needs)
{
    if (!qxMaterials::isEditable(old) || isContained(old))
        return false;
    const QString name = nameOf(old);
    bool isNew = false;
    for (const Need &need : needs) {
        const QString state = stateIn(need.set, name);
        if (!state.isEmpty() && state != need.state)
            return false;
        isNew = isNew || state.isEmpty();
    }
    return (chosen(old) == shown && !isNew) || lastUser(old) == osg::NullFC;
}

bool qxSnapshotReconciler::isContained(const osg::MaterialPtr &material)
{
    if (!m_isContainedRead) {
        std::vector<osg::MaterialPtr> pool;
        qxScenegraph::getMaterialPool()->get(pool);
        for (const osg::MaterialPtr &each : pool)
            addContents(each);
        m_isContainedRead = true;
    }
    return m_contained.contains(material.getFieldContainerId());
}

void qxSnapshotReconciler::addContents(const osg::MaterialPtr &material)
{
    const osg::UInt32 id = material.getFieldContainerId();
    m_held.erase(m_held.lower_bound({id, QString()}), m_held.lower_bound({id + 1, QString()}));
    for (const osg::MaterialPtr &part : qxMaterialParts::of(material)) {
        if (m_contained.contains(part.getFieldContainerId()))
            continue;
        m_contained.insert(part.getFieldContainerId());
        addContents(part);
    }
}

osg::SwitchMaterialPtr qxSnapshotReconciler::duplicate(const osg::SwitchMaterialPtr &original,
                                                       const Scope &scope)
{
    const QString name = nameOf(original);
    const osg::SwitchMaterialPtr made =
        qxSwitchMaterials::make(name, qxMaterialParts::of(original));
    qxSceneEdits::setChoice(made, original->getChoice());
    addContents(made);
    qxSceneVariants::ofMaterial(made, scope.notify);
    // A copy, because the duplicate gets its list beside it.
    const std::vector<qxVariantSet *> referring = m_index.referring(name);
    for (qxVariantSet *set : referring)
        m_index.choose(set, nameOf(made), stateIn(set, name));
    return made;
}

osg::SwitchMaterialPtr qxSnapshotReconciler::build(const osg::MaterialPtr &own, const Needs &needs)
{
    std::vector<osg::MaterialPtr> materials;
    QString wanted;
    for (const Need &need : needs) {
        if (need.from == osg::NullFC || !wanted.isEmpty())
            continue;
        wanted = nameOf(need.from);
        materials = qxMaterialParts::of(need.from);
    }
    for (const Need &need : needs)
        addOnce(materials, need.leaf);
    addOnce(materials, own);
    if (wanted.isEmpty())
        wanted = nameOf(materials.front()) + QLatin1String(" Switch");
    const osg::SwitchMaterialPtr made = qxSwitchMaterials::make(wanted, materials);
    addContents(made);
    return made;
}

/// Adds what the sets mean, and `own` unless it is null, to the switch material and its variant.
void qxSnapshotReconciler::extend(const osg::SwitchMaterialPtr &target, const osg::MaterialPtr &own,
                                  const Needs &needs, const Scope &scope)
{
    std::vector<osg::MaterialPtr> missing;
    for (const Need &need : needs) {
        if (heldBy(target, need.state) == osg::NullFC)
            addOnce(missing, need.leaf);
    }
    if (own != osg::NullFC && !target->hasMaterial(own))
        addOnce(missing, own);
    qxMaterialVariant *const variant = qxSceneVariants::ofMaterial(target, scope.notify);
    for (const osg::MaterialPtr &each : missing) {
        if (variant && qxVariantLists::_materialVariants.contains(variant))
            variant->add(each, QString());
        if (!target->hasMaterial(each)) // another one of the name was found, or no variant is left
            qxSceneEdits::addMaterial(target, each);
    }
    if (!missing.empty())
        addContents(target);
}

/// The first material of that name that it holds, or null. Many nodes ask for the same, and a
/// switch material may hold many.
osg::MaterialPtr qxSnapshotReconciler::heldBy(const osg::SwitchMaterialPtr &choices,
                                              const QString &name)
{
    const std::pair<osg::UInt32, QString> asked(choices.getFieldContainerId(), name);
    const auto known = m_held.find(asked);
    if (known != m_held.end())
        return known->second.get();
    const osg::MaterialRefPtr held(qxSwitchMaterials::heldBy(choices, name));
    m_held.emplace(asked, held);
    return held.get();
}

void qxSnapshotReconciler::chooseIn(const osg::SwitchMaterialPtr &target, const States &states)
{
    for (const States::value_type &state : states)
        m_index.choose(state.first, nameOf(target), state.second);
}
