#include "qxSetDelegate.h"

#include "qxSetsModel.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace {

const QSize wholePreview(264, 256);
const int gap = 6;
const int barWidth = 3;

bool flag(const QModelIndex &index, int role)
{
    return index.data(role).toBool();
}

QColor mixed(const QColor &one, const QColor &other, qreal share)
{
    return QColor::fromRgbF(one.redF() * share + other.redF() * (1 - share),
                            one.greenF() * share + other.greenF() * (1 - share),
                            one.blueF() * share + other.blueF() * (1 - share));
}

QPalette::ColorGroup colorGroup(const QStyleOptionViewItem &option)
{
    return option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
}

QColor textColor(const QStyleOptionViewItem &option, bool faint)
{
    const bool selected = option.state & QStyle::State_Selected;
    const QPalette &palette = option.palette;
    const QPalette::ColorGroup group = colorGroup(option);
    const QColor text = palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
    const QColor ground = palette.color(group, selected ? QPalette::Highlight : QPalette::Base);
    return faint ? mixed(text, ground, 0.6) : text;
}

bool isFaint(const QModelIndex &index)
{
    return flag(index, qxSetsModel::EmptyRole) || flag(index, qxSetsModel::HiddenRole);
}

QFont fontOf(const QStyleOptionViewItem &option, const QModelIndex &index)
{
    QFont font = option.font;
    font.setBold(flag(index, qxSetsModel::IsGroupRole));
    font.setItalic(isFaint(index));
    return font;
}

/// Draws the text and takes its width from the right side of `place`.
void takeRightText(QPainter *painter, QRect &place, const QString &text)
{
    if (text.isEmpty())
        return;
    painter->drawText(place, Qt::AlignRight | Qt::AlignVCenter, text);
    place.setRight(place.right() - painter->fontMetrics().horizontalAdvance(text) - gap);
}

/// A key that does not select the set is struck out.
void takeKey(QPainter *painter, QRect &place, const QModelIndex &index)
{
    const QFont before = painter->font();
    QFont font = before;
    font.setStrikeOut(flag(index, qxSetsModel::KeyTakenRole));
    painter->setFont(font);
    takeRightText(painter, place, index.data(qxSetsModel::HotkeyRole).toString());
    painter->setFont(before);
}

void takeWarningSign(QPainter *painter, QRect &place, const QModelIndex &index)
{
    const bool unused = flag(index, qxSetsModel::UnusedRole);
    if (!unused || flag(index, qxSetsModel::EmptyRole) || flag(index, qxSetsModel::IsGroupRole))
        return;
    const int side = painter->fontMetrics().height();
    const QIcon sign = QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
    sign.paint(painter, place.right() - side, place.top(), side, place.height());
    place.setRight(place.right() - side - gap);
}

void paintCurrentBar(QPainter *painter, const QRect &place, const QStyleOptionViewItem &option,
                     const QModelIndex &index)
{
    if (flag(index, qxSetsModel::CurrentRole))
        painter->fillRect(QRect(place.topLeft(), QSize(barWidth, place.height())),
                          mixed(option.palette.highlight().color(), Qt::green, 0.5));
}

/// Something small in a corner of a picture, on a ground of its own, so that it is read on any.
QRect paintBadgeGround(QPainter *painter, const QRect &place, const QStyleOptionViewItem &option)
{
    QColor ground = option.palette.color(QPalette::Base);
    ground.setAlphaF(0.85);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(mixed(option.palette.text().color(), option.palette.base().color(), 0.3));
    painter->setBrush(ground);
    painter->drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), gap / 2.0, gap / 2.0);
    painter->setRenderHint(QPainter::Antialiasing, false);
    return place;
}

void paintKeyBadge(QPainter *painter, const QRect &picture, const QStyleOptionViewItem &option,
                   const QModelIndex &index)
{
    const QString key = index.data(qxSetsModel::HotkeyRole).toString();
    if (key.isEmpty())
        return;
    QFont font = option.font;
    font.setStrikeOut(flag(index, qxSetsModel::KeyTakenRole));
    painter->setFont(font);
    const QFontMetrics metrics(font);
    const QSize size(std::min(metrics.horizontalAdvance(key) + gap, picture.width()),
                     metrics.height());
    const QRect place(picture.bottomRight() - QPoint(size.width(), size.height()), size);
    paintBadgeGround(painter, place, option);
    painter->setPen(option.palette.color(QPalette::Text));
    painter->drawText(place, Qt::AlignCenter,
                      metrics.elidedText(key, Qt::ElideRight, place.width()));
}

