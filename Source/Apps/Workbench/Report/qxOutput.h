#pragma once

#include <QStringList>

#include <cstdio>
#include <functional>

class QJsonArray;
class QJsonObject;

/// What the program prints: results to standard output, reasons to standard error, both in UTF-8.
/// Names of a file cannot steer a terminal: see qxVisibleText.
namespace qxOutput {

void text(const QString &text);
/// One line, whatever is in it.
void line(const QString &line);
/// Raw bytes, as they are; a terminal gets what people can read of them.
void bytes(const QByteArray &bytes);
void json(const QJsonObject &object);
void json(const QJsonArray &array);
/// Whether everything that went to standard output so far could be written.
bool isWhole();
/// Rows of cells in columns, each as wide as its widest cell, up to 500 characters.
void table(const QList<QStringList> &cells);
/// The same for so many rows that they are asked for one by one, each twice.
void table(int rows, const std::function<QStringList(int)> &cellsOf);
/// A line on standard error that begins with the program's name.
void error(const QString &reason);
/// A line on standard error as it is.
void note(const QString &line);

} // namespace qxOutput

/// Catches what libraries write to standard output while this lives, and then shows it there, on
/// standard error, or not at all.
class qxCaughtOutput {
public:
    enum Place { Nowhere, ToResults, ToErrors };

    explicit qxCaughtOutput(Place place);
    qxCaughtOutput(const qxCaughtOutput &) = delete;
    ~qxCaughtOutput();

private:
    Place m_place;
    int m_results; ///< what standard output was before, -1 when nothing is caught
    FILE *m_caught;
};
