#include "Table/qxSetTableText.h"

#include "Table/qxCsv.h"
#include "Table/qxSetTableColumn.h"

#include <QTextCodec>

#include <algorithm>

namespace {

bool isTitleOfSets(const QString &title)
{
    qxSetTableColumn column;
    return qxSetTableColumn::find(title, column) && column.what == qxSetTableColumn::Set;
}

} // namespace

QString qxSetTableText::flawOf(const QByteArray &table)
{
    const QLatin1String advice("save the table as CSV in UTF-8");
    if (table.startsWith("\xFF\xFE") || table.startsWith("\xFE\xFF"))
        return QStringLiteral("it is text in UTF-16; %1").arg(advice);
    if (table.contains('\0'))
        return QStringLiteral("it holds a NUL, which no table does");
    QTextCodec *const codec = QTextCodec::codecForName("UTF-8");
    int line = 1;
    for (int from = 0; from < table.size(); ++line) {
        const int end = table.indexOf('\n', from);
        const int next = end < 0 ? table.size() : end + 1;
        QTextCodec::ConverterState state;
        codec->toUnicode(table.constData() + from, next - from, &state);
        if (state.invalidChars > 0 || state.remainingChars > 0)
            return QStringLiteral("line %1 is no text in UTF-8; %2").arg(line).arg(advice);
        from = next;
    }
    return QString();
}

QChar qxSetTableText::separatorOf(const QString &text)
{
    QChar best = QLatin1Char(',');
    std::pair<bool, std::size_t> most;
    for (const char each : {',', ';', '\t'}) {
        qxCsv::Reader header(text, QLatin1Char(each));
        header.next();
        const auto &titles = header.cells();
        const bool hasSets = std::any_of(titles.begin(), titles.end(), isTitleOfSets);
        if (std::make_pair(hasSets, titles.size()) <= most)
            continue;
        best = QLatin1Char(each);
        most = {hasSets, titles.size()};
    }
    return best;
}
