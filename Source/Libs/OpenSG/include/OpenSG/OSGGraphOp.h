#pragma once

#include <OpenSG/OSGAction.h>

#include <map>
#include <set>
#include <string>

namespace osg {

/// An operation on a scene, which is found by name, set up by a text and run on a tree.
class GraphOp {
public:
    GraphOp(const char *name = "");
    GraphOp(const GraphOp &) = delete;
    /// A new operation of the same class, owned by the caller. Declared first, as 1.8 does: its
    /// place among the virtual functions is part of the binary interface.
    virtual GraphOp *create() = 0;
    virtual ~GraphOp();

    /// Takes settings from a text `name=value name="value with blanks"`.
    virtual void setParams(const std::string params) = 0;
    /// What the operation does and which settings it has.
    virtual std::string usage() = 0;

    /// Calls traverseEnter() and traverseLeave() all over the tree. True when the walk's result is
    /// Continue. The exclude list is left to the operation.
    virtual bool traverse(const NodePtr &root);

    /// The name that GraphOpFactory knows it by.
    const std::string &getName() const { return m_name; }
    void setName(const char *name) { m_name = name ? name : ""; }

    /// \name Nodes that the operation shall leave alone, one by one or by name
    /// Nodes are not referenced.
    /// @{
    void addToExcludeList(const NodePtr &node);
    void addToExcludeList(const std::string &name);
    void removeFromExcludeList(const NodePtr &node);
    void removeFromExcludeList(const std::string &name);
    void clearExcludeList();
    bool isInExcludeList(const NodePtr &node);
    /// @}

protected:
    /// The settings in a text. Asking for one marks it as used; the answer is false, and the value
    /// as before, when it is not there.
    class ParamSet {
    public:
        /// Blanks, commas and semicolons separate settings.
        explicit ParamSet(const std::string &params);
        bool operator()(const char *name, std::string &value);
        bool operator()(const char *name, bool &value);
        bool operator()(const char *name, Real32 &value);
        bool operator()(const char *name, UInt32 &value);
        /// Names that nobody asked for, separated by blanks.
        std::string getUnusedParams() const;

    private:
        std::map<std::string, std::string> m_values;
        std::set<std::string> m_used;
    };

    virtual Action::ResultE traverseEnter(const NodePtr &node) = 0;
    virtual Action::ResultE traverseLeave(const NodePtr &node, Action::ResultE result) = 0;

private:
    Action::ResultE enter(NodePtr &node) { return traverseEnter(node); }
    Action::ResultE leave(NodePtr &node, Action::ResultE result)
    {
        return traverseLeave(node, result);
    }

    std::string m_name;
    std::set<NodePtr> m_excludedNodes;
    std::set<std::string> m_excludedNames;
};

} // namespace osg
