#include "qxRecentFiles.h"

#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxPreviewPicture.h"

#include <QAction>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QSaveFile>
#include <QSettings>
#include <QStandardPaths>
#include <QTextDocument>

namespace {

const char *const recentKey = "recentFiles";
const int recentCount = 8;

QByteArray firstPreview()
{
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        if (!set->preview.isEmpty() && qxPreviewPicture::isDecodable(set->preview))
            return set->preview;
    }
    return QByteArray();
}

} // namespace

qxRecentFiles::qxRecentFiles(QObject *parent) : QObject(parent) {}

QStringList qxRecentFiles::paths() const
{
    return QSettings().value(recentKey).toStringList();
}

QString qxRecentFiles::picturePath(const QString &path)
{
    const QDir cache(QStandardPaths::writableLocation(QStandardPaths::CacheLocation));
    const QByteArray name = QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha1);
    return cache.filePath(QStringLiteral("recent/") + QString::fromLatin1(name.toHex()));
}

void qxRecentFiles::remember(const QString &path)
{
    const QString whole = QFileInfo(path).absoluteFilePath();
    QStringList all = paths();
    all.removeAll(whole);
    all.prepend(whole);
    while (all.size() > recentCount)
        QFile::remove(picturePath(all.takeLast()));
    QSettings().setValue(recentKey, all);
    const QString picture = picturePath(whole);
    const QByteArray preview = firstPreview();
    QFile::remove(picture);
    QSaveFile file(picture);
    if (!preview.isEmpty() && QDir().mkpath(QFileInfo(picture).path())
        && file.open(QIODevice::WriteOnly)) {
        file.write(preview);
        file.commit(); // Without a picture the list is as good.
    }
    Q_EMIT changed();
}

void qxRecentFiles::remove(const QString &path)
{
    QStringList all = paths();
    all.removeAll(path);
    QSettings().setValue(recentKey, all);
    QFile::remove(picturePath(path));
    Q_EMIT changed();
}

QPixmap qxRecentFiles::pictureOf(const QString &path) const
{
    QFile file(picturePath(path));
    QPixmap picture;
    if (file.open(QIODevice::ReadOnly)) {
        const QByteArray bytes = file.readAll();
        if (qxPreviewPicture::isDecodable(bytes))
            picture.loadFromData(bytes);
    }
    return picture;
}

void qxRecentFiles::fill(QMenu &menu)
{
    menu.clear();
    menu.setToolTipsVisible(true);
    int number = 0;
    for (const QString &path : paths()) {
        QString name = QFileInfo(path).fileName();
        name.replace(QLatin1Char('&'), QLatin1String("&&"));
        QAction *const action = menu.addAction(QStringLiteral("&%1 %2").arg(++number).arg(name),
                                               this, [this, path] { Q_EMIT chosen(path); });
        action->setToolTip(Qt::convertFromPlainText(path, Qt::WhiteSpaceNormal));
        action->setEnabled(QFileInfo::exists(path));
    }
    if (number == 0)
        menu.addAction(tr("None yet"))->setEnabled(false);
}
