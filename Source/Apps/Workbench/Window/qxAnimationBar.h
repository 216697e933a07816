#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QToolBar>

class QComboBox;
class QLabel;
class QSlider;
class QToolButton;

/// Plays the animations of the scene: play, pause, stop, a slider for the time, speed, loop, and
/// which of them play. Hidden while the scene has none; it works only while something plays.
class qxAnimationBar : public QToolBar {
    Q_OBJECT

public:
    explicit qxAnimationBar(QWidget *parent = nullptr);
    ~qxAnimationBar() override;

    /// For keys and menus.
    QAction *playAction() const { return m_play; }
    QAction *stopAction() const { return m_stop; }

protected:
    void changeEvent(QEvent *event) override;

private:
    void build();
    void retranslate();
    void follow();
    void tick();
    void showTime();
    void fillClips();

    QAction *m_play;
    QAction *m_stop;
    QAction *m_loop;
    QSlider *m_slider;
    QLabel *m_time;
    QComboBox *m_speed;
    QToolButton *m_clips;
    bool m_hasClips = false;
    QTimer m_timer{this};
    QElapsedTimer m_sinceTick;
};
