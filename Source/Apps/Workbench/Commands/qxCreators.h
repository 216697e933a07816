#pragma once

#include <memory>

namespace osg {
class GraphOp;
}

/// Registers the graph operations that create variants while it lives.
class qxCreators {
public:
    qxCreators();
    qxCreators(const qxCreators &) = delete;
    ~qxCreators();

private:
    const std::unique_ptr<osg::GraphOp> m_prototypes[4];
};
