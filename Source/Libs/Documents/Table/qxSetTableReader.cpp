#include "Table/qxSetTableReader.h"

#include "qxVariantWriter.h"

#include "Table/qxCsv.h"
#include "Table/qxSetTableColumn.h"
#include "qxDocumentIndex.h"
#include "qxSuggestions.h"

#include <QHash>
#include <QTextCodec>

#include <algorithm>
#include <numeric>
#include <optional>

namespace {

/// A variant by its kind and name, a value by null and its key.
typedef QPair<const qxVariantKind *, QString> EntryKey;

constexpr std::size_t MostFlaws = 1000;
/// Looking for near names takes long when there are many.
constexpr std::size_t MostSuggestions = 100;
/// So many options of a variant are told.
constexpr int FewOptions = 8;

QString quoted(const QString &name)
{
    return QLatin1Char('"') + name + QLatin1Char('"');
}

/// Why the bytes are no text in UTF-8; empty when they are one.
QString flawOfBytes(const QByteArray &table)
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

bool isTitleOfSets(const QString &title)
{
    qxSetTableColumn column;
    return qxSetTableColumn::find(title, column) && column.what == qxSetTableColumn::Set;
}

/// What separates the cells: with it the first row has a column for the names of sets, or at least
/// the most columns.
QChar separatorOf(const QString &text)
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

QString flawOfText(const QString &text)
{
    const bool isFine = qxVariantWriter::writable(text) == text;
    return isFine ? QString() : QStringLiteral("a document cannot hold one of its characters");
}

/// The entries of a set that have columns of their own: how they are told apart, read and made.
struct ReferenceCells {
    typedef qxDocumentReference Entry;
    static constexpr auto entries = &qxDocumentSet::references;
    static constexpr auto text = &Entry::state;
    static EntryKey keyOf(const Entry &entry) { return {entry.kind, entry.variant}; }
    static Entry make(const qxSetTableColumn &column, const QString &state)
    {
        return {column.kind, column.name, state, {}};
    }
};

struct ValueCells {
    typedef qxDocumentText Entry;
    static constexpr auto entries = &qxDocumentSet::values;
    static constexpr auto text = &Entry::more;
    static EntryKey keyOf(const Entry &entry) { return {nullptr, entry.text}; }
    static Entry make(const qxSetTableColumn &column, const QString &value)
    {
        return {column.name, value, {}};
    }
};

class TableReader {
public:
    TableReader(const QString &text, const qxDocument &document)
        : m_before(document), m_index(document), m_rows(text, separatorOf(text))
    {
        m_reading.document = document;
        for (const qxDocumentGroup &each : document.groups)
            m_groups.insert(each.name, m_groups.size());
        m_ranks.resize(document.sets.size());
    }

    qxSetTableReader::Reading read()
    {
        readTitles();
        while (m_placeOf[qxSetTableColumn::Set] >= 0 && m_rows.next(m_columns.size()))
            readRow();
        if (m_reading.flaws.empty())
            settle();
        return std::move(m_reading);
    }

private:
    struct Column {
        enum Use { Read, Passed, Untitled }; ///< passed over after a fault in its title

        Use use = Untitled;
        qxSetTableColumn meaning{};
    };

    void readTitles();
    void readTitle(const QString &title, int place);
    int &placeOf(const qxSetTableColumn &meaning);
    QString flawOfTitle(const qxSetTableColumn &meaning);
    void readRow();
    bool hasFaultyQuotes();
    bool isEmptyRow() const;
    void checkShape();
    int placeOfSet();
    void readGroup(std::size_t set);
    void readComment(qxDocumentSet &set);
    template <class Cells>
    void readEntries(qxDocumentSet &set);
    QString textAt(int place);
    void checkState(int place, const qxSetTableColumn &variant, const QString &state);
    const QSet<QString> &knownStates(const EntryKey &variant);
    bool mayDrop(int place, const QString &before);
    void fault(int place, const QString &reason);
    QString near(const QString &wanted, const QStringList &names) const;
    QString nearTitle(const QString &wanted);
    void settle();

