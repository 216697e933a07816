#include "qxContactSheet.h"

#include <QBuffer>
#include <QPainter>

#include <cmath>

namespace {

constexpr int Gap = 16;
constexpr int NameHeight = 34;
constexpr int NamePixels = 17;
const QColor paper(0xf6, 0xf6, 0xf4);
const QColor ink(0x1d, 0x21, 0x25);

} // namespace

int qxContactSheet::columns() const
{
    const double cellWidth = m_size.width() + Gap;
    const double cellHeight = m_size.height() + NameHeight + Gap;
    const int square = int(std::lround(std::sqrt(m_entries.size() * cellHeight / cellWidth)));
    return qBound(1, square, m_entries.size());
}

QRect qxContactSheet::cell(int number) const
{
    const int column = number % columns();
    const int row = number / columns();
    return QRect(QPoint(Gap + column * (m_size.width() + Gap),
                        Gap + row * (m_size.height() + NameHeight + Gap)),
                 m_size);
}

QByteArray qxContactSheet::png() const
{
    const QRect last = cell(m_entries.size() - 1);
    QImage sheet(Gap + columns() * (m_size.width() + Gap), last.bottom() + 1 + NameHeight + Gap,
                 QImage::Format_RGB888);
    sheet.fill(paper);
    QPainter painter(&sheet);
    painter.setPen(ink);
    QFont font(QStringLiteral("sans-serif"));
    font.setPixelSize(NamePixels);
    painter.setFont(font);
    for (int i = 0; i < m_entries.size(); ++i) {
        const QRect place = cell(i);
        painter.drawImage(place, m_entries[i].picture);
        const QRect line(place.left(), place.bottom() + 1, place.width(), NameHeight);
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         painter.fontMetrics().elidedText(m_entries[i].name.simplified(),
                                                          Qt::ElideRight, line.width()));
    }
    painter.end();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    sheet.save(&buffer, "PNG");
    return buffer.data();
}
