#pragma once

#include "Render/qxNodeMask.h"

#include <OpenSG/OSGNode.h>

#include <QImage>

class QPainter;

/// A line around the nodes that are picked, over the picture of a view; dim where something else
/// stands in front of them. It is read on any ground: bright, with a dark border.
class qxOutline {
public:
    void setNodes(const std::vector<osg::NodePtr> &nodes) { m_nodes = nodes; }
    /// Draws the line anew, for the picture that the view has now, of that size in pixels; `scale`
    /// is how many of these a unit of the layout has. It takes some milliseconds.
    void follow(const QSize &pixels, qreal scale);
    /// Forgets the line until the next call of follow.
    void hide() { m_image = QImage(); }
    /// Milliseconds that the line took to draw, the last time.
    double time() const { return m_time; }
    bool isShown() const { return !m_image.isNull(); }

    /// Paints the line into a picture of that size.
    void paint(QPainter &painter, const QSize &size) const;

private:
    void draw(const qxNodeMask &mask, int height, float scale);

    std::vector<osg::NodePtr> m_nodes;
    QImage m_image;
    QSize m_pixels; ///< of the whole picture
    QPoint m_place; ///< of the image in it
    double m_time = 0;
};
