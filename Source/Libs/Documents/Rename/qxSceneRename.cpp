#include "Rename/qxSceneRename.h"

#include "Rename/qxDocumentPlaces.h"
#include "qxDocumentIndex.h"
#include "qxLights.h"
#include "qxMaterialParts.h"
#include "qxNames.h"
#include "qxNodeWalk.h"
#include "qxSceneLookup.h"
#include "qxStateRules.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitch.h>

#include <algorithm>

using qxNames::nameOf;

namespace {

std::vector<qxNodePtr> overlayNodes()
{
    std::vector<qxNodePtr> nodes = qxNodeUtils::getSubTreeNodes(qxOverlays::getPoolRoot());
    if (!nodes.empty())
        nodes.erase(nodes.begin());
    return nodes;
}

/// The first child of that name; null for none, and for a node that is no switch.
osg::NodePtr childOf(const osg::NodePtr &node, const QString &name)
{
    if (node == osg::NullFC || osg::SwitchPtr::dcast(node->getCore()) == osg::NullFC)
        return osg::NodePtr();
    const std::string wanted = qxText::toUtf8(name);
    for (const osg::NodePtr &child : *node->getMFChildren()) {
        if (qxNodeUtils::getName(child) == wanted)
            return child;
    }
    return osg::NodePtr();
}

/// The first of that name in a switch material; null for none, and in another material.
osg::MaterialPtr choiceOf(const qxSceneObject &object, const QString &name)
{
    if (object.switchMaterial == osg::NullFC)
        return osg::MaterialPtr();
    const std::string wanted = qxText::toUtf8(name);
    for (const osg::MaterialPtr &each : object.switchMaterial->getMaterials()) {
        if (qxMaterials::getName(each) == wanted)
            return each;
    }
    return osg::MaterialPtr();
}

/// What is loaded as the part of a mesh keeps being one: its geometry has the name for it.
bool isNamedByGeometry(const osg::NodePtr &node)
{
    return !osg::getName(node) && osg::GeometryPtr::dcast(node->getCore()) != osg::NullFC
        && osg::getName(node->getCore());
}

/// Calls `visit` for every node of the scene with the hash of its path.
template <class Visit>
void walkPaths(const Visit &visit)
{
    typedef std::vector<std::pair<osg::NodePtr, quint64>> Places;
    Places tops;
    for (const osg::NodePtr &top : *qxScenegraph::getRoot()->getMFChildren())
        tops.push_back({top, qxNames::EmptyPath});
    const osg::NodePtr environment = qxScenegraph::environmentGeometrySwitch();
    if (environment != osg::NullFC)
        tops.push_back({environment, qxNames::EmptyPath});
    qxWalkTree(tops, [&visit](const Places::value_type &place, Places &below) {
        const quint64 path = qxNames::hashOf(qxNodeUtils::getName(place.first), place.second);
        visit(place.first, path);
        for (const osg::NodePtr &child : *place.first->getMFChildren())
            below.push_back({child, qxNames::hashOf("/", path)});
    });
}

template <class Container>
osg::UInt32 idOf(const Container &container)
{
    return container.getFieldContainerId();
}

} // namespace

qxSceneRename::qxSceneRename(const qxRenameRequest &request, const qxDocument &document)
    : m_request(request)
{
    if (request.thing == qxRenameRequest::Option)
        takeOption(document);
    const std::string name = qxText::toUtf8(request.before);
    switch (m_request.thing) {
    case qxRenameRequest::Node:
        for (const qxNodePtr &each : qxNodeUtils::getSceneNodes())
            m_names += nameOf(each);
        if (m_nodes.empty())
            takeNodes(qxScenegraph::findNodes(name.c_str()));
        break;
    case qxRenameRequest::Overlay:
        for (const qxNodePtr &each : overlayNodes())
            m_names += nameOf(each);
        if (m_nodes.empty())
            takeNodes(qxOverlays::findOverlays(name.c_str()));
        break;
    case qxRenameRequest::Material:
        for (const osg::MaterialPtr &each : qxMaterialParts::all())
            m_names += nameOf(each);
        if (m_materials.empty())
            takeMaterials(qxMaterials::findMaterials(name.c_str()));
        break;
    case qxRenameRequest::Viewpoint:
        m_names = qxSceneLookup::viewpointNames();
        takeViewpoints();
        break;
    case qxRenameRequest::TransformState:
        takeStates();
        break;
    default:
        break;
    }
}

