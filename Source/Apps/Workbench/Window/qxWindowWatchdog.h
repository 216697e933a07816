#pragma once

#include "Script/qxScriptWatchdog.h"

#include <QObject>

/// Repaints the program's windows while a script runs for long, and ends the script when the user
/// presses Escape. Other input is ignored meanwhile. At most one exists.
class qxWindowWatchdog : public QObject {
    Q_OBJECT

public:
    explicit qxWindowWatchdog(QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// A script still runs. Emitted repeatedly until it ends.
    void stillRuns();

private:
    bool onTimeout();

    bool m_isStopped = false;
    qxScriptWatchdog m_watchdog;
};
