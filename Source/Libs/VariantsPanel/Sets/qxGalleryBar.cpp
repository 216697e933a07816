#include "qxGalleryBar.h"

#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxGallery.h"
#include "qxPreviewAge.h"
#include "qxSetsView.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>

namespace {

const int sliceTime = 4; ///< milliseconds

} // namespace

qxGalleryBar::qxGalleryBar(qxSetsView *view, const qxPreviewAge *age, QWidget *parent)
    : QWidget(parent), m_view(view), m_age(age), m_make(new QPushButton), m_cancel(new QPushButton),
      m_progress(new QProgressBar), m_text(new QLabel), m_size(new QSlider(Qt::Horizontal))
{
    setObjectName(QStringLiteral("galleryBar"));
    build();
    connect(m_make, &QPushButton::clicked, this, &qxGalleryBar::askForAll);
    connect(m_cancel, &QPushButton::clicked, this, &qxGalleryBar::cancelled);
    connect(m_size, &QSlider::valueChanged, this,
            [this](int width) { m_view->gallery()->setTileWidth(width); });
    connect(m_view->gallery(), &qxGallery::zoomed, this, &qxGalleryBar::followZoom);
    connect(m_view, &QStackedWidget::currentChanged, this, &qxGalleryBar::showParts);
    connect(age, &qxPreviewAge::changed, this, &qxGalleryBar::look);
    m_counting.setInterval(0);
    connect(&m_counting, &QTimer::timeout, this, &qxGalleryBar::count);
    followZoom();
    retranslate();
    showParts();
    look();
}

void qxGalleryBar::build()
{
    auto *const layout = new QHBoxLayout(this);
    const int line = fontMetrics().height();
    layout->setContentsMargins(line / 4, 0, line / 4, line / 4);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_progress->setMinimumWidth(4 * line);
    m_size->setFixedWidth(6 * line);
    layout->addWidget(m_make);
    layout->addWidget(m_cancel);
    layout->addWidget(m_progress, 1);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_size);
}

void qxGalleryBar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    if (event->type() == QEvent::FontChange)
        followZoom();
}

void qxGalleryBar::retranslate()
{
    m_make->setText(tr("Make Previews"));
    m_make->setToolTip(tr("Make the previews that are missing or out of date"));
    m_cancel->setText(tr("Cancel"));
    m_size->setToolTip(tr("Size of the previews (Ctrl and the wheel)"));
    m_size->setAccessibleName(tr("Size of the previews"));
    m_progress->setAccessibleName(tr("Previews"));
    showCounts();
}

void qxGalleryBar::followZoom()
{
    const qxGallery &gallery = *m_view->gallery();
    const QSignalBlocker quiet(m_size);
    m_size->setRange(gallery.leastTileWidth(), gallery.mostTileWidth());
    m_size->setPageStep((m_size->maximum() - m_size->minimum()) / 5);
    m_size->setSingleStep(m_size->pageStep() / 4);
    m_size->setValue(gallery.tileWidth());
}

void qxGalleryBar::look()
{
    m_next = 0;
    m_missing = 0;
    m_stale = 0;
    m_counting.start();
}

/// What is counted is shown when it is complete.
void qxGalleryBar::count()
{
    QElapsedTimer slice;
    slice.start();
    const auto &sets = qxVariants::_variantSets;
    for (; m_next < sets.size() && slice.elapsed() < sliceTime; ++m_next) {
        const qxVariantSet &set = *sets[m_next];
        m_missing += set.preview.isEmpty();
        m_stale += m_age->isStale(set);
    }
    if (m_next < sets.size())
        return;
    m_counting.stop();
    m_shownMissing = m_missing;
    m_shownStale = m_stale;
    showCounts();
}

void qxGalleryBar::showCounts()
{
    QStringList parts;
    if (m_shownMissing > 0)
        parts << tr("%n missing", nullptr, m_shownMissing);
    if (m_shownStale > 0)
        parts << tr("%n out of date", nullptr, m_shownStale);
    m_text->setText(parts.join(QStringLiteral(", ")));
    showParts();
}

void qxGalleryBar::showParts()
{
    const bool isGallery = m_view->form() == qxSetsView::Gallery;
    const bool isAnythingWanted = m_shownMissing + m_shownStale > 0;
    m_make->setVisible(!m_isRunning && isAnythingWanted);
    m_text->setVisible(!m_isRunning);
    m_cancel->setVisible(m_isRunning);
    m_progress->setVisible(m_isRunning);
    m_size->setVisible(isGallery);
    setVisible(isGallery || m_isRunning);
}

void qxGalleryBar::showProgress(int done, int total)
{
    m_isRunning = true;
    m_progress->setRange(0, total);
    m_progress->setValue(done);
    m_progress->setFormat(tr("%1 of %2").arg(done).arg(total));
    showParts();
}

void qxGalleryBar::endProgress()
{
    const bool hadFocus = m_cancel->hasFocus();
    m_isRunning = false;
    showCounts();
    if (hadFocus)
        m_view->currentWidget()->setFocus(Qt::OtherFocusReason);
    look();
}

bool qxGalleryBar::isWanted(const QString &name) const
{
    const qxVariantSet *const set = qxVariants::findVariantSet(name);
    return set && (set->preview.isEmpty() || m_age->isStale(*set));
}

/// In the order of the view, so that one can see how far it is; then those that it does not show.
void qxGalleryBar::askForAll()
{
    QStringList sets = m_view->shownSets();
    const QSet<QString> shown(sets.begin(), sets.end());
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        if (!shown.contains(set->name))
            sets << set->name;
    }
    QStringList missing;
    for (const QString &set : sets) {
        if (isWanted(set))
            missing << set;
    }
    Q_EMIT wanted(missing);
}
