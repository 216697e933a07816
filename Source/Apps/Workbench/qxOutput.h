#pragma once

#include <QStringList>

class QJsonArray;
class QJsonObject;

/// What the program prints: results to standard output, reasons to standard error, both in UTF-8.
namespace qxOutput {

void text(const QString &text);
void line(const QString &line);
/// Raw bytes, as they are.
void bytes(const QByteArray &bytes);
void json(const QJsonObject &object);
void json(const QJsonArray &array);
/// Whether everything that went to standard output so far could be written.
bool isWhole();
/// Rows of cells in columns, each as wide as its widest cell.
void table(const QList<QStringList> &rows);
/// A line on standard error that begins with the program's name.
void error(const QString &reason);

} // namespace qxOutput

/// Standard output is for results: as long as this lives, whatever is written there goes to
/// standard error, or nowhere.
class qxStrayOutput {
public:
    explicit qxStrayOutput(bool shown);
    qxStrayOutput(const qxStrayOutput &) = delete;
    ~qxStrayOutput();

private:
    int m_results;
};
