#include "Repair/qxSceneOutline.h"

#include "qxAnimManager.h"
#include "qxLights.h"
#include "qxMaterialParts.h"
#include "qxNames.h"
#include "qxNodeWalk.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGTransform.h>

#include <algorithm>
#include <cmath>

namespace {
namespace outline {

/// How many nodes are noted as users of a material.
constexpr std::size_t SomeUsers = 16;
/// How many points of a geometry are looked at.
constexpr std::size_t SomePoints = 64;

quint64 mixed(quint64 hash, quint64 value)
{
    for (int byte = 0; byte < 8; ++byte) {
        hash = (hash ^ (value & 0xFF)) * 0x100000001B3;
        value >>= 8;
    }
    return hash;
}

/// Numbers that differ only by rounding count as equal, mostly.
quint64 mixed(quint64 hash, float number)
{
    if (!std::isfinite(number) || std::fabs(number) > 1e9f)
        return mixed(hash, quint64(1) << 62);
    return mixed(hash, quint64(qint64(std::llround(double(number) * 1e4))));
}

quint64 hashOf(const osg::Matrix &matrix)
{
    quint64 hash = qxNames::EmptyPath;
    for (int i = 0; i < 16; ++i)
        hash = mixed(hash, matrix.getValues()[i]);
    return hash;
}

/// What the points of a geometry are; 0 for other cores.
quint64 shapeOf(const osg::NodeCorePtr &core)
{
    const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(core);
    if (geometry == osg::NullFC)
        return 0;
    quint64 hash = qxNames::EmptyPath;
    const osg::GeoPositionsPtr points = geometry->getPositions();
    if (points == osg::NullFC)
        return hash;
    const std::size_t count = points->getSize();
    hash = mixed(hash, quint64(count));
    const std::size_t step = std::max<std::size_t>(1, count / SomePoints);
    for (std::size_t i = 0; i < count; i += step) {
        const osg::Pnt3f point = points->getValue(osg::UInt32(i));
        for (int axis = 0; axis < 3; ++axis)
            hash = mixed(hash, point[axis]);
    }
    return hash;
}

quint64 lookOf(const osg::MaterialPtr &material)
{
    quint64 hash = qxNames::hashOf(material->getTypeName(), qxNames::EmptyPath);
    const osg::SimpleMaterialPtr simple = osg::SimpleMaterialPtr::dcast(material);
    if (simple == osg::NullFC)
        return hash;
    for (const osg::Color3f &colour :
         {simple->getDiffuse(), simple->getSpecular(), simple->getEmission()}) {
        for (int i = 0; i < 3; ++i)
            hash = mixed(hash, colour[i]);
    }
    return mixed(mixed(hash, simple->getShininess()), simple->getTransparency());
}

} // namespace outline
} // namespace

qxSceneOutline qxSceneOutline::take()
{
    qxSceneOutline taken;
    taken.addMaterials();
    taken.addNodes();
    taken.noteTrees();
    taken.noteNames();
    const qxUberCameraPool &pool = *qxUberCameraPool::the();
    for (int id = 0; id < pool.count(); ++id)
        taken.viewpoints.push_back(
            {qxText::fromUtf8(pool.get(id)->name), outline::hashOf(pool.get(id)->toWorld)});
    for (const std::string &clip : qxAnimManager::the()->clips())
        taken.clips += qxText::fromUtf8(clip);
    return taken;
}

void qxSceneOutline::addMaterials()
{
    std::vector<osg::MaterialPtr> pooled;
    qxScenegraph::getMaterialPool()->get(pooled);
    QHash<osg::UInt32, int> known;
    std::vector<osg::MaterialPtr> all;
    const auto placeOf = [&](const osg::MaterialPtr &material) {
        const osg::UInt32 id = material.getFieldContainerId();
        if (!known.contains(id)) {
            known.insert(id, int(all.size()));
            all.push_back(material);
        }
        return known.value(id);
    };
    for (const osg::MaterialPtr &each : pooled)
        placeOf(each);
    for (std::size_t i = 0; i < all.size(); ++i) {
        qxOutlineMaterial material;
        material.name = qxNames::nameOf(all[i]);
        material.look = outline::lookOf(all[i]);
        for (const osg::MaterialPtr &part : qxMaterialParts::of(all[i])) {
            if (part != osg::NullFC)
                material.contents.push_back(placeOf(part));
        }
        materials.push_back(std::move(material));
    }
    for (const osg::MaterialPtr &each : all)
        m_ids.insert(each.getFieldContainerId(), known.value(each.getFieldContainerId()));
    for (std::size_t i = 0; i < materials.size(); ++i) {
        for (const int part : materials[i].contents)
            materials[std::size_t(part)].holders.push_back(int(i));
    }
}

