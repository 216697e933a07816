#pragma once

#include <QCommandLineOption>
#include <QStringList>

class QCommandLineParser;

/// The moment of the scene's animations that pictures show, as options ask for it.
class qxRenderMoment {
public:
    static QList<QCommandLineOption> options();

    /// Success, or the exit code after explaining on standard error what is wrong.
    int read(const QCommandLineParser &parser);
    /// Why the present scene has no such moment; empty when it has.
    QString flaw() const;
    /// Shows the moment: of the clips that were asked for, else of those that a set has started,
    /// else of all. Does nothing unless a time was asked for.
    void show() const;

private:
    double m_time = -1; ///< in seconds; below 0 for none
    QStringList m_clips;
};
