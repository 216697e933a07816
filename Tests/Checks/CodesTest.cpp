#include "TestFiles.h"
#include "qxCheckCodes.h"
#include "qxTestPaths.h"

#include <QRegularExpression>

#include <algorithm>
#include <functional>

TEST(CodesTest, EveryCodeStandsInItsPlaceAndIsDocumentedInItsWords)
{
    QStringList rows;
    for (const qxCodeRow &row : qxCheckCodes::all()) {
        EXPECT_EQ(&qxCheckCodes::row(row.code), &row) << row.id;
        rows +=
            QString("| %1 | %2 | %3 |").arg(row.id, qxCheckCodes::word(row.severity), row.title);
    }
    const auto misplaced = std::adjacent_find(rows.begin(), rows.end(), std::greater_equal<>());
    EXPECT_EQ(misplaced, rows.end());

    QStringList documented;
    const QString page = QString::fromUtf8(bytesOf(QStringLiteral(QX_DOCS "/Checking.md")));
    for (const QString &line : page.split('\n').filter(QRegularExpression("^\\| QX\\d+ \\|")))
        documented += line.section('|', 0, 3) + '|';
    EXPECT_EQ(documented.join('\n').toStdString(), rows.join('\n').toStdString());
}
