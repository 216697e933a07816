#include "qxSetCapture.h"

#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Undo/qxCaptureRecord.h"
#include "Undo/qxSetEdits.h"
#include "qxAmbiguityDialog.h"
#include "qxCaptureDialog.h"
#include "qxNames.h"
#include "qxScenegraph.h"

#include <QCoreApplication>

namespace {

/// Whether the set got a picture.
bool captureInto(qxVariantSet &set, const std::vector<qxNodePtr> &roots,
                 const qxCaptureChoice &choice)
{
    const QString name = set.name;
    qxVariants::captureVariantsFromRootNodes(&set, roots, choice.nodes, choice.materials,
                                             choice.lights, choice.environment, choice.viewpoint,
                                             choice.transforms, true, true);
    const QByteArray picture = qxVariants::createPreviewImage(true, true);
    // Listeners and the progress display may have removed the set.
    qxVariantSet *const captured = qxVariants::findVariantSet(name);
    if (!captured || picture.isEmpty()) // cancelled: the set keeps the one that it had
        return false;
    captured->setPreview(picture);
    return true;
}

std::vector<qxNodePtr> rootsOf(const qxVariantSet &set)
{
    std::vector<qxNodePtr> roots;
    for (const QString &name : set.targetNodeNames) {
        const qxNodePtr node = qxNames::findNode(name);
        if (node != osg::NullFC)
            roots.push_back(node);
    }
    if (roots.empty())
        roots.push_back(qxScenegraph::getRootNode());
    return roots;
}

} // namespace

QString qxSetCapture::capture(qxSetEdits *edits, const QString &group, QWidget *parent)
{
    qxCaptureChoice proposal;
    proposal.name = qxVariants::getUniqueVariantSetName(
        QCoreApplication::translate("qxSetCapture", "Captured"));
    proposal.group = group;
    qxCaptureDialog dialog(proposal, false, parent);
    if (dialog.exec() != QDialog::Accepted)
        return QString();
    const qxCaptureChoice choice = dialog.choice();
    qxCaptureRecord record; // The question about names may change them.
    if (!qxAmbiguityDialog::settleNames(parent) || !qxVariants::verifyNodeNames())
        return QString();
    return edits->captureSet(
        qxVariants::getUniqueVariantSetName(choice.name), choice.group, record,
        [&choice](qxVariantSet &set) { captureInto(set, {qxScenegraph::getRootNode()}, choice); });
}

bool qxSetCapture::update(qxSetEdits *edits, const QString &set, QWidget *parent)
{
    const qxVariantSet *const found = qxVariants::findVariantSet(set);
    if (!found)
        return false;
    qxCaptureChoice proposal;
    found->getInclInfo(proposal.nodes, proposal.materials, proposal.lights, proposal.environment,
                       proposal.viewpoint);
    // A set that was never captured includes nothing: the whole scene is proposed then.
    if (!proposal.nodes && !proposal.materials && !proposal.lights && !proposal.environment
        && !proposal.viewpoint)
        proposal = qxCaptureChoice();
    proposal.name = set;
    qxCaptureDialog dialog(proposal, true, parent);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    const qxCaptureChoice choice = dialog.choice();
    qxCaptureRecord record;
    bool hasPicture = false;
    if (qxAmbiguityDialog::settleNames(parent) && qxVariants::verifyNodeNames())
        edits->captureAgain(set, record, [&](qxVariantSet &edited) {
            hasPicture = captureInto(edited, rootsOf(edited), choice);
        });
    return hasPicture;
}
