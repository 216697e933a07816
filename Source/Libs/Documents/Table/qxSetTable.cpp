#include "Table/qxSetTable.h"

#include "Table/qxCsv.h"
#include "Table/qxSetTableColumn.h"

#include <QHash>

#include <algorithm>

namespace {

typedef std::vector<qxSetTableColumn> TableColumns;
/// A variant by its kind, a value by its key and null.
typedef QPair<const qxVariantKind *, QString> ColumnKey;

const QByteArray byteOrderMark("\xEF\xBB\xBF");
constexpr qint64 MostBytesPerCharacter = 3; // one of two characters takes four

class TableWriter {
public:
    TableWriter(const qxDocument &document, const qxSetTable::Form &form)
        : m_document(document), m_form(form), m_columns(qxSetTableColumn::of(document)),
          m_cells(m_columns.size())
    {
        for (std::size_t place = qxSetTableColumn::Variant; place < m_columns.size(); ++place)
            m_places.insert({m_columns[place].kind, m_columns[place].name}, int(place));
    }

    QByteArray write()
    {
        if (m_form.isForOffice)
            m_text = byteOrderMark;
        std::transform(m_columns.begin(), m_columns.end(), m_cells.begin(),
                       [](const qxSetTableColumn &each) { return qxCsv::written(each.title()); });
        addRow();
        for (const qxDocumentSet &set : m_document.sets) {
            fillRow(set);
            addRow();
        }
        return m_text;
    }

private:
    void fillRow(const qxDocumentSet &set)
    {
        if (set.group >= 0)
            put(qxSetTableColumn::Group, m_document.groups[std::size_t(set.group)].name);
        put(qxSetTableColumn::Set, set.name);
        if (!set.comment.isEmpty())
            put(qxSetTableColumn::Comment, set.comment);
        for (const qxDocumentReference &each : set.references)
            put(m_places.value({each.kind, each.variant}), each.state);
        for (const qxDocumentText &each : set.values)
            put(m_places.value({nullptr, each.text}), each.more);
    }

    void put(int column, const QString &text)
    {
        m_cells[std::size_t(column)] = qxCsv::written(qxSetTableCell::of(text));
    }

    /// Leaves all cells empty.
    void addRow()
    {
        for (std::size_t column = 0; column < m_cells.size(); ++column) {
            if (column > 0)
                m_text += m_form.separator;
            if (m_cells[column].isEmpty())
                continue;
            m_text += m_cells[column].toUtf8();
            m_cells[column].clear();
        }
        m_text += m_form.isForOffice ? "\r\n" : "\n";
    }

    const qxDocument &m_document;
    const qxSetTable::Form &m_form;
    TableColumns m_columns;
    QHash<ColumnKey, int> m_places;
    std::vector<QString> m_cells;
    QByteArray m_text;
};

} // namespace

qint64 qxSetTable::mostBytes(const qxDocument &document)
{
    const auto columns = qxSetTableColumn::of(document);
    qint64 characters = 0;
    for (const qxSetTableColumn &each : columns)
        characters += each.title().size();
    for (const qxDocumentSet &set : document.sets) {
        if (set.group >= 0)
            characters += document.groups[std::size_t(set.group)].name.size();
        characters += set.name.size() + set.comment.size();
        for (const qxDocumentReference &each : set.references)
            characters += each.state.size();
        for (const qxDocumentText &each : set.values)
            characters += each.more.size();
    }
    constexpr qint64 bytesPerCell = 4; // with a separator, quotes and an apostrophe
    const qint64 cells = qint64(columns.size()) * qint64(document.sets.size() + 1);
    return cells * bytesPerCell + characters * MostBytesPerCharacter;
}

QByteArray qxSetTable::write(const qxDocument &document, const Form &form)
{
    return TableWriter(document, form).write();
}