/// What the scene has for the option takes the place of the request.
void qxSceneRename::takeOption(const qxDocument &document)
{
    const int at = qxDocumentIndex(document).variant(m_request.kind, m_request.owner);
    if (at < 0)
        return;
    const qxVariantKind &kind = *m_request.kind;
    const QString &base = document.variants[std::size_t(at)].base;
    std::vector<qxNodePtr> children;
    std::vector<osg::MaterialPtr> materials;
    bool hasStates = false;
    for (const qxSceneObject &each : kind.rule.objects(base)) {
        const osg::NodePtr child = childOf(each.node, m_request.before);
        const osg::MaterialPtr material = choiceOf(each, m_request.before);
        if (child != osg::NullFC)
            children.push_back(child);
        if (material != osg::NullFC)
            materials.push_back(material);
        hasStates = hasStates || &kind == &qxVariantKinds::transform;
    }
    takeNodes(children);
    takeMaterials(materials);
    if (!m_nodes.empty())
        m_request.thing =
            &kind == &qxVariantKinds::overlay ? qxRenameRequest::Overlay : qxRenameRequest::Node;
    else if (!m_materials.empty())
        m_request.thing = qxRenameRequest::Material;
    else if (hasStates)
        m_request.thing = qxRenameRequest::TransformState;
    m_request.owner = hasStates ? base : m_request.owner;
}

void qxSceneRename::takeNodes(const std::vector<qxNodePtr> &nodes)
{
    for (const qxNodePtr &each : nodes) {
        if (m_ids.contains(idOf(each)))
            continue;
        m_ids.insert(idOf(each));
        m_nodes.push_back(osg::NodeRefPtr(each));
    }
}

void qxSceneRename::takeMaterials(const std::vector<osg::MaterialPtr> &materials)
{
    for (const osg::MaterialPtr &each : materials) {
        if (m_ids.contains(idOf(each)))
            continue;
        m_ids.insert(idOf(each));
        m_materials.push_back(osg::MaterialRefPtr(each));
    }
}

void qxSceneRename::takeViewpoints()
{
    const qxUberCameraPool &pool = *qxUberCameraPool::the();
    for (int id = 0; id < pool.count(); ++id) {
        if (qxText::fromUtf8(pool.get(id)->name) == m_request.before)
            m_places.push_back({osg::NodeRefPtr(), id});
    }
}

/// Only the names beside the state count as taken.
void qxSceneRename::takeStates()
{
    const std::string wanted = qxText::toUtf8(m_request.before);
    for (const qxNodePtr &node : qxNodeUtils::getSceneNodes()) {
        if (!m_request.owner.isEmpty() && nameOf(node) != m_request.owner)
            continue;
        const int index = qxNodeUtils::getTransformVariantIndex(node, wanted);
        if (index < 0)
            continue;
        m_places.push_back({osg::NodeRefPtr(node), index});
        for (int i = 0; i < qxNodeUtils::getTransformVariantCount(node); ++i)
            m_names += qxText::fromUtf8(qxNodeUtils::getTransformVariantName(node, i));
    }
}

bool qxSceneRename::isTaken(const osg::NodePtr &node) const
{
    return node != osg::NullFC && m_ids.contains(idOf(node));
}

bool qxSceneRename::isStateOf(const qxDocumentVariant &variant) const
{
    for (const qxSceneObject &each : variant.kind->rule.objects(variant.base)) {
        if (isTaken(childOf(each.node, m_request.before)))
            return true;
        const osg::MaterialPtr material = choiceOf(each, m_request.before);
        if (material != osg::NullFC && m_ids.contains(idOf(material)))
            return true;
        if (m_request.thing == qxRenameRequest::TransformState
            && qxNodeUtils::getTransformVariantIndex(each.node, qxText::toUtf8(m_request.before))
                >= 0)
            return true;
    }
    return false;
}

