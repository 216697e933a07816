#include "qxSetCaption.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace {

const double largeSize = 1.8; ///< of the usual font

} // namespace

qxSetCaption::qxSetCaption(QWidget *picture)
    : QFrame(picture), m_small(new QLabel), m_large(new QLabel)
{
    setObjectName(QStringLiteral("caption"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    auto *const lines = new QVBoxLayout(this);
    lines->setSpacing(0);
    QFont font = m_large->font();
    font.setPointSizeF(font.pointSizeF() * largeSize);
    m_large->setFont(font);
    for (QLabel *label : {m_small, m_large}) {
        label->setTextFormat(Qt::PlainText);
        label->setForegroundRole(QPalette::ToolTipText);
        label->setWordWrap(true);
        lines->addWidget(label);
    }
    picture->installEventFilter(this);
    hide();
}

void qxSetCaption::showText(const QString &small, const QString &large)
{
    m_small->setText(small);
    m_small->setVisible(!small.isEmpty());
    m_large->setText(large);
    m_large->setVisible(!large.isEmpty());
    setVisible(!small.isEmpty() || !large.isEmpty());
    place();
}

/// As wide as its lines, if the picture is.
void qxSetCaption::place()
{
    const int gap = 2 * fontMetrics().height();
    const int most = qMax(1, parentWidget()->width() - 2 * gap);
    int wanted = 0;
    for (const QLabel *label : {m_small, m_large}) {
        if (!label->text().isEmpty())
            wanted = qMax(wanted, label->fontMetrics().size(0, label->text()).width());
    }
    const QMargins margins = layout()->contentsMargins();
    const int width = qMin(most, wanted + margins.left() + margins.right() + 2);
    const int height = layout()->heightForWidth(width);
    setGeometry(gap, parentWidget()->height() - gap - height, width, height);
    raise();
}

bool qxSetCaption::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && isVisible())
        place();
    return QFrame::eventFilter(watched, event);
}
