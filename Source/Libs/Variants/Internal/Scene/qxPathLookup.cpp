#include "Internal/Scene/qxPathLookup.h"

#include "qxNames.h"
#include "qxNodeWalk.h"

#include <algorithm>
#include <cstdint>

namespace {

constexpr unsigned int HashFactor = 16777619u;

/// Nodes by the hash of their path: one flat list, in which the entries of a slot are chained in
/// the order of their addition. It keeps ids, because nodes may be destroyed while it stands.
class PathTable {
public:
    void clear()
    {
        m_entries.clear();
        m_slots.clear();
    }

    void add(unsigned int hash, const osg::NodePtr &node)
    {
        m_entries.push_back({node.getFieldContainerId(), hash, None});
        m_slots.clear();
    }

    std::vector<qxNodePtr> find(unsigned int hash)
    {
        std::vector<qxNodePtr> nodes;
        if (m_entries.empty())
            return nodes;
        if (m_slots.empty())
            chain();
        for (std::uint32_t i = slot(hash); i != None; i = m_entries[i].next) {
            const osg::NodePtr node = qxNodeWithId(m_entries[i].id);
            if (m_entries[i].hash == hash && node != osg::NullFC)
                nodes.push_back(node);
        }
        return nodes;
    }

private:
    static constexpr std::uint32_t None = 0xFFFFFFFF;

    struct Entry {
        osg::UInt32 id;
        unsigned int hash;
        std::uint32_t next;
    };

    std::uint32_t &slot(unsigned int hash) { return m_slots[hash & (m_slots.size() - 1)]; }

    void chain()
    {
        std::size_t size = 1;
        while (size < m_entries.size())
            size *= 2;
        m_slots.assign(size, None);
        // From the back, so that putting each entry in front leaves them in order.
        for (std::size_t i = m_entries.size(); i-- > 0;) {
            std::uint32_t &first = slot(m_entries[i].hash);
            m_entries[i].next = first;
            first = std::uint32_t(i);
        }
    }

    std::vector<Entry> m_entries;
    std::vector<std::uint32_t> m_slots; ///< empty until the first look-up
};

PathTable _pathToNodeMap;

} // namespace

std::string qxPathLookup::utf8Path(const osg::NodePtr &node)
{
    return node == qxScenegraph::getRoot() ? qxNodeUtils::getName(node) : qxNames::pathOf(node);
}

QString qxPathLookup::getNodePath(qxNodePtr node)
{
    return qxText::fromUtf8(utf8Path(node));
}

unsigned int qxPathLookup::hashOf(const char *bytes, unsigned int hash)
{
    for (; *bytes; ++bytes) {
        hash *= HashFactor;
        hash ^= static_cast<unsigned int>(static_cast<signed char>(*bytes));
    }
    return hash;
}

void qxPathLookup::createLookupTable()
{
    _pathToNodeMap.clear();
    const qxNodePtr root = qxScenegraph::getRootNode();
    if (root == osg::NullFC)
        return;
    for (osg::UInt32 i = 0; i < root->getNChildren(); ++i)
        createLookupTableRecursive(root->getChild(i), HashStart);
}

void qxPathLookup::createLookupTableRecursive(qxNodePtr node, unsigned int parentHash)
{
    const osg::NodePtr root = qxScenegraph::getRootNode();
    typedef std::vector<std::pair<osg::NodePtr, unsigned int>> Places;
    qxWalkTree(Places{{node, parentHash}}, [&root](const Places::value_type &place, Places &below) {
        auto [each, hash] = place;
        if (each == osg::NullFC)
            return;
        if (each->getParent() != root)
            hash = hashOf("/", hash);
        hash = hashOf(qxNodeUtils::getName(each).c_str(), hash);
        _pathToNodeMap.add(hash, each);
        for (const osg::NodePtr &child : *each->getMFChildren())
            below.push_back({child, hash});
    });
}

std::vector<qxNodePtr> qxPathLookup::findHash(unsigned int hash)
{
    return _pathToNodeMap.find(hash);
}

std::vector<qxNodePtr> qxPathLookup::findPath(const char *path)
{
    std::vector<qxNodePtr> nodes = findHash(hashOf(path));
    removeFalsePositives(nodes, path);
    return nodes;
}

void qxPathLookup::removeFalsePositives(std::vector<qxNodePtr> &nodes, const std::string &path)
{
    const auto differs = [&path](const qxNodePtr &node) { return utf8Path(node) != path; };
    nodes.erase(std::remove_if(nodes.begin(), nodes.end(), differs), nodes.end());
}
