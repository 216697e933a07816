#pragma once

#include <QElapsedTimer>
#include <QString>

/// Shows the progress of work on several objects on standard error: a bar on a terminal, otherwise
/// a line for each object. Pictures rendered meanwhile move the bar (qxPictureProgress), and Ctrl-C
/// cancels them.
class qxProgress {
public:
    explicit qxProgress(int total);
    qxProgress(const qxProgress &) = delete;
    /// Removes the bar.
    ~qxProgress();

    /// Work on the next object begins.
    void begin(const QString &name);

private:
    bool show(double share);
    void draw(double share) const;
    void wipe() const;

    const int m_total;
    int m_begun = 0;
    QString m_name;
    bool m_isTerminal;
    QElapsedTimer m_sinceDrawn;
};
