#pragma once

#include <QCoreApplication>
#include <QString>

/// Texts about files for people, in the language of the program.
class qxFileText {
    Q_DECLARE_TR_FUNCTIONS(qxFileText)

public:
    /// The word for a kind of entries, such as "buffer view".
    static QString kind(const char *kind);
};