    const qxDocument &m_before;
    const qxDocumentIndex m_index;
    qxCsv::Reader m_rows;
    qxSetTableReader::Reading m_reading;
    std::vector<Column> m_columns;
    int m_placeOf[qxSetTableColumn::Variant] = {-1, -1, -1}; ///< of the columns with words
    QHash<EntryKey, int> m_placeOfEntry;
    std::vector<QString> m_cells; ///< of the row, one for each column
    std::vector<int> m_entries; ///< of the row's set: for each column its entry, or -1
    QHash<QString, int> m_groups;
    QHash<QString, int> m_rowsOfSets;
    /// Of the sets, for their order in their groups: 0 for one that stays there, else its row.
    std::vector<int> m_ranks;
    std::optional<QHash<EntryKey, QSet<QString>>> m_knownStates;
    std::vector<qxSetTableColumn> m_known; ///< those of the document, once they were asked for
};

void TableReader::readTitles()
{
    m_rows.next();
    hasFaultyQuotes();
    for (const QString &title : m_rows.cells())
        readTitle(title, int(m_columns.size()));
    m_entries.assign(m_columns.size(), -1);
    if (m_placeOf[qxSetTableColumn::Set] < 0)
        fault(-1, QStringLiteral("no column of the first row is called \"Set\""));
}

void TableReader::readTitle(const QString &title, int place)
{
    m_columns.emplace_back();
    if (title.isEmpty())
        return;
    Column &column = m_columns.back();
    QString flaw;
    if (!qxSetTableColumn::find(title, column.meaning)) {
        QString hint = nearTitle(title);
        if (hint.isEmpty())
            hint = QStringLiteral("; there are %1, and those for variants and values, which begin "
                                  "with %2")
                       .arg(qxSetTableColumn::words().join(QLatin1String(", ")),
                            qxSetTableColumn::prefixes().join(QLatin1String(", ")));
        flaw = QStringLiteral("no column is called %1").arg(quoted(title)) + hint;
    } else if (int &known = placeOf(column.meaning); known >= 0) {
        flaw = QStringLiteral("the column %1 stands in %2 already")
                   .arg(quoted(title), qxCsv::cellName(m_rows.row(), known));
    } else {
        known = place;
        flaw = flawOfTitle(column.meaning);
    }
    column.use = flaw.isEmpty() ? Column::Read : Column::Passed;
    if (!flaw.isEmpty())
        fault(place, flaw);
}

/// Where the column with that meaning stands; -1 when there is none yet.
int &TableReader::placeOf(const qxSetTableColumn &meaning)
{
    if (meaning.what < qxSetTableColumn::Variant)
        return m_placeOf[meaning.what];
    const EntryKey key{meaning.kind, meaning.name};
    const auto known = m_placeOfEntry.find(key);
    return known == m_placeOfEntry.end() ? *m_placeOfEntry.insert(key, -1) : *known;
}

/// A key of values may be new, a variant may not.
QString TableReader::flawOfTitle(const qxSetTableColumn &meaning)
{
    if (meaning.what != qxSetTableColumn::Variant)
        return flawOfText(meaning.name);
    if (m_index.variant(meaning.kind, meaning.name) >= 0
        || !knownStates({meaning.kind, meaning.name}).isEmpty())
        return QString();
    QStringList names;
    for (const qxDocumentVariant &each : m_before.variants) {
        if (each.kind == meaning.kind)
            names += each.name;
    }
    return QStringLiteral("no %1 variant is called %2")
               .arg(meaning.kind->word, quoted(meaning.name))
        + near(meaning.name, names);
}

void TableReader::readRow()
{
    if (hasFaultyQuotes())
        return;
    m_cells = m_rows.cells();
    m_cells.resize(m_columns.size());
    if (isEmptyRow())
        return;
    checkShape();
    const int place = placeOfSet();
    if (place < 0)
        return;
    ++m_reading.rows;
    readGroup(std::size_t(place));
    qxDocumentSet &set = m_reading.document.sets[std::size_t(place)];
    readComment(set);
    readEntries<ReferenceCells>(set);
    readEntries<ValueCells>(set);
}

bool TableReader::hasFaultyQuotes()
{
    for (const qxCsv::Flaw &each : m_rows.flaws())
        fault(each.column, each.reason);
    return !m_rows.flaws().empty();
}

/// As spreadsheets leave them at the end.
bool TableReader::isEmptyRow() const
{
    return m_rows.count() <= m_columns.size()
        && std::all_of(m_cells.begin(), m_cells.end(),
                       [](const QString &cell) { return cell.isEmpty(); });
}

void TableReader::checkShape()
{
    const int columns = int(m_columns.size());
    for (int place = 0; place < columns; ++place) {
        if (m_columns[std::size_t(place)].use == Column::Untitled
            && !m_cells[std::size_t(place)].isEmpty())
            fault(place, QStringLiteral("its column has no title in the first row"));
    }
    if (m_rows.count() > m_columns.size())
        fault(columns, QStringLiteral("the row has more cells than the first one"));
}

/// The set of the row, made when there is none; -1 after a fault.
int TableReader::placeOfSet()
{
    const int place = m_placeOf[qxSetTableColumn::Set];
    const QString name = textAt(place);
    const int there = m_index.set(name);
    if (there < 0 && name.trimmed().isEmpty()) {
        fault(place, QStringLiteral("the set has no name"));
        return -1;
    }
    const auto known = m_rowsOfSets.constFind(name);
    if (known != m_rowsOfSets.constEnd()) {
        fault(place,
              QStringLiteral("the set %1 stands in %2 already")
                  .arg(quoted(name), qxCsv::cellName(*known, place)));
        return -1;
    }
    m_rowsOfSets.insert(name, m_rows.row());
    if (there >= 0)
        return there;
    m_reading.document.sets.emplace_back();
    m_reading.document.sets.back().name = name;
    m_ranks.push_back(m_rows.row());
    return int(m_ranks.size()) - 1;
}

void TableReader::readGroup(std::size_t set)
{
    const int place = m_placeOf[qxSetTableColumn::Group];
    if (place < 0)
        return;
    const QString name = textAt(place);
    int &group = m_reading.document.sets[set].group;
    auto &groups = m_reading.document.groups;
    if (name.isEmpty() && group >= 0 && !mayDrop(place, groups[std::size_t(group)].name))
        return;
    int wanted = name.isEmpty() ? -1 : m_groups.value(name, int(groups.size()));
    if (wanted == int(groups.size())) {
        if (name.trimmed().isEmpty())
            return fault(place, QStringLiteral("the group has no name"));
        groups.emplace_back();
        groups.back().name = name;
        m_groups.insert(name, wanted);
    }
    if (group == wanted)
        return;
    group = wanted;
    m_ranks[set] = m_rows.row();
}

void TableReader::readComment(qxDocumentSet &set)
{
    const int place = m_placeOf[qxSetTableColumn::Comment];
    if (place < 0)
        return;
    const QString text = textAt(place);
    if (!text.isEmpty() || set.comment.isEmpty() || mayDrop(place, set.comment))
        set.comment = text;
}

template <class Cells>
void TableReader::readEntries(qxDocumentSet &set)
{
    auto &entries = set.*Cells::entries;
    for (std::size_t entry = 0; entry < entries.size(); ++entry) {
        const int place = m_placeOfEntry.value(Cells::keyOf(entries[entry]), -1);
        if (place >= 0)
            m_entries[std::size_t(place)] = int(entry);
    }
    constexpr bool isReference = std::is_same_v<Cells, ReferenceCells>;
    const auto what = isReference ? qxSetTableColumn::Variant : qxSetTableColumn::Value;
    std::vector<bool> isGone(entries.size());
    for (std::size_t place = 0; place < m_columns.size(); ++place) {
        const Column &column = m_columns[place];
        const int entry = std::exchange(m_entries[place], -1);
        if (column.use != Column::Read || column.meaning.what != what)
            continue;
        if (m_cells[place].isEmpty()) {
            if (entry >= 0)
                isGone[std::size_t(entry)] =
                    mayDrop(int(place), entries[std::size_t(entry)].*Cells::text);
            continue;
        }
        const QString text = textAt(int(place));
        if (entry >= 0 && entries[std::size_t(entry)].*Cells::text == text)
            continue;
        if (isReference)
            checkState(int(place), column.meaning, text);
        if (entry >= 0)
            entries[std::size_t(entry)].*Cells::text = text;
        else
            entries.push_back(Cells::make(column.meaning, text));
    }
    std::size_t entry = 0;
    entries.erase(std::remove_if(entries.begin(), entries.end(),
                                 [&](const auto &) {
                                     const std::size_t at = entry++;
                                     return at < isGone.size() && isGone[at];
                                 }),
                  entries.end());
}

QString TableReader::textAt(int place)
{
    const QString text = qxSetTableCell::text(m_cells[std::size_t(place)]);
    const QString flaw = flawOfText(text);
    if (!flaw.isEmpty())
        fault(place, flaw);
    return text;
}

void TableReader::checkState(int place, const qxSetTableColumn &variant, const QString &state)
{
    if (knownStates({variant.kind, variant.name}).contains(state))
        return;
    QStringList options;
    const int known = m_index.variant(variant.kind, variant.name);
    if (known >= 0 && m_reading.flaws.size() < MostSuggestions) {
        for (const qxDocumentOption &each : m_before.variants[std::size_t(known)].options)
            options += each.name;
    }
    QString hint = near(state, options);
    if (hint.isEmpty() && !options.isEmpty())
        hint = QStringLiteral("; it has \"%1\"")
                   .arg(QStringList(options.mid(0, FewOptions)).join(QLatin1String("\", \"")));
    if (hint.startsWith(QLatin1String("; it has")) && options.size() > FewOptions)
        hint += QStringLiteral(" and %1 more").arg(options.size() - FewOptions);
    fault(place,
          QStringLiteral("%1 is no state of %2 %3")
                  .arg(quoted(state), variant.kind->word, quoted(variant.name))
              + hint);
}

/// The options of that variant, and what sets put it into already.
const QSet<QString> &TableReader::knownStates(const EntryKey &variant)
{
    if (!m_knownStates) {
        m_knownStates.emplace();
        for (const qxDocumentVariant &each : m_before.variants) {
            for (const qxDocumentOption &option : each.options)
                (*m_knownStates)[{each.kind, each.name}].insert(option.name);
        }
        for (const qxDocumentSet &set : m_before.sets) {
            for (const qxDocumentReference &each : set.references)
                (*m_knownStates)[ReferenceCells::keyOf(each)].insert(each.state);
        }
    }
    return (*m_knownStates)[variant];
}

/// Some spreadsheets leave out empty cells at the end of rows. Whether they were emptied, nobody
/// can tell then.
bool TableReader::mayDrop(int place, const QString &before)
{
    if (std::size_t(place) < m_rows.count())
        return true;
    fault(place,
          QStringLiteral("the row ends before this cell, which was %1; an empty cell drops it")
              .arg(quoted(before)));
    return false;
}

void TableReader::fault(int place, const QString &reason)
{
    if (m_reading.flaws.size() >= MostFlaws)
        ++m_reading.furtherFlaws;
    else
        m_reading.flaws.push_back(
            {place < 0 ? QString() : qxCsv::cellName(m_rows.row(), place), reason});
}

QString TableReader::near(const QString &wanted, const QStringList &names) const
{
    return m_reading.flaws.size() < MostSuggestions ? qxSuggestions::question(wanted, names)
                                                    : QString();
}

/// The question for a column: many leave out the word in front of a name.
QString TableReader::nearTitle(const QString &wanted)
{
    if (m_reading.flaws.size() >= MostSuggestions)
        return QString();
    if (m_known.empty())
        m_known = qxSetTableColumn::of(m_before);
    const QString title = wanted.trimmed();
    const bool hasWord = title.contains(QLatin1Char(' '));
    QMultiHash<QString, QString> titles;
    for (const qxSetTableColumn &each : m_known)
        titles.insert(hasWord || each.name.isEmpty() ? each.title() : each.name, each.title());
    QStringList found;
    for (const QString &name : qxSuggestions::of(title, titles.uniqueKeys()))
        found += titles.values(name);
    found.sort();
    return qxSuggestions::question(found);
}

/// Brings the sets that came or moved behind the others of their groups, in the order of their
/// rows.
void TableReader::settle()
{
    std::vector<std::size_t> order(m_ranks.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [this](std::size_t one, std::size_t other) {
        return m_ranks[one] < m_ranks[other];
    });
    std::vector<qxDocumentSet> sets;
    for (const std::size_t place : order)
        sets.push_back(std::move(m_reading.document.sets[place]));
    m_reading.document.sets = std::move(sets);
    m_reading.document.settle();
}

} // namespace

qint64 qxSetTableReader::mostMemory(const QByteArray &table)
{
    constexpr qint64 bytesPerSet = 1500;
    constexpr qint64 bytesPerEntry = 200;
    constexpr qint64 bytesPerByte = 12;
    const auto isBreak = [](char each) { return each == '\n' || each == '\r'; };
    qint64 rows = 1;
    qint64 entries = 0;
    bool isAtCell = true;
    for (const char each : table) {
        const bool isEnd = isBreak(each) || each == ',' || each == ';' || each == '\t';
        rows += isBreak(each);
        entries += isAtCell && !isEnd;
        isAtCell = isEnd;
    }
    return rows * bytesPerSet + entries * bytesPerEntry + table.size() * bytesPerByte;
}

qxSetTableReader::Reading qxSetTableReader::read(const QByteArray &table,
                                                 const qxDocument &document)
{
    Reading reading;
    const QString flaw = flawOfBytes(table);
    if (!flaw.isEmpty()) {
        reading.flaws.push_back({QString(), flaw});
        return reading;
    }
    const QString text = QString::fromUtf8(table); // drops the mark in front
    return TableReader(text, document).read();
}
