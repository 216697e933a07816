#pragma once

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGTypedFunctors.h>

#include <vector>

namespace osg {

/// What a visit of a node may say about how to go on.
class Action {
public:
    enum ResultE {
        Continue = 0, ///< on with the children
        Skip = 1, ///< on, but not below this node
        Quit = 2 ///< no further
    };
};

/// Called before and after the children of a node.
typedef TypedFunctor<Action::ResultE, NodePtr &> TraverseEnterFunctor;
typedef TypedFunctor<Action::ResultE, NodePtr &, Action::ResultE> TraverseLeaveFunctor;

/// \name Traversal
/// Visits a tree, or several one after the other, depth first. Purely structural: hidden nodes, all
/// children of switches and nodes without core are visited too. The children being walked over must
/// not change meanwhile.
///
/// `leave` is called for every node entered, also after Skip (as Continue) and Quit, with the
/// result of the last child visited, and what it returns is the result of the node: to end the walk
/// it has to hand Quit on.
/// @{
Action::ResultE traverse(NodePtr root, TraverseEnterFunctor enter);
Action::ResultE traverse(NodePtr root, TraverseEnterFunctor enter, TraverseLeaveFunctor leave);
Action::ResultE traverse(std::vector<NodePtr> &roots, TraverseEnterFunctor enter);
Action::ResultE traverse(std::vector<NodePtr> &roots, TraverseEnterFunctor enter,
                         TraverseLeaveFunctor leave);
/// @}

} // namespace osg
