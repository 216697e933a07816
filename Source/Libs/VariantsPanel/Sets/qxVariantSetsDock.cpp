#include "qxVariantSetsDock.h"

#include "qxVariant.h"
#include "qxVariantGroup.h"
#include "qxVariantKind.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Undo/qxSetEdits.h"
#include "qxGalleryBar.h"
#include "qxKeyHints.h"
#include "qxMenuText.h"
#include "qxPanelEvents.h"
#include "qxPreviewAge.h"
#include "qxSetCapture.h"
#include "qxSetForm.h"
#include "qxSetHotkeys.h"
#include "qxSetMatch.h"
#include "qxSetsView.h"
#include "qxTakenKeys.h"
#include "qxText.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QToolButton>
#include <QUndoStack>
#include <QVBoxLayout>

qxVariantSetsDock::qxVariantSetsDock(QWidget *parent)
    : QDockWidget(parent), m_events(new qxPanelEvents(this)), m_edits(new qxSetEdits(this)),
      m_taken(new qxTakenKeys(this)), m_age(new qxPreviewAge(this)),
      m_view(new qxSetsView(m_events, m_edits)), m_bar(new qxGalleryBar(m_view, m_age)),
      m_form(new qxSetForm(m_events, m_edits, m_taken))
{
    setObjectName(QStringLiteral("qxVariantSetsDock"));
    m_view->setTakenKeys(m_taken);
    m_view->setPreviewAge(m_age);
    buildActions();
    buildContents();
    retranslate();
    connect(m_view, &qxSetsView::activated, this, &qxVariantSetsDock::selectSet);
    connect(m_view, &qxSetsView::currentChanged, this, &qxVariantSetsDock::followCurrent);
    connect(m_view, &qxSetsView::selectionChanged, this, &qxVariantSetsDock::followSelection);
    connect(m_view, &qxSetsView::menuRequested, this, &qxVariantSetsDock::showMenu);
    connect(m_events, &qxPanelEvents::setsChanged, this, &qxVariantSetsDock::followGroup);
    connect(m_events, &qxPanelEvents::setSelected, this, [this](const QString &set) {
        if (m_keepsCursor)
            return;
        m_view->showSet(set);
        Q_EMIT selected(set);
    });
    for (const auto changed : {&qxPanelEvents::setsChanged, &qxPanelEvents::variantsChanged}) {
        connect(m_events, changed, m_age, &qxPreviewAge::look);
        connect(m_events, changed, m_bar, &qxGalleryBar::look);
    }
    connect(m_bar, &qxGalleryBar::wanted, this, &qxVariantSetsDock::makePreviewsOf);
    connect(m_bar, &qxGalleryBar::cancelled, this, &qxVariantSetsDock::previewsCancelled);
    auto *const hotkeys = new qxSetHotkeys(m_taken, this);
    connect(hotkeys, &qxSetHotkeys::pressed, this, &qxVariantSetsDock::selectSet);
    connect(hotkeys, &qxSetHotkeys::optionPressed, this, &qxVariantSetsDock::selectOption);
    // Steps hold parts of the scene.
    connect(m_events, &qxPanelEvents::aboutToForget, undoStack(), &QUndoStack::clear);
    connect(m_events, &qxPanelEvents::aboutToForget, m_age, &qxPreviewAge::forget);
    followCurrent();
}

