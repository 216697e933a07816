#include "Contract.h"

#include <OpenSG/OSGAction.h>
#include <OpenSG/OSGGraphOp.h>

#include <map>

using namespace osg;

using Result = Action::ResultE;

/// Writes down what it is called with. Answers as told, else Continue and what it was handed.
struct Visitor {
    Result enter(NodePtr &node)
    {
        const std::string name = node == NullFC ? "null" : getName(node);
        log += " " + name;
        return enters.emplace(name, Action::Continue).first->second;
    }
    Result leave(NodePtr &node, Result result)
    {
        log += std::string(" /") + getName(node) + std::to_string(int(result));
        return leaves.count(getName(node)) ? leaves[getName(node)] : result;
    }

    std::map<std::string, Result> enters, leaves;
    std::string log;
};

static NodePtr named(const char *name, const std::vector<NodePtr> &children = {})
{
    const NodePtr node = Node::create();
    setName(node, name);
    for (const NodePtr &child : children)
        node->addChild(child);
    return node;
}

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

class Walks : public testing::Test {
protected:
    Result walk(NodePtr root)
    {
        return traverse(root, osgTypedMethodFunctor1ObjPtrCPtrRef(&m_visitor, &Visitor::enter));
    }
    Result walkAndLeave()
    {
        return traverse(m_root, osgTypedMethodFunctor1ObjPtrCPtrRef(&m_visitor, &Visitor::enter),
                        osgTypedMethodFunctor2ObjPtrCPtrRef(&m_visitor, &Visitor::leave));
    }

    const NodePtr m_b = named("b"), m_a = named("a", {m_b, named("c")}), m_d = named("d");
    const NodeRefPtr m_root{named("root", {m_a, m_d})};
    Visitor m_visitor;
};

TEST_F(Walks, SkipChildrenAndStopWhenTold)
{
    m_visitor.enters = {{"a", Action::Skip}, {"d", Action::Quit}, {"null", Action::Skip}};
    EXPECT_EQ(walk(m_root), Action::Quit);
    EXPECT_EQ(walk(m_a), Action::Continue);
    walk(NodePtr());
    EXPECT_EQ(m_visitor.log, " root a d a null");
}

TEST_F(Walks, LeaveEveryNodeThatTheyEntered)
{
    m_root->setCore(Switch::create());
    m_a->setTravMask(0);
    m_visitor.enters = {{"d", Action::Skip}};
    EXPECT_EQ(walkAndLeave(), Action::Continue);
    EXPECT_EQ(m_visitor.log, " root a b /b0 c /c0 /a0 d /d0 /root0");
}

TEST_F(Walks, StopOnlyWhenLeaveHandsQuitOn)
{
    m_visitor.enters = {{"b", Action::Quit}};
    EXPECT_EQ(walkAndLeave(), Action::Quit);
    m_visitor.leaves = {{"b", Action::Continue}, {"root", Action::Skip}};
    EXPECT_EQ(walkAndLeave(), Action::Skip);
    m_visitor.leaves = {{"b", Action::Skip}, {"d", Action::Skip}};
    EXPECT_EQ(walkAndLeave(), Action::Skip); // The last child's result; Skip stops no siblings.
    EXPECT_EQ(m_visitor.log,
              " root a b /b2 /a2 /root2"
              " root a b /b2 c /c0 /a0 d /d0 /root0"
              " root a b /b2 c /c0 /a0 d /d0 /root1");
}

TEST_F(Walks, TakeAListOfRootsAndFreeFunctions)
{
    const auto enter = osgTypedFunctionFunctor1CPtrRef<Result, NodePtr>(
        +[](NodePtr &node) { return node->getActive() ? Action::Continue : Action::Quit; });
    const auto leave = osgTypedFunctionFunctor2CPtrRef<Result, NodePtr, Result>(
        +[](NodePtr &, Result) { return Action::Quit; });
    std::vector<NodePtr> roots{m_d, m_a};
    EXPECT_EQ(traverse(roots, enter), Action::Continue);
    EXPECT_EQ(traverse(roots, enter, leave), Action::Quit);
    m_b->setActive(false);
    EXPECT_EQ(traverse(roots, enter), Action::Quit);
    roots.clear();
    EXPECT_EQ(traverse(roots, enter), Action::Continue);
}

TEST_F(Walks, OfAGraphOpVisitWhatIsExcludedAndSucceedOnlyWhenTheyEndWithContinue)
{
    CountOp op;
    NodePtr excluded = m_a;
    op.addToExcludeList(excluded);
    EXPECT_TRUE(op.isInExcludeList(excluded));
    EXPECT_TRUE(op.traverse(m_root));
    EXPECT_EQ(op.m_entered, 5);
    op.removeFromExcludeList(excluded);
    EXPECT_FALSE(op.isInExcludeList(excluded));
    op.addToExcludeList(excluded);
    op.clearExcludeList();
    EXPECT_FALSE(op.isInExcludeList(excluded));

    op.m_answer = Action::Skip;
    EXPECT_TRUE(op.traverse(m_root));
    op.m_answer = Action::Quit;
    EXPECT_FALSE(op.traverse(m_root));
    op.m_answer = Action::Continue;
    op.m_skipsAtTheEnd = true;
    EXPECT_FALSE(op.traverse(m_root));
}
