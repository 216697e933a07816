#pragma once

#include "Cameras/qxMainView.h"
#include "Render/qxPicture.h"

#include <QMap>
#include <QSize>
#include <QStringList>

#include <functional>

class QCommandLineParser;
class qxSession;
class qxVariantSet;

/// Shows sets one after the other, each selected in the present scene.
namespace qxSetPreviews {

/// Sets ray tracing as the option --quality asks, and looks from the scene's first viewpoint, if
/// there is one: pictures show that view unless a set or another option leads elsewhere.
/// `bestSamples` is what the best quality stands for (qxPictureSettings::quality).
void prepare(const QCommandLineParser &parser, int bestSamples = -1);

/// Looks at the scene as a program does that has just opened it: from the first viewpoint, or, in a
/// scene without one, so that all of it is seen.
void lookFromTheStart();
/// What previews are made with, whatever the main view shows: light and background of the program,
/// best quality.
qxPictureSettings settings();

/// Receives the name of the next set; returns false to end the work.
typedef std::function<bool(const QString &name)> Begin;
/// Called while the set is selected; returns false to end the work.
typedef std::function<bool(qxVariantSet &set)> Work;

/// Selects the set in a scene whose animations rest, calls `work`, and restores scene and camera;
/// other effects of the set's script stay. True without a set of that name, else what `work` says.
bool visit(const QString &name, const Work &work);
/// Selects each of these sets in a scene whose animations rest, calls `work`, and restores scene
/// and camera; other effects of the sets' scripts stay. Removed sets are skipped. Returns the
/// number of sets done; fewer than given if `begin` or `work` ended it.
int visit(const QStringList &names, const Begin &begin, const Work &work);
/// The same in a terminal, with the progress on standard error, until Ctrl-C. At the end, standard
/// error lists the sets whose pictures show nothing of the scene.
int visit(const QStringList &names, const Work &work);

/// Makes a picture of the set that is selected, a PNG; empty if it was cancelled.
typedef std::function<QByteArray()> Make;
/// Takes the picture of the set of that name; returns false to end the work.
typedef std::function<bool(const QString &name, const QByteArray &png)> Take;
/// Makes the picture of each set and has it taken.
Work each(const Make &make, const Take &take);

typedef QMap<QString, QByteArray> Previews; ///< by the names of sets

/// Renders the preview of the set that is selected, with its stamp (qxPreviewStamp); empty if it
/// was cancelled.
QByteArray preview();
/// Whether the preview that the set has, which is selected, is none or another one than would be
/// rendered, by its stamp alone.
bool isStale(const qxVariantSet &set);
/// Opens the file again and gives its sets these previews, because scripts of the sets may have
/// changed the scene. False if it cannot be opened.
bool reopen(qxSession &session, const QString &file, const Previews &previews);

/// The names of all sets in the registry's order.
QStringList allNames();
/// Those of sets whose preview is no picture.
QStringList namesWithoutPreview();

/// Renders a PNG of the current scene; empty when it was interrupted.
QByteArray render(const QSize &size);
///@{
/// What such a picture, or a preview, would be made from now, as 40 hexadecimal digits
/// (qxRenderer::fingerprint); nothing is drawn. Empty when there can be no picture.
QByteArray fingerprint(const QSize &size);
QByteArray previewFingerprint();
///@}

} // namespace qxSetPreviews

/// As long as it lives, the main view looks as after qxSetPreviews::lookFromTheStart; then as
/// before.
class qxStartView {
public:
    qxStartView() { qxSetPreviews::lookFromTheStart(); }
    qxStartView(const qxStartView &) = delete;
    ~qxStartView() { qxMainView::the() = m_before; }

private:
    const qxMainView m_before = qxMainView::the();
};
