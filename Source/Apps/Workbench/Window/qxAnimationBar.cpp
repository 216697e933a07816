#include "qxAnimationBar.h"

#include "Animation/qxAnimationPlayer.h"
#include "qxIcons.h"
#include "qxText.h"

#include <QAction>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QMenu>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>

#include <algorithm>

namespace {

const int tickTime = 33; ///< milliseconds; a picture that takes longer delays the next one
const float longestTick = 0.25f; ///< seconds: what stands still for long does not jump
const float sliderStep = 0.01f; ///< seconds
const float speeds[] = {0.25f, 0.5f, 1, 2, 4};
const int usualSpeed = 2; ///< its place
const int timeMargin = 6; ///< pixels beside the time

qxAnimationPlayer &player()
{
    return qxAnimationPlayer::the();
}

/// On the slider. Files state any finite time.
int placeOf(float seconds)
{
    return int(std::min(seconds / sliderStep + 0.5f, 1e9f));
}

} // namespace

qxAnimationBar::qxAnimationBar(QWidget *parent)
    : QToolBar(parent), m_play(new QAction(this)), m_stop(new QAction(this)),
      m_loop(new QAction(this)), m_slider(new QSlider(Qt::Horizontal)), m_time(new QLabel),
      m_speed(new QComboBox), m_clips(new QToolButton)
{
    setObjectName(QStringLiteral("animation"));
    build();
    retranslate();
    m_timer.setInterval(tickTime);
    connect(&m_timer, &QTimer::timeout, this, &qxAnimationBar::tick);
    player().setListener([this] { follow(); });
    follow();
}

qxAnimationBar::~qxAnimationBar()
{
    player().setListener({});
    player().stop();
}

void qxAnimationBar::build()
{
    m_stop->setIcon(qxIcons::of("stop"));
    m_loop->setIcon(qxIcons::of("loop"));
    m_loop->setCheckable(true);
    m_loop->setChecked(player().isLooping());
    for (const float speed : speeds)
        m_speed->addItem(QString::number(double(speed)) + QStringLiteral(" \u00d7"));
    m_speed->setCurrentIndex(usualSpeed);
    m_time->setContentsMargins(timeMargin, 0, timeMargin, 0);
    m_clips->setMenu(new QMenu(m_clips));
    m_clips->setPopupMode(QToolButton::InstantPopup);
    m_clips->setFocusPolicy(Qt::TabFocus);
    addAction(m_play);
    addAction(m_stop);
    addWidget(m_slider);
    addWidget(m_time);
    addAction(m_loop);
    addWidget(m_speed);
    addWidget(m_clips);
    connect(m_play, &QAction::triggered, this, [] {
        player().state() == qxAnimationPlayer::Playing ? player().pause() : player().play();
    });
    connect(m_stop, &QAction::triggered, this, [] { player().stop(); });
    connect(m_loop, &QAction::toggled, this, [](bool on) { player().setLooping(on); });
    connect(m_speed, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [](int place) { player().setSpeed(speeds[place]); });
    connect(m_slider, &QSlider::valueChanged, this, [this](int value) {
        player().seek(float(value) * sliderStep);
        showTime();
    });
    connect(m_clips->menu(), &QMenu::aboutToShow, this, &qxAnimationBar::fillClips);
}

void qxAnimationBar::changeEvent(QEvent *event)
{
    QToolBar::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void qxAnimationBar::retranslate()
{
    setWindowTitle(tr("Animation"));
    m_stop->setText(tr("Stop"));
    m_stop->setToolTip(tr("Stop: the scene is at rest again"));
    m_loop->setText(tr("Loop"));
    m_slider->setToolTip(tr("Time of the animation"));
    m_slider->setAccessibleName(m_slider->toolTip());
    m_speed->setToolTip(tr("Speed"));
    m_speed->setAccessibleName(m_speed->toolTip());
    m_clips->setText(tr("Animations"));
    m_clips->setToolTip(tr("Which animations play"));
    follow();
}

/// State, choice or clips have changed.
void qxAnimationBar::follow()
{
    const bool isPlaying = player().state() == qxAnimationPlayer::Playing;
    const bool hasClips = !player().clips().empty();
    if (hasClips != m_hasClips)
        setVisible(hasClips);
    m_hasClips = hasClips;
    toggleViewAction()->setEnabled(hasClips);
    m_play->setEnabled(hasClips);
    m_stop->setEnabled(hasClips && player().state() != qxAnimationPlayer::Stopped);
    m_play->setIcon(qxIcons::of(isPlaying ? "pause" : "play"));
    m_play->setText(isPlaying ? tr("Pause") : tr("Play"));
    showTime();
    if (isPlaying == m_timer.isActive())
        return;
    if (!isPlaying)
        return m_timer.stop();
    m_sinceTick.start();
    m_timer.start();
}

void qxAnimationBar::tick()
{
    player().advance(std::min(float(m_sinceTick.restart()) * 1e-3f, longestTick));
    showTime();
}

void qxAnimationBar::showTime()
{
    const QSignalBlocker quiet(m_slider);
    m_slider->setMaximum(placeOf(player().duration()));
    m_slider->setValue(placeOf(player().time()));
    const auto shown = [this](float time) { return locale().toString(double(time), 'f', 2); };
    m_time->setText(tr("%1 of %2 s").arg(shown(player().time()), shown(player().duration())));
}

void qxAnimationBar::fillClips()
{
    QMenu *const menu = m_clips->menu();
    menu->clear();
    menu->addAction(tr("All"), this, [] { player().chooseAll(); });
    menu->addSeparator();
    for (std::size_t clip = 0; clip < player().clips().size(); ++clip) {
        const QString name = qxText::fromUtf8(player().clips()[clip].name);
        QString text = name;
        QAction *const action =
            menu->addAction(name.isEmpty() ? tr("Animation %1").arg(clip + 1)
                                           : text.replace('&', QLatin1String("&&")));
        action->setCheckable(true);
        action->setChecked(player().isChosen(clip));
        connect(action, &QAction::toggled, this, [clip](bool on) { player().choose(clip, on); });
    }
}
