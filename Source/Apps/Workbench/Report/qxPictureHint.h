#pragma once

#include "Render/qxPicture.h"

#include <QMap>
#include <QStringList>

/// Reports pictures that show nothing of the scene.
class qxPictureHint {
public:
    /// The reason, as half a sentence in the language of the interface; empty if something is
    /// visible.
    static QString reason(qxPicture::Content content);

    /// Records the content of the last picture under this name.
    void note(const QString &picture);
    /// A line on standard error for each reason, with the pictures noted before.
    void tell() const;

private:
    QMap<qxPicture::Content, QStringList> m_pictures;
};
