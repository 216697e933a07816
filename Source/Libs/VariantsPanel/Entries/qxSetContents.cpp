#include "qxSetContents.h"

#include "qxVariantKinds.h"
#include "qxVariantSet.h"

#include "Undo/qxNameEdits.h"
#include "Undo/qxSetEdits.h"
#include "qxDragData.h"
#include "qxEntryEdits.h"
#include "qxEntryRepairs.h"
#include "qxEntrySearch.h"
#include "qxMenuText.h"
#include "qxSetEntriesModel.h"
#include "qxSetEntriesView.h"
#include "qxStateWords.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// The states that all of them can take, in the order of the first.
std::vector<QString> commonChoices(const std::vector<qxSetEntry> &entries)
{
    std::vector<QString> choices = qxSetEntries::choicesOf(entries.front());
    for (std::size_t i = 1; i < entries.size() && !choices.empty(); ++i) {
        const std::vector<QString> others = qxSetEntries::choicesOf(entries[i]);
        const bool isSameSort = entries[i].sort == entries.front().sort;
        const auto isMissing = [&](const QString &state) {
            return !isSameSort || std::find(others.begin(), others.end(), state) == others.end();
        };
        choices.erase(std::remove_if(choices.begin(), choices.end(), isMissing), choices.end());
    }
    return choices;
}

} // namespace

qxSetContents::qxSetContents(qxPanelEvents *events, qxSetEdits *edits)
    : m_edits(edits), m_model(new qxSetEntriesModel(events, edits, this)),
      m_view(new qxSetEntriesView(m_model)), m_search(new qxEntrySearch(events)), m_note(new QLabel)
{
    m_note->setWordWrap(true);
    m_note->setTextFormat(Qt::PlainText);
    m_note->setObjectName(QStringLiteral("entriesNote"));
    buildCommands();
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(buildTopLine());
    layout->addWidget(m_view, 1);
    layout->addWidget(m_note);
    retranslate();
    say(QString());
    connect(m_search, &qxEntrySearch::chosen, this,
            [this](const qxSetEntry &each) { add({each}); });
    connect(m_view, &qxSetEntriesView::dropped, this, &qxSetContents::take);
    connect(m_view, &QWidget::customContextMenuRequested, this, &qxSetContents::showMenu);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &qxSetContents::followSelection);
    connect(m_model, &QAbstractItemModel::modelReset, this, &qxSetContents::followSelection);
    followSelection();
}

// A list, not a procedure.
void qxSetContents::buildCommands()
{
    typedef qxSetContents Contents;
    m_ofEntries << addCommand(QT_TR_NOOP("Choose S&tate"), Qt::Key_F2, &Contents::chooseState);
    m_inMenu << addCommand(QT_TR_NOOP("Take the State S&hown"), QKeySequence(),
                           &Contents::takeShown);
    m_ofVariants << m_inMenu.last();
    m_inMenu << makeSeparator();
    m_inMenu << addCommand(QT_TR_NOOP("&Remove"), QKeySequence::Delete, &Contents::removeSelected);
    m_ofEntries << m_inMenu.last();
    m_inMenu << addCommand(QT_TR_NOOP("&Copy"), QKeySequence::Copy, &Contents::copy);
    m_ofVariants << m_inMenu.last();
    m_inMenu << addCommand(QT_TR_NOOP("&Paste"), QKeySequence::Paste, &Contents::paste);
    m_inMenu << makeSeparator();
    m_rename =
        addCommand(QT_TR_NOOP("Re&name Variant..."), QKeySequence(), &Contents::renameVariant);
    m_inMenu << m_rename;
    m_inMenu << addCommand(QT_TR_NOOP("Show in the &Variants Dock"), QKeySequence(),
                           &Contents::showVariants);
    m_ofVariants << m_inMenu.last();
}

QAction *qxSetContents::makeSeparator()
{
    auto *const separator = new QAction(this);
    separator->setSeparator(true);
    return separator;
}

QAction *qxSetContents::addCommand(const char *text, const QKeySequence &key,
                                   void (qxSetContents::*run)())
{
    auto *const command = new QAction(this);
    command->setShortcut(key);
    command->setShortcutContext(Qt::WidgetShortcut);
    connect(command, &QAction::triggered, this, run);
    m_view->addAction(command);
    m_commands.append({command, text});
    return command;
}

