#include "Repair/qxRepairNames.h"
#include "Repair/qxRepairSearch.h"
#include "qxNodeUtils.h"
#include "qxStateRules.h"
#include "qxText.h"

#include <OpenSG/OSGSwitch.h>

#include <algorithm>

using qxRepairNames::optionsOf;
using qxRepairNames::overlap;
using qxRepairNames::part;

namespace {
namespace repairOthers {

QStringList namesOf(const qxSceneOutline &scene, const std::vector<int> &materials)
{
    QStringList names;
    for (const int each : materials)
        names += scene.materials[std::size_t(each)].name;
    return names;
}

/// How the name is spelt, where nothing better is known.
void weighSpelling(const QString &was, const QString &is, qxRepairEvidence &evidence)
{
    evidence.addSpelling(0.3, qxNearNames::likeness(was, is));
    if (qxRepairNames::areOfSeries(was, is))
        evidence.doubt(qxRepairNames::OfSeries);
}

/// The same where it can only speak for a name.
void addSpelling(const QString &was, const QString &is, qxRepairEvidence &evidence)
{
    const double likeness = qxNearNames::likeness(was, is);
    evidence.addBonus(0.15, likeness > 0.5 ? likeness : 0, "near spelling");
}

/// Whether the names before and behind two places of lists are the same.
bool haveSameNeighbours(const QStringList &one, int at, const QStringList &other, int place)
{
    const auto nameAt = [](const QStringList &names, int i) {
        return i < 0 || i >= names.size() ? QStringLiteral("/") : names[i];
    };
    return nameAt(one, at - 1) == nameAt(other, place - 1)
        && nameAt(one, at + 1) == nameAt(other, place + 1);
}

/// What a variant can choose in the scene, each once.
QStringList choicesOf(const qxDocumentVariant &variant)
{
    const bool isPose = variant.kind == &qxVariantKinds::transform;
    QStringList names;
    QSet<QString> known;
    for (const qxSceneObject &each : variant.kind->rule.objects(variant.base)) {
        const bool isPlain = each.node != osg::NullFC
            && (isPose ? !qxNodeUtils::hasTransformVariants(each.node)
                       : osg::SwitchPtr::dcast(each.node->getCore()) == osg::NullFC);
        if (isPlain || (each.node == osg::NullFC && each.switchMaterial == osg::NullFC))
            continue;
        const qxAspect aspect = isPose ? qxAspect::Pose : qxAspect::Choice;
        const int count = qxStateRules::countOf(each, aspect);
        for (int place = 0; place < count; ++place) {
            const QString name = qxText::fromUtf8(qxStateRules::nameAt(each, aspect, place));
            if (!known.contains(name))
                names += name;
            known.insert(name);
        }
        break; // clones have the same
    }
    return names;
}

} // namespace repairOthers
} // namespace

using namespace repairOthers;

void qxRepairSearch::weighOldMaterial(int old, int material, qxRepairEvidence &evidence) const
{
    const qxSceneOutline &before = m_history->scene;
    const qxOutlineMaterial &was = before.materials[std::size_t(old)];
    const qxOutlineMaterial &is = m_scene.materials[std::size_t(material)];
    evidence.add(0.2, was.look == is.look, "same look");
    if (!was.contents.empty())
        evidence.add(0.35, overlap(namesOf(before, was.contents), namesOf(m_scene, is.contents)),
                     "same materials");
    if (!was.holders.empty())
        evidence.add(0.25, overlap(namesOf(before, was.holders), namesOf(m_scene, is.holders)),
                     "held by the same material");
    int there = 0;
    int same = 0;
    for (const int user : was.users) {
        const Places &nodes = m_scene.onPath(before.nodes[std::size_t(user)].path);
        if (nodes.empty())
            continue;
        ++there;
        same += m_scene.nodes[std::size_t(nodes.front())].material == material;
    }
    if (there > 0)
        evidence.add(0.35, double(same) / there, "on the same nodes");
    addSpelling(was.name, is.name, evidence);
    if (!before.materialsNamed(is.name).empty())
        evidence.doubt(0.3);
}

