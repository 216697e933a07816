#pragma once

#include <QMap>
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

/// Receives the name of the next set; returns false to end the work.
typedef std::function<bool(const QString &name)> Begin;
/// Called while the set is selected; returns false to end the work.
typedef std::function<bool(qxVariantSet &set)> Work;

/// Selects each of these sets in a scene whose animations rest, calls `work`, and restores scene
/// and camera; other effects of the sets' scripts stay. Removed sets are skipped. Returns the
/// number of sets done; fewer than given if `begin` or `work` ended it.
int visit(const QStringList &names, const Begin &begin, const Work &work);
/// The same in a terminal, with the progress on standard error, until Ctrl-C. At the end, standard
/// error lists the sets whose pictures show nothing of the scene.
int visit(const QStringList &names, const Work &work);

typedef QMap<QString, QByteArray> Previews; ///< by the names of sets

/// Adds a preview of the set, which is selected. False if the user cancelled it.
bool addPreview(const qxVariantSet &set, Previews &previews);
/// Opens the file again and gives its sets these previews, because scripts of the sets may have
/// changed the scene. False if it cannot be opened.
bool reopen(qxSession &session, const QString &file, const Previews &previews);

/// The names of all sets in the registry's order.
QStringList allNames();
/// Those of sets whose preview is no picture.
QStringList namesWithoutPreview();

/// Renders a PNG of the current scene; empty when it was interrupted.
QByteArray render(int width, int height);

} // namespace qxSetPreviews
