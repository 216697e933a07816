#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Files/qxOutputFile.h"
#include "Report/qxContactSheet.h"
#include "Report/qxPictureHint.h"
#include "Report/qxProgress.h"
#include "Report/qxStreams.h"
#include "Session/qxInterrupt.h"
#include "Session/qxPictureOptions.h"
#include "Session/qxSession.h"
#include "Session/qxSetPictures.h"
#include "qxCameraService.h"
#include "qxCommand.h"
#include "qxFileNames.h"
#include "qxRenderMoment.h"
#include "qxSharedPictures.h"
#include "qxText.h"
#include "qxTurntable.h"
#include "qxUnknownName.h"
#include "qxValueKind.h"

#include <QCommandLineParser>
#include <QDir>
#include <QRegularExpression>
#include <QSize>

namespace {

/// What the options ask for.
struct Job {
    QString set;
    bool all = false;
    QString view;
    QSize size;
    QString out;
    qxRenderMoment moment;
    qxTurntable turntable;

    /// Whether `out` is a picture and no folder.
    bool isPicture() const
    {
        return out.endsWith(QLatin1String(".png"), Qt::CaseInsensitive)
            || qxStreams::isStandard(out) || qxOutputFile::isStream(out);
    }
    bool isSheet() const { return all && isPicture(); }
};

QList<QCommandLineOption> renderOptions()
{
    const QList<QCommandLineOption> own{
        {QStringLiteral("set"), QStringLiteral("Selects this set before."), QStringLiteral("NAME")},
        {QStringLiteral("all"),
         QStringLiteral("Makes a picture of every set, each selected in the scene as it is in the "
                        "file: into the folder DIR, or as one sheet into a PNG.")},
        {QStringLiteral("view"),
         QStringLiteral("Looks from this viewpoint instead of where the set leads to."),
         QStringLiteral("VIEWPOINT")},
        {QStringLiteral("size"),
         QStringLiteral("Width and height of a picture in pixels, such as 1280x720, which is the "
                        "default; 384x256 on a sheet, unless it is made of --parts."),
         QStringLiteral("WxH")},
        {QStringLiteral("out"),
         QStringLiteral("The picture, a PNG, - for standard output; with --all a folder or a PNG, "
                        "with --turntable a folder."),
         QStringLiteral("PNG|DIR")},
        qxTurntable::option(),
        qxCommands::scriptsOption(),
        qxCommands::noScriptsOption(),
        qxShardOptions::json(),
        qxCommands::traceOption(),
    };
    return own + qxRenderMoment::options() + qxPictureOptions::all() + qxShardOptions::all();
}

/// An empty size for a text that is none.
QSize sizeOf(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^(\\d{1,5})x(\\d{1,5})$"));
    const QRegularExpressionMatch match = form.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    return size.width() > qxSetPictures::longestSide || size.height() > qxSetPictures::longestSide
        ? QSize()
        : size;
}

/// Success, or why the outputs do not fit what is made.
int checkOut(const Job &job)
{
    if (job.out.isEmpty())
        return qxCommands::fail(QStringLiteral("render needs --out PNG|DIR"), WrongUse);
    if (job.turntable.isAsked() && job.isPicture())
        return qxCommands::fail(
            QStringLiteral("%1: --turntable makes pictures in a folder").arg(job.out), WrongUse);
    if (!job.all && !job.turntable.isAsked() && !job.isPicture())
        return qxCommands::fail(QStringLiteral("%1: a picture's name ends with .png").arg(job.out),
                                WrongUse);
    return Success;
}

/// Success, or why the options do not go together.
int readJob(const QCommandLineParser &parser, Job &job, qxSharedPictures &work)
{
    job.set = parser.value(QStringLiteral("set"));
    job.all = parser.isSet(QStringLiteral("all"));
    job.view = parser.value(QStringLiteral("view"));
    job.out = parser.value(QStringLiteral("out"));
    int code = work.read({QStringLiteral("out")});
    if (code == Success)
        code = job.turntable.read(parser);
    if (code == Success)
        code = job.moment.read(parser);
    if (code == Success && !work.makesParts())
        code = checkOut(job);
    if (code != Success)
        return code;
    if (job.all && !job.set.isEmpty())
        return qxCommands::fail(QStringLiteral("--set and --all do not go together"), WrongUse);
    if (job.all && job.turntable.isAsked())
        return qxCommands::fail(QStringLiteral("--turntable and --all do not go together"),
                                WrongUse);

    const bool isWhole = work.task() == qxShardOptions::Whole;
    if (!job.all && !isWhole)
        return qxCommands::fail(QStringLiteral("--parts needs --all: pictures of sets are shared"),
                                WrongUse);

    // Shards do not know yet what their pictures are for.
    job.size = job.isSheet() && isWhole ? qxSetPictures::sheetSize : qxSetPictures::pictureSize;
    if (parser.isSet(QStringLiteral("size")))
        job.size = sizeOf(parser.value(QStringLiteral("size")));
    if (job.size.isEmpty())
        return qxCommands::fail(
            QStringLiteral("--size is WIDTHxHEIGHT, each from 1 to %1, not \"%2\"")
                .arg(qxSetPictures::longestSide)
                .arg(parser.value(QStringLiteral("size"))),
            WrongUse);
    if (work.makesParts())
        return Success;
    return job.isPicture() ? qxValueKinds::checkFile(job.out) : qxValueKinds::checkFolder(job.out);
}

/// Why the job cannot be done in this scene; empty when it can.
QString flawOf(const Job &job)
{
    if (!job.set.isEmpty() && !qxVariants::findVariantSet(job.set))
        return qxUnknownName::set(job.set);
    if (job.all && qxVariants::_variantSets.empty())
        return QStringLiteral("the scene has no variant sets");
    const auto camera = qxKernelServiceFactory::the()->getService<qxCameraService>();
    if (!job.view.isEmpty() && camera->findViewpoint(qxText::toUtf8(job.view)) < 0)
        return qxUnknownName::viewpoint(job.view);
    return job.moment.flaw();
}

void select(const Job &job)
{
    if (!job.set.isEmpty())
        qxVariants::selectVariantSet(qxText::toUtf8(job.set).c_str(), false);
}

/// Goes to the viewpoint and to the moment that were asked for.
void look(const Job &job)
{
    if (!job.view.isEmpty()) {
        const auto camera = qxKernelServiceFactory::the()->getService<qxCameraService>();
        camera->moveToViewpoint(camera->findViewpoint(qxText::toUtf8(job.view)), 0, 0, 0);
    }
    job.moment.show();
}

/// The scene as it is now, as it was asked for; empty when interrupted.
QByteArray picture(const Job &job)
{
    look(job);
    return qxSetPreviews::render(job.size);
}

int renderOne(const Job &job)
{
    QByteArray png;
    {
        qxProgress progress(1);
        progress.begin(job.set.isEmpty() ? job.out : job.set);
        select(job);
        png = picture(job);
    }
    if (png.isEmpty())
        return qxCommands::endedEarly(QStringLiteral("no picture was written"));
    qxPictureHint hint;
    hint.note(job.out);
    hint.tell();
    return qxStreams::write(job.out, png) ? qxCommands::codeAfterScripts() : WorkFailed;
}

int renderFolder(const Job &job, qxSharedPictures &work)
{
    const QStringList names = qxSetPreviews::allNames();
    qxFileNames files(QStringLiteral(".png"));
    const auto write = [&](const QString &name, const QByteArray &png) {
        return qxStreams::write(QDir(job.out).filePath(files.next(name)), png);
    };
    const int done = work.visit(names, write);
    if (done < 0)
        return WorkFailed;
    if (done == names.size())
        return work.codeAfterScripts();
    return qxCommands::endedEarly(
        QStringLiteral("%1 holds %2 of %3 pictures").arg(job.out).arg(done).arg(names.size()));
}

int renderTurn(Job job)
{
    const int count = job.turntable.count();
    int done = 0;
    qxPictureHint hint;
    {
        qxProgress progress(count);
        select(job);
        look(job);
        job.turntable.begin(job.size);
        for (; done < count && !qxInterrupt::isAsked(); ++done) {
            const QString name = job.turntable.nameOf(done);
            progress.begin(name);
            job.turntable.look(done);
            const QByteArray png = qxSetPreviews::render(job.size);
            if (png.isEmpty() || !qxStreams::write(QDir(job.out).filePath(name), png))
                break;
            hint.note(name);
        }
    }
    hint.tell();
    if (done == count)
        return qxCommands::codeAfterScripts();
    return qxCommands::endedEarly(
        QStringLiteral("%1 holds %2 of %3 pictures").arg(job.out).arg(done).arg(count));
}

int renderSheet(const Job &job, qxSharedPictures &work)
{
    const QStringList names = qxSetPreviews::allNames();
    qxContactSheet sheet(job.size);
    const int done = work.visit(names, qxSetPictures::onSheet(sheet));
    if (done < 0 || (done > 0 && !qxStreams::write(job.out, sheet.png())))
        return WorkFailed;
    if (done == names.size())
        return work.codeAfterScripts();
    return qxCommands::endedEarly(
        QStringLiteral("%1 shows %2 of %3 sets").arg(job.out).arg(done).arg(names.size()));
}

/// What shards make of each set.
qxSharedPictures::Product product(const Job &job)
{
    const auto fingerprint = [&job] {
        look(job);
        return qxSetPreviews::fingerprint(job.size);
    };
    return {job.size, fingerprint, [&job] { return picture(job); }};
}

int runRender(const QCommandLineParser &parser)
{
    Job job;
    qxSharedPictures work(qxCommands::render, parser);
    int code = readJob(parser, job, work);
    if (code != Success)
        return code;
    if (!qxPictureOptions::areKnown(parser, qxPictureOptions::MayBeTransparent))
        return WrongUse;
    code = work.begin(product(job));
    if (code != Success)
        return code;
    if (!qxPictureOptions::apply(parser))
        return WorkFailed;
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.open(parser.positionalArguments().first()))
        return WorkFailed;
    const QString flaw = flawOf(job);
    if (!flaw.isEmpty())
        return qxCommands::fail(flaw);

    qxSetPreviews::prepare(parser);
    const qxInterrupt interrupt;
    if (job.turntable.isAsked())
        return renderTurn(job);
    if (!job.all)
        return renderOne(job);
    if (work.makesParts())
        return work.makeParts(qxSetPreviews::allNames());
    return job.isSheet() ? renderSheet(job, work) : renderFolder(job, work);
}

} // namespace

const qxCommand qxCommands::render = {
    "render",      "FILE",   "Makes pictures of the scene and of its sets.", 1, 1,
    renderOptions, runRender};
