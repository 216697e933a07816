#pragma once

#include "qxScenegraph.h"

/// Keeps the host's cache of node names switched on for one scope: nodes that are renamed or added
/// in it are not found by name, removed ones drop out. A cache that is on already is used and left
/// alone.
class qxFindCache {
public:
    /// Switches the cache on, unless it is not wanted or on already.
    explicit qxFindCache(bool wanted) : m_isMine(!qxScenegraph::hasFindCache() && wanted)
    {
        if (m_isMine)
            qxScenegraph::initFindCache();
    }
    /// Switches off what the constructor switched on.
    ~qxFindCache()
    {
        if (m_isMine)
            qxScenegraph::clearFindCache();
    }
    qxFindCache(const qxFindCache &) = delete;
    qxFindCache &operator=(const qxFindCache &) = delete;

private:
    const bool m_isMine;
};
