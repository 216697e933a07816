#pragma once

#include "Render/qxPicture.h"

#include <QMap>
#include <QStringList>

/// Says of pictures that nothing of the scene is to be seen in them.
class qxPictureHint {
public:
    /// Why, as half a sentence in the language of the interface; empty when something is.
    static QString reason(qxPicture::Content content);

    /// The picture that was made last is called like that.
    void note(const QString &picture);
    /// A line on standard error for each reason, with the pictures noted before.
    void tell() const;

private:
    QMap<qxPicture::Content, QStringList> m_pictures;
};
