#include "qxSetPreviews.h"

#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Animation/qxAnimationPlayer.h"
#include "Pictures/qxScenePicture.h"
#include "Report/qxOutput.h"
#include "Report/qxPictureHint.h"
#include "Report/qxProgress.h"
#include "qxCameraService.h"
#include "qxImageWriter.h"
#include "qxInterrupt.h"
#include "qxOSGWidget.h"
#include "qxPreviewStamp.h"
#include "qxRaytracingManager.h"
#include "qxSceneSnapshot.h"
#include "qxSession.h"
#include "qxText.h"

#include <QCommandLineParser>
#include <QImage>

#include <memory>

namespace {

bool visitFrom(const qxSceneSnapshot &before, const QString &name, const qxSetPreviews::Work &work)
{
    const qxAnimationRest rest;
    qxVariants::selectVariantSet(qxText::toUtf8(name).c_str(), false);
    qxVariantSet *const set = qxVariants::findVariantSet(name);
    const bool isDone = !set || work(*set);
    before.restore();
    return isDone;
}

} // namespace

void qxSetPreviews::prepare(const QCommandLineParser &parser, int bestSamples)
{
    qxOSGWidget::setRaytracing(parser.value(QStringLiteral("quality")) != QLatin1String("quick"));
    qxRaytracingManager::getRaytracingUtils()->setImageQuality(bestSamples);
    lookFromTheStart();
}

void qxSetPreviews::lookFromTheStart()
{
    qxMainView::the() = qxMainView();
    qxKernelServiceFactory::the()->getService<qxCameraService>()->moveToViewpoint(0, 0, 0, 0);
}

/// The size is that of qxVariants::createPreviewImage.
qxPictureSettings qxSetPreviews::settings()
{
    qxPictureSettings settings;
    settings.quality = qxPictureSettings::Best;
    return settings;
}

bool qxSetPreviews::visit(const QString &name, const Work &work)
{
    return visitFrom(qxSceneSnapshot(), name, work);
}

int qxSetPreviews::visit(const QStringList &names, const Begin &begin, const Work &work)
{
    const qxSceneSnapshot before;
    int done = 0;
    for (const QString &name : names) {
        if (!begin(name) || !visitFrom(before, name, work))
            break;
        ++done;
    }
    return done;
}

int qxSetPreviews::visit(const QStringList &names, const Work &work)
{
    qxPictureHint hint;
    auto progress = std::make_unique<qxProgress>(names.size());
    const auto begin = [&progress](const QString &name) {
        if (qxInterrupt::isAsked())
            return false;
        progress->begin(name);
        return true;
    };
    const auto workAndNote = [&](qxVariantSet &set) {
        const int before = qxScenePicture::count();
        const bool isDone = work(set);
        if (isDone && qxScenePicture::count() != before)
            hint.note(set.name);
        return isDone;
    };
    const int done = visit(names, begin, workAndNote);
    progress.reset();
    hint.tell();
    return done;
}

qxSetPreviews::Work qxSetPreviews::each(const Make &make, const Take &take)
{
    return [make, take](qxVariantSet &set) {
        const QString name = set.name; // Who is shown the progress may remove the set.
        const QByteArray png = make();
        return !png.isEmpty() && take(name, png);
    };
}

QByteArray qxSetPreviews::preview()
{
    const QByteArray fingerprint = previewFingerprint();
    return qxPreviewStamp::stamped(qxVariants::createPreviewImage(true, true), fingerprint);
}

bool qxSetPreviews::isStale(const qxVariantSet &set)
{
    const QByteArray stamp = qxPreviewStamp::of(set.getPreview());
    return stamp.isEmpty() || stamp != previewFingerprint();
}

bool qxSetPreviews::reopen(qxSession &session, const QString &file, const Previews &previews)
{
    if (!session.open(file))
        return false;
    for (auto preview = previews.begin(); preview != previews.end(); ++preview) {
        if (qxVariantSet *set = qxVariants::findVariantSet(preview.key()))
            set->setPreview(preview.value());
    }
    return true;
}

QStringList qxSetPreviews::allNames()
{
    QStringList names;
    for (const qxVariantSet *set : qxVariants::_variantSets)
        names += set->name;
    return names;
}

QStringList qxSetPreviews::namesWithoutPreview()
{
    QStringList names;
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        if (QImage::fromData(set->getPreview()).isNull())
            names += set->name;
    }
    return names;
}

QByteArray qxSetPreviews::fingerprint(const QSize &size)
{
    return qxScenePicture::fingerprint(qxScenePicture::settings(size.width(), size.height()));
}

QByteArray qxSetPreviews::previewFingerprint()
{
    qxPictureSettings made = settings();
    if (!qxOSGWidget::getRaytracing())
        made.quality = qxPictureSettings::Quick;
    return qxScenePicture::fingerprint(made);
}

QByteArray qxSetPreviews::render(const QSize &size)
{
    qxImageWriter writer;
    writer.exportImageFastInit(size.width(), size.height(), 0);
    const std::string png = writer.exportImageFast();
    writer.exportImageFastTerminate();
    return QByteArray::fromStdString(png);
}
