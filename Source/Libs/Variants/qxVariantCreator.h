#pragma once

#include <OpenSG/OSGGraphOp.h>

/// The type of the first parameter of a method.
template <class Method>
struct qxFirstArgument;
/// The same.
template <class Result, class Class, class Argument>
struct qxFirstArgument<Result (Class::*)(Argument)> {
    typedef Argument type; ///< as it is declared
};
/// The node parameter of graph operations: OpenSG releases differ in whether it is const, so the
/// type is taken from the base class and overrides fit either.
typedef qxFirstArgument<decltype(&osg::GraphOp::traverse)>::type qxGraphOpNode;

// `traverse` stands in for that of the base, which takes a reference.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Woverloaded-virtual"

/// What the graph operations that create variants have in common: they take no parameters, visit
/// the whole sub-tree, also below nodes that gave a variant, and never fail.
///
/// Variants are created without notification each.
class qxVariantCreator : public osg::GraphOp {
public:
    ~qxVariantCreator() override;

    /// Ignores them: there is nothing to set.
    void setParams(const std::string parameters) override;
    /// Empty: there is nothing to set.
    std::string usage() override;

    /// Whether the walk makes a variant of this node, as long as the registry has none of its name.
    /// False for a null node.
    virtual bool takes(const osg::NodePtr &node) const = 0;
    /// Walks the tree below `node`, depth first, and answers true.
    virtual bool traverse(osg::NodePtr node);
    /// Always goes on.
    osg::Action::ResultE traverseLeave(qxGraphOpNode node, osg::Action::ResultE result) override;

protected:
    /// The name is the one that the factory of graph operations knows.
    explicit qxVariantCreator(const char *name);

    /// Whether the node is a switch that has something to choose from.
    static bool isSwitchWithChildren(const osg::NodePtr &node);
};

#pragma GCC diagnostic pop