/// From the upper right corner to the left.
void paintSigns(QPainter *painter, const QRect &picture, const QStyleOptionViewItem &option,
                const QModelIndex &index)
{
    const bool isUnused =
        flag(index, qxSetsModel::UnusedRole) && !flag(index, qxSetsModel::EmptyRole);
    const int side = option.fontMetrics.height() + gap / 2;
    QRect place(picture.right() - side, picture.top() + 1, side, side);
    const auto paint = [&](QStyle::StandardPixmap sign) {
        paintBadgeGround(painter, place, option);
        const int inset = gap / 2;
        QApplication::style()->standardIcon(sign).paint(
            painter, place.adjusted(inset, inset, -inset, -inset));
        place.translate(-side - 1, 0);
    };
    if (flag(index, qxSetsModel::StaleRole))
        paint(QStyle::SP_BrowserReload);
    if (isUnused)
        paint(QStyle::SP_MessageBoxWarning);
}

void paintCurrentFrame(QPainter *painter, const QRect &picture, const QStyleOptionViewItem &option,
                       const QModelIndex &index)
{
    if (!flag(index, qxSetsModel::CurrentRole))
        return;
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(mixed(option.palette.highlight().color(), Qt::green, 0.5), barWidth,
                         Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->drawRect(
        picture.adjusted(barWidth / 2, barWidth / 2, -barWidth / 2 - 1, -barWidth / 2 - 1));
}

} // namespace

qxSetDelegate::qxSetDelegate(Form form, QObject *parent) : QStyledItemDelegate(parent), m_form(form)
{
}

QSize qxSetDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const int line = option.fontMetrics.height();
    if (m_form == Lines)
        return QSize(10 * line, line + gap);
    if (index.data(qxSetsModel::IsGroupRole).toBool())
        return QSize(m_headingWidth, line + 2 * gap);
    return QSize(m_cardWidth, pictureSize().height() + line + 3 * gap);
}

bool qxSetDelegate::setWidths(int card, int heading)
{
    if (card == m_cardWidth && heading == m_headingWidth)
        return false;
    m_cardWidth = card;
    m_headingWidth = heading;
    return true;
}

/// As wide as the card, in the relation of a preview.
QSize qxSetDelegate::pictureSize() const
{
    const int width = std::max(1, m_cardWidth - 2 * gap);
    return QSize(width, width * wholePreview.height() / wholePreview.width());
}

QRect qxSetDelegate::arrowOf(const QRect &heading, Qt::LayoutDirection direction) const
{
    const QRect left(heading.topLeft(), QSize(heading.height(), heading.height()));
    return QStyle::visualRect(direction, heading, left);
}

void qxSetDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    if (option.state & QStyle::State_Selected)
        painter->fillRect(option.rect,
                          option.palette.color(colorGroup(option), QPalette::Highlight));
    painter->save();
    painter->setFont(fontOf(option, index));
    if (m_form == Lines)
        paintLine(painter, option, index);
    else if (flag(index, qxSetsModel::IsGroupRole))
        paintHeading(painter, option, index);
    else
        paintCard(painter, option, index);
    painter->restore();
}

void qxSetDelegate::paintLine(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    QRect place = option.rect;
    paintCurrentBar(painter, place, option, index);
    place.adjust(barWidth + gap, 0, -gap, 0);
    painter->setPen(textColor(option, true));
    if (flag(index, qxSetsModel::IsGroupRole))
        takeRightText(painter, place, index.data(qxSetsModel::CountRole).toString());
    else
        takeKey(painter, place, index);
    takeWarningSign(painter, place, index);
    painter->setPen(textColor(option, isFaint(index)));
    const QFontMetrics metrics = painter->fontMetrics();
    const QString name =
        metrics.elidedText(index.data(Qt::DisplayRole).toString(), Qt::ElideRight, place.width());
    painter->drawText(place, Qt::AlignVCenter, name);
    place.setLeft(place.left() + metrics.horizontalAdvance(name) + 2 * gap);
    const QString comment = index.data(qxSetsModel::CommentRole).toString().section('\n', 0, 0);
    if (comment.isEmpty() || place.width() < 4 * metrics.height())
        return;
    QFont font = option.font;
    font.setItalic(true);
    painter->setFont(font);
    painter->setPen(textColor(option, true));
    painter->drawText(place, Qt::AlignVCenter,
                      metrics.elidedText(comment, Qt::ElideRight, place.width()));
}

