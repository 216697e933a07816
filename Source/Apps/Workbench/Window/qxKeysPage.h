#pragma once

#include <QDialog>

class QLineEdit;
class QMainWindow;
class QTreeWidget;

/// Lists all keys of a window, and what the mouse does, with a search; can be copied and printed.
class qxKeysPage : public QDialog {
    Q_OBJECT

public:
    explicit qxKeysPage(const QMainWindow &window, QWidget *parent);

    /// What is listed now, as a page.
    QString html() const;

private:
    void fill(const QMainWindow &window);
    void search(const QString &text);
    void copy() const;
    void print();

    QLineEdit *m_search;
    QTreeWidget *m_list;
};
