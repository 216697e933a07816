#include "qxSetDelegate.h"

#include "qxSetsModel.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>

namespace {

const QSize pictureSize(132, 128); ///< half of a preview
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

void paintPicture(QPainter *painter, const QRect &place, const QStyleOptionViewItem &option,
                  const QModelIndex &index)
{
    const QPixmap picture = index.data(qxSetsModel::PreviewRole).value<QPixmap>();
    if (!picture.isNull()) {
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        return painter->drawPixmap(place, picture);
    }
    painter->fillRect(place,
                      mixed(option.palette.text().color(), option.palette.base().color(), 0.08));
    painter->setPen(mixed(option.palette.text().color(), option.palette.base().color(), 0.6));
    painter->drawText(place, Qt::AlignCenter | Qt::TextWordWrap, qxSetDelegate::tr("No preview"));
}

} // namespace

qxSetDelegate::qxSetDelegate(Form form, QObject *parent) : QStyledItemDelegate(parent), m_form(form)
{
}

QSize qxSetDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    const int line = option.fontMetrics.height();
    if (m_form == Lines)
        return QSize(10 * line, line + gap);
    return pictureSize + QSize(2 * gap, 2 * line + 3 * gap);
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

void qxSetDelegate::paintCard(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    QRect place = option.rect.adjusted(gap, gap, -gap, -gap);
    const QRect picture(QPoint(place.center().x() - pictureSize.width() / 2, place.top()),
                        pictureSize);
    paintPicture(painter, picture, option, index);
    paintCurrentBar(painter, picture, option, index);
    place.setTop(picture.bottom() + gap);
    const int line = painter->fontMetrics().height();
    QRect under(place.left(), place.top() + line, place.width(), line);
    painter->setPen(textColor(option, true));
    takeKey(painter, under, index);
    takeWarningSign(painter, under, index);
    const QString group = index.data(qxSetsModel::GroupRole).toString();
    painter->drawText(under, Qt::AlignVCenter,
                      painter->fontMetrics().elidedText(group, Qt::ElideRight, under.width()));
    painter->setPen(textColor(option, flag(index, qxSetsModel::EmptyRole)));
    const QString name = index.data(Qt::DisplayRole).toString();
    painter->drawText(QRect(place.left(), place.top(), place.width(), line), Qt::AlignVCenter,
                      painter->fontMetrics().elidedText(name, Qt::ElideRight, place.width()));
}

void qxSetDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                         const QModelIndex &index) const
{
    if (m_form == Lines)
        return QStyledItemDelegate::updateEditorGeometry(editor, option, index);
    const int height = editor->sizeHint().height();
    editor->setGeometry(option.rect.left() + gap, option.rect.top() + pictureSize.height() + gap,
                        option.rect.width() - 2 * gap, height);
}
