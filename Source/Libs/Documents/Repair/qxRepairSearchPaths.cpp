#include "Repair/qxRepairNames.h"
#include "Repair/qxRepairSearch.h"

#include <algorithm>

using qxRepairNames::stepsOf;

namespace {
namespace repairPaths {

/// The first steps that two paths share.
int headOf(const QStringList &one, const QStringList &other)
{
    int count = 0;
    while (count < one.size() && count < other.size() && one[count] == other[count])
        ++count;
    return count;
}

/// The last steps that two paths share.
int tailOf(const QStringList &one, const QStringList &other)
{
    int count = 0;
    while (count < one.size() && count < other.size()
           && one[one.size() - 1 - count] == other[other.size() - 1 - count])
        ++count;
    return count;
}

} // namespace repairPaths
} // namespace

using namespace repairPaths;

/// How many of the first steps of a path still lead to something.
int qxRepairSearch::depthOf(const QStringList &steps) const
{
    QString path;
    for (int depth = 0; depth < steps.size(); ++depth) {
        path += (depth > 0 ? QStringLiteral("/") : QString()) + steps[depth];
        if (m_scene.onPath(qxSceneOutline::hashOf(path)).empty())
            return depth;
    }
    return steps.size();
}

/// The node so many steps above; -1 for none.
int qxRepairSearch::above(int node, int count) const
{
    while (node >= 0 && count-- > 0)
        node = m_scene.nodes[std::size_t(node)].parent;
    return node;
}

/// Compares a node with what its path was. One step of that is the first that is gone: it was
/// renamed or moved, and what is below it went with it.
void qxRepairSearch::weighPath(const QStringList &was, int node, qxRepairEvidence &evidence) const
{
    const QStringList is = stepsOf(m_scene.pathOf(node));
    const int depth = std::min(depthOf(was), was.size() - 1);
    const int below = was.size() - 1 - depth;
    const int tail = tailOf(was, is);
    evidence.add(0.35, below > 0 ? std::min(1.0, double(tail) / below) : 1,
                 tail > 0 ? "same tail of the path" : "");
    const int head = headOf(was, is);
    evidence.add(0.25, head >= depth ? 1 : 0.6 * head / depth,
                 depth > 0 ? "same beginning of the path" : "");
    const int gone = above(node, below);
    const QString name = gone > 0 ? m_scene.nameAt(gone) : is.first();
    // That somewhere something is called so says little where much is.
    const bool isCommon = m_scene.withTail(was.mid(depth)).size() > 1;
    if (was[depth] == name)
        evidence.addSpelling(0.3, isCommon ? 0.5 : 1, "same name");
    else
        evidence.addSpelling(0.3, qxNearNames::likeness(was[depth], name));
    if (was[depth] != name && head < depth)
        evidence.doubt(0.6); // renamed and moved at once
    const QString material = m_snapshots.value(was.join(QLatin1Char('/')));
    const int at = m_scene.nodes[std::size_t(node)].material;
    bool hasMaterial = materialOf(node) == material;
    if (at >= 0) {
        for (const int part : m_scene.materials[std::size_t(at)].contents)
            hasMaterial = hasMaterial || m_scene.materials[std::size_t(part)].name == material;
    }
    evidence.add(0.15, hasMaterial, "same material");
    bool isTwin = false;
    for (int i = 0; i < was.size() && was.size() == is.size(); ++i)
        isTwin = isTwin || qxRepairNames::areOfSeries(was[i], is[i]);
    if (isTwin)
        evidence.doubt(qxRepairNames::OfSeries);
    // What a working snapshot leads through was there when the other one was taken.
    if (gone <= 0 || m_knownPaths.contains(m_scene.nodes[std::size_t(gone)].path))
        evidence.doubt(0.4);
}

/// Nodes that a path of which nobody remembers the node may lead to now.
QSet<int> qxRepairSearch::nodesNear(const QStringList &steps) const
{
    QSet<int> found;
    const auto addTail = [&](int count) {
        if (count <= 0 || count > qxSceneOutline::TailSteps)
            return;
        const Places &nodes = m_scene.withTail(steps.mid(steps.size() - count));
        for (std::size_t i = 0; nodes.size() <= Many && i < nodes.size(); ++i)
            found.insert(nodes[i]);
    };
    const int depth = std::min(depthOf(steps), steps.size() - 1);
    const int below = steps.size() - 1 - depth;
    addTail(below + 1);
    addTail(below);
    for (int count = std::min(steps.size(), qxSceneOutline::TailSteps); count > 0; --count) {
        if (found.isEmpty())
            addTail(count);
    }
    // What stands in the place of the step that is gone, and from there down.
    const QString path = QStringList(steps.mid(0, depth)).join(QLatin1Char('/'));
    QSet<int> level;
    addNewChildren(depth > 0 ? m_scene.onPath(qxSceneOutline::hashOf(path)) : Places{0}, -1, level);
    for (int at = depth + 1; at < steps.size(); ++at) {
        QSet<int> next;
        for (const int node : qAsConst(level)) {
            const std::vector<int> &children = m_scene.nodes[std::size_t(node)].children;
            for (std::size_t i = 0; i < std::min(children.size(), Many); ++i) {
                if (m_scene.nameAt(children[i]) == steps[at])
                    next.insert(children[i]);
            }
        }
        level = next;
    }
    found += level;
    for (const int each : m_nearNodes.near(steps.last()))
        found.insert(each);
    return found;
}

qxRepairSearch::Candidates qxRepairSearch::paths(const qxBreak &broken) const
{
    const QStringList steps = stepsOf(broken.name);
    const Places old =
        m_history ? m_history->scene.onPath(qxSceneOutline::hashOf(broken.name)) : Places();
    QSet<int> found = old.empty() ? nodesNear(steps) : nodesLikeOld(old.front());
    for (int count = std::min(steps.size(), qxSceneOutline::TailSteps); count > 0; --count) {
        const Places &nodes = m_scene.withTail(steps.mid(steps.size() - count));
        for (std::size_t i = 0; !old.empty() && i < std::min(nodes.size(), Few); ++i)
            found.insert(nodes[i]);
    }
    Candidates candidates;
    for (const int node : found) {
        if (node == 0 || m_scene.nodes[std::size_t(node)].isOverlay)
            continue;
        const QString path = m_scene.pathOf(node);
        qxRepairEvidence evidence;
        if (old.empty()) {
            weighPath(steps, node, evidence);
        } else {
            weighOldNode(old.front(), node, evidence);
            const QStringList is = stepsOf(path);
            evidence.addBonus(0.3, double(tailOf(steps, is)) / std::max(steps.size(), is.size()),
                              "same tail of the path");
        }
        // A path that means others as well, or has a snapshot of its own, is no safe place.
        if (m_scene.onPath(m_scene.nodes[std::size_t(node)].path).size() > 1
            || m_snapshots.contains(path))
            evidence.doubt(0.4);
        candidates.push_back({path, evidence.score(old.empty() ? Prior : 0), evidence.reason()});
    }
    return candidates;
}