QWidget *qxSetContents::buildTopLine()
{
    auto *const line = new QWidget;
    auto *const layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    m_add = new QToolButton; // Signs leave the room to the line.
    m_add->setText(QStringLiteral("+"));
    m_add->setPopupMode(QToolButton::InstantPopup);
    m_add->setFocusPolicy(Qt::StrongFocus);
    m_add->setMenu(new QMenu(m_add));
    connect(m_add->menu(), &QMenu::aboutToShow, this, &qxSetContents::fillAddMenu);
    m_remove = new QToolButton;
    m_remove->setText(QStringLiteral("\u2212"));
    m_remove->setFocusPolicy(Qt::StrongFocus);
    connect(m_remove, &QToolButton::clicked, this, &qxSetContents::removeSelected);
    layout->addWidget(m_search, 1);
    layout->addWidget(m_add);
    layout->addWidget(m_remove);
    return line;
}

void qxSetContents::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void qxSetContents::retranslate()
{
    for (const auto &command : m_commands)
        command.first->setText(tr(command.second));
    m_search->setPlaceholderText(tr("Add variants"));
    m_search->setAccessibleName(tr("Variant, viewpoint or animation to add to the set"));
    m_search->setToolTip(tr("Finds variants, viewpoints and animations. Enter adds the variant "
                            "with the state that the scene shows."));
    m_view->setAccessibleName(tr("What the set holds"));
    showHint();
    m_add->setAccessibleName(tr("Add"));
    m_add->setToolTip(tr("Add viewpoints and animations"));
    m_remove->setAccessibleName(tr("Remove"));
    m_remove->setToolTip(tr("Take the selected entries out of the set"));
    m_model->retranslate();
}

/// In the place of entries.
void qxSetContents::showHint()
{
    m_view->setHint(m_model->set().isEmpty()
                        ? tr("Choose a set to see what it holds.")
                        : tr("The set holds nothing yet. Type the name of a variant above, or drag "
                             "variants or nodes here."));
}

void qxSetContents::setProblems(const qxProblems *problems)
{
    m_model->setProblems(problems);
}

void qxSetContents::showSet(const QString &name)
{
    if (name != m_model->set())
        say(QString());
    m_model->showSet(name);
    showHint();
    followSelection();
}

void qxSetContents::followSelection()
{
    const Entries entries = selected();
    const auto isVariant = [](const qxSetEntry &each) { return each.kind != nullptr; };
    const auto variants = std::count_if(entries.begin(), entries.end(), isVariant);
    for (QAction *command : m_ofEntries)
        command->setEnabled(!entries.empty());
    for (QAction *command : m_ofVariants)
        command->setEnabled(variants > 0);
    m_rename->setEnabled(variants == 1 && entries.size() == 1
                         && entries.front().kind->find(entries.front().name));
    m_remove->setEnabled(!entries.empty());
}

qxSetContents::Entries qxSetContents::selected() const
{
    Entries entries;
    for (const int row : m_view->selectedRows())
        entries.push_back(m_model->entryAt(row));
    return entries;
}

void qxSetContents::say(const QString &text)
{
    m_note->setText(text);
    m_note->setVisible(!text.isEmpty());
}

/// After an edit, before the module's notifications have come.
void qxSetContents::follow(const QString &note)
{
    m_model->showSet(m_model->set());
    say(note);
    followSelection();
}

/// Selects that row alone.
void qxSetContents::goTo(int row)
{
    const auto whole = QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
    if (row >= 0)
        m_view->selectionModel()->setCurrentIndex(m_model->index(row, 0), whole);
}

void qxSetContents::add(const Entries &entries)
{
    if (entries.empty())
        return;
    qxEntryEdits::add(*m_edits, m_model->set(), entries);
    follow(QString());
    std::vector<int> rows = m_model->rowsOf(entries);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i] < 0)
            say(tr("The scene shows nothing of \"%1\".").arg(entries[i].name));
    }
    rows.erase(std::remove(rows.begin(), rows.end(), -1), rows.end());
    m_view->selectRows(rows);
}

void qxSetContents::take(const QMimeData &dropped)
{
    Entries entries;
    for (const qxDraggedState &each : qxDragData::statesOf(dropped))
        entries.push_back({qxSetEntry::Variant, each.kind, each.variant, each.state});
    add(entries);
    const std::vector<qxNodePtr> nodes = qxDragData::nodesOf(dropped);
    if (!nodes.empty())
        follow(qxEntryEdits::addNodes(*m_edits, m_model->set(), nodes));
}

