#include "qxSetsView.h"

#include "qxVariantGroup.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxGallery.h"
#include "qxSetDelegate.h"
#include "qxSetsModel.h"

#include <QEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QTreeView>

#include <algorithm>

namespace {

/// Of a set or a group; empty for what is called otherwise.
QString nameOf(const QModelIndex &index)
{
    return index.data(Qt::EditRole).toString();
}

QTreeView *makeTree()
{
    auto *const tree = new QTreeView;
    tree->setHeaderHidden(true);
    tree->setUniformRowHeights(true);
    tree->setExpandsOnDoubleClick(false);
    tree->setItemDelegate(new qxSetDelegate(qxSetDelegate::Lines, tree));
    return tree;
}

} // namespace

qxSetsView::qxSetsView(qxPanelEvents *events, qxSetEdits *edits, QWidget *parent)
    : QStackedWidget(parent),
      m_faces{makeFace(makeTree(), new qxSetsModel(qxSetsModel::Tree, events, edits, this)),
              makeFace(new qxGallery, new qxSetsModel(qxSetsModel::Sections, events, edits, this))}
{
    m_note = new QLabel(this);
    m_note->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    m_note->setWordWrap(true);
    m_note->setTextFormat(Qt::PlainText);
    m_note->setMargin(24);
    m_note->setAttribute(Qt::WA_TransparentForMouseEvents);
    for (const Face &each : m_faces)
        connect(each.model, &QAbstractItemModel::layoutChanged, this, &qxSetsView::showNote);
    connect(this, &QStackedWidget::currentChanged, this, &qxSetsView::showNote);
    showNote();
    auto *const tree = static_cast<QTreeView *>(m_faces[List].view);
    openGroups();
    connect(m_faces[List].model, &QAbstractItemModel::layoutChanged, this, &qxSetsView::openGroups);
    connect(tree, &QTreeView::expanded, this,
            [this](const QModelIndex &group) { noteOpen(group, true); });
    connect(tree, &QTreeView::collapsed, this,
            [this](const QModelIndex &group) { noteOpen(group, false); });
    connect(gallery(), &qxGallery::toggled, this, &qxSetsView::toggle);
}

qxGallery *qxSetsView::gallery() const
{
    return static_cast<qxGallery *>(m_faces[Gallery].view);
}

/// Groups are open until the user closes them. A search opens those that it leaves, for a while.
void qxSetsView::openGroups()
{
    auto *const tree = static_cast<QTreeView *>(m_faces[List].view);
    const QSignalBlocker quiet(tree); // This is not the user.
    for (const qxVariantGroup *group : qxVariants::_variantGroups)
        tree->setExpanded(m_faces[List].model->indexOfGroup(group->name),
                          !m_search.isEmpty() || !m_closedGroups.contains(group->name));
}

void qxSetsView::noteOpen(const QModelIndex &group, bool isOpen)
{
    if (m_search.isEmpty())
        setOpen(nameOf(group), isOpen);
}

/// In both forms.
void qxSetsView::setOpen(const QString &group, bool isOpen)
{
    if (isOpen)
        m_closedGroups.remove(group);
    else
        m_closedGroups.insert(group);
    m_faces[Gallery].model->setClosed(m_closedGroups);
    openGroups();
}

/// The cursor goes to the heading of a section that hides it.
void qxSetsView::toggle(const QString &group)
{
    if (!m_search.isEmpty()) // It has opened what it leaves.
        return;
    const bool isClosed = m_closedGroups.contains(group);
    if (!isClosed && currentGroup() == group)
        setCurrent(m_faces[Gallery].model->indexOfGroup(group));
    setOpen(group, isClosed);
}

qxSetsView::Face qxSetsView::makeFace(QAbstractItemView *view, qxSetsModel *model)
{
    view->setModel(model);
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers); // Enter is for selecting.
    view->setDragDropMode(QAbstractItemView::InternalMove);
    view->setDefaultDropAction(Qt::MoveAction);
    view->setContextMenuPolicy(Qt::CustomContextMenu);
    view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    connect(view, &QAbstractItemView::activated, this, &qxSetsView::activate);
    connect(view, &QWidget::customContextMenuRequested, this, [this, view](const QPoint &place) {
        Q_EMIT menuRequested(view->viewport()->mapToGlobal(place));
    });
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &qxSetsView::tellCurrent);
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &qxSetsView::selectionChanged);
    connect(model, &QAbstractItemModel::layoutChanged, this, &qxSetsView::tellCurrent);
    connect(model, &QAbstractItemModel::layoutChanged, this, &qxSetsView::searched);
    addWidget(view);
    return {model, view};
}

void qxSetsView::activate(const QModelIndex &index)
{
    if (!currentSet().isEmpty())
        Q_EMIT activated(currentSet());
    else if (index.isValid() && form() == Gallery)
        toggle(nameOf(index));
}

void qxSetsView::setForm(Form form)
{
    const QString set = currentSet();
    setCurrentIndex(form);
    search();
    showSet(set);
    tellCurrent();
}

