#include "qxPictureExport.h"

#include "qxVariantSet.h"

#include "Pictures/qxScenePicture.h"
#include "Publish/qxPublisher.h"
#include "Report/qxContactSheet.h"
#include "Report/qxPictureHint.h"
#include "Report/qxStreams.h"
#include "Script/qxScriptRunner.h"
#include "Session/qxPictureScope.h"
#include "Session/qxSession.h"
#include "Session/qxSetPictures.h"
#include "Sets/qxVariantSetsDock.h"
#include "qxController.h"
#include "qxExportProgress.h"
#include "qxLog.h"
#include "qxPanelChanges.h"
#include "qxPictureWish.h"

#include <QBuffer>
#include <QFileDialog>
#include <QImage>
#include <QImageWriter>
#include <QLabel>
#include <QMessageBox>
#include <QScopeGuard>

namespace {

const int JpegQuality = 95;

QString suffixOf(const QString &file)
{
    return QFileInfo(file).suffix().toLower();
}

/// In the format of the file's name; empty when there is no such format.
QByteArray encoded(const QByteArray &png, const QString &file)
{
    if (suffixOf(file) == QLatin1String("png"))
        return png;
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, suffixOf(file).toLatin1());
    writer.setQuality(JpegQuality);
    return writer.write(QImage::fromData(png)) ? buffer.data() : QByteArray();
}

QStringList pictureFilters()
{
    QStringList filters{qxPictureExport::tr("PNG pictures (*.png)"),
                        qxPictureExport::tr("JPEG pictures (*.jpg *.jpeg)")};
    if (QImageWriter::supportedImageFormats().contains("webp"))
        filters << qxPictureExport::tr("WebP pictures (*.webp)");
    return filters;
}

} // namespace

qxPictureExport::qxPictureExport(QWidget *window, qxSession &session, qxVariantSetsDock *sets,
                                 const std::function<QString()> &scenePath)
    : QObject(window), m_window(window), m_session(session), m_sets(sets), m_scenePath(scenePath)
{
}

/// Empty if the user cancelled.
QString qxPictureExport::askForFile(const QString &title, const QString &suffix,
                                    const QStringList &filters)
{
    const QFileInfo scene(m_scenePath());
    QFileDialog dialog(m_window, title, scene.path());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(filters);
    dialog.setDefaultSuffix(suffix);
    const QString name = scene.completeBaseName();
    dialog.selectFile((name.isEmpty() ? tr("Scene") : name) + QLatin1Char('.') + suffix);
    connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString &filter) {
        dialog.setDefaultSuffix(
            filter.section(QStringLiteral("*."), 1).section(' ', 0, 0).remove(QLatin1Char(')')));
    });
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

void qxPictureExport::savePicture()
{
    const auto wish =
        qxPictureWish::ask(tr("Save Picture"), QStringLiteral("picture"),
                           qxSetPictures::pictureSize, qxPictureWish::MayBeTransparent, m_window);
    if (!wish)
        return;
    const QString file = askForFile(tr("Save Picture"), QStringLiteral("png"), pictureFilters());
    if (file.isEmpty())
        return;
    if (!QImageWriter::supportedImageFormats().contains(suffixOf(file).toLatin1()))
        return showProblem(tr("\"%1\" cannot be written.").arg(QFileInfo(file).fileName()),
                           tr("Pictures are PNG or JPEG: the name of the file ends with .png or "
                              ".jpg."));
    const QByteArray png = picture(*wish, file);
    if (png.isEmpty())
        return;
    const QString reason = qxPictureHint::reason(qxScenePicture::content());
    write(file, encoded(png, file));
    if (!reason.isEmpty())
        Q_EMIT done(tr("Nothing of the scene is to be seen in the picture: %1.").arg(reason));
}

/// Of what the window shows; empty when it was cancelled.
QByteArray qxPictureExport::picture(const qxPictureWish &wish, const QString &file)
{
    const bool hasAlpha =
        suffixOf(file) != QLatin1String("jpg") && suffixOf(file) != QLatin1String("jpeg");
    const qxPictureScope scope(wish.quality(), wish.isTransparent && hasAlpha);
    qxExportProgress progress(1, m_window);
    progress.begin(QFileInfo(file).fileName());
    return qxSetPreviews::render(wish.size);
}

/// Makes pictures of all sets from the first viewpoint. False when it was cancelled.
bool qxPictureExport::takeAll(const QSize &size, int quality, const qxSetPreviews::Take &take)
{
    const QStringList names = qxSetPreviews::allNames();
    int done = 0;
    m_sets->keepCursor([&] {
        const qxPictureScope scope(quality);
        const qxStartView view;
        qxExportProgress progress(names.size(), m_window);
        done = qxSetPreviews::visit(
            names, [&progress](const QString &set) { return progress.begin(set); },
            qxSetPreviews::each(qxSetPictures::ofSize(size), take));
    });
    Q_EMIT qxPanelChanges::the().sceneRestored();
    qxController::updateRender(true);
    return done == names.size();
}

