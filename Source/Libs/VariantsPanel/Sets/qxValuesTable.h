#pragma once

#include <QMap>
#include <QTableWidget>

/// A table of keys and values to edit. The last row is empty and takes a new pair; the Delete key
/// takes a row away, and so does an empty key.
class qxValuesTable : public QTableWidget {
    Q_OBJECT

public:
    explicit qxValuesTable(QWidget *parent = nullptr);

    /// Shows these pairs, unless they are what the table holds.
    void setPairs(const QMap<QString, QString> &pairs);
    /// What the table holds. Keys of earlier rows get a number.
    QMap<QString, QString> pairs() const;
    /// The first key that several rows have; empty when there is none.
    QString doubleKey() const;

signals:
    /// The user changed a pair.
    void edited();

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
