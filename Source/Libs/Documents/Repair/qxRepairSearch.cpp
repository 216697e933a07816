#include "Repair/qxRepairSearch.h"

#include "Repair/qxRepairNames.h"
#include "qxForecast.h"
#include "qxStateRules.h"

#include <algorithm>

using qxRepairNames::overlap;
using qxRepairNames::stepsOf;

namespace {
namespace repairSearch {

/// How many names of children are compared.
constexpr int SomeChildren = 64;
/// How many children of a node may be looked at one by one.
constexpr std::size_t ManyChildren = 256;

QStringList childNames(const qxSceneOutline &scene, int node)
{
    QStringList names;
    for (const int child : scene.nodes[std::size_t(node)].children) {
        if (names.size() == SomeChildren)
            break;
        names += scene.nodes[std::size_t(child)].name;
    }
    return names;
}

/// The names before and behind a node among its siblings; "/" at an end.
QStringList neighboursOf(const qxSceneOutline &scene, int node)
{
    const qxOutlineNode &own = scene.nodes[std::size_t(node)];
    if (own.parent < 0)
        return {QStringLiteral("/"), QStringLiteral("/")};
    const std::vector<int> &all = scene.nodes[std::size_t(own.parent)].children;
    const std::size_t at = std::size_t(own.place);
    return {at > 0 ? scene.nameAt(all[at - 1]) : QStringLiteral("/"),
            at + 1 < all.size() ? scene.nameAt(all[at + 1]) : QStringLiteral("/")};
}

template <class Places>
void addSome(const Places &places, std::size_t most, QSet<int> &found)
{
    if (places.size() > most)
        return;
    for (const int each : places)
        found.insert(each);
}

} // namespace repairSearch
} // namespace

using namespace repairSearch;

qxRepairSearch::qxRepairSearch(const qxDocument &document, const qxSceneOutline &scene,
                               const qxRepairHistory *history)
    : m_document(document), m_scene(scene), m_history(history), m_index(document)
{
    if (history)
        m_oldIndex.emplace(history->document);
    readDocument();
    for (std::size_t i = 0; i < scene.nodes.size(); ++i)
        m_nearNodes.add(scene.nodes[i].name, int(i));
    for (std::size_t i = 0; i < scene.materials.size(); ++i)
        m_nearMaterials.add(scene.materials[i].name, int(i));
}

void qxRepairSearch::readDocument()
{
    for (std::size_t i = 0; i < m_document.variants.size(); ++i) {
        const qxDocumentVariant &each = m_document.variants[i];
        m_bases[each.base].push_back(int(i));
        m_nearVariants.add(each.name, int(i));
        for (const qxDocumentOption &option : each.options)
            m_holders[option.name].push_back(int(i));
    }
    for (const qxDocumentSet &set : m_document.sets) {
        for (const qxDocumentReference &each : set.references) {
            if (m_index.variant(each.kind, each.variant) >= 0)
                continue;
            QSet<QString> &states = m_selected[{each.kind, each.variant}];
            if (std::size_t(states.size()) < Few)
                states.insert(each.state);
        }
        for (const qxDocumentText &each : set.snapshots) {
            if (m_snapshots.contains(each.text))
                continue;
            m_snapshots.insert(each.text, each.more);
            const QStringList all = stepsOf(each.text);
            for (int count = depthOf(all); count > 0; --count) {
                const QString path = QStringList(all.mid(0, count)).join(QLatin1Char('/'));
                m_knownPaths.insert(qxSceneOutline::hashOf(path));
            }
            for (const QString &step : all) {
                QStringList &paths = m_steps[step];
                if (std::size_t(paths.size()) < Few)
                    paths += each.text;
            }
            const Places &nodes = m_scene.onPath(qxSceneOutline::hashOf(each.text));
            Places &users = m_materialUsers[each.more];
            if (!nodes.empty() && users.size() < Few)
                users.push_back(nodes.front());
        }
    }
    qxDocument copy = m_document;
    qxDocumentPlaces::visit(copy, [this](const qxDocumentPlace &place, QString &name) {
        m_named.insert(qxBreak::wordOf(place.named) + QLatin1Char(' ') + name);
    });
    for (std::size_t i = 1; i < m_scene.nodes.size() && m_unnamed.size() <= AFew; ++i) {
        const qxOutlineNode &node = m_scene.nodes[i];
        const bool isNamed = m_named.contains(QLatin1String("node ") + node.name)
            || m_named.contains(QLatin1String("state ") + node.name)
            || m_knownPaths.contains(node.path);
        if (!isNamed && !node.isOverlay && !m_scene.named(node.name).empty())
            m_unnamed.insert(int(i));
    }
    if (m_unnamed.size() > AFew)
        m_unnamed.clear();
    for (const int light : m_scene.lights()) {
        const Places driving = m_bases.value(m_scene.nameAt(light));
        const bool isDriven = std::any_of(driving.begin(), driving.end(), [this](int at) {
            return m_document.variants[std::size_t(at)].kind == &qxVariantKinds::light;
        });
        if (!isDriven && std::size_t(m_idleLights.size()) < Many)
            m_idleLights.insert(light);
    }
}

