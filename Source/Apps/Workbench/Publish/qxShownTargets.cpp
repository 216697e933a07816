#include "qxShownTargets.h"

#include "qxVariantSet.h"

#include "qxNames.h"
#include "qxNodeWalk.h"

#include <algorithm>

qxShownTargets::qxShownTargets(const qxSlots &slots)
{
    add(qxScenegraph::getRoot(), slots);
    add(qxScenegraph::environmentGeometrySwitch(), slots);
}

void qxShownTargets::add(const osg::NodePtr &top, const qxSlots &slots)
{
    std::vector<osg::NodePtr> order;
    qxWalkNodes(top, [&order](const osg::NodePtr &node) { order.push_back(node); });
    const int first = m_ranges.size();
    for (std::size_t i = 0; i < order.size(); ++i) {
        const int place = first + int(i);
        m_ranges.insert(order[i].getFieldContainerId(), {place, place + 1});
        const qxSceneObject object(order[i]);
        const bool isHidden = !qxStateRules::valueOf(object, qxAspect::Visibility);
        if (!isHidden && slots.find(object, qxAspect::Visibility) < 0)
            continue;
        m_hideable.push_back({place, order[i]});
        m_isHideable.insert(order[i].getFieldContainerId());
    }
    // The children of a node have all that is below them when it is the node's turn.
    for (auto node = order.rbegin(); node != order.rend() && *node != top; ++node) {
        Range &above = m_ranges[(*node)->getParent().getFieldContainerId()];
        above.end = std::max(above.end, m_ranges[node->getFieldContainerId()].end);
    }
}

std::vector<osg::NodePtr> qxShownTargets::of(const qxVariantSet &set) const
{
    std::vector<osg::NodePtr> nodes;
    if (!set.inclNodes)
        return nodes;
    for (const QString &name : set.targetNodeNames) {
        const osg::NodePtr target = qxNames::findNode(name);
        if (target == osg::NullFC)
            break; // The module looks for no further ones either.
        const Range range = m_ranges.value(target.getFieldContainerId());
        auto found = std::lower_bound(
            m_hideable.begin(), m_hideable.end(), range.begin,
            [](const auto &hideable, int place) { return hideable.first < place; });
        for (; found != m_hideable.end() && found->first < range.end; ++found)
            nodes.push_back(found->second);
        for (osg::NodePtr above = target->getParent(); above != osg::NullFC;
             above = above->getParent()) {
            if (m_isHideable.contains(above.getFieldContainerId()))
                nodes.push_back(above);
        }
    }
    return nodes;
}
