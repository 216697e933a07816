#pragma once

#include <QFrame>

class QLabel;

/// A text in the lower left corner of a picture, on a ground of its own, so that it is read on any:
/// a small line above a large one. The mouse goes through it.
class qxSetCaption : public QFrame {
    Q_OBJECT

public:
    explicit qxSetCaption(QWidget *picture);

    /// Without a text there is no caption; an empty small line is left out.
    void showText(const QString &small, const QString &large);
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place();

    QLabel *m_small;
    QLabel *m_large;
};