void qxRepairSearch::complete(qxBreak &broken) const
{
    switch (broken.named) {
    case qxNamed::Node:
        broken.candidates = nodes(broken);
        break;
    case qxNamed::Overlay:
        broken.candidates = overlays(broken);
        break;
    case qxNamed::Path:
        broken.candidates = paths(broken);
        break;
    case qxNamed::Material:
        broken.candidates = materials(broken);
        break;
    case qxNamed::State:
        broken.candidates = states(broken);
        break;
    case qxNamed::Variant:
        broken.candidates = variants(broken);
        break;
    case qxNamed::Viewpoint:
        broken.candidates = viewpoints(broken);
        break;
    case qxNamed::Animation:
        broken.candidates = clips(broken);
        break;
    case qxNamed::Group:
    case qxNamed::Set:
        break;
    }
    qxRepairNames::sort(broken.candidates, broken.name);
}

/// What variants and snapshots say of a node of that name.
qxRepairSearch::Told qxRepairSearch::toldOf(const QString &name) const
{
    Told told;
    for (const int at : m_bases.value(name)) {
        const qxDocumentVariant &variant = m_document.variants[std::size_t(at)];
        for (const qxDocumentOption &option : variant.options) {
            const bool isName = !option.name.startsWith(QLatin1Char('!'));
            if (qxDocumentPlaces::stateOf(*variant.kind, option.name))
                told.children += option.name;
            else if (isName && variant.kind == &qxVariantKinds::transform)
                told.states += option.name;
        }
    }
    for (const int at : m_holders.value(name)) {
        const qxDocumentVariant &variant = m_document.variants[std::size_t(at)];
        if (!qxDocumentPlaces::stateOf(*variant.kind, name))
            continue;
        told.holders += variant.base;
        told.place = qxRepairNames::placeOf(variant, name);
    }
    for (const QString &path : m_steps.value(name)) {
        const QStringList steps = stepsOf(path);
        const int at = steps.indexOf(name);
        if (at > 0)
            told.parents += QStringList(steps.mid(0, at)).join(QLatin1Char('/'));
        if (at + 1 < steps.size())
            told.children += steps[at + 1];
    }
    told.children.removeDuplicates();
    told.parents.removeDuplicates();
    return told;
}

/// Whether the history has a node with the same path, which then is no other one now.
bool qxRepairSearch::isOldNode(int node) const
{
    const quint64 path = m_scene.nodes[std::size_t(node)].path;
    return m_history && m_history->scene.onPath(path).size() >= m_scene.onPath(path).size();
}

/// The node with the path that the old one had, or what else it has clearly become; -1 for none.
int qxRepairSearch::heirOf(int old) const
{
    const auto isKnown = [this](int node) { return node <= 0 || m_heirs.contains(node); };
    std::vector<int> open;
    for (int at = old; !isKnown(at); at = m_history->scene.nodes[std::size_t(at)].parent)
        open.push_back(at);
    for (auto at = open.rbegin(); at != open.rend(); ++at) // what is above comes first
        m_heirs.insert(*at, findHeir(*at));
    return old <= 0 ? old : m_heirs.value(old);
}

int qxRepairSearch::findHeir(int old) const
{
    const Places &nodes = m_scene.onPath(m_history->scene.nodes[std::size_t(old)].path);
    if (!nodes.empty())
        return nodes.front();
    Candidates candidates;
    for (const int node : nodesLikeOld(old)) {
        qxRepairEvidence evidence;
        weighOldNode(old, node, evidence);
        candidates.push_back({QString::number(node), evidence.score(0), evidence.reason()});
    }
    qxBreak lost;
    lost.candidates = std::move(candidates);
    qxRepairNames::sort(lost.candidates, QString());
    return lost.clear() ? lost.clear()->name.toInt() : -1;
}

