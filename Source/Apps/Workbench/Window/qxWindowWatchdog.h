#pragma once

#include "Script/qxScriptWatchdog.h"

#include <QObject>

/// Keeps the program's windows painted while a script runs for long, and ends it when the user
/// presses Escape. What the user does else meanwhile is ignored. At most one exists.
class qxWindowWatchdog : public QObject {
    Q_OBJECT

public:
    explicit qxWindowWatchdog(QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// A script still runs; again and again until it ends.
    void stillRuns();

private:
    bool onTimeout();

    bool m_isStopped = false;
    qxScriptWatchdog m_watchdog;
};