void qxVariantSetsDock::changeEvent(QEvent *event)
{
    QDockWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void qxVariantSetsDock::retranslate()
{
    setWindowTitle(QCoreApplication::translate("qxVariants", "Variant Sets"));
    for (QAbstractItemView *view : m_view->findChildren<QAbstractItemView *>())
        view->setAccessibleName(windowTitle());
    m_search->setPlaceholderText(tr("Search sets"));
    m_search->setAccessibleName(m_search->placeholderText());
    const auto shown = [](int key) { return QKeySequence(key).toString(QKeySequence::NativeText); };
    qxKeyHints::tell(*m_view, {{shown(Qt::Key_Return), tr("Select the current set")}});
    qxKeyHints::tell(*m_search,
                     {{shown(Qt::Key_Down), tr("Search: go to what was found")},
                      {shown(Qt::Key_Return), tr("Search: select the first set")},
                      {shown(Qt::Key_Escape), tr("Search: end it")}});
    m_galleryAction->setText(tr("Gallery"));
    m_galleryAction->setToolTip(tr("Show the previews of all sets"));
    m_capture->setText(tr("Capture..."));
    m_capture->setToolTip(tr("Make a set of what the scene shows now"));
    for (int number = 0; number < m_actions.size(); ++number)
        m_actions[number]->setText(tr(m_texts[number]));
    showFound();
}

QUndoStack *qxVariantSetsDock::undoStack() const
{
    return m_edits->stack();
}

void qxVariantSetsDock::setProblems(const qxProblems *problems)
{
    m_form->setProblems(problems);
}

void qxVariantSetsDock::buildContents()
{
    auto *const splitter = new QSplitter(Qt::Vertical);
    auto *const sets = new QWidget;
    auto *const rows = new QVBoxLayout(sets);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(m_view, 1);
    rows->addWidget(m_bar);
    splitter->addWidget(sets);
    auto *const scrolled = new QScrollArea; // A long form must not take the list's room.
    scrolled->setWidget(m_form);
    scrolled->setWidgetResizable(true);
    scrolled->setFrameShape(QFrame::NoFrame);
    splitter->addWidget(scrolled);
    splitter->setSizes({400, 600});
    splitter->setCollapsible(0, false);
    auto *const contents = new QWidget;
    auto *const layout = new QVBoxLayout(contents);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(buildTopLine());
    m_found = new QLabel;
    m_found->setObjectName(QStringLiteral("found"));
    m_found->setMargin(4);
    m_found->setTextFormat(Qt::PlainText);
    layout->addWidget(m_found);
    layout->addWidget(splitter, 1);
    setWidget(contents);
    connect(m_view, &QStackedWidget::currentChanged, splitter,
            [splitter, other = QList<int>{700, 300}]() mutable { // Pictures need room.
                const QList<int> sizes = splitter->sizes(); // all 0 until they are shown
                splitter->setSizes(other);
                other = sizes.count(0) == sizes.size() ? QList<int>{400, 600} : sizes;
            });
}

QWidget *qxVariantSetsDock::buildTopLine()
{
    auto *const line = new QWidget;
    auto *const layout = new QHBoxLayout(line);
    layout->setContentsMargins(4, 4, 4, 0);
    m_search = new QLineEdit;
    m_search->setObjectName(QStringLiteral("search"));
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    connect(m_search, &QLineEdit::textChanged, m_view, &qxSetsView::setSearch);
    connect(m_search, &QLineEdit::returnPressed, this, &qxVariantSetsDock::selectFound);
    connect(m_view, &qxSetsView::searched, this, &qxVariantSetsDock::showFound);
    auto *const gallery = new QToolButton;
    gallery->setObjectName(QStringLiteral("gallery"));
    gallery->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_galleryAction = new QAction(this);
    m_galleryAction->setCheckable(true);
    m_galleryAction->setShortcut(Qt::CTRL + Qt::Key_G);
    gallery->setDefaultAction(m_galleryAction);
    connect(m_galleryAction, &QAction::toggled, m_view,
            [this](bool on) { m_view->setForm(on ? qxSetsView::Gallery : qxSetsView::List); });
    m_capture = new QToolButton;
    connect(m_capture, &QToolButton::clicked, this, &qxVariantSetsDock::captureSet);
    layout->addWidget(m_search, 1);
    layout->addWidget(gallery);
    layout->addWidget(m_capture);
    return line;
}

// A list, not a procedure.
void qxVariantSetsDock::buildActions()
{
    typedef qxVariantSetsDock Dock;
    m_ofSets << addAction(QT_TR_NOOP("&Select"), QKeySequence(), &Dock::selectCurrent);
    addAction(QT_TR_NOOP("&Find Set"), QKeySequence::Find, &Dock::goToSearch, Qt::WindowShortcut);
    m_addSetAction =
        addAction(QT_TR_NOOP("&Add Set"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_N),
                  &Dock::addSet, Qt::WindowShortcut);
    addAction(QT_TR_NOOP("Add &Group"), QKeySequence(), &Dock::addGroup);
    m_captureAction =
        addAction(QT_TR_NOOP("&Capture..."), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_C),
                  &Dock::captureSet, Qt::WindowShortcut);
    m_ofSets << addAction(QT_TR_NOOP("&Update from Scene..."), QKeySequence(), &Dock::updateSet);
    m_ofSets << addAction(QT_TR_NOOP("New &Preview"), QKeySequence(), &Dock::makePreview);
    addAction(QT_TR_NOOP("Previews of All Sets"), QKeySequence(), &Dock::makeAllPreviews);
    addAction(QT_TR_NOOP("&Rename"), QKeySequence(Qt::Key_F2), &Dock::renameCurrent);
    m_ofSets << addAction(QT_TR_NOOP("&Duplicate"), QKeySequence(Qt::CTRL + Qt::Key_D),
                          &Dock::duplicateSets);
    addAction(QT_TR_NOOP("M&ove Up"), QKeySequence(Qt::ALT + Qt::Key_Up), &Dock::moveUp);
    addAction(QT_TR_NOOP("Move Do&wn"), QKeySequence(Qt::ALT + Qt::Key_Down), &Dock::moveDown);
    m_ofSets << addAction(QT_TR_NOOP("&Move to..."), QKeySequence(Qt::CTRL + Qt::Key_M),
                          &Dock::askWhereTo);
    addAction(QT_TR_NOOP("De&lete"), QKeySequence::Delete, &Dock::removeSelected);
    m_withSets = addAction(QT_TR_NOOP("Delete Group with Its S&ets"),
                           QKeySequence(Qt::SHIFT + Qt::Key_Delete), &Dock::removeGroupsWithSets);
    m_groupVisible = addAction(QT_TR_NOOP("Group V&isible"), QKeySequence(), nullptr);
    m_groupVisible->setCheckable(true);
    connect(m_groupVisible, &QAction::triggered, this, &Dock::setGroupVisible);
    m_hidden = addAction(QT_TR_NOOP("Show &Hidden Groups"), QKeySequence(), nullptr);
    m_hidden->setCheckable(true);
    connect(m_hidden, &QAction::toggled, m_view, &qxSetsView::setHiddenShown);
    m_ofSets << addAction(QT_TR_NOOP("Show Connected &Variants"), QKeySequence(),
                          &Dock::showConnected);
}

