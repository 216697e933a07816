#pragma once

#include <QMap>
#include <QTableWidget>

/// An editable table of keys and values. The last row is empty, for a new pair; the Delete key or
/// an empty key removes a row.
class qxValuesTable : public QTableWidget {
    Q_OBJECT

public:
    explicit qxValuesTable(QWidget *parent = nullptr);

    /// Shows these pairs, unless the table holds the same.
    void setPairs(const QMap<QString, QString> &pairs);
    /// The pairs of the table. A key that an earlier row has gets a number.
    QMap<QString, QString> pairs() const;
    /// The first key that several rows have; empty when there is none.
    QString doubleKey() const;

Q_SIGNALS:
    /// The user changed a pair.
    void edited();

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
