#include "Internal/Capture/qxNodeNameGuard.h"

#include "Internal/Scene/qxPathLookup.h"
#include "qxVariantCaptureChecker.h"
#include "qxVariantLists.h"
#include "qxVariantSet.h"

#include "qxController.h"
#include "qxLog.h"
#include "qxNames.h"
#include "qxNodeUtils.h"
#include "qxOpenSGUtils.h"

#include <OpenSG/OSGSwitch.h>

#include <QApplication>
#include <QMessageBox>
#include <QPair>
#include <QPushButton>
#include <QSet>

namespace {

/// An arrow as mouse pointer for one scope: what is asked can be answered even while the
/// application is busy.
class ArrowCursor {
public:
    ArrowCursor() { QApplication::setOverrideCursor(Qt::ArrowCursor); }
    ~ArrowCursor() { QApplication::restoreOverrideCursor(); }
    ArrowCursor(const ArrowCursor &) = delete;
    ArrowCursor &operator=(const ArrowCursor &) = delete;
};

QString question(const std::vector<osg::NodePtr> &nodes)
{
    QString text =
        QCoreApplication::translate("qxVariants",
                                    "Some nodes have the same name and/or node path. In order to "
                                    "continue, the names of those nodes will be changed.\n ");
    if (qxNodeNameGuard::areReferredTo(nodes))
        text += QCoreApplication::translate(
            "qxVariants", "\nWarning: Renaming might break existing variant sets!\n");
    return text;
}

void logNodes(const std::vector<osg::NodePtr> &nodes)
{
    for (const osg::NodePtr &node : nodes)
        qxLog::warning("ambiguous node: %s", qxPathLookup::utf8Path(node).c_str());
}

bool isInScene(osg::NodePtr node)
{
    const osg::NodePtr root = qxOpenSGUtils::getRoot();
    while (node != osg::NullFC && node != root)
        node = node->getParent();
    return node != osg::NullFC;
}

/// The names and paths by which variant sets refer to nodes, collected once.
class References {
public:
    References()
    {
        for (const qxVariantSet *set : qxVariantLists::_variantSets) {
            for (const qxVariantState &state : set->nodeVariants) {
                m_variants.insert(state.variant);
                m_states.insert({state.variant, state.state});
            }
            for (auto path = set->materialSnapshots.keyBegin();
                 path != set->materialSnapshots.keyEnd(); ++path)
                m_paths.insert(*path);
        }
    }

    bool contain(const osg::NodePtr &node) const
    {
        const QString name = qxNames::nameOf(node);
        if (name.isEmpty()) // sets may hold empty names, which mean no node
            return m_paths.contains(qxPathLookup::getNodePath(node));
        return m_variants.contains(name) || m_paths.contains(qxPathLookup::getNodePath(node))
            || isSelectedChild(node, name);
    }

private:
    /// Whether a set selects the node by name as the child of a switch.
    bool isSelectedChild(const osg::NodePtr &node, const QString &name) const
    {
        std::vector<qxNodePtr> instances;
        qxNodeUtils::getInstancesInScenegraph(node, instances);
        for (const qxNodePtr &instance : instances) {
            const osg::NodePtr parent = instance->getParent();
            if (parent == osg::NullFC || osg::SwitchPtr::dcast(parent->getCore()) == osg::NullFC)
                continue;
            if (m_states.contains({qxNames::nameOf(parent), name}))
                return true;
        }
        return false;
    }

    QSet<QString> m_variants;
    QSet<QPair<QString, QString>> m_states; ///< variant and state
    QSet<QString> m_paths;
};

} // namespace

bool qxNodeNameGuard::verifyNodeNames()
{
    qxVariantCaptureChecker checker;
    checker.findAmbiguousNodes();
    std::vector<osg::NodePtr> nodes = checker.getAmbiguousNodes();
    if (nodes.empty())
        return true;
    // What runs while the user is asked may remove nodes.
    const std::vector<osg::NodeRefPtr> kept(nodes.begin(), nodes.end());
    if (!askToRename(nodes))
        return false;
    for (const osg::NodePtr node : kept) {
        if (isInScene(node))
            qxNodeUtils::setName(node, qxNodeUtils::getName(node), true, qxOpenSGUtils::getRoot());
    }
    return true;
}

bool qxNodeNameGuard::askToRename(const std::vector<osg::NodePtr> &nodes)
{
    if (!qobject_cast<QApplication *>(QCoreApplication::instance())) {
        logNodes(nodes);
        return false;
    }
    const ArrowCursor cursor;
    QMessageBox box(QMessageBox::Question,
                    QCoreApplication::translate("qxVariants", "Ambiguous node names detected"),
                    question(nodes), QMessageBox::Yes | QMessageBox::No,
                    qxController::getMainWindow(), Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    box.setModal(true);
    box.button(QMessageBox::Yes)->setText(QCoreApplication::translate("qxVariants", "Rename"));
    box.button(QMessageBox::No)->setText(QCoreApplication::translate("qxVariants", "Cancel"));
    return box.exec() == QMessageBox::Yes;
}

bool qxNodeNameGuard::areReferredTo(const std::vector<osg::NodePtr> &nodes)
{
    if (nodes.empty())
        return false;
    const References references;
    for (const osg::NodePtr &node : nodes) {
        if (node != osg::NullFC && references.contain(node))
            return true;
    }
    return false;
}
