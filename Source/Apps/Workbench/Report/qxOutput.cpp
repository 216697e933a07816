#include "qxOutput.h"

#include "Core/qxVisibleText.h"
#include "qxText.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVector>

#include <unistd.h>

namespace {

const int widestColumn = 500; ///< one long name does not make every row as long
const int atOnce = 1 << 16; ///< characters of rows

QByteArray textOf(const QJsonDocument &document)
{
    return qxVisibleText::json(QString::fromUtf8(document.toJson())).toUtf8();
}

} // namespace

void qxOutput::bytes(const QByteArray &bytes)
{
    const QByteArray shown =
        isatty(STDOUT_FILENO) ? qxVisibleText::lines(QString::fromUtf8(bytes)).toUtf8() : bytes;
    fwrite(shown.constData(), 1, size_t(shown.size()), stdout);
    fflush(stdout);
}

void qxOutput::text(const QString &text)
{
    bytes(qxVisibleText::lines(text).toUtf8());
}

void qxOutput::line(const QString &line)
{
    bytes((qxVisibleText::line(line) + QLatin1Char('\n')).toUtf8());
}

bool qxOutput::hasColors()
{
    return isatty(STDOUT_FILENO) && qEnvironmentVariableIsEmpty("NO_COLOR");
}

void qxOutput::line(const QString &line, Color color)
{
    if (color == Plain)
        return qxOutput::line(line);
    fprintf(stdout, "\x1b[%dm%s\x1b[0m\n", int(color),
            qxText::toUtf8(qxVisibleText::line(line)).c_str());
}

void qxOutput::json(const QJsonObject &object)
{
    bytes(jsonText(object));
}

QByteArray qxOutput::jsonText(const QJsonObject &object)
{
    return textOf(QJsonDocument(object));
}

void qxOutput::json(const QJsonArray &array)
{
    bytes(textOf(QJsonDocument(array)));
}

void qxOutput::table(const QList<QStringList> &cells)
{
    table(cells.size(), [&cells](int row) { return cells[row]; });
}

void qxOutput::table(int rows, const std::function<QStringList(int)> &cellsOf)
{
    QVector<int> widths;
    for (int row = 0; row < rows; ++row) {
        const QStringList cells = cellsOf(row);
        widths.resize(qMax(widths.size(), cells.size()));
        for (int i = 0; i < cells.size(); ++i)
            widths[i] = qBound(widths[i], qxVisibleText::line(cells[i]).size(), widestColumn);
    }
    QString ready;
    for (int row = 0; row < rows; ++row) {
        const QStringList cells = cellsOf(row);
        QString line;
        for (int i = 0; i < cells.size(); ++i)
            line += qxVisibleText::line(cells[i]).leftJustified(widths[i] + 2);
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        ready += line + QLatin1Char('\n');
        if (ready.size() < atOnce && row + 1 < rows)
            continue;
        bytes(ready.toUtf8());
        ready.clear();
    }
}

bool qxOutput::isWhole()
{
    return ferror(stdout) == 0;
}

void qxOutput::error(const QString &reason)
{
    note(QStringLiteral("workbench: ") + reason);
}

void qxOutput::note(const QString &line)
{
    fprintf(stderr, "%s\n", qxText::toUtf8(qxVisibleText::line(line)).c_str());
}

qxCaughtOutput::qxCaughtOutput(Place place) : m_place(place), m_results(-1), m_caught(tmpfile())
{
    if (!m_caught)
        return;
    fflush(stdout);
    m_results = dup(STDOUT_FILENO);
    if (m_results >= 0)
        dup2(fileno(m_caught), STDOUT_FILENO);
}

qxCaughtOutput::~qxCaughtOutput()
{
    if (!m_caught)
        return;
    if (m_results >= 0) {
        fflush(stdout);
        dup2(m_results, STDOUT_FILENO);
        close(m_results);
    }
    QFile caught;
    if (m_place != Nowhere && caught.open(m_caught, QIODevice::ReadOnly) && caught.seek(0)) {
        const QString text = QString::fromUtf8(caught.readAll());
        if (m_place == ToResults)
            qxOutput::text(text);
        else
            fputs(qxText::toUtf8(qxVisibleText::lines(text)).c_str(), stderr);
    }
    caught.close();
    fclose(m_caught);
}
