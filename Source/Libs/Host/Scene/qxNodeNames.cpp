#include "Scene/qxNodeNames.h"

#include "Scene/qxNodeName.h"
#include "qxNodeUtils.h"
#include "qxNodeWalk.h"

#include <OpenSG/OSGSimpleAttachments.h>

#include <algorithm>

void qxNodeNames::count(const osg::NodePtr &root)
{
    m_counts.clear();
    m_tried.clear();
    qxWalkNodes(root, [this](const osg::NodePtr &node) {
        ++m_counts[qxNodeName(node)];
        return true;
    });
}

void qxNodeNames::follow(const osg::NodePtr &root)
{
    bool edited = false;
    const qxEditReader::Follower follower{[&edited](osg::UInt32, osg::BitVector) { edited = true; },
                                          [&edited](osg::UInt32) { edited = true; }};
    const bool complete = m_edits.read(root, follower);
    if (complete && !edited && m_root == root.getFieldContainerId())
        return;
    m_root = root.getFieldContainerId();
    count(root);
}

std::string qxNodeNames::freeName(const std::string &name)
{
    if (m_counts.count(name) == 0)
        return name;
    std::size_t &number = m_tried.emplace(name, 2).first->second;
    std::string numbered;
    do
        numbered = name + ' ' + std::to_string(number++);
    while (m_counts.count(numbered) > 0);
    return numbered;
}

void qxNodeNames::rename(const osg::NodePtr &node, const std::string &name,
                         const osg::NodePtr &root)
{
    follow(root);
    const std::string before = qxNodeName(node);
    std::vector<qxNodePtr> same;
    qxNodeUtils::getInstancesInScenegraph(node, same);
    const auto differs = [&before](const qxNodePtr &each) { return before != qxNodeName(each); };
    same.erase(std::remove_if(same.begin(), same.end(), differs), same.end());
    if (same.empty())
        same.push_back(node); // not part of the scene

    const auto known = m_counts.find(before);
    if (known != m_counts.end() && known->second <= same.size()) {
        m_counts.erase(known);
        m_tried.clear(); // the name may be one of the numbered ones that were taken
    } else if (known != m_counts.end()) {
        known->second -= same.size();
    }
    const std::string after = freeName(name);
    m_counts[after] += same.size();
    for (const qxNodePtr &each : same)
        osg::setName(each, after);
    const qxEditReader::Follower own{[](osg::UInt32, osg::BitVector) {}, [](osg::UInt32) {}};
    m_edits.read(root, own);
}
