#include "qxOutput.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVector>

#include <fcntl.h>

#include <cstdio>
#include <unistd.h>

void qxOutput::bytes(const QByteArray &bytes)
{
    fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
    fflush(stdout);
}

void qxOutput::text(const QString &text)
{
    bytes(text.toUtf8());
}

void qxOutput::line(const QString &line)
{
    text(line + QLatin1Char('\n'));
}

void qxOutput::json(const QJsonObject &object)
{
    bytes(QJsonDocument(object).toJson());
}

void qxOutput::json(const QJsonArray &array)
{
    bytes(QJsonDocument(array).toJson());
}

void qxOutput::table(const QList<QStringList> &rows)
{
    QVector<int> widths;
    for (const QStringList &row : rows) {
        widths.resize(qMax(widths.size(), row.size()));
        for (int i = 0; i < row.size(); ++i)
            widths[i] = qMax(widths[i], row[i].size());
    }
    QString result;
    for (const QStringList &row : rows) {
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
    const QByteArray utf8 = reason.toUtf8();
    fprintf(stderr, "workbench: %s\n", utf8.constData());
}

qxStrayOutput::qxStrayOutput(bool shown)
{
    fflush(stdout);
    m_results = dup(STDOUT_FILENO);
    const int elsewhere = shown ? dup(STDERR_FILENO) : open("/dev/null", O_WRONLY);
    if (elsewhere < 0)
        return;
    if (m_results >= 0)
        dup2(elsewhere, STDOUT_FILENO);
    close(elsewhere);
}

qxStrayOutput::~qxStrayOutput()
{
    if (m_results < 0)
        return;
    fflush(stdout);
    dup2(m_results, STDOUT_FILENO);
    close(m_results);
}
