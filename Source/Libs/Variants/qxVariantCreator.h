#pragma once

#include <OpenSG/OSGGraphOp.h>

/// The node parameter of graph operations: OpenSG releases differ in whether it is const, so the
/// type is taken from the base class and overrides fit either.
template <class Method>
struct qxFirstArgument;
template <class Result, class Class, class Argument>
struct qxFirstArgument<Result (Class::*)(Argument)> {
    typedef Argument type;
};
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

    void setParams(const std::string parameters) override;
    /// Empty: there is nothing to set.
    std::string usage() override;

    /// Walks the tree below `node`, depth first, and answers true.
    virtual bool traverse(osg::NodePtr node);
    osg::Action::ResultE traverseLeave(qxGraphOpNode node, osg::Action::ResultE result) override;

protected:
    explicit qxVariantCreator(const char *name);

    /// Whether the node is a switch that has something to choose from.
    static bool isSwitchWithChildren(const osg::NodePtr &node);
};

#pragma GCC diagnostic pop