QAction *qxVariantSetsDock::addAction(const char *text, const QKeySequence &key,
                                      void (qxVariantSetsDock::*run)(), Qt::ShortcutContext where)
{
    auto *const action = new QAction(this);
    action->setShortcut(key);
    action->setShortcutContext(where);
    if (run)
        connect(action, &QAction::triggered, this, run);
    m_view->addAction(action);
    m_actions << action;
    m_texts << text;
    return action;
}

void qxVariantSetsDock::showMenu(const QPoint &globalPosition)
{
    QMenu::exec(m_actions, globalPosition, nullptr, this);
}

void qxVariantSetsDock::askWhereTo()
{
    QMenu menu;
    menu.setObjectName(QStringLiteral("groups"));
    const auto addTarget = [&](const QString &text, const QString &group) {
        connect(menu.addAction(text), &QAction::triggered, this,
                [this, group] { m_edits->moveSets(m_view->selectedSets(), group, QString()); });
    };
    for (const qxVariantGroup *group : qxVariants::_variantGroups) {
        if (group->visible)
            addTarget(qxMenuText(group->name), group->name);
    }
    menu.addSeparator();
    addTarget(tr("No Group"), QString());
    menu.exec(m_view->placeOfCurrent());
}

void qxVariantSetsDock::showFound()
{
    const int found = m_view->foundCount();
    m_found->setVisible(found > 0); // The view itself says that there is none.
    m_found->setText(tr("%n sets found", nullptr, found));
}

void qxVariantSetsDock::followCurrent()
{
    if (m_view->currentSet().isEmpty() && !m_view->currentGroup().isEmpty())
        m_form->showGroup(m_view->currentGroup());
    else
        m_form->showSet(m_view->currentSet());
    for (QAction *action : m_ofSets)
        action->setEnabled(!m_view->currentSet().isEmpty());
    followGroup();
    followSelection();
}

void qxVariantSetsDock::followGroup()
{
    const qxVariantGroup *const group = qxVariants::findVariantGroup(m_view->currentGroup());
    m_groupVisible->setEnabled(group);
    m_groupVisible->setChecked(group && group->visible);
}

void qxVariantSetsDock::followSelection()
{
    m_withSets->setEnabled(!m_view->selectedGroups().isEmpty());
}

void qxVariantSetsDock::selectSet(const QString &name)
{
    if (qxVariants::findVariantSet(name))
        Q_EMIT aboutToSelect();
    qxVariants::selectVariantSet(qxText::toUtf8(name).c_str(), false);
}

void qxVariantSetsDock::selectOption(const qxVariantKind &kind, const QString &variant,
                                     const QString &option)
{
    qxVariant *const found = kind.find(variant);
    if (!found)
        return;
    Q_EMIT aboutToSelect();
    found->onSelect(option);
}

void qxVariantSetsDock::selectCurrent()
{
    selectSet(m_view->currentSet());
}

