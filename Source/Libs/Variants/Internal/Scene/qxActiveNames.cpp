#include "Internal/Scene/qxActiveNames.h"

#include "qxNodeUtils.h"

qxActiveNames *qxActiveNames::_outermost = nullptr;

qxActiveNames::qxActiveNames()
{
    if (!_outermost)
        _outermost = this;
}

qxActiveNames::~qxActiveNames()
{
    if (_outermost == this)
        _outermost = nullptr;
}

bool qxActiveNames::contain(const std::string &name)
{
    if (_outermost)
        return _outermost->names().count(name) > 0;
    const qxActiveNames scope;
    return contain(name);
}

const std::unordered_set<std::string> &qxActiveNames::names()
{
    if (m_names)
        return *m_names;
    m_names.emplace();
    for (const qxNodePtr &node : qxNodeUtils::getSceneNodes()) {
        if (node->getActive())
            m_names->insert(qxNodeUtils::getName(node));
    }
    return *m_names;
}
