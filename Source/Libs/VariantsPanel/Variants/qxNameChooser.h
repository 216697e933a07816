#pragma once

#include <QDialog>
#include <QStringList>

#include <functional>

class QLineEdit;
class QListView;
class QPushButton;
class QSortFilterProxyModel;
class QStandardItemModel;
class QVBoxLayout;

/// Lets the user choose among many names, with a search.
class qxNameChooser : public QDialog {
    Q_OBJECT

public:
    /// Gives what is shown for a name.
    typedef std::function<QString(const QString &name)> Words;

    /// `accept` is the text of the button that ends it. With `isSingle` one name can be chosen.
    qxNameChooser(const QString &title, const QString &accept, bool isSingle, QWidget *parent);

    /// The names to choose from, shown in these words if there are any.
    void setNames(const QStringList &names, const Words &words = Words());
    /// More names for those who tick a box of that text; they are asked for then.
    void setMore(const QString &text, const std::function<QStringList()> &names);
    /// A field for another name.
    void allowOther(const QString &label);

    /// What was chosen, without the other name.
    QStringList chosen() const;
    /// The name that was typed; empty for none.
    QString other() const;

private:
    void show(const QStringList &names);
    void search(const QString &text);
    void allowAccept();
    bool eventFilter(QObject *watched, QEvent *event) override;

    QLineEdit *m_search;
    QListView *m_view;
    QLineEdit *m_other;
    QPushButton *m_accept;
    QVBoxLayout *m_fields;
    QStandardItemModel *m_model;
    QSortFilterProxyModel *m_found;
    QStringList m_names;
    Words m_words;
};
