#pragma once

#include <QObject>

class QWidget;

/// Lets the keys of sets select them wherever in the window of `place` they are pressed, but for
/// text fields, where a key writes. Of two sets with the same key the first is selected.
class qxSetHotkeys : public QObject {
    Q_OBJECT

public:
    explicit qxSetHotkeys(QWidget *place);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void pressed(const QString &set);

private:
    QWidget *m_place;
};