void qxRepairSearch::weighToldMaterial(const QString &name, int material,
                                       qxRepairEvidence &evidence) const
{
    const qxOutlineMaterial &is = m_scene.materials[std::size_t(material)];
    const QStringList contents = namesOf(m_scene, is.contents);
    const QStringList holders = namesOf(m_scene, is.holders);
    for (const int at : m_bases.value(name)) {
        const qxDocumentVariant &variant = m_document.variants[std::size_t(at)];
        if (variant.kind == &qxVariantKinds::material)
            evidence.add(0.4, part(optionsOf(variant), contents), "same materials");
    }
    for (const int at : m_holders.value(name)) {
        const qxDocumentVariant &variant = m_document.variants[std::size_t(at)];
        if (variant.kind == &qxVariantKinds::material)
            evidence.add(0.25, holders.contains(variant.base), "held by the same material");
    }
    const Places users = m_materialUsers.value(name);
    int same = 0;
    for (const int user : users) {
        const int now = m_scene.nodes[std::size_t(user)].material;
        const std::vector<int> parts =
            now < 0 ? std::vector<int>() : m_scene.materials[std::size_t(now)].contents;
        same += now == material || std::find(parts.begin(), parts.end(), material) != parts.end();
    }
    if (!users.empty())
        evidence.add(0.3, double(same) / double(users.size()), "on the same nodes");
    weighSpelling(name, is.name, evidence);
    if (users.empty() && m_bases.value(name).empty() && m_holders.value(name).empty())
        evidence.doubt(OnlySpelling);
    if (m_named.contains(QLatin1String("material ") + is.name) || !m_holders.value(is.name).empty())
        evidence.doubt(0.4);
}

qxRepairSearch::Candidates qxRepairSearch::materials(const qxBreak &broken) const
{
    const Places old = m_history ? m_history->scene.materialsNamed(broken.name) : Places();
    QSet<int> found;
    const auto addAll = [&found](const Places &places) {
        for (std::size_t i = 0; i < std::min(places.size(), Many); ++i)
            found.insert(places[i]);
    };
    const auto addHolders = [&](const QString &name) {
        for (const int each : m_scene.materialsNamed(name))
            addAll(m_scene.materials[std::size_t(each)].holders);
    };
    const auto addContents = [&](const QString &name) {
        for (const int each : m_scene.materialsNamed(name))
            addAll(m_scene.materials[std::size_t(each)].contents);
    };
    addAll(m_nearMaterials.near(broken.name));
    for (const int at : m_bases.value(broken.name)) {
        for (const QString &option : optionsOf(m_document.variants[std::size_t(at)]))
            addHolders(option);
    }
    for (const int at : m_holders.value(broken.name))
        addContents(m_document.variants[std::size_t(at)].base);
    for (const int user : m_materialUsers.value(broken.name)) {
        const int now = m_scene.nodes[std::size_t(user)].material;
        if (now < 0)
            continue;
        found.insert(now);
        addAll(m_scene.materials[std::size_t(now)].contents);
    }
    if (!old.empty()) {
        const qxSceneOutline &before = m_history->scene;
        const qxOutlineMaterial &was = before.materials[std::size_t(old.front())];
        if (m_scene.withLook(was.look).size() <= Many)
            addAll(m_scene.withLook(was.look));
        for (const int each : was.contents)
            addHolders(before.materials[std::size_t(each)].name);
        for (const int each : was.holders)
            addContents(before.materials[std::size_t(each)].name);
        for (const int user : was.users) {
            for (const int each : m_scene.onPath(before.nodes[std::size_t(user)].path))
                addAll({m_scene.nodes[std::size_t(each)].material});
        }
        found.remove(-1);
    }
    Candidates candidates;
    for (const int material : found) {
        const qxOutlineMaterial &is = m_scene.materials[std::size_t(material)];
        if (is.name.isEmpty() || (broken.kind && is.contents.empty()))
            continue;
        qxRepairEvidence evidence;
        if (old.empty())
            weighToldMaterial(broken.name, material, evidence);
        else
            weighOldMaterial(old.front(), material, evidence);
        candidates.push_back({is.name, evidence.score(old.empty() ? Prior : 0), evidence.reason()});
    }
    return candidates;
}

