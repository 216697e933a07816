#pragma once

#include "qxSlots.h"

class qxVariantSet;

/// Which slots show the nodes that sets were captured from, before their states are selected. Only
/// nodes that can be hidden count, so that a set of the whole scene is as long as the others.
class qxShownTargets {
public:
    /// All slots of aspects must be there, but for those of nodes that are always hidden unless
    /// such a set shows them.
    explicit qxShownTargets(const qxSlots &slots);

    /// The nodes with all that is below and above them, as far as they can be hidden.
    std::vector<osg::NodePtr> of(const qxVariantSet &set) const;

private:
    struct Range {
        int begin;
        int end;
    };

    void add(const osg::NodePtr &top, const qxSlots &slots);

    QHash<osg::UInt32, Range> m_ranges; ///< of a node and all below, in the order of the scene
    std::vector<std::pair<int, osg::NodePtr>> m_hideable; ///< with their places in that order
    QSet<osg::UInt32> m_isHideable;
};
