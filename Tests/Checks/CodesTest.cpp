#include "qxCheckCodes.h"
#include "qxTestPaths.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>

TEST(CodesTest, EveryCodeStandsInItsPlaceAndIsDocumentedInItsWords)
{
    QStringList rows;
    for (const qxCodeRow &row : qxCheckCodes::all()) {
        EXPECT_EQ(&qxCheckCodes::row(row.code), &row) << row.id;
        rows +=
            QString("| %1 | %2 | %3 |").arg(row.id, qxCheckCodes::word(row.severity), row.title);
    }
    QStringList sorted = rows;
    sorted.sort();
    EXPECT_EQ(rows, sorted);
    EXPECT_EQ(rows.removeDuplicates(), 0);

    QFile file(QStringLiteral(QX_DOCS "/Checking.md"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QStringList documented;
    static const QRegularExpression code("^(\\| QX\\d+ \\|[^|]*\\|[^|]*\\|)");
    for (const QString &line : QString::fromUtf8(file.readAll()).split('\n')) {
        const QRegularExpressionMatch match = code.match(line);
        if (match.hasMatch())
            documented += match.captured(1);
    }
    EXPECT_EQ(documented.join('\n').toStdString(), rows.join('\n').toStdString());
}