void qxSceneRename::notePaths() const
{
    walkPaths([this](const osg::NodePtr &node, quint64 path) { m_paths[path].push_back(node); });
}

QStringList qxSceneRename::pathsAfter(const QString &path) const
{
    if (m_paths.isEmpty())
        notePaths();
    const std::string wanted = qxText::toUtf8(path);
    QStringList paths;
    for (const osg::NodePtr &node : m_paths.value(qxNames::hashOf(wanted, qxNames::EmptyPath))) {
        if (qxNames::pathOf(node) != wanted)
            continue;
        QStringList steps;
        const osg::NodePtr root = qxScenegraph::getRoot();
        for (osg::NodePtr at = node; at != osg::NullFC && at != root; at = at->getParent())
            steps.prepend(isTaken(at) ? m_request.after : nameOf(at));
        const QString after = steps.join(QLatin1Char('/'));
        if (!paths.contains(after))
            paths += after;
    }
    return paths;
}

/// Whether the scene keeps something of the old name.
bool qxSceneRename::isPartial() const
{
    const std::string name = qxText::toUtf8(m_request.before);
    switch (m_request.thing) {
    case qxRenameRequest::Node:
        return m_nodes.size() < qxScenegraph::findNodes(name.c_str()).size();
    case qxRenameRequest::Overlay:
        return m_nodes.size() < qxOverlays::findOverlays(name.c_str()).size();
    case qxRenameRequest::Material:
        return m_materials.size() < qxMaterials::findMaterials(name.c_str()).size();
    default:
        return false;
    }
}

qxRenameScope qxSceneRename::scope() const
{
    qxRenameScope scope;
    scope.names = m_names;
    scope.isPartial = isPartial();
    if (count() > 0)
        scope.isStateOf = [this](const qxDocumentVariant &each) { return isStateOf(each); };
    if (!m_nodes.empty() && m_request.thing == qxRenameRequest::Node)
        scope.pathsAfter = [this](const QString &path) { return pathsAfter(path); };
    return scope;
}

QString qxSceneRename::flaw() const
{
    for (const osg::MaterialPtr each : m_materials) {
        if (!qxMaterials::isEditable(each))
            return QStringLiteral("the material \"%1\" is read-only").arg(nameOf(each));
    }
    const osg::NodePtr root = qxScenegraph::getRoot();
    if (isTaken(root))
        return QStringLiteral("\"%1\" is the root of the scene").arg(m_request.before);
    return QString();
}

/// Whoever has another name by now keeps it.
void qxSceneRename::rename(const QString &from, const QString &to) const
{
    const std::string before = qxText::toUtf8(from);
    const std::string name = qxText::toUtf8(to);
    for (const osg::NodePtr node : m_nodes) {
        if (qxNodeUtils::getName(node) != before)
            continue;
        if (isNamedByGeometry(
                node)) // Clones of it that are called otherwise have names of their own.
            osg::setName(node->getCore(), name);
        else
            qxNodeUtils::setName(node, name, false, osg::NullFC);
    }
    for (const osg::MaterialPtr material : m_materials) {
        if (qxMaterials::getName(material) == before)
            qxMaterials::setName(material, name.c_str(), true);
    }
    for (const Place &each : m_places) {
        const qxNodePtr node = each.node.get();
        if (node == osg::NullFC)
            qxUberCameraPool::the()->rename(placeOfViewpoint(each.index, before), name);
        else if (qxNodeUtils::getTransformVariantName(node, each.index) == before)
            qxNodeUtils::setTransformVariantName(node, each.index, name);
    }
}

/// Where it is now: others may have come before it. -1 if it is gone.
int qxSceneRename::placeOfViewpoint(int index, const std::string &name)
{
    const qxUberCameraPool &pool = *qxUberCameraPool::the();
    const auto isAt = [&](int id) { return pool.get(id) && pool.get(id)->name == name; };
    if (isAt(index))
        return index;
    for (int id = 0; id < pool.count(); ++id) {
        if (isAt(id))
            return id;
    }
    return -1;
}