/// Whether a child of a switch that was, and one that is, have the same shapes; or two materials
/// the same look. -1 when there is nothing to compare.
double qxRepairSearch::shapeShare(const qxBreak &broken, const QString &base,
                                  const QString &child) const
{
    const qxSceneOutline &before = m_history->scene;
    const int at = m_oldIndex->variant(broken.kind, broken.variant);
    const QString oldBase = at < 0 ? base : m_history->document.variants[std::size_t(at)].base;
    const auto childOf = [](const qxSceneOutline &scene, const Places &nodes, const QString &name) {
        for (const int node : nodes) {
            for (const int each : scene.nodes[std::size_t(node)].children) {
                if (scene.nodes[std::size_t(each)].name == name)
                    return each;
            }
        }
        return -1;
    };
    const auto partOf = [](const qxSceneOutline &scene, const Places &materials,
                           const QString &name) {
        for (const int material : materials) {
            for (const int each : scene.materials[std::size_t(material)].contents) {
                if (scene.materials[std::size_t(each)].name == name)
                    return each;
            }
        }
        return -1;
    };
    if (broken.kind == &qxVariantKinds::material) {
        const int was = partOf(before, before.materialsNamed(oldBase), broken.name);
        const int is = partOf(m_scene, m_scene.materialsNamed(base), child);
        return was < 0 || is < 0
            ? -1
            : before.materials[std::size_t(was)].look == m_scene.materials[std::size_t(is)].look;
    }
    const bool isOverlay = broken.kind == &qxVariantKinds::overlay;
    const int was = childOf(
        before, isOverlay ? before.overlaysNamed(oldBase) : before.named(oldBase), broken.name);
    const int is =
        childOf(m_scene, isOverlay ? m_scene.overlaysNamed(base) : m_scene.named(base), child);
    return was < 0 || is < 0
        ? -1
        : before.nodes[std::size_t(was)].tree == m_scene.nodes[std::size_t(is)].tree;
}

qxRepairSearch::Candidates qxRepairSearch::states(const qxBreak &broken) const
{
    const int at = m_index.variant(broken.kind, broken.variant);
    const qxDocumentVariant &variant = m_document.variants[std::size_t(at)];
    const QStringList options = optionsOf(variant);
    const QStringList choices = broken.isDefault ? options : choicesOf(variant);
    const int place = options.indexOf(broken.name);
    QSet<QString> taken(options.begin(), options.end());
    const QSet<QString> known(choices.begin(), choices.end());
    const int open = QSet<QString>(known).subtract(taken).size();
    Candidates candidates;
    if (broken.name.startsWith(QLatin1Char('!')))
        return candidates;
    for (int i = 0; i < choices.size(); ++i) {
        qxRepairEvidence evidence;
        if (place >= 0) {
            evidence.add(0.3,
                         haveSameNeighbours(options, place, choices, i)
                             || (place == i && options.size() == choices.size()),
                         "same place among its neighbours");
            evidence.add(0.3, taken.contains(choices[i]) || open == 0 ? 0 : 1.0 / open,
                         "the only one that no option names");
        }
        weighSpelling(broken.name, choices[i], evidence);
        const double shape = m_history ? shapeShare(broken, variant.base, choices[i]) : -1;
        if (shape >= 0)
            evidence.add(0.3, shape, "same shape or look");
        if (taken.contains(choices[i]) && place >= 0)
            evidence.doubt(0.3);
        candidates.push_back({choices[i], evidence.score(Prior), evidence.reason()});
    }
    return candidates;
}