/// Those of so many children that the history does not have, or those around the place.
void qxRepairSearch::addNewChildren(const Places &parents, int place, QSet<int> &found) const
{
    for (std::size_t i = 0; i < std::min(parents.size(), Few); ++i) {
        const int parent = parents[i];
        const std::vector<int> &children = m_scene.nodes[std::size_t(parent)].children;
        auto known = m_newChildren.find(parent);
        if (known == m_newChildren.end()) {
            Places fresh;
            for (const int child : children) {
                if (!isOldNode(child))
                    fresh.push_back(child);
            }
            known = m_newChildren.insert(parent, fresh);
        }
        if (known->size() <= ManyChildren)
            addSome(*known, ManyChildren, found);
        for (int at = std::max(0, place - 2); place >= 0 && at <= place + 2; ++at) {
            if (std::size_t(at) < children.size())
                found.insert(children[std::size_t(at)]);
        }
    }
}

QSet<int> qxRepairSearch::nodesLikeOld(int old) const
{
    const qxSceneOutline &before = m_history->scene;
    const qxOutlineNode &node = before.nodes[std::size_t(old)];
    QSet<int> found;
    if (node.hasShape)
        addSome(m_scene.withTree(node.tree), Many, found);
    if (node.parent >= 0) {
        const int heir = heirOf(node.parent);
        if (heir >= 0)
            addNewChildren({heir}, node.place, found);
        addNewChildren(m_scene.named(before.nameAt(node.parent)), node.place, found);
    }
    int asked = 0;
    for (const QString &child : childNames(before, old)) {
        const Places &children = m_scene.named(child);
        if (children.size() > Few || ++asked > int(Few))
            continue;
        for (const int each : children)
            found.insert(m_scene.nodes[std::size_t(each)].parent);
    }
    for (const QString &state : node.states)
        addSome(m_scene.withState(state), Many, found);
    addSome(m_scene.named(node.name), Many, found);
    for (const int each : m_nearNodes.near(node.name))
        found.insert(each);
    found.remove(-1);
    return found;
}

QSet<int> qxRepairSearch::nodesLike(const Told &told, const QString &name) const
{
    QSet<int> found;
    for (const QString &path : told.parents)
        addNewChildren(m_scene.onPath(qxSceneOutline::hashOf(path)), told.place, found);
    for (const QString &holder : told.holders)
        addNewChildren(m_scene.named(holder), told.place, found);
    for (const QString &child : told.children) {
        const Places &children = m_scene.named(child);
        for (std::size_t i = 0; i < std::min(children.size(), Few); ++i)
            found.insert(m_scene.nodes[std::size_t(children[i])].parent);
    }
    for (const QString &state : told.states)
        addSome(m_scene.withState(state), Many, found);
    found += m_unnamed;
    for (const int each : m_nearNodes.near(name))
        found.insert(each);
    found.remove(-1);
    return found;
}

QString qxRepairSearch::materialOf(int node) const
{
    const int at = m_scene.nodes[std::size_t(node)].material;
    return at < 0 ? QString() : m_scene.materials[std::size_t(at)].name;
}

/// Compares a node with one that was.
void qxRepairSearch::weighOldNode(int old, int node, qxRepairEvidence &evidence) const
{
    const qxSceneOutline &before = m_history->scene;
    const qxOutlineNode &was = before.nodes[std::size_t(old)];
    const qxOutlineNode &is = m_scene.nodes[std::size_t(node)];
    if (was.hasShape)
        evidence.add(0.25, was.tree == is.tree, "same shape");
    if (!was.children.empty())
        evidence.add(0.2, overlap(childNames(before, old), childNames(m_scene, node)),
                     "same children");
    const QString parent = before.nameAt(was.parent);
    const bool isSameParent = is.parent >= 0 && was.parent >= 0 && heirOf(was.parent) == is.parent;
    const bool isLikeParent = parent == m_scene.nameAt(is.parent);
    evidence.add(0.4, isSameParent ? 1 : isLikeParent ? 0.5 : 0, "same parent");
    const bool isSamePlace = isSameParent && was.place == is.place;
    const bool hasSameNeighbours = neighboursOf(before, old) == neighboursOf(m_scene, node);
    evidence.add(0.1, isSamePlace || hasSameNeighbours, "same place among its neighbours");
    evidence.add(0.1, was.sort == is.sort, "same sort");
    if (was.pose != 0)
        evidence.add(0.1, was.pose == is.pose, "same transform");
    if (was.material >= 0) {
        const qxOutlineMaterial &material = before.materials[std::size_t(was.material)];
        const bool isSame = is.material >= 0
            && (materialOf(node) == material.name
                || m_scene.materials[std::size_t(is.material)].look == material.look);
        evidence.add(0.1, isSame, "same material");
    }
    if (!was.states.isEmpty())
        evidence.add(0.15, overlap(was.states, is.states), "same transform states");
    const double likeness = qxNearNames::likeness(was.name, is.name);
    evidence.addBonus(0.15, likeness > 0.5 ? likeness : 0,
                      was.name == is.name ? "same name" : "near spelling");
    if (isOldNode(node))
        evidence.doubt(0.3);
}