void qxVariantSetsDock::addSet()
{
    const QString name = m_edits->addSet(m_view->currentGroup());
    showSet(name);
    if (m_view->currentSet() == name)
        m_view->renameCurrent();
}

void qxVariantSetsDock::addGroup()
{
    const QString name = m_edits->addGroup();
    showGroup(name);
    if (m_view->currentSet().isEmpty() && m_view->currentGroup() == name)
        m_view->renameCurrent();
}

void qxVariantSetsDock::captureSet()
{
    const QString name = qxSetCapture::capture(m_edits, m_view->currentGroup(), window());
    if (name.isEmpty()) // cancelled
        return;
    noteMade(name);
    showSet(name);
}

void qxVariantSetsDock::updateSet()
{
    const QString name = m_view->currentSet();
    if (qxSetCapture::update(m_edits, name, window()))
        noteMade(name);
}

void qxVariantSetsDock::makePreview()
{
    const QString name = m_view->currentSet();
    if (m_view->selectedSets().size() > 1)
        return makePreviewsOf(m_view->selectedSets());
    const PreviewWay way = askForPreviewWay(name);
    if (way == BySelecting)
        return makePreviewsOf({name});
    const QByteArray picture =
        way == AsShown ? qxVariants::createPreviewImage(true, true) : QByteArray();
    if (!picture.isEmpty()) // It may have been cancelled.
        setPreviews({{name, picture}});
}

/// A picture of a scene that does not show the set would be the wrong one.
qxVariantSetsDock::PreviewWay qxVariantSetsDock::askForPreviewWay(const QString &name)
{
    qxVariantSet *const set = qxVariants::findVariantSet(name);
    if (!set || set->isEmpty() || qxSetMatch().matches(*set))
        return AsShown;
    QMessageBox question(QMessageBox::Question, tr("New Preview"),
                         tr("The scene may not show \"%1\" now.").arg(name), QMessageBox::Cancel,
                         window());
    question.setTextFormat(Qt::PlainText);
    QPushButton *const select =
        question.addButton(tr("&Select It for the Picture"), QMessageBox::YesRole);
    const QPushButton *const asShown =
        question.addButton(tr("&Picture What Is Shown"), QMessageBox::NoRole);
    question.setDefaultButton(select);
    question.exec();
    if (question.clickedButton() == select)
        return BySelecting;
    return question.clickedButton() == asShown ? AsShown : NotAtAll;
}

void qxVariantSetsDock::makeAllPreviews()
{
    QStringList all;
    for (const qxVariantSet *set : qxVariants::_variantSets)
        all << set->name;
    makePreviewsOf(all);
}

void qxVariantSetsDock::makePreviewsOf(const QStringList &sets)
{
    Q_EMIT previewsWanted(sets);
}

void qxVariantSetsDock::keepCursor(const std::function<void()> &work)
{
    m_events->flush(); // What was selected before is followed.
    m_keepsCursor = true;
    work();
    m_events->flush();
    m_keepsCursor = false;
}

void qxVariantSetsDock::setPreviews(const QMap<QString, QByteArray> &previews, int run)
{
    m_edits->setPreviews(previews, run);
    for (const QString &name : previews.keys())
        noteMade(name);
}

void qxVariantSetsDock::noteMade(const QString &name)
{
    if (const qxVariantSet *const set = qxVariants::findVariantSet(name))
        m_age->noteMade(*set);
}

void qxVariantSetsDock::renameCurrent()
{
    m_view->renameCurrent();
}

void qxVariantSetsDock::duplicateSets()
{
    const QStringList copies = m_edits->duplicateSets(m_view->selectedSets());
    if (!copies.isEmpty())
        showSet(copies.first());
    m_view->selectSets(copies);
}

void qxVariantSetsDock::move(bool down)
{
    const QStringList sets = m_view->selectedSets();
    const QStringList groups = m_view->selectedGroups();
    if (!sets.isEmpty())
        m_edits->shiftSets(sets, down);
    else if (!groups.isEmpty())
        m_edits->shiftGroup(groups.first(), down);
}

void qxVariantSetsDock::setGroupVisible(bool isVisible)
{
    m_edits->setGroupVisible(m_view->currentGroup(), isVisible);
}

void qxVariantSetsDock::removeSelected()
{
    m_edits->remove(m_view->selectedSets(), m_view->selectedGroups(), false);
}

void qxVariantSetsDock::removeGroupsWithSets()
{
    m_edits->remove(m_view->selectedSets(), m_view->selectedGroups(), true);
}

void qxVariantSetsDock::showConnected()
{
    qxVariants::showConnectedVariants(m_view->currentSet());
}
