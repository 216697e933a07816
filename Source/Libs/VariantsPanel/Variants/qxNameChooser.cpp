#include "qxNameChooser.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace {

const int nameRole = Qt::UserRole;

} // namespace

qxNameChooser::qxNameChooser(const QString &title, const QString &accept, bool isSingle,
                             QWidget *parent)
    : QDialog(parent), m_search(new QLineEdit), m_view(new QListView), m_other(new QLineEdit),
      m_fields(new QVBoxLayout), m_model(new QStandardItemModel(this)),
      m_found(new QSortFilterProxyModel(this))
{
    setWindowTitle(title);
    m_search->setPlaceholderText(tr("Search"));
    m_search->setAccessibleName(tr("Search"));
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    m_found->setSourceModel(m_model);
    m_found->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_view->setModel(m_found);
    m_view->setAccessibleName(title);
    m_view->setUniformItemSizes(true);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setSelectionMode(isSingle ? QAbstractItemView::SingleSelection
                                      : QAbstractItemView::ExtendedSelection);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_accept = buttons->addButton(accept, QDialogButtonBox::AcceptRole);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_search);
    layout->addWidget(m_view, 1);
    layout->addLayout(m_fields);
    layout->addWidget(buttons);
    m_accept->setDefault(true); // Only a button that is in its dialog can be that.
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_view, &QListView::doubleClicked, m_accept, &QPushButton::click);
    connect(m_search, &QLineEdit::textChanged, this, &qxNameChooser::search);
    connect(m_other, &QLineEdit::textEdited, m_view, &QListView::clearSelection);
    connect(m_other, &QLineEdit::textChanged, this, &qxNameChooser::allowAccept);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &qxNameChooser::allowAccept);
    m_other->hide();
    m_other->setParent(this);
    allowAccept();
    resize(50 * fontMetrics().averageCharWidth(), 24 * fontMetrics().height());
}

void qxNameChooser::setNames(const QStringList &names, const Words &words)
{
    m_names = names;
    m_words = words;
    show(names);
}

void qxNameChooser::setMore(const QString &text, const std::function<QStringList()> &names)
{
    auto *const more = new QCheckBox(text);
    m_fields->addWidget(more);
    connect(more, &QCheckBox::toggled, this,
            [this, names](bool on) { show(on ? m_names + names() : m_names); });
    if (m_names.isEmpty())
        more->setChecked(true);
}

void qxNameChooser::allowOther(const QString &text)
{
    auto *const line = new QFormLayout;
    line->addRow(text, m_other);
    m_fields->addLayout(line);
    m_other->show();
}

void qxNameChooser::show(const QStringList &names)
{
    m_model->clear();
    for (const QString &name : names) {
        auto *const item = new QStandardItem(m_words ? m_words(name) : name);
        item->setData(name, nameRole);
        m_model->appendRow(item);
    }
    allowAccept();
}

void qxNameChooser::search(const QString &text)
{
    m_found->setFilterFixedString(text);
    if (!m_view->selectionModel()->hasSelection() && !text.isEmpty())
        m_view->setCurrentIndex(m_found->index(0, 0));
}

QStringList qxNameChooser::chosen() const
{
    QStringList names;
    for (int row = 0; row < m_found->rowCount(); ++row) {
        const QModelIndex index = m_found->index(row, 0);
        if (m_view->selectionModel()->isSelected(index))
            names << index.data(nameRole).toString();
    }
    return names;
}

QString qxNameChooser::other() const
{
    return m_other->text().trimmed();
}

void qxNameChooser::allowAccept()
{
    m_accept->setEnabled(m_view->selectionModel()->hasSelection() || !other().isEmpty());
}

/// Down leads from the search to what was found.
bool qxNameChooser::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Down)
        return false;
    if (!m_view->selectionModel()->hasSelection())
        m_view->setCurrentIndex(m_found->index(0, 0));
    m_view->setFocus(Qt::OtherFocusReason);
    return true;
}
