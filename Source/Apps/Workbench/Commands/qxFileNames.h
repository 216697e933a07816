#pragma once

#include <QSet>
#include <QString>

/// Makes unique file names that are safe on every system, also where case does not matter.
class qxFileNames {
public:
    /// Each of them ends with `suffix`, such as ".png".
    explicit qxFileNames(const QString &suffix) : m_suffix(suffix) {}

    /// The file name for the next object, which is called `name`.
    QString next(const QString &name);

private:
    QString m_suffix;
    QSet<QString> m_taken; ///< folded
};
