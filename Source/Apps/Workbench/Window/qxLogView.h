#pragma once

#include "qxLog.h"

#include <QPlainTextEdit>

/// The lines of the host's log, the newest at the end; warnings and errors stand out. While one
/// exists, what scripts print goes into the log.
class qxLogView : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit qxLogView(QWidget *parent = nullptr);
    ~qxLogView() override;

Q_SIGNALS:
    /// An error line came.
    void errorLogged(const QString &line);

protected:
    void changeEvent(QEvent *event) override;

private:
    void append(qxLog::Level level, const QString &line);
    void retranslate();
    void recolour();

    int m_listener;
};
