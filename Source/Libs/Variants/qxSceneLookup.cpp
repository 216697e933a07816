#include "qxSceneLookup.h"

#include "qxAnimManager.h"
#include "qxLights.h"
#include "qxNames.h"
#include "qxNodeWalk.h"
#include "qxOverlays.h"
#include "qxUberCameraPool.h"

#include <QHash>
#include <QSet>

#include <optional>
#include <set>

using qxNames::nameOf;

namespace {

/// For each of these nodes in scene order, the place behind it and everything below it.
std::vector<std::size_t> endsOf(const std::vector<qxNodePtr> &nodes)
{
    std::vector<std::size_t> ends(nodes.size());
    QHash<osg::UInt32, int> places;
    for (std::size_t i = 0; i < nodes.size(); ++i)
        places.insert(nodes[i].getFieldContainerId(), int(i));
    for (std::size_t i = nodes.size(); i-- > 0;) {
        ends[i] = std::max(ends[i], i + 1);
        const osg::NodePtr parent = nodes[i]->getParent();
        const int above =
            parent == osg::NullFC ? -1 : places.value(parent.getFieldContainerId(), -1);
        if (above >= 0)
            ends[std::size_t(above)] = std::max(ends[std::size_t(above)], ends[i]);
    }
    return ends;
}

/// Nodes by the names that they are found by.
struct Nodes {
    explicit Nodes(const std::vector<qxNodePtr> &nodes)
    {
        const std::vector<std::size_t> ends = endsOf(nodes);
        QHash<QString, std::size_t> inside; // where the sub-trees of the nodes of a name end
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            if (!qxNodeUtils::isFoundByName(nodes[i]))
                continue;
            const QString name = nameOf(nodes[i]);
            byName[name].push_back(nodes[i]);
            std::size_t &end = inside[name];
            if (i < end)
                nested.insert(name);
            end = std::max(end, ends[i]);
        }
    }

    QHash<QString, std::vector<qxNodePtr>> byName;
    QSet<QString> nested; ///< names of nodes that stand below one of the same name
};

Nodes sceneNodes()
{
    return Nodes(qxNodeUtils::getSceneNodes());
}

/// Everything of the overlay tree but its root, which no overlay variant reaches.
Nodes overlayNodes()
{
    std::vector<qxNodePtr> nodes = qxNodeUtils::getSubTreeNodes(qxOverlays::getPoolRoot());
    if (!nodes.empty())
        nodes.erase(nodes.begin());
    return Nodes(nodes);
}

QSet<QString> lightNames()
{
    QSet<QString> names;
    for (const qxNodePtr &light : qxLights::getLights())
        names.insert(nameOf(light));
    return names;
}

QSet<QString> clipNames()
{
    std::set<std::string> clips;
    qxAnimManager::the()->getBlockAndClipNames(clips);
    QSet<QString> names;
    for (const std::string &clip : clips)
        names.insert(qxText::fromUtf8(clip));
    return names;
}

constexpr quint64 EmptyPath = 0xCBF29CE484222325;

/// The hash of a path (FNV-1a, 64 bits) that goes on with `text`.
quint64 hashOf(const std::string &text, quint64 hash)
{
    for (const char each : text)
        hash = (hash ^ quint64(static_cast<unsigned char>(each))) * 0x100000001B3;
    return hash;
}

/// The hashes of all paths: the texts would take the square of the depth.
QSet<quint64> pathHashes()
{
    typedef std::vector<std::pair<osg::NodePtr, quint64>> Places;
    Places tops;
    for (const osg::NodePtr &top : *qxScenegraph::getRoot()->getMFChildren())
        tops.push_back({top, EmptyPath});
    const osg::NodePtr environment = qxScenegraph::environmentGeometrySwitch();
    if (environment != osg::NullFC)
        tops.push_back({environment, EmptyPath});
    QSet<quint64> hashes;
    qxWalkTree(tops, [&hashes](const Places::value_type &place, Places &below) {
        const quint64 path = hashOf(qxNodeUtils::getName(place.first), place.second);
        hashes.insert(path);
        for (const osg::NodePtr &child : *place.first->getMFChildren())
            below.push_back({child, hashOf("/", path)});
        return true;
    });
    return hashes;
}

/// What `gather` gives, asked for once.
template <class Sort>
const Sort &once(std::optional<Sort> &sort, Sort (*gather)())
{
    if (!sort)
        sort = gather();
    return *sort;
}

} // namespace

struct qxSceneLookup::Gathered {
    std::optional<Nodes> nodes;
    std::optional<Nodes> overlays;
    std::optional<QSet<QString>> lights;
    std::optional<QSet<QString>> clips;
    std::optional<QSet<quint64>> paths;
};

std::weak_ptr<qxSceneLookup::Gathered> qxSceneLookup::s_shared;

qxSceneLookup::qxSceneLookup() : m_gathered(s_shared.lock())
{
    if (!m_gathered)
        s_shared = m_gathered = std::make_shared<Gathered>();
}

std::vector<qxNodePtr> qxSceneLookup::nodes(const QString &name) const
{
    return once(m_gathered->nodes, sceneNodes).byName.value(name);
}

std::vector<qxNodePtr> qxSceneLookup::overlays(const QString &name) const
{
    return once(m_gathered->overlays, overlayNodes).byName.value(name);
}

std::vector<osg::MaterialPtr> qxSceneLookup::materials(const QString &name) const
{
    return qxMaterials::findMaterials(qxText::toUtf8(name).c_str());
}

bool qxSceneLookup::hasNestedNodes(const QString &name) const
{
    return once(m_gathered->nodes, sceneNodes).nested.contains(name);
}

bool qxSceneLookup::hasNestedOverlays(const QString &name) const
{
    return once(m_gathered->overlays, overlayNodes).nested.contains(name);
}

bool qxSceneLookup::hasNode(const QString &name) const
{
    return once(m_gathered->nodes, sceneNodes).byName.contains(name);
}

bool qxSceneLookup::hasMaterial(const QString &name) const
{
    return qxMaterials::findMaterial(qxText::toUtf8(name).c_str()) != osg::NullFC;
}

bool qxSceneLookup::hasLight(const QString &name) const
{
    return once(m_gathered->lights, lightNames).contains(name);
}

bool qxSceneLookup::hasViewpoint(const QString &name) const
{
    return !name.isEmpty() && qxUberCameraPool::the()->findViewpoint(qxText::toUtf8(name)) >= 0;
}

bool qxSceneLookup::hasClip(const QString &name) const
{
    return once(m_gathered->clips, clipNames).contains(name);
}

bool qxSceneLookup::hasPath(const QString &path) const
{
    return once(m_gathered->paths, pathHashes).contains(hashOf(qxText::toUtf8(path), EmptyPath));
}
