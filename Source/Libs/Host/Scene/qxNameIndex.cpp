#include "Scene/qxNameIndex.h"

#include "Scene/qxNodeName.h"
#include "qxNodeWalk.h"
#include "qxScenegraph.h"

#include <functional>
#include <string_view>

namespace {

const std::uint32_t none = 0xFFFFFFFF;

std::size_t hashOf(const char *name)
{
    return std::hash<std::string_view>()(name);
}

std::size_t powerOfTwoAbove(std::size_t count)
{
    std::size_t size = 1;
    while (size <= count)
        size *= 2;
    return size;
}

} // namespace

qxNameIndex::qxNameIndex(const std::vector<osg::NodePtr> &tops)
{
    for (const osg::NodePtr &top : tops) {
        qxWalkNodes(top, [this](const osg::NodePtr &node) {
            m_entries.push_back({node.getFieldContainerId(), hashOf(qxNodeName(node)), none});
        });
    }
    m_slots.assign(powerOfTwoAbove(m_entries.size()), none);
    // From the back, so that putting each entry in front leaves the chains in scene order.
    for (std::size_t i = m_entries.size(); i-- > 0;) {
        std::uint32_t &slot = m_slots[m_entries[i].hash & (m_slots.size() - 1)];
        m_entries[i].next = slot;
        slot = std::uint32_t(i);
    }
}

osg::NodePtr qxNameIndex::match(const Entry &entry, std::size_t hash, const char *name)
{
    if (entry.hash != hash)
        return osg::NodePtr();
    const osg::NodePtr node = qxNodeWithId(entry.id);
    if (node == osg::NullFC)
        return node;
    const bool isThere = node->getParent() != osg::NullFC || node == qxScenegraph::getRoot()
        || node == qxScenegraph::environmentGeometrySwitch();
    return isThere && qxIsFoundBy(node, name) ? node : osg::NodePtr();
}

qxNodePtr qxNameIndex::first(const char *name) const
{
    const std::size_t hash = hashOf(name);
    for (std::uint32_t i = chain(hash); i != none; i = m_entries[i].next) {
        const osg::NodePtr node = match(m_entries[i], hash, name);
        if (node != osg::NullFC)
            return node;
    }
    return qxNodePtr();
}

std::vector<qxNodePtr> qxNameIndex::all(const char *name) const
{
    std::vector<qxNodePtr> found;
    const std::size_t hash = hashOf(name);
    for (std::uint32_t i = chain(hash); i != none; i = m_entries[i].next) {
        const osg::NodePtr node = match(m_entries[i], hash, name);
        if (node != osg::NullFC)
            found.push_back(node);
    }
    return found;
}
