#include <OpenSG/OSGAction.h>

namespace osg {

namespace {

/// The walk with both callbacks, or with enter alone.
class Walk {
public:
    explicit Walk(const TraverseEnterFunctor &enter, const TraverseLeaveFunctor *leave = nullptr)
        : m_enter(enter), m_leave(leave)
    {
    }

    // By value: callbacks may write to their variable.
    Action::ResultE visit(NodePtr node) const
    {
        Action::ResultE result = m_enter.call(node);
        // Skip is about the children only; for all others the walk goes on.
        if (result == Action::Skip)
            result = Action::Continue;
        else if (result == Action::Continue && node)
            result = visitChildren(*node);
        return m_leave ? m_leave->call(node, result) : result;
    }

    Action::ResultE visitAll(const std::vector<NodePtr> &nodes) const
    {
        Action::ResultE result = Action::Continue;
        for (size_t i = 0; i < nodes.size() && result != Action::Quit; ++i) {
            if (nodes.size() - i > 4)
                fetch(nodes[i + 4].getCPtr());
            result = visit(nodes[i]);
        }
        return result;
    }

private:
    // Nodes lie scattered in memory: waiting for them would take most of the time of a walk.
    static void fetch(Node *node)
    {
        __builtin_prefetch(node);
        __builtin_prefetch(node->getMFChildren());
    }

    Action::ResultE visitChildren(Node &node) const
    {
        return visitAll(node.getMFChildren()->getValues());
    }

    const TraverseEnterFunctor &m_enter;
    const TraverseLeaveFunctor *m_leave;
};

} // namespace

Action::ResultE traverse(NodePtr root, TraverseEnterFunctor enter)
{
    return Walk(enter).visit(root);
}

Action::ResultE traverse(NodePtr root, TraverseEnterFunctor enter, TraverseLeaveFunctor leave)
{
    return Walk(enter, &leave).visit(root);
}

Action::ResultE traverse(std::vector<NodePtr> &roots, TraverseEnterFunctor enter)
{
    return Walk(enter).visitAll(roots);
}

Action::ResultE traverse(std::vector<NodePtr> &roots, TraverseEnterFunctor enter,
                         TraverseLeaveFunctor leave)
{
    return Walk(enter, &leave).visitAll(roots);
}

} // namespace osg
