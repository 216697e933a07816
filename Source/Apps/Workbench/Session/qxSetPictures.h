#pragma once

#include <QCommandLineOption>
#include <QMap>
#include <QStringList>

#include <functional>

class QCommandLineParser;
class qxSession;
class qxVariantSet;

/// Shows sets one after the other, each selected in the present scene.
namespace qxSetPictures {

QCommandLineOption qualityOption();
/// Whether the option has a valid value; prints an error otherwise.
bool isQualityKnown(const QCommandLineParser &parser);
/// Sets ray tracing as the option asks, and looks from the scene's first viewpoint, if there is
/// one: pictures show that view unless a set or another option leads elsewhere. `bestSamples` is
/// what the best quality stands for (qxPictureSettings::quality).
void prepare(const QCommandLineParser &parser, int bestSamples = -1);

/// Called while the set is selected; returns false to end the work.
typedef std::function<bool(qxVariantSet &set)> Work;

/// Selects each of these sets, calls `work`, and restores scene and camera. Removed sets are
/// skipped. At the end, standard error lists the sets whose pictures show nothing of the scene.
/// Returns the number of sets done; fewer than given if `work` or Ctrl-C ended it.
int visit(const QStringList &names, const Work &work);

typedef QMap<QString, QByteArray> Previews; ///< by the names of sets

/// Makes a preview of each of these sets and returns the new ones; `done` is the result of visit.
Previews makePreviews(const QStringList &names, int &done);
/// Opens the file again and gives its sets these previews, because scripts of the sets may have
/// changed the scene. False if it cannot be opened.
bool reopen(qxSession &session, const QString &file, const Previews &previews);

/// The names of all sets in the registry's order.
QStringList allNames();
/// Those of sets whose preview is no picture.
QStringList namesWithoutPreview();

/// Renders a PNG of the current scene; empty when it was interrupted.
QByteArray render(int width, int height);

} // namespace qxSetPictures
