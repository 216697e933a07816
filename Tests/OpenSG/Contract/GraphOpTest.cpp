#include "Contract.h"

#include <OpenSG/OSGGraphOp.h>
#include <OpenSG/OSGGraphOpFactory.h>
#include <OpenSG/OSGNode.h>

#include <memory>

using namespace osg;

namespace {

template <class Function>
struct FirstArgument;
template <class R, class C, class A>
struct FirstArgument<R (C::*)(A)> {
    using Type = A;
};
using GraphOpNode = FirstArgument<decltype(&GraphOp::traverse)>::Type;

/// Counts nodes; answers as it is told to.
class CountOp : public GraphOp {
public:
    CountOp() : GraphOp("Count") {}
    GraphOp *create() override { return new CountOp; }
    void setParams(const std::string) override {}
    std::string usage() override { return "counts"; }
    virtual bool traverse(NodePtr node) { return GraphOp::traverse(node); }
    Action::ResultE traverseEnter(GraphOpNode) override
    {
        ++m_entered;
        return m_answer;
    }
    Action::ResultE traverseLeave(GraphOpNode, Action::ResultE r) override
    {
        return m_skipsAtTheEnd ? Action::Skip : r;
    }

    Action::ResultE m_answer = Action::Continue;
    bool m_skipsAtTheEnd = false;
    int m_entered = 0;
};

} // namespace

TEST(GraphOps, SucceedOnlyWhenTheWalkEndsWithContinue)
{
    CountOp op;
    const auto root = held<Node>();
    root->addChild(Node::create());
    EXPECT_TRUE(op.traverse(root));
    EXPECT_EQ(op.m_entered, 2);
    op.m_answer = Action::Skip;
    EXPECT_TRUE(op.traverse(root));
    op.m_answer = Action::Quit;
    EXPECT_FALSE(op.traverse(root));
    op.m_answer = Action::Continue;
    op.m_skipsAtTheEnd = true;
    EXPECT_FALSE(op.traverse(root));
}

TEST(GraphOps, AreCreatedByTheNameOfTheirPrototype)
{
    CountOp op;
    GraphOpFactory &factory = GraphOpFactory::the();
    factory.registerOp(&op);
    const std::unique_ptr<GraphOp> created(factory.create("Count"));
    EXPECT_NE(dynamic_cast<CountOp *>(created.get()), nullptr);
    EXPECT_TRUE(created.get() != &op && created->getName() == "Count");
    factory.unRegisterOp(&op);
    EXPECT_EQ(factory.create("Count"), nullptr);
    factory.registerOp(&op);
    factory.unRegisterOp("Count");
    EXPECT_EQ(factory.create("Count"), nullptr);
}

TEST(GraphOps, KeepAnExcludeListThatTheWalkIgnores)
{
    CountOp op;
    const auto root = held<Node>();
    NodePtr child = Node::create();
    root->addChild(child);
    op.addToExcludeList(child);
    EXPECT_TRUE(op.isInExcludeList(child));
    op.traverse(root);
    EXPECT_EQ(op.m_entered, 2);
    op.removeFromExcludeList(child);
    EXPECT_FALSE(op.isInExcludeList(child));
    op.addToExcludeList(child);
    op.clearExcludeList();
    EXPECT_FALSE(op.isInExcludeList(child));
}
