#include "Internal/Capture/qxCaptureState.h"

#include "qxNodeUtils.h"

namespace {

std::unordered_set<std::string> activeNames()
{
    std::unordered_set<std::string> names;
    for (const qxNodePtr &node : qxNodeUtils::getSceneNodes()) {
        if (node->getActive())
            names.insert(qxNodeUtils::getName(node));
    }
    return names;
}

} // namespace

qxCaptureState *qxCaptureState::s_current = nullptr;

qxCaptureState::qxCaptureState(const qxVariantSet &set, bool findsNodes)
    : m_set(&set), m_outer(s_current), m_reconciler(m_set), m_cache(findsNodes)
{
    s_current = this;
}

bool qxCaptureState::hasActiveNode(const std::string &name)
{
    if (!s_current)
        return activeNames().count(name) > 0;
    std::optional<std::unordered_set<std::string>> &names = s_current->m_activeNames;
    if (!names)
        names = activeNames();
    return names->count(name) > 0;
}

void qxCaptureState::reconcile(const osg::NodePtr &node, const QString &path,
                               const osg::MaterialPtr &material,
                               const qxSnapshotReconciler::Scope &scope)
{
    if (node == osg::NullFC || node->getCore() == osg::NullFC)
        return;
    if (s_current && s_current->m_set == scope.set)
        s_current->m_reconciler.handle(node, path, material, scope);
    else
        qxSnapshotReconciler(scope.set).handle(node, path, material, scope);
}
