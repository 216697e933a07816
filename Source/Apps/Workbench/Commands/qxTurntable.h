#pragma once

#include "Render/qxRenderer.h"

#include <QCommandLineOption>
#include <QSize>

class QCommandLineParser;

/// Views of the scene all around: the camera goes about the vertical axis through the middle of
/// what is shown, in equal steps, beginning where it is.
class qxTurntable {
public:
    static QCommandLineOption option();

    /// Success, or the exit code after explaining on standard error what is wrong.
    int read(const QCommandLineParser &parser);
    /// Whether a turn was asked for.
    bool isAsked() const { return m_count > 0; }
    int count() const { return m_count; }
    /// The name of a picture's file; sorted by name they are in order.
    QString nameOf(int number) const;

    /// Begins at the present camera, for pictures of that size.
    void begin(const QSize &size);
    /// Moves the main view's camera, from 0.
    void look(int number) const;

private:
    int m_count = 0;
    qxRenderer::View m_first;
};