void qxSetContents::showMenu(const QPoint &position)
{
    auto *const menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("entries"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const Entries entries = selected();
    if (!entries.empty())
        addStates(*menu);
    if (entries.size() == 1)
        addRepairs(*menu);
    menu->addActions(m_inMenu);
    menu->popup(m_view->viewport()->mapToGlobal(position));
}

void qxSetContents::addStates(QMenu &menu)
{
    const Entries entries = selected();
    QMenu *const states = menu.addMenu(tr("&State"));
    bool areActions = false;
    for (const QString &state : commonChoices(entries)) {
        const qxSetEntry &first = entries.front();
        const bool isAction = first.kind && qxStateWords::isAction(*first.kind, state);
        if (isAction && !areActions && !states->isEmpty())
            states->addSeparator();
        areActions = isAction;
        QAction *const choice = states->addAction(qxMenuText(qxSetEntries::wordOf(first, state)));
        choice->setCheckable(true);
        choice->setChecked(std::all_of(entries.begin(), entries.end(),
                                       [&](const auto &each) { return each.state == state; }));
        connect(choice, &QAction::triggered, this, [this, entries, state] {
            qxEntryEdits::setState(*m_edits, m_model->set(), entries, state);
            follow(QString());
        });
    }
    states->setEnabled(!states->isEmpty());
}

/// What may be meant is looked for when the menu opens: that takes time.
void qxSetContents::addRepairs(QMenu &menu)
{
    QMenu *const repairs = menu.addMenu(tr("R&epair"));
    repairs->setObjectName(QStringLiteral("repairs"));
    repairs->addAction(QString()); // An empty menu does not open.
    const qxSetEntry entry = selected().front();
    connect(repairs, &QMenu::aboutToShow, this,
            [this, repairs, entry] { qxEntryRepairs::fill(*repairs, *m_edits->stack(), entry); });
}

void qxSetContents::fillAddMenu()
{
    QMenu &menu = *m_add->menu();
    menu.clear();
    for (const qxSetEntry::Sort sort : {qxSetEntry::Viewpoint, qxSetEntry::Animation}) {
        QMenu *const names =
            menu.addMenu(sort == qxSetEntry::Viewpoint ? tr("&Viewpoint") : tr("&Animation"));
        for (const qxSetEntry &each : qxEntrySearch::othersToAdd()) {
            if (each.sort != sort || m_model->rowOf(each) >= 0)
                continue;
            connect(names->addAction(qxMenuText(each.name)), &QAction::triggered, this,
                    [this, each] { add({each}); });
        }
        names->setEnabled(!names->isEmpty());
    }
}

void qxSetContents::chooseState()
{
    m_view->editState();
}

void qxSetContents::takeShown()
{
    qxEntryEdits::takeShown(*m_edits, m_model->set(), selected());
    follow(QString());
}

/// The next entry is selected then, to go on.
void qxSetContents::removeSelected()
{
    const int next = m_view->selectedRows().value(0);
    qxEntryEdits::remove(*m_edits, m_model->set(), selected());
    follow(QString());
    goTo(std::min(next, m_model->rowCount() - 1));
}

void qxSetContents::copy()
{
    std::vector<qxDraggedState> states;
    QStringList lines;
    for (const qxSetEntry &each : selected()) {
        if (!each.kind)
            continue;
        states.push_back({each.kind, each.name, each.state});
        lines << each.name + QStringLiteral(": ") + each.state;
    }
    auto *const copied = new QMimeData;
    qxDragData::setStates(*copied, states);
    copied->setText(lines.join('\n'));
    QApplication::clipboard()->setMimeData(copied);
}

void qxSetContents::paste()
{
    if (const QMimeData *const copied = QApplication::clipboard()->mimeData())
        take(*copied);
}

void qxSetContents::renameVariant()
{
    const qxSetEntry entry = selected().front();
    qxRenameRequest request;
    const QString word = entry.kind->word + QLatin1String("-variant");
    qxRenameWords::take(word, request);
    request.before = entry.name;
    request.after =
        QInputDialog::getText(this, tr("Rename Variant"), tr("Name, wherever the variant is used:"),
                              QLineEdit::Normal, entry.name);
    if (request.after.trimmed().isEmpty() || request.after == request.before)
        return;
    follow(qxNameEdits::rename(*m_edits->stack(), word, request).refusal);
    goTo(m_model->rowOf({entry.sort, entry.kind, request.after, entry.state}));
}

/// As if a set held nothing but these.
void qxSetContents::showVariants()
{
    qxVariantSet connected;
    for (const qxSetEntry &each : selected()) {
        if (each.kind)
            qxSetEntries::put(connected, each);
    }
    connected.showConnectedVariants();
}