void qxPictureExport::saveSheet()
{
    if (qxSetPreviews::allNames().isEmpty())
        return showProblem(tr("There is nothing for a sheet."),
                           tr("The scene has no variant sets."));
    const auto wish = qxPictureWish::ask(tr("Save Sheet: Each Picture"), QStringLiteral("sheet"),
                                         qxSetPictures::sheetSize, qxPictureWish::Opaque, m_window);
    if (!wish)
        return;
    const QString file =
        askForFile(tr("Save Sheet"), QStringLiteral("png"), {tr("PNG pictures (*.png)")});
    qxContactSheet sheet(wish->size);
    if (!file.isEmpty() && takeAll(wish->size, wish->quality(), qxSetPictures::onSheet(sheet)))
        write(file, sheet.png());
}

void qxPictureExport::exportCatalogue()
{
    const QString file =
        askForFile(tr("Export Catalogue"), QStringLiteral("html"), {tr("Web pages (*.html)")});
    qxCataloguePage::Pictures pictures;
    if (file.isEmpty()
        || !takeAll(qxSetPictures::pageSize, qxSetPictures::pageSamples,
                    qxSetPictures::onPage(pictures)))
        return;
    const QString title = QFileInfo(m_scenePath()).fileName();
    showResult(file,
               qxStreams::writeFile(
                   file, qxCataloguePage::html(title.isEmpty() ? tr("Scene") : title, pictures)));
}

void qxPictureExport::exportPage()
{
    if (!qxPublishedPage::flaw().isEmpty())
        return showProblem(tr("No web page can be made."),
                           tr("This program was built without the viewer for web pages."));
    const QString file =
        askForFile(tr("Export Web Page"), QStringLiteral("html"), {tr("Web pages (*.html)")});
    qxPublisher publisher;
    if (file.isEmpty() || !publish(publisher))
        return;
    write(file, qxPublishedPage::single(publisher.publication()));
    const int lost = publisher.losses().count(qxLoss::Dropped);
    if (lost > 0)
        qxLog::warning("The web page leaves out %d entries, which \"workbench publish\" lists",
                       lost);
}

/// From the first viewpoint. False when it was cancelled or, which is said, failed.
bool qxPictureExport::publish(qxPublisher &publisher)
{
    const QString name = QFileInfo(m_scenePath()).completeBaseName();
    qxPublisher::Wishes wishes;
    wishes.title = name.isEmpty() ? tr("Scene") : name;
    wishes.states.language = tr("en", "the code of the language of web pages: en or de");
    wishes.compress = true;
    bool isDone = false;
    m_sets->keepCursor([&] {
        const auto allowed = qxScriptRunner::setAllowed(qxScriptRunner::Nothing);
        const auto allow = qScopeGuard([allowed] { qxScriptRunner::setAllowed(allowed); });
        const qxPictureScope scope(qxPictureSettings::Best);
        const qxStartView view;
        const QString flaw = publisher.describe(m_session.file(), wishes);
        if (!flaw.isEmpty())
            return showProblem(tr("No web page can be made."), flaw);
        const QStringList &names = publisher.withoutPreview();
        qxExportProgress progress(names.size() + 1, m_window);
        const auto begin = [&progress](const QString &set) { return progress.begin(set); };
        isDone = progress.begin(wishes.title) && publisher.makePoster()
            && qxSetPreviews::visit(
                   names, begin,
                   qxSetPreviews::each(qxSetPreviews::preview, publisher.takePreview()))
                == names.size();
    });
    Q_EMIT qxPanelChanges::the().sceneRestored();
    qxController::updateRender(true);
    return isDone;
}

void qxPictureExport::write(const QString &file, const QByteArray &bytes)
{
    showResult(file, bytes.isEmpty() ? tr("It is too large.") : qxStreams::writeFile(file, bytes));
}

void qxPictureExport::showResult(const QString &file, const QString &flaw)
{
    const QString name = QFileInfo(file).fileName();
    if (flaw.isEmpty())
        Q_EMIT done(tr("\"%1\" is saved.").arg(name));
    else
        showProblem(tr("\"%1\" cannot be written.").arg(name), flaw);
}

/// Names of files are no markup.
void qxPictureExport::showProblem(const QString &what, const QString &reason)
{
    QMessageBox box(QMessageBox::Warning, tr("Workbench"), what, QMessageBox::Ok, m_window);
    box.setInformativeText(reason);
    for (QLabel *label : box.findChildren<QLabel *>())
        label->setTextFormat(Qt::PlainText);
    box.exec();
}