/// With a line below it, up to the right side.
void qxSetDelegate::paintHeading(QPainter *painter, const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const
{
    const QRect arrow = arrowOf(option.rect, option.direction);
    QStyleOption shape;
    shape.palette = option.palette;
    shape.rect = arrow.adjusted(gap, gap, -gap, -gap);
    shape.state = QStyle::State_Children | QStyle::State_Enabled;
    if (!flag(index, qxSetsModel::ClosedRole))
        shape.state |= QStyle::State_Open;
    const bool isClosed = flag(index, qxSetsModel::ClosedRole);
    const bool isMirrored = option.direction == Qt::RightToLeft;
    QApplication::style()->drawPrimitive(!isClosed        ? QStyle::PE_IndicatorArrowDown
                                             : isMirrored ? QStyle::PE_IndicatorArrowLeft
                                                          : QStyle::PE_IndicatorArrowRight,
                                         &shape, painter, option.widget);
    QRect place = option.rect.adjusted(arrow.width(), 0, -gap, 0);
    painter->setPen(textColor(option, true));
    takeRightText(painter, place, index.data(qxSetsModel::CountRole).toString());
    painter->setPen(textColor(option, isFaint(index)));
    painter->drawText(
        place, Qt::AlignVCenter,
        painter->fontMetrics().elidedText(index.data().toString(), Qt::ElideRight, place.width()));
    painter->setPen(mixed(option.palette.text().color(), option.palette.base().color(), 0.2));
    painter->drawLine(option.rect.left() + gap, option.rect.bottom(), option.rect.right() - gap,
                      option.rect.bottom());
}

void qxSetDelegate::paintPicture(QPainter *painter, const QRect &place,
                                 const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    painter->fillRect(place,
                      mixed(option.palette.text().color(), option.palette.base().color(), 0.08));
    const QByteArray preview = index.data(qxSetsModel::PreviewRole).toByteArray();
    const qreal ratio = painter->device()->devicePixelRatioF();
    QPixmap picture = m_previews.picture(preview, place.size() * ratio);
    if (!picture.isNull()) {
        picture.setDevicePixelRatio(ratio);
        const QSize size = picture.size() / ratio;
        return painter->drawPixmap(place.left() + (place.width() - size.width()) / 2,
                                   place.top() + (place.height() - size.height()) / 2, picture);
    }
    if (m_previews.isBehind() && !preview.isEmpty())
        return;
    painter->setPen(mixed(option.palette.text().color(), option.palette.base().color(), 0.6));
    painter->drawText(place, Qt::AlignCenter | Qt::TextWordWrap, tr("No preview"));
}

void qxSetDelegate::paintCard(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    const QRect place = option.rect.adjusted(gap, gap, -gap, -gap);
    const QRect picture(place.topLeft(), pictureSize());
    const QRect under(place.left(), picture.bottom() + gap / 2, place.width(),
                      painter->fontMetrics().height());
    painter->setPen(textColor(option, flag(index, qxSetsModel::EmptyRole)));
    painter->drawText(
        under, Qt::AlignCenter,
        painter->fontMetrics().elidedText(index.data().toString(), Qt::ElideRight, under.width()));
    paintPicture(painter, picture, option, index);
    paintSigns(painter, picture, option, index);
    paintKeyBadge(painter, picture, option, index);
    paintCurrentFrame(painter, picture, option, index);
}

void qxSetDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                         const QModelIndex &index) const
{
    if (m_form == Lines || flag(index, qxSetsModel::IsGroupRole))
        return QStyledItemDelegate::updateEditorGeometry(editor, option, index);
    const int height = editor->sizeHint().height();
    editor->setGeometry(option.rect.left() + gap, option.rect.bottom() - height,
                        option.rect.width() - 2 * gap, height);
}
