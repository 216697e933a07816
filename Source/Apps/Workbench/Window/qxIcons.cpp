#include "qxIcons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QTextStream>

#include <algorithm>
#include <cstring>

namespace {

const int side = 16; ///< of the square that the shapes are drawn in

/// A shape is written as in the path data of SVG, with M, L, C and Z, and O for a circle: its
/// middle and its radius.
struct Shape {
    const char *name;
    bool isFilled;
    const char *path;
};

const Shape shapes[] = {
    {"open", false,
     "M 1.5 13 L 1.5 3 L 6 3 L 7.5 5 L 12.5 5 L 12.5 7 M 1.5 13 L 4 7 L 15 7 L 12.5 13 Z"},
    {"save", false,
     "M 2.5 2.5 L 11.5 2.5 L 13.5 4.5 L 13.5 13.5 L 2.5 13.5 Z M 5 2.5 L 5 6 L 10.5 6 L 10.5 2.5 "
     "M 4.5 13.5 L 4.5 9 L 11.5 9 L 11.5 13.5"},
    {"undo", false, "M 6 3 L 2.5 6.5 L 6 10 M 2.5 6.5 L 10 6.5 C 15 6.5 15 13 10 13 L 6 13"},
    {"redo", false, "M 10 3 L 13.5 6.5 L 10 10 M 13.5 6.5 L 6 6.5 C 1 6.5 1 13 6 13 L 10 13"},
    {"back", false, "M 7 3 L 2 8 L 7 13 M 2 8 L 14 8"},
    {"capture", false,
     "M 1.5 4.5 L 4.5 4.5 L 6 2.5 L 10 2.5 L 11.5 4.5 L 14.5 4.5 L 14.5 13 L 1.5 13 Z O 8 8.5 2.7"},
    {"newSet", false, "M 2.5 2.5 L 13.5 2.5 L 13.5 13.5 L 2.5 13.5 Z M 8 5 L 8 11 M 5 8 L 11 8"},
    {"everything", false,
     "M 2 5.5 L 2 2 L 5.5 2 M 10.5 2 L 14 2 L 14 5.5 M 14 10.5 L 14 14 L 10.5 14 "
     "M 5.5 14 L 2 14 L 2 10.5 O 8 8 2.8"},
    {"rayTracing", false, "O 8 7 5 M 5.5 6.8 C 5.7 5.3 6.6 4.5 8 4.4 M 2 14 L 14 14"},
    {"gallery", false,
     "M 2.5 2.5 L 7 2.5 L 7 7 L 2.5 7 Z M 9 2.5 L 13.5 2.5 L 13.5 7 L 9 7 Z "
     "M 2.5 9 L 7 9 L 7 13.5 L 2.5 13.5 Z M 9 9 L 13.5 9 L 13.5 13.5 L 9 13.5 Z"},
    {"presentation", false,
     "M 1.5 2.5 L 14.5 2.5 L 14.5 11 L 1.5 11 Z M 8 11 L 8 14 M 5 14 L 11 14"},
    {"play", true, "M 4.5 2.5 L 13 8 L 4.5 13.5 Z"},
    {"pause", true, "M 4 3 L 6.5 3 L 6.5 13 L 4 13 Z M 9.5 3 L 12 3 L 12 13 L 9.5 13 Z"},
    {"stop", true, "M 3.5 3.5 L 12.5 3.5 L 12.5 12.5 L 3.5 12.5 Z"},
    {"loop", false,
     "M 13 8 C 13 14.5 3 14.5 3 8 C 3 2.5 9 1.5 12 5 M 12.2 1.5 L 12.2 5.2 L 8.5 5.2"},
};

QPainterPath pathOf(const Shape &shape)
{
    QPainterPath path;
    QString data = QString::fromLatin1(shape.path);
    QTextStream words(&data);
    const auto number = [&words] {
        qreal read = 0;
        words >> read;
        return read;
    };
    const auto point = [&number] {
        const qreal x = number();
        return QPointF(x, number());
    };
    for (QString command; !words.atEnd();) {
        words >> command;
        if (command == QLatin1String("M")) {
            path.moveTo(point());
        } else if (command == QLatin1String("L")) {
            path.lineTo(point());
        } else if (command == QLatin1String("C")) {
            const QPointF first = point();
            const QPointF second = point();
            path.cubicTo(first, second, point());
        } else if (command == QLatin1String("O")) {
            const QPointF middle = point();
            const qreal radius = number();
            path.addEllipse(middle, radius, radius);
        } else {
            path.closeSubpath();
        }
    }
    return path;
}

class ShapeEngine : public QIconEngine {
public:
    explicit ShapeEngine(const Shape &shape) : m_shape(shape) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const QPalette palette = QApplication::palette();
        const QPalette::ColorGroup group =
            mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor colour = palette.color(
            group, mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText);
        const qreal scale = qreal(std::min(rect.width(), rect.height())) / side;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(QRectF(rect).center() - QPointF(side, side) * scale / 2);
        painter->scale(scale, scale);
        painter->setPen(QPen(colour, 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->setBrush(m_shape.isFilled ? QBrush(colour) : QBrush(Qt::NoBrush));
        painter->drawPath(pathOf(m_shape));
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }

    QIconEngine *clone() const override { return new ShapeEngine(m_shape); }

private:
    const Shape &m_shape;
};

} // namespace

QIcon qxIcons::of(const char *name)
{
    const auto found =
        std::find_if(std::begin(shapes), std::end(shapes),
                     [name](const Shape &shape) { return std::strcmp(shape.name, name) == 0; });
    return found == std::end(shapes) ? QIcon() : QIcon(new ShapeEngine(*found));
}
