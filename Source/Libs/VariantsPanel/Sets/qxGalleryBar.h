#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;
class QSlider;
class qxPreviewAge;
class qxSetsView;

/// The line below the gallery: which previews are missing or stale, with a button that makes them,
/// the progress of that with a button that ends it, and the size of the tiles. With a list it shows
/// that progress alone.
class qxGalleryBar : public QWidget {
    Q_OBJECT

public:
    qxGalleryBar(qxSetsView *view, const qxPreviewAge *age, QWidget *parent = nullptr);

    /// Sets, their previews or what these show may have changed.
    void look();
    /// Shows that so many previews of those wanted are made.
    void showProgress(int done, int total);
    /// No previews are being made any more.
    void endProgress();

Q_SIGNALS:
    /// The user wants previews of these sets.
    void wanted(const QStringList &sets);
    /// The user has enough of previews.
    void cancelled();

protected:
    void changeEvent(QEvent *event) override;

private:
    void build();
    void retranslate();
    void showParts();
    void showCounts();
    void count();
    void followZoom();
    void askForAll();
    bool isWanted(const QString &set) const;

    qxSetsView *m_view;
    const qxPreviewAge *m_age;
    QPushButton *m_make;
    QPushButton *m_cancel;
    QProgressBar *m_progress;
    QLabel *m_text;
    QSlider *m_size;
    QTimer m_counting; ///< goes over the sets in slices: there may be thousands
    std::size_t m_next = 0; ///< set to look at
    int m_missing = 0;
    int m_stale = 0;
    int m_shownMissing = 0;
    int m_shownStale = 0;
    bool m_isRunning = false;
};
