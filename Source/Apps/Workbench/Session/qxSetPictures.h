#pragma once

#include <QCommandLineOption>
#include <QMap>
#include <QStringList>

#include <functional>

class QCommandLineParser;
class qxSession;
class qxVariantSet;

/// Shows sets one after the other, as each looks when it is selected in the scene as it is now.
namespace qxSetPictures {

QCommandLineOption qualityOption();
/// Whether the option has a value that there is; says on standard error when it has not.
bool isQualityKnown(const QCommandLineParser &parser);
/// Sets ray tracing as the option asks, and looks from the scene's first viewpoint, if there is
/// one: pictures show that view unless a set or another option leads elsewhere. `bestSamples` is
/// what the best quality stands for (qxPictureSettings::quality).
void prepare(const QCommandLineParser &parser, int bestSamples = -1);

/// Hears which set comes next; false ends the work.
typedef std::function<bool(const QString &name)> Begin;
/// What is done while the set is selected; false ends the work.
typedef std::function<bool(qxVariantSet &set)> Work;

/// Selects each of these sets, does `work`, and puts scene and camera back; what scripts of the
/// sets do beyond that stays. Sets that are gone are left out. Answers how many were done; fewer
/// than there are when `begin` or `work` ended it.
int visit(const QStringList &names, const Begin &begin, const Work &work);
/// The same in a terminal, with the progress on standard error, until Ctrl-C. In the end, standard
/// error names the sets in whose pictures nothing of the scene is to be seen.
int visit(const QStringList &names, const Work &work);

typedef QMap<QString, QByteArray> Previews; ///< by the names of sets

/// Adds a preview of the set, which is selected. False when there is none because the user ended
/// it.
bool addPreview(const qxVariantSet &set, Previews &previews);
/// Opens the file again and gives its sets these previews: scripts of the sets may have changed
/// what does not belong to the file. False when it cannot be opened.
bool reopen(qxSession &session, const QString &file, const Previews &previews);

/// The names of all sets in the registry's order.
QStringList allNames();
/// Those of sets whose preview is no picture.
QStringList namesWithoutPreview();

/// Renders a PNG of the current scene; empty when it was interrupted.
QByteArray render(int width, int height);

} // namespace qxSetPictures