/// Compares a node with what the document tells of it.
void qxRepairSearch::weighToldNode(const Told &told, const QString &name, int node,
                                   qxRepairEvidence &evidence) const
{
    const qxOutlineNode &is = m_scene.nodes[std::size_t(node)];
    if (!told.children.isEmpty())
        evidence.add(0.35, qxRepairNames::part(told.children, childNames(m_scene, node)),
                     "same children");
    if (!told.states.isEmpty())
        evidence.add(0.35, qxRepairNames::part(told.states, is.states), "same transform states");
    const bool isBelow =
        std::any_of(told.parents.begin(), told.parents.end(), [&](const QString &path) {
            return is.parent >= 0
                && m_scene.nodes[std::size_t(is.parent)].path == qxSceneOutline::hashOf(path);
        });
    if (!told.parents.isEmpty())
        evidence.add(0.2, isBelow, "same parent");
    if (!told.holders.isEmpty()) {
        const bool isHeld = told.holders.contains(m_scene.nameAt(is.parent));
        evidence.add(0.2, isHeld, "same parent");
        evidence.add(0.1, isHeld && is.place == told.place, "same place among its neighbours");
    }
    evidence.addSpelling(0.3, qxNearNames::likeness(name, is.name));
    if (m_unnamed.contains(node))
        evidence.addBonus(0.3, 1.0 / m_unnamed.size(), "one of few that nothing names");
    if (qxRepairNames::areOfSeries(name, is.name))
        evidence.doubt(qxRepairNames::OfSeries);
    if (told.children.isEmpty() && told.states.isEmpty() && told.parents.isEmpty()
        && told.holders.isEmpty())
        evidence.doubt(OnlySpelling);
    if (m_named.contains(QLatin1String("node ") + is.name) || m_knownPaths.contains(is.path))
        evidence.doubt(0.4);
}

/// Whether a variant can drive the node.
bool qxRepairSearch::fits(const qxBreak &broken, int node) const
{
    if (!broken.kind)
        return true;
    const qxVariantKind &kind = *broken.kind;
    const std::vector<qxSceneObject> objects =
        kind.rule.objects(m_scene.nodes[std::size_t(node)].name);
    qxStateSurvey survey;
    return std::any_of(objects.begin(), objects.end(), [&](const qxSceneObject &each) {
        return !survey.ask(kind.rule, each, QString()).front().isMisfit();
    });
}

qxRepairSearch::Candidates qxRepairSearch::nodes(const qxBreak &broken) const
{
    Candidates candidates;
    const Places old = m_history ? m_history->scene.named(broken.name) : Places();
    const Told told = toldOf(broken.name);
    QSet<int> found = old.empty() ? nodesLike(told, broken.name) : nodesLikeOld(old.front());
    const bool isLight = broken.kind == &qxVariantKinds::light && old.empty();
    if (isLight)
        found += m_idleLights;
    for (const int node : found) {
        const QString &name = m_scene.nodes[std::size_t(node)].name;
        if (m_scene.named(name).empty() || name == broken.name || !fits(broken, node))
            continue;
        qxRepairEvidence evidence;
        if (old.empty())
            weighToldNode(told, broken.name, node, evidence);
        else
            weighOldNode(old.front(), node, evidence);
        if (isLight && m_idleLights.contains(node)) {
            QSet<QString> names; // lights of one name are one
            for (const int each : m_idleLights)
                names.insert(m_scene.nameAt(each));
            evidence.addBonus(0.3, 1.0 / names.size(), "a light that no variant drives");
        }
        candidates.push_back({name, evidence.score(old.empty() ? Prior : 0), evidence.reason()});
    }
    return candidates;
}

qxRepairSearch::Candidates qxRepairSearch::overlays(const qxBreak &broken) const
{
    Candidates candidates;
    const Told told = toldOf(broken.name);
    const Places old = m_history ? m_history->scene.overlaysNamed(broken.name) : Places();
    for (std::size_t i = m_scene.nodes.size(); i-- > 0 && m_scene.nodes[i].isOverlay;) {
        const QString &name = m_scene.nodes[i].name;
        if (m_scene.overlaysNamed(name).empty())
            continue;
        qxRepairEvidence evidence;
        if (old.empty())
            weighToldNode(told, broken.name, int(i), evidence);
        else
            weighOldNode(old.front(), int(i), evidence);
        if (m_named.contains(QLatin1String("overlay ") + name)
            || (m_history && !m_history->scene.overlaysNamed(name).empty()))
            evidence.doubt(0.3);
        candidates.push_back({name, evidence.score(old.empty() ? Prior : 0), evidence.reason()});
    }
    return candidates;
}
