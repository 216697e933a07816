#include "qxOutput.h"

#include "Core/qxVisibleText.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVector>

#include <algorithm>
#include <unistd.h>

namespace {

void printJson(const QJsonDocument &document)
{
    qxOutput::bytes(qxVisibleText::json(QString::fromUtf8(document.toJson())).toUtf8());
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

void qxOutput::json(const QJsonObject &object)
{
    printJson(QJsonDocument(object));
}

void qxOutput::json(const QJsonArray &array)
{
    printJson(QJsonDocument(array));
}

void qxOutput::table(const QList<QStringList> &cells)
{
    QList<QStringList> rows = cells;
    QVector<int> widths;
    for (QStringList &row : rows) {
        std::transform(row.begin(), row.end(), row.begin(), qxVisibleText::line);
        widths.resize(qMax(widths.size(), row.size()));
        for (int i = 0; i < row.size(); ++i)
            widths[i] = qMax(widths[i], row[i].size());
    }
    QString result;
    for (const QStringList &row : qAsConst(rows)) {
        QString line;
        for (int i = 0; i < row.size(); ++i)
            line += row[i].leftJustified(widths[i] + 2);
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        result += line + QLatin1Char('\n');
    }
    text(result);
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
    fprintf(stderr, "%s\n", qxVisibleText::line(line).toUtf8().constData());
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
            fputs(qxVisibleText::lines(text).toUtf8().constData(), stderr);
    }
    caught.close();
    fclose(m_caught);
}
