#pragma once

#include <QElapsedTimer>
#include <QString>

/// The progress of work on several things, on standard error: a bar on a terminal, otherwise a line
/// for each thing. Pictures that are rendered meanwhile move the bar (qxPictureProgress), and
/// Ctrl-C ends them.
class qxProgress {
public:
    explicit qxProgress(int total);
    qxProgress(const qxProgress &) = delete;
    /// Wipes the bar.
    ~qxProgress();

    /// The next thing is being worked on.
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
