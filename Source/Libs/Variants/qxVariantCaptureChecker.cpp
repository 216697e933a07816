#include "qxVariantCaptureChecker.h"

#include "qxNames.h"
#include "qxNodeWalk.h"
#include "qxOpenSGUtils.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSwitch.h>

#include <QHash>

using qxNames::nameOf;

/// A node with its path, still to be looked at.
struct qxVariantCaptureChecker::Place {
    osg::NodePtr node;
    QString name;
    int path;
    bool needsUniqueName;
};

namespace {

template <class Core>
bool hasCore(const osg::NodePtr &node)
{
    return node != osg::NullFC && node->getCore() != osg::NullFC
        && node->getCore()->getType().isDerivedFrom(Core::getClassType());
}

/// The children of one node with what is asked of their names: twins are found in one pass,
/// because a switch may have very many children.
class Children {
public:
    explicit Children(const osg::NodePtr &parent) : m_ofSwitch(hasCore<osg::Switch>(parent))
    {
        for (const osg::NodePtr &child : *parent->getMFChildren()) {
            if (child == osg::NullFC)
                continue;
            m_nodes.push_back({child, nameOf(child)});
            if (m_ofSwitch)
                ++m_counts[m_nodes.back().second];
        }
    }

    const std::vector<std::pair<osg::NodePtr, QString>> &nodes() const { return m_nodes; }

    bool needsUniqueName(const osg::NodePtr &child, const QString &name) const
    {
        if (child->getCore() == osg::NullFC)
            return false;
        return hasCore<osg::Switch>(child) || (m_ofSwitch && m_counts.value(name) > 1);
    }

private:
    const bool m_ofSwitch;
    std::vector<std::pair<osg::NodePtr, QString>> m_nodes;
    QHash<QString, int> m_counts;
};

} // namespace

void qxVariantCaptureChecker::clear()
{
    m_paths.clear();
    m_nodeOfPath.clear();
    m_nodeOfName.clear();
    m_ambiguousNodes.clear();
    m_reportedCores.clear();
}

void qxVariantCaptureChecker::findAmbiguousNodes()
{
    clear();
    findAmbiguousNodes(QString(), qxOpenSGUtils::getRoot(), false);
}

bool qxVariantCaptureChecker::hasSceneAmbiguousNodes()
{
    clear();
    return findAmbiguousNodes(QString(), qxOpenSGUtils::getRoot(), true);
}

bool qxVariantCaptureChecker::findAmbiguousNodes(QString path, osg::NodePtr node, bool stopAtFirst)
{
    if (node == osg::NullFC)
        return false;
    bool found = false;
    const QString name = nameOf(node);
    // Without its last "/", which stands before the name.
    const int above = path.isEmpty() ? 0 : pathBelow(0, path.chopped(path.endsWith('/')));
    const std::vector<Place> top{{node, name, pathBelow(above, name), needsUniqueName(node)}};
    qxWalkTree(top, [&](const Place &place, std::vector<Place> &below) {
        found = visit(place) || found;
        const bool stops = found && stopAtFirst;
        if (stops || hasCore<osg::Geometry>(place.node))
            return !stops;
        const Children children(place.node);
        for (const auto &[child, childName] : children.nodes())
            below.push_back({child, childName, pathBelow(place.path, childName),
                             children.needsUniqueName(child, childName)});
        return true;
    });
    return found;
}

/// The number of the path that leads from that one to a name; 0 is the path of nothing. In deep
/// scenes the texts would be many times as long as all names. A name may hold "/" itself, and then
/// stands for several.
int qxVariantCaptureChecker::pathBelow(int path, const QString &name)
{
    for (const QString &part : name.split('/')) {
        const int next = m_paths.size() + 1;
        int &number = m_paths[{path, part}];
        path = number = number == 0 ? next : number;
    }
    return path;
}

/// Whether the node was reported.
bool qxVariantCaptureChecker::visit(const Place &place)
{
    bool reported = false;
    if (place.needsUniqueName) {
        const auto known = m_nodeOfName.constFind(place.name);
        if (known == m_nodeOfName.constEnd())
            m_nodeOfName.insert(place.name, place.node);
        else if (!qxNodeUtils::isCloneOf(place.node, *known))
            reported = report(place.node);
    } else if (needsUniquePath(place.node)) {
        const auto known = m_nodeOfPath.constFind(place.path);
        if (known != m_nodeOfPath.constEnd())
            return !qxNodeUtils::isCloneOf(place.node, *known) && report(place.node);
    }
    m_nodeOfPath.insert(place.path, place.node);
    return reported;
}

bool qxVariantCaptureChecker::report(const osg::NodePtr &node)
{
    if (!m_reportedCores.insert(node->getCore()).second)
        return false;
    m_ambiguousNodes.push_back(node);
    return true;
}

bool qxVariantCaptureChecker::needsUniqueName(const osg::NodePtr &node) const
{
    if (node == osg::NullFC || node->getCore() == osg::NullFC)
        return false;
    if (hasCore<osg::Switch>(node))
        return true;
    const osg::NodePtr parent = node->getParent();
    if (!hasCore<osg::Switch>(parent))
        return false;
    const std::string name = qxNodeUtils::getName(node);
    for (const osg::NodePtr &sibling : *parent->getMFChildren()) {
        if (sibling != osg::NullFC && sibling != node && qxNodeUtils::getName(sibling) == name)
            return true;
    }
    return false;
}

bool qxVariantCaptureChecker::needsUniquePath(const osg::NodePtr &node) const
{
    const auto geometry = hasCore<osg::Geometry>(node) ? osg::GeometryPtr::dcast(node->getCore())
                                                       : osg::GeometryPtr();
    return geometry != osg::NullFC && geometry->getMaterial() != osg::NullFC;
}
