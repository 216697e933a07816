#pragma once

#include <QStringList>

#include <cstdio>
#include <functional>

class QJsonArray;
class QJsonObject;

/// Prints results to standard output and errors to standard error, both in UTF-8. Names of a file
/// are made safe for a terminal, see qxVisibleText.
namespace qxOutput {

void text(const QString &text);
/// One line; line breaks in it are escaped.
void line(const QString &line);
/// Colours of lines for terminals.
enum Color { Plain, Red = 31, Green = 32, Yellow = 33, Cyan = 36 };
/// Whether standard output is a terminal that may have them: NO_COLOR is not set.
bool hasColors();
/// One line in that colour.
void line(const QString &line, Color color);
/// Bytes as they are; on a terminal control characters are escaped.
void bytes(const QByteArray &bytes);
void json(const QJsonObject &object);
/// What json prints.
QByteArray jsonText(const QJsonObject &object);
void json(const QJsonArray &array);
/// Whether everything that went to standard output so far could be written.
bool isWhole();
/// Rows of cells in columns, each as wide as its widest cell, up to 500 characters.
void table(const QList<QStringList> &cells);
/// The same for many rows, which are requested one by one, each twice.
void table(int rows, const std::function<QStringList(int)> &cellsOf);
/// A line on standard error that begins with the program's name.
void error(const QString &reason);
/// A line on standard error as it is.
void note(const QString &line);

} // namespace qxOutput

/// Captures what libraries write to standard output while it lives, and then writes it there, to
/// standard error, or nowhere.
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