/// The form that is not shown has a cursor, too, and a refresh mostly leaves it where it is.
void qxSetsView::tellCurrent()
{
    const QPair<QString, QString> now(currentSet(), currentGroup());
    if (now == m_told)
        return;
    m_told = now;
    Q_EMIT currentChanged();
}

void qxSetsView::showNote()
{
    m_note->setText(m_search.isEmpty()
                        ? tr("No sets yet: \"Capture...\" makes one of what the scene shows.")
                        : tr("Nothing has \"%1\" in it.").arg(m_search));
    m_note->setVisible(face().model->rowCount(QModelIndex()) == 0);
    m_note->raise();
}

void qxSetsView::resizeEvent(QResizeEvent *event)
{
    QStackedWidget::resizeEvent(event);
    m_note->setGeometry(rect());
}

void qxSetsView::changeEvent(QEvent *event)
{
    QStackedWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        showNote();
}

void qxSetsView::setSearch(const QString &text)
{
    m_search = text.simplified();
    search();
}

/// Only what is shown: the other form searches when it is.
void qxSetsView::search()
{
    if (current().isValid())
        m_sought = currentSet();
    face().model->setSearch(m_search);
    if (!current().isValid())
        showSet(m_sought);
}

void qxSetsView::showFirst()
{
    const QAbstractItemModel &rows = *face().model;
    for (int row = 0; row < rows.rowCount(); ++row) {
        const QModelIndex top = rows.index(row, 0);
        const bool isGroup = top.data(qxSetsModel::IsGroupRole).toBool();
        const QModelIndex set = isGroup ? rows.index(0, 0, top) : top; // Sections have none below.
        if (set.isValid())
            return setCurrent(set);
    }
}

void qxSetsView::setTakenKeys(const qxTakenKeys *taken)
{
    for (const Face &each : m_faces)
        each.model->setTakenKeys(taken);
}

void qxSetsView::setHiddenShown(bool shown)
{
    for (const Face &each : m_faces)
        each.model->setHiddenShown(shown);
}

int qxSetsView::foundCount() const
{
    if (m_search.isEmpty())
        return -1;
    return face().model->setsInOrder().size();
}

QStringList qxSetsView::shownSets() const
{
    return face().model->setsInOrder();
}

void qxSetsView::setPreviewAge(const qxPreviewAge *age)
{
    for (const Face &each : m_faces)
        each.model->setPreviewAge(age);
}

QStringList qxSetsView::selected(bool groups) const
{
    QModelIndexList selected = face().view->selectionModel()->selectedIndexes();
    const auto isBefore = [](const QModelIndex &one, const QModelIndex &other) {
        const int above = one.parent().isValid() ? one.parent().row() : one.row();
        const int otherAbove = other.parent().isValid() ? other.parent().row() : other.row();
        return above != otherAbove ? above < otherAbove : one.row() < other.row();
    };
    std::sort(selected.begin(), selected.end(), isBefore);
    QStringList names;
    for (const QModelIndex &index : selected) {
        // The sets in no group are no group.
        if (index.data(qxSetsModel::IsGroupRole).toBool() == groups && !nameOf(index).isEmpty())
            names << nameOf(index);
    }
    return names;
}

QPoint qxSetsView::placeOfCurrent() const
{
    const QAbstractItemView &view = *face().view;
    return view.viewport()->mapToGlobal(view.visualRect(current()).bottomLeft());
}

QModelIndex qxSetsView::current() const
{
    return face().view->currentIndex();
}

QString qxSetsView::currentSet() const
{
    const bool isSet = current().isValid() && !current().data(qxSetsModel::IsGroupRole).toBool();
    return isSet ? nameOf(current()) : QString();
}

QString qxSetsView::currentGroup() const
{
    if (!current().isValid())
        return QString();
    const bool isGroup = current().data(qxSetsModel::IsGroupRole).toBool();
    return current().data(isGroup ? int(Qt::EditRole) : int(qxSetsModel::GroupRole)).toString();
}

/// The section that it stands in is opened for it, as a list opens groups.
void qxSetsView::showSet(const QString &name)
{
    const qxVariantSet *const set = qxVariants::findVariantSet(name);
    const QString group = set && set->group ? QString(set->group->name) : QString();
    if (set && form() == Gallery && m_closedGroups.contains(group))
        setOpen(group, true);
    setCurrent(face().model->indexOfSet(name));
}

void qxSetsView::selectSets(const QStringList &names)
{
    if (names.isEmpty())
        return;
    showSet(names.first());
    for (const QString &name : names) {
        const QModelIndex index = face().model->indexOfSet(name);
        face().view->selectionModel()->select(index, QItemSelectionModel::Select);
    }
}

void qxSetsView::showGroup(const QString &name)
{
    setCurrent(face().model->indexOfGroup(name));
}

void qxSetsView::setCurrent(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    face().view->setCurrentIndex(index);
    face().view->scrollTo(index);
}

void qxSetsView::renameCurrent()
{
    if (current().isValid())
        face().view->edit(current());
}
