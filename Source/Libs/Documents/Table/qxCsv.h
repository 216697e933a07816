#pragma once

#include <QString>

#include <vector>

/// Tables of texts as RFC 4180 has them: cells in rows, in quotes where they need them.
namespace qxCsv {

/// The cell as it is written: in quotes when it holds a quote, a line break, a blank at an end, or
/// what separates cells in any table.
QString written(const QString &cell);
/// What spreadsheets call a cell, such as "D7". Row and column count from 0.
QString cellName(int row, int column);

/// What is wrong with the quotes of a cell.
struct Flaw {
    int column; ///< from 0
    QString reason; ///< a sentence in English without its full stop
};

/// Reads a table row by row, in the time of going over it once. Rows end with LF, CR or both; the
/// last one need not.
class Reader {
public:
    /// The text must live as long as the reader.
    Reader(const QString &text, QChar separator) : m_text(text), m_separator(separator) {}

    /// To the next row, of which it keeps that many cells; false behind the last.
    bool next(std::size_t most = std::size_t(-1));
    int row() const { return m_row; } ///< from 0
    /// The cells of the row, without their quotes.
    const std::vector<QString> &cells() const { return m_cells; }
    /// How many there are, those that are not kept included.
    std::size_t count() const { return m_count; }
    /// What is wrong in the row. A cell of which the quote does not end goes to the end of the
    /// text.
    const std::vector<Flaw> &flaws() const { return m_flaws; }

private:
    void readCell(std::size_t most);
    QString quoted();
    QString plain();
    bool isAtEndOfCell() const;
    bool isAtBreak() const;
    void skipBreak();
    void fault(const char *reason);

    const QString &m_text;
    QChar m_separator;
    int m_at = 0;
    int m_row = -1;
    std::vector<QString> m_cells;
    std::size_t m_count = 0;
    std::vector<Flaw> m_flaws;
};

} // namespace qxCsv