void qxSceneOutline::addNodes()
{
    QHash<osg::UInt32, int> places;
    const auto add = [&](const osg::NodePtr &node, bool isOverlay) {
        qxOutlineNode entry;
        const int place = int(nodes.size());
        entry.name = qxNames::nameOf(node);
        entry.id = node.getFieldContainerId();
        entry.isOverlay = isOverlay;
        entry.isLight = !isOverlay && qxLights::isLight(node);
        const osg::NodePtr parent = node->getParent();
        entry.parent = parent == osg::NullFC ? -1 : places.value(parent.getFieldContainerId(), -1);
        if (entry.parent >= 0) {
            std::vector<int> &siblings = nodes[std::size_t(entry.parent)].children;
            entry.place = int(siblings.size());
            siblings.push_back(place);
        }
        const osg::NodeCorePtr core = node->getCore();
        if (core != osg::NullFC)
            entry.sort = qxNames::hashOf(core->getTypeName(), qxNames::EmptyPath);
        const osg::TransformPtr transform = osg::TransformPtr::dcast(core);
        if (transform != osg::NullFC)
            entry.pose = outline::hashOf(transform->getMatrix());
        entry.tree = outline::shapeOf(core);
        entry.hasShape = entry.tree != 0;
        const osg::MaterialPtr material = qxNodeUtils::getMaterial(node);
        if (material != osg::NullFC)
            entry.material = m_ids.value(material.getFieldContainerId(), -1);
        for (int i = 0; i < qxNodeUtils::getTransformVariantCount(node); ++i)
            entry.states += qxText::fromUtf8(qxNodeUtils::getTransformVariantName(node, i));
        places.insert(entry.id, place);
        nodes.push_back(std::move(entry));
    };
    for (const qxNodePtr &node : qxNodeUtils::getSceneNodes())
        add(node, false);
    for (const qxNodePtr &node : qxNodeUtils::getSubTreeNodes(qxOverlays::getPoolRoot()))
        add(node, true);
    m_ids.clear();
}

/// From the last node to the first: all below a node come behind it.
void qxSceneOutline::noteTrees()
{
    for (std::size_t i = nodes.size(); i-- > 0;) {
        qxOutlineNode &node = nodes[i];
        quint64 tree = outline::mixed(node.sort, node.tree);
        for (const int child : node.children) {
            tree = outline::mixed(tree, nodes[std::size_t(child)].tree);
            node.hasShape = node.hasShape || nodes[std::size_t(child)].hasShape;
        }
        node.tree = tree;
    }
}

void qxSceneOutline::noteNames()
{
    const osg::UInt32 root = qxScenegraph::getRoot().getFieldContainerId();
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        qxOutlineNode &node = nodes[i];
        const int place = int(i);
        const osg::NodePtr inScene = qxNodeWithId(node.id);
        const bool isFound = qxNodeUtils::isFoundByName(inScene);
        if (node.isOverlay) {
            if (isFound && node.parent >= 0)
                m_overlays[node.name].push_back(place);
            continue;
        }
        const bool isTop = node.parent < 0 || nodes[std::size_t(node.parent)].id == root;
        const quint64 above =
            isTop ? qxNames::EmptyPath : qxNames::hashOf("/", nodes[std::size_t(node.parent)].path);
        node.path = qxNames::hashOf(qxText::toUtf8(node.name), above);
        if (isFound)
            m_named[node.name].push_back(place);
        if (node.isLight)
            m_lights.push_back(place);
        for (const QString &state : node.states)
            m_states[state].push_back(place);
        if (node.id == root)
            continue;
        m_paths[node.path].push_back(place);
        m_trees[node.tree].push_back(place);
        QStringList steps;
        for (int at = place;
             at >= 0 && nodes[std::size_t(at)].id != root && steps.size() < TailSteps;
             at = nodes[std::size_t(at)].parent) {
            steps.prepend(nodes[std::size_t(at)].name);
            m_tails[hashOf(steps)].push_back(place);
        }
        if (node.material >= 0) {
            auto &users = materials[std::size_t(node.material)].users;
            if (users.size() < outline::SomeUsers)
                users.push_back(place);
        }
    }
    for (std::size_t i = 0; i < materials.size(); ++i) {
        if (!materials[i].name.isEmpty())
            m_materials[materials[i].name].push_back(int(i));
        m_looks[materials[i].look].push_back(int(i));
    }
}

QString qxSceneOutline::nameAt(int node) const
{
    return node < 0 ? QString() : nodes[std::size_t(node)].name;
}

QString qxSceneOutline::pathOf(int node) const
{
    QStringList steps;
    for (int at = node; at >= 0; at = nodes[std::size_t(at)].parent) {
        if (at != 0) // the root
            steps.prepend(nodes[std::size_t(at)].name);
    }
    return steps.join(QLatin1Char('/'));
}

quint64 qxSceneOutline::hashOf(const QString &path)
{
    return qxNames::hashOf(qxText::toUtf8(path), qxNames::EmptyPath);
}

quint64 qxSceneOutline::hashOf(const QStringList &steps)
{
    return hashOf(QString::number(steps.size()) + QLatin1Char('/') + steps.join(QLatin1Char('/')));
}
