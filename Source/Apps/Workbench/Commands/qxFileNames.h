#pragma once

#include <QSet>
#include <QString>

/// Gives things file names of their own: safe on every system, and different even where case does
/// not count.
class qxFileNames {
public:
    /// `suffix` such as ".png" stands behind each of them.
    explicit qxFileNames(const QString &suffix) : m_suffix(suffix) {}

    /// The file name for the next thing, which is called `name`.
    QString next(const QString &name);

private:
    QString m_suffix;
    QSet<QString> m_taken; ///< folded
};
