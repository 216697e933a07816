#pragma once

#include <map>
#include <string>

namespace osg {

class GraphOp;

/// The operations that can be created by name. Prototypes belong to those who register them.
class GraphOpFactory {
public:
    /// The only one.
    static GraphOpFactory &the();

    /// Replaces one of the same name.
    void registerOp(GraphOp *prototype);
    /// Nothing happens when it is not registered.
    void unRegisterOp(GraphOp *prototype);
    void unRegisterOp(const char *name);

    /// A new operation, owned by the caller; NULL when the name is unknown.
    GraphOp *create(const char *name);

private:
    GraphOpFactory() = default;
    GraphOpFactory(const GraphOpFactory &) = delete;

    std::map<std::string, GraphOp *> m_prototypes;
};

} // namespace osg
