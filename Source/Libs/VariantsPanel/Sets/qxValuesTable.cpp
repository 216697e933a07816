#include "qxValuesTable.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QSet>
#include <QSignalBlocker>

namespace {

QString textAt(const QTableWidget &table, int row, int column)
{
    const QTableWidgetItem *const item = table.item(row, column);
    return item ? item->text() : QString();
}

} // namespace

qxValuesTable::qxValuesTable(QWidget *parent) : QTableWidget(0, 2, parent)
{
    horizontalHeader()->setStretchLastSection(true);
    verticalHeader()->hide();
    setMaximumHeight(6 * fontMetrics().height());
    setTabKeyNavigation(false); // Tab leads out of the table, the arrows lead through it.
    connect(this, &QTableWidget::itemChanged, this, &qxValuesTable::edited);
}

void qxValuesTable::setPairs(const QMap<QString, QString> &shown)
{
    if (rowCount() == shown.size() + 1 && pairs() == shown)
        return;
    const QSignalBlocker quiet(this);
    const QString key = textAt(*this, currentRow(), 0);
    setRowCount(0);
    setRowCount(shown.size() + 1);
    int row = 0;
    for (auto pair = shown.begin(); pair != shown.end(); ++pair, ++row) {
        setItem(row, 0, new QTableWidgetItem(pair.key()));
        setItem(row, 1, new QTableWidgetItem(pair.value()));
        if (pair.key() == key)
            setCurrentCell(row, 1);
    }
}

QMap<QString, QString> qxValuesTable::pairs() const
{
    QMap<QString, QString> held;
    for (int row = 0; row < rowCount(); ++row) {
        const QString written = textAt(*this, row, 0);
        QString key = written;
        for (int number = 2; held.contains(key); ++number)
            key = written + ' ' + QString::number(number);
        if (!key.isEmpty())
            held.insert(key, textAt(*this, row, 1));
    }
    return held;
}

QString qxValuesTable::doubleKey() const
{
    QSet<QString> met;
    for (int row = 0; row < rowCount(); ++row) {
        const QString key = textAt(*this, row, 0);
        if (!key.isEmpty() && met.contains(key))
            return key;
        met.insert(key);
    }
    return QString();
}

void qxValuesTable::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Delete || currentRow() < 0 || currentRow() == rowCount() - 1)
        return QTableWidget::keyPressEvent(event);
    removeRow(currentRow());
    Q_EMIT edited();
}