qxRepairSearch::Candidates qxRepairSearch::variants(const qxBreak &broken) const
{
    const QSet<QString> wanted = m_selected.value({broken.kind, broken.name});
    QString base = broken.name;
    QStringList oldOptions;
    if (m_history) {
        const int at = m_oldIndex->variant(broken.kind, broken.name);
        if (at >= 0) {
            base = m_history->document.variants[std::size_t(at)].base;
            oldOptions = optionsOf(m_history->document.variants[std::size_t(at)]);
        }
    }
    QSet<int> found;
    const auto addAll = [&found](const Places &places) {
        for (std::size_t i = 0; i < std::min(places.size(), Many); ++i)
            found.insert(places[i]);
    };
    addAll(m_nearVariants.near(broken.name));
    addAll(m_bases.value(base));
    for (const QString &state : wanted) {
        if (!state.startsWith(QLatin1Char('!')))
            addAll(m_holders.value(state));
    }
    Candidates candidates;
    for (const int at : found) {
        const qxDocumentVariant &variant = m_document.variants[std::size_t(at)];
        if (variant.kind != broken.kind)
            continue;
        QStringList options;
        for (const qxDocumentOption &each : variant.options)
            options += each.name;
        qxRepairEvidence evidence;
        evidence.add(0.35, variant.base == base, "drives what the old one drove");
        evidence.add(0.3, part(wanted.values(), options), "has the states that are selected");
        if (!oldOptions.isEmpty())
            evidence.add(0.2, overlap(oldOptions, optionsOf(variant)), "same options");
        weighSpelling(broken.name, variant.name, evidence);
        const bool isOld = m_history && m_oldIndex->variant(broken.kind, variant.name) >= 0;
        if (isOld)
            evidence.doubt(0.4);
        candidates.push_back({variant.name, evidence.score(Prior), evidence.reason()});
    }
    return candidates;
}

qxRepairSearch::Candidates qxRepairSearch::viewpoints(const qxBreak &broken) const
{
    const auto namesIn = [](const qxSceneOutline &scene) {
        QStringList names;
        for (const qxOutlineViewpoint &each : scene.viewpoints)
            names += each.name;
        return names;
    };
    const QStringList now = namesIn(m_scene);
    const QStringList before = m_history ? namesIn(m_history->scene) : QStringList();
    const int old = before.indexOf(broken.name);
    const QSet<QString> known(before.begin(), before.end());
    Candidates candidates;
    for (int i = 0; i < now.size(); ++i) {
        if (now[i].isEmpty())
            continue;
        qxRepairEvidence evidence;
        if (old >= 0) {
            evidence.add(0.5,
                         m_history->scene.viewpoints[std::size_t(old)].pose
                             == m_scene.viewpoints[std::size_t(i)].pose,
                         "same place and direction");
            evidence.add(0.2, haveSameNeighbours(before, old, now, i) || old == i,
                         "same place among its neighbours");
            addSpelling(broken.name, now[i], evidence);
            if (known.contains(now[i]))
                evidence.doubt(0.3);
        } else {
            weighSpelling(broken.name, now[i], evidence);
            evidence.doubt(OnlySpelling);
            if (m_named.contains(QLatin1String("viewpoint ") + now[i]))
                evidence.doubt(0.4);
        }
        candidates.push_back({now[i], evidence.score(old < 0 ? Prior : 0), evidence.reason()});
    }
    return candidates;
}

qxRepairSearch::Candidates qxRepairSearch::clips(const qxBreak &broken) const
{
    const QStringList before = m_history ? m_history->scene.clips : QStringList();
    const int old = before.indexOf(broken.name);
    Candidates candidates;
    for (int i = 0; i < m_scene.clips.size(); ++i) {
        const QString &name = m_scene.clips[i];
        if (name.isEmpty())
            continue;
        qxRepairEvidence evidence;
        if (old >= 0) {
            evidence.add(0.4,
                         haveSameNeighbours(before, old, m_scene.clips, i)
                             || (old == i && before.size() == m_scene.clips.size()),
                         "same place among its neighbours");
            addSpelling(broken.name, name, evidence);
            if (before.contains(name))
                evidence.doubt(0.3);
        } else {
            weighSpelling(broken.name, name, evidence);
            evidence.doubt(OnlySpelling);
            if (m_named.contains(QLatin1String("animation ") + name))
                evidence.doubt(0.4);
        }
        candidates.push_back({name, evidence.score(Prior), evidence.reason()});
    }
    return candidates;
}
