#include "qxSetCapture.h"

#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxCaptureDialog.h"
#include "qxScenegraph.h"
#include "qxSetEdits.h"

#include <QCoreApplication>

namespace {

void captureInto(qxVariantSet *set, const std::vector<qxNodePtr> &roots,
                 const qxCaptureChoice &choice)
{
    qxVariants::captureVariantsFromRootNodes(set, roots, choice.nodes, choice.materials,
                                             choice.lights, choice.environment, choice.viewpoint,
                                             choice.transforms, true, true);
    set->setPreview(qxVariants::createPreviewImage(false, true));
}

std::vector<qxNodePtr> rootsOf(const qxVariantSet &set)
{
    std::vector<qxNodePtr> roots;
    for (const QString &name : set.targetNodeNames) {
        const qxNodePtr node = qxScenegraph::findNode(name.toUtf8().constData());
        if (node != osg::NullFC)
            roots.push_back(node);
    }
    if (roots.empty())
        roots.push_back(qxScenegraph::getRootNode());
    return roots;
}

qxVariantGroup *groupNamed(const QString &name)
{
    qxVariantGroup *const found = qxVariants::findVariantGroup(name);
    return found || name.isEmpty() ? found : qxVariants::createVariantGroup(name, true, true);
}

} // namespace

QString qxSetCapture::capture(qxSetEdits *edits, const QString &group, QWidget *parent)
{
    qxCaptureChoice proposal;
    proposal.name = qxVariants::getUniqueVariantSetName(
        QCoreApplication::translate("qxSetCapture", "Captured"));
    proposal.group = group;
    qxCaptureDialog dialog(proposal, false, parent);
    if (dialog.exec() != QDialog::Accepted || !qxVariants::verifyNodeNames())
        return QString();
    const qxCaptureChoice choice = dialog.choice();
    const QString name = qxVariants::getUniqueVariantSetName(choice.name);
    qxVariantSet *const set = qxVariants::createVariantSet(name, true, groupNamed(choice.group));
    if (!set)
        return QString();
    captureInto(set, {qxScenegraph::getRootNode()}, choice);
    edits->tookSet(name);
    return name;
}

void qxSetCapture::update(qxSetEdits *edits, const QString &set, QWidget *parent)
{
    const qxVariantSet *const found = qxVariants::findVariantSet(set);
    if (!found)
        return;
    qxCaptureChoice proposal;
    found->getInclInfo(proposal.nodes, proposal.materials, proposal.lights, proposal.environment,
                       proposal.viewpoint);
    // A set that was never captured includes nothing: the whole scene is proposed then.
    if (!proposal.nodes && !proposal.materials && !proposal.lights && !proposal.environment
        && !proposal.viewpoint)
        proposal = qxCaptureChoice();
    proposal.name = set;
    qxCaptureDialog dialog(proposal, true, parent);
    if (dialog.exec() != QDialog::Accepted || !qxVariants::verifyNodeNames())
        return;
    const qxCaptureChoice choice = dialog.choice();
    edits->editSet(
        set, QCoreApplication::translate("qxSetCapture", "Update \"%1\"").arg(set),
        [&choice](qxVariantSet &edited) { captureInto(&edited, rootsOf(edited), choice); });
}
