#include <OpenSG/OSGGraphOp.h>

#include <OpenSG/OSGSimpleAttachments.h>

#include <cstdlib>

namespace osg {

GraphOp::GraphOp(const char *name) : m_name(name ? name : "") {}

GraphOp::~GraphOp() = default;

bool GraphOp::traverse(const NodePtr &root)
{
    const Action::ResultE result =
        osg::traverse(root, osgTypedMethodFunctor1ObjPtrCPtrRef(this, &GraphOp::enter),
                      osgTypedMethodFunctor2ObjPtrCPtrRef(this, &GraphOp::leave));
    return result == Action::Continue;
}

void GraphOp::addToExcludeList(const NodePtr &node)
{
    m_excludedNodes.insert(node);
}

void GraphOp::addToExcludeList(const std::string &name)
{
    m_excludedNames.insert(name);
}

void GraphOp::removeFromExcludeList(const NodePtr &node)
{
    m_excludedNodes.erase(node);
}

void GraphOp::removeFromExcludeList(const std::string &name)
{
    m_excludedNames.erase(name);
}

void GraphOp::clearExcludeList()
{
    m_excludedNodes.clear();
    m_excludedNames.clear();
}

bool GraphOp::isInExcludeList(const NodePtr &node)
{
    if (m_excludedNodes.count(node) != 0)
        return true;
    // Null and unnamed nodes are in no list of names.
    const Char8 *name = osg::getName(node);
    return name && m_excludedNames.count(name) != 0;
}

GraphOp::ParamSet::ParamSet(const std::string &params)
{
    const char *const blanks = " \t\n,;";
    for (size_t at = params.find_first_not_of(blanks); at != std::string::npos;
         at = params.find_first_not_of(blanks, at)) {
        const size_t nameEnd = params.find_first_of(std::string(blanks) + "=", at);
        const std::string name = params.substr(at, nameEnd - at);
        std::string &value = m_values[name];
        at = std::min(nameEnd, params.size());
        if (at == params.size() || params[at] != '=')
            continue;
        // A value in quotation marks may contain blanks.
        const bool isQuoted = at + 1 < params.size() && params[at + 1] == '"';
        const size_t begin = isQuoted ? at + 2 : at + 1;
        const size_t end =
            std::min(params.find_first_of(isQuoted ? "\"" : blanks, begin), params.size());
        value = params.substr(begin, end - begin);
        at = isQuoted ? std::min(end + 1, params.size()) : end;
    }
}

bool GraphOp::ParamSet::operator()(const char *name, std::string &value)
{
    const auto found = m_values.find(name);
    if (found == m_values.end())
        return false;
    m_used.insert(name);
    value = found->second;
    return true;
}

bool GraphOp::ParamSet::operator()(const char *name, bool &value)
{
    std::string text;
    if (!(*this)(name, text))
        return false;
    value = text == "1" || text == "true" || text == "TRUE" || text == "yes";
    return true;
}

bool GraphOp::ParamSet::operator()(const char *name, Real32 &value)
{
    std::string text;
    if (!(*this)(name, text))
        return false;
    value = std::strtof(text.c_str(), nullptr);
    return true;
}

bool GraphOp::ParamSet::operator()(const char *name, UInt32 &value)
{
    std::string text;
    if (!(*this)(name, text))
        return false;
    value = UInt32(std::strtoul(text.c_str(), nullptr, 10));
    return true;
}

std::string GraphOp::ParamSet::getUnusedParams() const
{
    std::string unused;
    for (const auto &[name, value] : m_values) {
        if (m_used.count(name) == 0)
            unused += (unused.empty() ? "" : " ") + name;
    }
    return unused;
}

} // namespace osg
