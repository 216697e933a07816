#pragma once

#include "qxKernelServiceFactory.h"

#include <QList>
#include <QPair>

/// Addresses in requests that may come from other processes.
namespace QRPC {

/// Addresses one named transform state: the node's identifier (qxNodePtr::getID) and the index of
/// the state.
class NodeTrafoId : public QPair<unsigned int, int> {
public:
    ///@{
    /// The address of a state; node 0 is no node.
    NodeTrafoId(unsigned int node = 0, int state = 0) : QPair<unsigned int, int>(node, state) {}
    NodeTrafoId(const NodeTrafoId &) = default;
    NodeTrafoId &operator=(const NodeTrafoId &) = default;
    virtual ~NodeTrafoId() {}
    ///@}
};

} // namespace QRPC

/// Puts nodes into one of their named transform states. Every host has one.
class qxTransformService : public qxBaseService {
public:
    ~qxTransformService() override;

    /// Selects each requested state, within `duration` milliseconds (0 jumps), after `delay`
    /// milliseconds. Unknown nodes and states are ignored.
    virtual void selectTransformVariants(const QList<QRPC::NodeTrafoId> &requests, int duration,
                                         int delay) = 0;
};
