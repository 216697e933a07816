#include "Table/qxSetTableColumn.h"

#include "qxDocumentIndex.h"

#include <QRegularExpression>

#include <algorithm>
#include <set>

namespace {

const QString &valueWord()
{
    static const QString word = QStringLiteral("value");
    return word;
}

/// What spreadsheets take for the beginning of a formula, also as wide characters, or pass over
/// when they look for one.
bool beginsFormula(QChar first)
{
    static const QString beginnings = QStringLiteral("=+-@\t\r\n") + QChar(0xFF1D) + QChar(0xFF0B)
        + QChar(0xFF0D) + QChar(0xFF20);
    return beginnings.contains(first);
}

/// Nothing happens when a spreadsheet takes a number for one.
bool isNegativeNumber(const QString &text)
{
    static const QRegularExpression number(
        QRegularExpression::anchoredPattern(QStringLiteral("-[0-9]+([.,][0-9]+)?")));
    return text.startsWith(QLatin1Char('-')) && number.match(text).hasMatch();
}

/// The variants that sets refer to although the document does not have them.
std::vector<qxSetTableColumn> missingVariants(const qxDocument &document)
{
    const qxDocumentIndex index(document);
    std::vector<qxSetTableColumn> columns;
    QSet<QPair<const qxVariantKind *, QString>> known;
    for (const qxDocumentSet &set : document.sets) {
        for (const qxDocumentReference &each : set.references) {
            const int before = known.size();
            if (index.variant(each.kind, each.variant) >= 0)
                continue;
            known.insert({each.kind, each.variant});
            if (known.size() > before)
                columns.push_back({qxSetTableColumn::Variant, each.kind, each.variant});
        }
    }
    return columns;
}

} // namespace

const QStringList &qxSetTableColumn::words()
{
    static const QStringList words{QStringLiteral("Group"), QStringLiteral("Set"),
                                   QStringLiteral("Comment")};
    return words;
}

QStringList qxSetTableColumn::prefixes()
{
    QStringList words;
    for (const qxVariantKind *kind : qxVariantKinds::all())
        words += kind->word;
    return words << valueWord();
}

std::vector<qxSetTableColumn> qxSetTableColumn::of(const qxDocument &document)
{
    std::vector<qxSetTableColumn> columns{
        {Group, nullptr, QString()}, {Set, nullptr, QString()}, {Comment, nullptr, QString()}};
    for (const qxDocumentVariant &each : document.variants)
        columns.push_back({Variant, each.kind, each.name});
    for (const qxSetTableColumn &each : missingVariants(document))
        columns.push_back(each);
    std::set<QString> keys;
    for (const qxDocumentSet &set : document.sets) {
        for (const qxDocumentText &value : set.values)
            keys.insert(value.text);
    }
    for (const QString &key : keys)
        columns.push_back({Value, nullptr, key});
    return columns;
}

bool qxSetTableColumn::find(const QString &title, qxSetTableColumn &column)
{
    for (int word = 0; word < words().size(); ++word) {
        if (title.compare(words()[word], Qt::CaseInsensitive) == 0) {
            column = {What(word), nullptr, QString()};
            return true;
        }
    }
    const int blank = title.indexOf(QLatin1Char(' '));
    if (blank < 0)
        return false;
    const QString prefix = title.left(blank);
    const qxVariantKind *const kind = qxVariantKinds::by(&qxVariantKind::word, prefix);
    if (!kind && prefix != valueWord())
        return false;
    column = {kind ? Variant : Value, kind, title.mid(blank + 1)};
    return true;
}

QString qxSetTableColumn::title() const
{
    if (what <= Comment)
        return words()[what];
    const QString prefix = kind ? QString(kind->word) : valueWord();
    return prefix + QLatin1Char(' ') + name;
}

QString qxSetTableCell::of(const QString &text)
{
    const QChar mark = QLatin1Char('\'');
    const bool isPlain =
        !text.isEmpty() && text[0] != mark && (!beginsFormula(text[0]) || isNegativeNumber(text));
    return isPlain ? text : mark + text;
}

QString qxSetTableCell::text(const QString &cell)
{
    return cell.startsWith(QLatin1Char('\'')) ? cell.mid(1) : cell;
}
