#include "qxGallery.h"

#include "qxKeyHints.h"
#include "qxSetDelegate.h"
#include "qxSetsModel.h"

#include <QKeyEvent>
#include <QWheelEvent>

#include <cmath>
#include <cstdlib>

namespace {

/// Widths of tiles in heights of a line.
const int least = 5;
const int usual = 9;
const int most = 24;
const double wheelZoom = 1.0 / 1200; ///< share of the width for an eighth of a degree

} // namespace

qxGallery::qxGallery(QWidget *parent)
    : QListView(parent), m_delegate(new qxSetDelegate(qxSetDelegate::Cards, this))
{
    setFlow(LeftToRight);
    setWrapping(true);
    setResizeMode(Adjust);
    setItemDelegate(m_delegate);
    // The width of the tiles must not depend on whether they need it.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_wanted = usual * fontMetrics().height();
    retranslate();
}

void qxGallery::retranslate()
{
    setAccessibleName(tr("Gallery of the variant sets"));
    qxKeyHints::tell(
        *this,
        {{tr("Wheel with Ctrl"), tr("Larger or smaller previews")},
         {QKeySequence::listToString({Qt::Key_Left, Qt::Key_Right}, QKeySequence::NativeText),
          tr("On a heading: close it, open it")}});
}

int qxGallery::leastTileWidth() const
{
    return least * fontMetrics().height();
}

int qxGallery::mostTileWidth() const
{
    return most * fontMetrics().height();
}

void qxGallery::setTileWidth(int width)
{
    const int bounded = qBound(leastTileWidth(), width, mostTileWidth());
    if (bounded == m_wanted)
        return;
    m_wanted = bounded;
    fitTiles();
    Q_EMIT zoomed();
}

/// A row ends before the last pixel: an item that ends there would begin the next one.
void qxGallery::fitTiles()
{
    const int width = maximumViewportSize().width() - 1;
    const int columns = std::max(1, int(std::lround(double(width) / m_wanted)));
    if (!m_delegate->setWidths(width / columns, width))
        return;
    scheduleDelayedItemsLayout();
    const QModelIndex current = currentIndex();
    if (current.isValid())
        scrollTo(current);
}

void qxGallery::resizeEvent(QResizeEvent *event)
{
    fitTiles();
    QListView::resizeEvent(event);
}

void qxGallery::changeEvent(QEvent *event)
{
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitTiles();
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

/// What takes too long to decode comes in the next turn.
void qxGallery::paintEvent(QPaintEvent *event)
{
    m_delegate->previews().beginTurn();
    QListView::paintEvent(event);
    if (m_delegate->previews().isBehind())
        viewport()->update();
}

void qxGallery::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier))
        return QListView::wheelEvent(event);
    setTileWidth(int(std::lround(m_wanted * std::exp(event->angleDelta().y() * wheelZoom))));
    event->accept();
}

bool qxGallery::isHeading(int row) const
{
    return model()->index(row, 0).data(qxSetsModel::IsGroupRole).toBool();
}

/// False for what is no heading, or is like that already.
bool qxGallery::toggle(const QModelIndex &heading, bool wantsOpen)
{
    if (!heading.isValid() || !heading.data(qxSetsModel::IsGroupRole).toBool()
        || heading.data(qxSetsModel::ClosedRole).toBool() != wantsOpen)
        return false;
    Q_EMIT toggled(heading.data(Qt::EditRole).toString());
    return true;
}

void qxGallery::keyPressEvent(QKeyEvent *event)
{
    const bool isPlain = !(event->modifiers() & ~Qt::KeypadModifier);
    const bool isSide = event->key() == Qt::Key_Left || event->key() == Qt::Key_Right;
    const bool wantsOpen = (event->key() == Qt::Key_Right) == isLeftToRight();
    if (isPlain && isSide && toggle(currentIndex(), wantsOpen))
        return event->accept();
    QListView::keyPressEvent(event);
}

void qxGallery::mousePressEvent(QMouseEvent *event)
{
    m_across = -1;
    const QModelIndex index = indexAt(event->pos());
    const bool isOnArrow = event->button() == Qt::LeftButton && index.isValid()
        && m_delegate->arrowOf(visualRect(index), layoutDirection()).contains(event->pos());
    if (isOnArrow && toggle(index, index.data(qxSetsModel::ClosedRole).toBool()))
        return event->accept();
    QListView::mousePressEvent(event);
}

QModelIndex qxGallery::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const int row = currentIndex().row();
    const bool isPage = action == MovePageUp || action == MovePageDown;
    if (row >= 0 && (isPage || action == MoveUp || action == MoveDown))
        return alongFrom(row, action == MoveUp || action == MovePageUp ? -1 : 1, isPage);
    m_across = -1;
    if (row < 0 || action == MoveHome || action == MoveEnd)
        return QListView::moveCursor(action, modifiers);
    const bool isBack =
        action == MovePrevious || action == (isLeftToRight() ? MoveLeft : MoveRight);
    return model()->index(qBound(0, isBack ? row - 1 : row + 1, model()->rowCount() - 1), 0);
}

/// Up or down by a line or a page, as near as may be to where that began.
QModelIndex qxGallery::alongFrom(int row, int step, bool isPage)
{
    if (m_across < 0)
        m_across = isHeading(row) ? 0 : rectOf(row).center().x();
    return model()->index(isPage ? pageFrom(row, step, m_across) : moved(row, step, m_across), 0);
}

QRect qxGallery::rectOf(int row) const
{
    return visualRect(model()->index(row, 0));
}

/// A row of the line above or below; the same one when there is none.
int qxGallery::lineBeside(int row, int step) const
{
    const int top = rectOf(row).top();
    for (int other = row + step; other >= 0 && other < model()->rowCount(); other += step) {
        if (rectOf(other).top() != top)
            return other;
    }
    return row;
}

/// The row at that place of the line in which `row` is.
int qxGallery::rowInLine(int row, int x) const
{
    const int top = rectOf(row).top();
    const auto distance = [&](int each) { return std::abs(rectOf(each).center().x() - x); };
    int best = row;
    for (const int step : {-1, 1}) {
        for (int each = row + step;
             each >= 0 && each < model()->rowCount() && rectOf(each).top() == top; each += step) {
            if (distance(each) < distance(best))
                best = each;
        }
    }
    return best;
}

int qxGallery::moved(int row, int step, int x) const
{
    const int beside = lineBeside(row, step);
    return beside == row ? row : rowInLine(beside, x);
}

int qxGallery::pageFrom(int row, int step, int x) const
{
    const int from = rectOf(row).top();
    int last = moved(row, step, x);
    for (int next = moved(last, step, x);
         next != last && std::abs(rectOf(next).bottom() - from) < viewport()->height();
         next = moved(last, step, x))
        last = next;
    return last;
}
