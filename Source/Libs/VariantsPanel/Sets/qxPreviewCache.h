#pragma once

#include <QCache>
#include <QElapsedTimer>
#include <QPixmap>

/// The previews of a view in the size that it shows them in: each is decoded and scaled once, and
/// not all of them at once.
class qxPreviewCache {
public:
    qxPreviewCache();

    /// Begins a turn of painting, which may take only so long.
    void beginTurn();
    /// The picture within that size in pixels of the screen, its sides in their own relation. Null
    /// if the bytes are none, and when the time of this turn is up.
    QPixmap picture(const QByteArray &bytes, const QSize &pixels);
    /// Whether pictures were left out in this turn.
    bool isBehind() const { return m_isBehind; }

private:
    typedef QPair<QPair<uint, int>, QPair<int, int>> Key; ///< hash and length; width and height

    static QPixmap scaled(const QByteArray &bytes, const QSize &pixels);

    QCache<Key, QPixmap> m_pictures;
    QElapsedTimer m_turn;
    bool m_isBehind = false;
};
