#include "Table/qxCsv.h"

#include <algorithm>

namespace {

constexpr QChar quoteMark = QLatin1Char('"');

bool needsQuotes(const QString &cell)
{
    const auto isSpecial = [](QChar each) {
        return each == quoteMark || each == QLatin1Char(',') || each == QLatin1Char(';')
            || each == QLatin1Char('\t') || each == QLatin1Char('\n') || each == QLatin1Char('\r');
    };
    return cell.startsWith(QLatin1Char(' ')) || cell.endsWith(QLatin1Char(' '))
        || std::any_of(cell.begin(), cell.end(), isSpecial);
}

} // namespace

QString qxCsv::written(const QString &cell)
{
    if (!needsQuotes(cell))
        return cell;
    return quoteMark + QString(cell).replace(quoteMark, QLatin1String("\"\"")) + quoteMark;
}

QString qxCsv::cellName(int row, int column)
{
    QString letters;
    for (int left = column + 1; left > 0; left = (left - 1) / 26)
        letters.prepend(QChar(ushort('A' + (left - 1) % 26)));
    return letters + QString::number(row + 1);
}

bool qxCsv::Reader::next(std::size_t most)
{
    m_cells.clear();
    m_count = 0;
    m_flaws.clear();
    if (m_at >= m_text.size())
        return false;
    ++m_row;
    readCell(most);
    while (m_at < m_text.size() && m_text[m_at] == m_separator) {
        ++m_at;
        readCell(most);
    }
    skipBreak();
    return true;
}

void qxCsv::Reader::readCell(std::size_t most)
{
    const bool isQuoted = m_at < m_text.size() && m_text[m_at] == quoteMark;
    const QString cell = isQuoted ? quoted() : plain();
    if (!isQuoted && cell.contains(quoteMark))
        fault("a quote stands in a cell without quotes; in quotes it is written twice");
    if (m_count < most)
        m_cells.push_back(cell);
    ++m_count;
}

/// The position is at the opening quote.
QString qxCsv::Reader::quoted()
{
    QString cell;
    int from = ++m_at;
    for (;; ++m_at) {
        const int end = m_text.indexOf(quoteMark, m_at);
        m_at = end < 0 ? m_text.size() : end;
        cell += m_text.midRef(from, m_at - from);
        if (end < 0) {
            fault("its quote does not end");
            return cell;
        }
        from = ++m_at;
        if (m_at >= m_text.size() || m_text[m_at] != quoteMark) // else it stands for one
            break;
    }
    if (isAtEndOfCell())
        return cell;
    fault("something stands behind its closing quote");
    return cell + plain();
}

QString qxCsv::Reader::plain()
{
    const int from = m_at;
    while (!isAtEndOfCell())
        ++m_at;
    return m_text.mid(from, m_at - from);
}

bool qxCsv::Reader::isAtEndOfCell() const
{
    return m_at >= m_text.size() || m_text[m_at] == m_separator || isAtBreak();
}

bool qxCsv::Reader::isAtBreak() const
{
    return m_text[m_at] == QLatin1Char('\n') || m_text[m_at] == QLatin1Char('\r');
}

void qxCsv::Reader::skipBreak()
{
    if (m_at >= m_text.size())
        return;
    const bool isDouble = m_text.midRef(m_at, 2) == QLatin1String("\r\n");
    m_at += isDouble ? 2 : 1;
}

void qxCsv::Reader::fault(const char *reason)
{
    m_flaws.push_back({int(m_count), QLatin1String(reason)});
}
