#include "Scene/qxPathIndex.h"

#include "Scene/qxNodeName.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <algorithm>
#include <string_view>

namespace {

constexpr std::size_t emptyPath = 0xCBF29CE484222325;

/// The hash of a path (FNV-1a, 64 bits) that goes on with `text`.
std::size_t hashOf(std::string_view text, std::size_t hash)
{
    for (const char each : text)
        hash = (hash ^ static_cast<unsigned char>(each)) * 0x100000001B3;
    return hash;
}

/// A node to look at, and what is known of the path above it.
struct Candidate {
    osg::NodePtr node;
    std::size_t above;
};

void addChildren(std::vector<Candidate> &open, const osg::NodePtr &node, std::size_t above)
{
    const osg::MFNodePtr &children = *node->getMFChildren();
    for (auto child = children.rbegin(); child != children.rend(); ++child)
        open.push_back({*child, above});
}

/// Where paths begin, the first one at the end.
std::vector<Candidate> tops(std::size_t above)
{
    std::vector<Candidate> open;
    const osg::NodePtr environment = qxScenegraph::environmentGeometrySwitch();
    if (environment != osg::NullFC)
        open.push_back({environment, above});
    const osg::NodePtr root = qxScenegraph::getRoot();
    if (root != osg::NullFC)
        addChildren(open, root, above);
    return open;
}

bool isTop(const osg::NodePtr &node)
{
    const osg::NodePtr parent = node->getParent();
    return node == qxScenegraph::environmentGeometrySwitch()
        || (parent != osg::NullFC && parent == qxScenegraph::getRoot());
}

/// Follows only nodes whose path begins the path that is sought. Names may hold "/" themselves, so
/// the path cannot be split beforehand.
osg::NodePtr walkTo(const std::string &path)
{
    std::vector<Candidate> open = tops(0);
    while (!open.empty()) {
        const Candidate candidate = open.back();
        open.pop_back();
        const std::string_view name = qxNodeName(candidate.node);
        if (path.compare(candidate.above, name.size(), name) != 0)
            continue;
        const std::size_t end = candidate.above + name.size();
        if (end == path.size())
            return candidate.node;
        if (path[end] == '/')
            addChildren(open, candidate.node, end + 1);
    }
    return osg::NullFC;
}

bool hasPath(osg::NodePtr node, std::string_view path)
{
    while (node != osg::NullFC) {
        const std::string_view name = qxNodeName(node);
        if (path.size() < name.size() || path.substr(path.size() - name.size()) != name)
            return false;
        path.remove_suffix(name.size());
        if (isTop(node))
            return path.empty();
        if (path.empty() || path.back() != '/')
            return false;
        path.remove_suffix(1);
        node = node->getParent();
    }
    return false;
}

bool isBefore(const std::pair<std::size_t, osg::NodePtr> &one,
              const std::pair<std::size_t, osg::NodePtr> &other)
{
    return one.first < other.first;
}

} // namespace

osg::NodePtr qxPathIndex::first(const std::string &path)
{
    if (path.empty())
        return osg::NullFC;
    follow();
    if (m_nodes.empty() && ++m_walks < 2)
        return walkTo(path);
    if (m_nodes.empty())
        build();
    return lookUp(path);
}

void qxPathIndex::follow()
{
    const auto idOf = [](const osg::NodePtr &node) {
        return node == osg::NullFC ? 0 : node.getFieldContainerId();
    };
    const osg::NodePtr root = qxScenegraph::getRoot();
    const std::pair<osg::UInt32, osg::UInt32> now(idOf(root),
                                                  idOf(qxScenegraph::environmentGeometrySwitch()));
    bool outdated = now != m_tops;
    const qxEditReader::Follower follower{[&](osg::UInt32 id, osg::BitVector mask) {
                                              outdated = outdated
                                                  || (!m_nodes.empty() && isOutdatedBy(id, mask));
                                          },
                                          [&](osg::UInt32) { outdated = true; }};
    const bool complete = root != osg::NullFC && m_edits.read(root, follower);
    if (complete && !outdated)
        return;
    m_tops = now;
    m_nodes.clear();
    m_walks = 0;
}

void qxPathIndex::build()
{
    std::vector<Candidate> open = tops(emptyPath);
    while (!open.empty()) {
        const Candidate candidate = open.back();
        open.pop_back();
        const std::size_t hash = hashOf(qxNodeName(candidate.node), candidate.above);
        m_nodes.emplace_back(hash, candidate.node);
        addChildren(open, candidate.node, hashOf("/", hash));
    }
    std::stable_sort(m_nodes.begin(), m_nodes.end(), isBefore);
}

osg::NodePtr qxPathIndex::lookUp(const std::string &path) const
{
    const auto [begin, end] =
        std::equal_range(m_nodes.begin(), m_nodes.end(),
                         std::make_pair(hashOf(path, emptyPath), osg::NodePtr()), isBefore);
    const auto found =
        std::find_if(begin, end, [&](const auto &each) { return hasPath(each.second, path); });
    return found == end ? osg::NodePtr() : found->second;
}

/// Attachments are often no names: what hides a material group is one.
bool qxPathIndex::isOutdatedBy(osg::UInt32 edited, osg::BitVector mask) const
{
    const osg::FieldContainerPtr object = osg::FieldContainerFactory::the()->getContainer(edited);
    if (object == osg::NullFC)
        return true;
    const osg::FieldContainerType &type = object->getType();
    const bool isAttached = (mask & osg::AttachmentContainer::AttachmentsFieldMask) != 0;
    const osg::BitVector structure =
        osg::Node::ParentFieldMask | osg::Node::ChildrenFieldMask | osg::Node::CoreFieldMask;
    if (type.isNode())
        return (mask & structure) || (isAttached && !isRight(osg::NodePtr::dcast(object)));
    if (!type.isNodeCore())
        return type.isDerivedFrom(osg::Name::getClassType());
    if (!isAttached)
        return false;
    const osg::MFNodePtr &users = osg::NodeCorePtr::dcast(object)->getParents();
    return !std::all_of(users.begin(), users.end(),
                        [this](const osg::NodePtr &node) { return isRight(node); });
}

/// Whether the table has the node under the path that it has now, or need not have it.
bool qxPathIndex::isRight(const osg::NodePtr &node) const
{
    std::vector<osg::NodePtr> steps(1, node);
    while (!isTop(steps.back())) {
        const osg::NodePtr parent = steps.back()->getParent();
        if (parent == osg::NullFC)
            return true; // not of the scene
        steps.push_back(parent);
    }
    std::size_t hash = hashOf(qxNodeName(steps.back()), emptyPath);
    for (auto step = steps.rbegin() + 1; step != steps.rend(); ++step)
        hash = hashOf(qxNodeName(*step), hashOf("/", hash));
    const auto [begin, end] = std::equal_range(m_nodes.begin(), m_nodes.end(),
                                               std::make_pair(hash, osg::NodePtr()), isBefore);
    return std::any_of(begin, end, [&](const auto &each) { return each.second == node; });
}
