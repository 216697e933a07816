#pragma once

#include <memory>

namespace osg {
class GraphOp;
}

/// Offers the graph operations that create variants under their names, as long as it lives.
class qxCreators {
public:
    qxCreators();
    qxCreators(const qxCreators &) = delete;
    ~qxCreators();

private:
    const std::unique_ptr<osg::GraphOp> m_prototypes[4];
};
