#include "qxPictureHint.h"

#include "Pictures/qxScenePicture.h"
#include "qxOutput.h"

#include <QCoreApplication>

namespace {

constexpr int MostNames = 5; ///< in a line

// In the order of qxPicture::Content.
const char *const reasons[] = {
    "",
    QT_TRANSLATE_NOOP("qxPictureHint", "all of it is hidden, or it has no triangles"),
    QT_TRANSLATE_NOOP("qxPictureHint", "the camera looks past it"),
    QT_TRANSLATE_NOOP("qxPictureHint",
                      "the camera sees only the backs of its surfaces, most likely from inside"),
    QT_TRANSLATE_NOOP("qxPictureHint",
                      "the clipping plane, or the near or far plane of the camera, cuts it away"),
    QT_TRANSLATE_NOOP("qxPictureHint", "it is so far away that it is smaller than a pixel")};

QString advice(qxPicture::Content content)
{
    if (content == qxPicture::Hidden)
        return QStringLiteral("\"workbench state\" tells what is chosen");
    return QStringLiteral("another viewpoint may show it (\"workbench info\" lists them)");
}

QString listed(const QStringList &names)
{
    QString list;
    for (const QString &name : names.mid(0, MostNames))
        list += (list.isEmpty() ? QStringLiteral("\"%1\"") : QStringLiteral(", \"%1\"")).arg(name);
    if (names.size() > MostNames)
        list += QStringLiteral(" and %1 more").arg(names.size() - MostNames);
    return list;
}

} // namespace

QString qxPictureHint::reason(qxPicture::Content content)
{
    return content == qxPicture::Shown
        ? QString()
        : QCoreApplication::translate("qxPictureHint", reasons[content]);
}

void qxPictureHint::note(const QString &picture)
{
    const qxPicture::Content content = qxScenePicture::content();
    if (content != qxPicture::Shown)
        m_pictures[content] += picture;
}

void qxPictureHint::tell() const
{
    for (auto pictures = m_pictures.begin(); pictures != m_pictures.end(); ++pictures) {
        qxOutput::error(
            QStringLiteral("nothing of the scene is to be seen in %1: %2; %3")
                .arg(listed(pictures.value()), reason(pictures.key()), advice(pictures.key())));
    }
}
