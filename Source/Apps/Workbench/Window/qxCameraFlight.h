#pragma once

#include "qxUberCameraPool.h"

#include <QElapsedTimer>
#include <QTimer>

/// Moves the camera of the main view to a viewpoint, at once or smoothly. Whoever moves the camera
/// meanwhile ends the flight.
class qxCameraFlight : public QObject {
public:
    explicit qxCameraFlight(QObject *parent = nullptr);

    /// An unknown id is ignored.
    void flyTo(int viewpoint, bool isSmooth);
    /// The viewpoint where the camera is, or is on its way to; -1 for none.
    int target() const;

private:
    void step();
    void arrive();

    QTimer m_timer;
    QElapsedTimer m_time;
    qxUberCamera m_from;
    qxUberCamera m_last; ///< where the last step has put the camera
    int m_target = -1;
};
