#include "qxProblemsDock.h"

#include "Undo/qxNameEdits.h"
#include "Undo/qxSetEdits.h"
#include "qxKeyHints.h"
#include "qxProblemFixes.h"
#include "qxProblemRepairs.h"
#include "qxProblemWords.h"
#include "qxProblems.h"
#include "qxProblemsModel.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QStackedWidget>
#include <QToolButton>
#include <QTreeView>
#include <QUndoStack>
#include <QVBoxLayout>

namespace {

constexpr int candidatesShown = 5; ///< of one name
constexpr int namesShown = 5; ///< with their candidates

/// A mouse pointer that says that something takes a while.
class WaitCursor {
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor &) = delete;
    WaitCursor &operator=(const WaitCursor &) = delete;
};

QString plain(QString text)
{
    return text.replace('&', QLatin1String("&&"));
}

} // namespace

qxProblemsDock::qxProblemsDock(qxProblems *problems, qxSetEdits *edits, QWidget *parent)
    : QDockWidget(parent), m_problems(problems), m_edits(edits), m_model(new qxProblemsModel(this)),
      m_filter(new qxProblemsFilter(m_model, this)), m_menu(new QMenu(this)),
      m_candidates(new QMenu(this)), m_view(new QTreeView)
{
    setObjectName(QStringLiteral("problems"));
    m_go = addAction(QKeySequence(), &qxProblemsDock::goThere);
    m_copy = addAction(QKeySequence::Copy, &qxProblemsDock::copy);
    m_repairClear = addAction(QKeySequence(), &qxProblemsDock::repairClear);
    m_empty = new QLabel;
    m_empty->setObjectName(QStringLiteral("empty"));
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setWordWrap(true);
    m_told = new QLabel;
    m_told->setObjectName(QStringLiteral("told"));
    m_told->setWordWrap(true);
    m_told->hide();
    m_pages = new QStackedWidget;
    m_pages->addWidget(m_view);
    m_pages->addWidget(m_empty);
    auto *const contents = new QWidget;
    auto *const layout = new QVBoxLayout(contents);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(buildTopLine());
    layout->addWidget(m_pages, 1);
    layout->addWidget(m_told);
    setWidget(contents);
    buildView();
    connect(m_menu, &QMenu::aboutToShow, this, &qxProblemsDock::fillFixes);
    connect(m_candidates, &QMenu::aboutToShow, this, &qxProblemsDock::fillCandidates);
    connect(m_problems, &qxProblems::changed, this, &qxProblemsDock::follow);
    follow();
    retranslate();
}

QAction *qxProblemsDock::addAction(const QKeySequence &key, void (qxProblemsDock::*run)())
{
    auto *const action = new QAction(this);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, run);
    m_view->addAction(action);
    return action;
}

QWidget *qxProblemsDock::buildTopLine()
{
    auto *const line = new QWidget;
    auto *const layout = new QHBoxLayout(line);
    const QMargins margins = layout->contentsMargins(); // Below the view, height is scarce.
    layout->setContentsMargins(margins.left(), margins.top() / 4, margins.right(),
                               margins.bottom() / 4);
    m_search = new QLineEdit;
    m_search->setObjectName(QStringLiteral("problemSearch"));
    m_search->setClearButtonEnabled(true);
    connect(m_search, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_filter->setSearch(text);
        showEmptyOrList();
    });
    layout->addWidget(m_search, 1);
    for (const qxSeverity severity : {qxSeverity::Error, qxSeverity::Warning, qxSeverity::Hint}) {
        auto *const button = new QToolButton;
        button->setObjectName(qxCheckCodes::word(severity));
        button->setCheckable(true);
        button->setChecked(true);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        connect(button, &QToolButton::toggled, this, [this, severity](bool isShown) {
            m_filter->setShown(severity, isShown);
            showCounts();
        });
        m_severities.insert(severity, button);
        layout->addWidget(button);
    }
    m_repair = new QToolButton;
    m_repair->setObjectName(QStringLiteral("repair"));
    m_repair->setPopupMode(QToolButton::InstantPopup);
    m_repair->setMenu(m_menu);
    layout->addWidget(m_repair);
    return line;
}

void qxProblemsDock::buildView()
{
    m_view->setModel(m_filter);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    m_view->setSortingEnabled(true);
    m_view->sortByColumn(qxProblemsModel::TextColumn, Qt::AscendingOrder);
    QHeaderView *const header = m_view->header();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(qxProblemsModel::TextColumn, QHeaderView::Stretch);
    header->setSectionResizeMode(qxProblemsModel::PlaceColumn, QHeaderView::Stretch);
    header->setSectionResizeMode(qxProblemsModel::CodeColumn, QHeaderView::ResizeToContents);
    connect(m_view, &QTreeView::activated, this, &qxProblemsDock::goThere);
    connect(m_view, &QWidget::customContextMenuRequested, this, &qxProblemsDock::showMenu);
}

void qxProblemsDock::changeEvent(QEvent *event)
{
    QDockWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::PaletteChange)
        showCounts();
}

void qxProblemsDock::retranslate()
{
    m_search->setPlaceholderText(tr("Search problems"));
    m_search->setAccessibleName(tr("Search problems"));
    m_view->setAccessibleName(tr("Problems"));
    m_repair->setText(tr("Repair"));
    m_repair->setToolTip(tr("What can be done about the selected problems"));
    m_candidates->setTitle(tr("&Replace by"));
    m_go->setText(tr("&Go to the Place"));
    m_copy->setText(tr("&Copy as Text"));
    m_repairClear->setText(tr("Repair &All That Is Clear"));
    qxKeyHints::tell(*m_view, {{tr("Enter"), tr("goes to the place of the problem")}});
    m_model->refresh();
    showCounts();
}

/// The same problems stay selected.
void qxProblemsDock::follow()
{
    const qxFindings before = selected();
    m_model->set(m_problems->all());
    select(before);
    showCounts();
}

void qxProblemsDock::showCounts()
{
    int shown = 0;
    for (auto each = m_severities.begin(); each != m_severities.end(); ++each) {
        const int count = m_model->count(each.key());
        shown += m_filter->isShown(each.key()) ? count : 0;
        QToolButton *const button = each.value();
        button->setIcon(qxProblemsModel::iconOf(each.key()));
        button->setText(QString::number(count));
        const QString what = each.key() == qxSeverity::Error ? tr("%n errors", nullptr, count)
            : each.key() == qxSeverity::Warning              ? tr("%n warnings", nullptr, count)
                                                             : tr("%n hints", nullptr, count);
        button->setAccessibleName(what);
        button->setToolTip(tr("%1: shown or not").arg(what));
    }
    setWindowTitle(shown > 0 ? tr("Problems (%1)").arg(shown) : tr("Problems"));
    showEmptyOrList();
}

void qxProblemsDock::showEmptyOrList()
{
    const int all = m_model->rowCount();
    m_empty->setText(all == 0 ? tr("No problems: sets, variants and scene go together.")
                              : tr("%n problems are not shown.", nullptr, all));
    const bool isList = m_filter->rowCount() > 0;
    m_pages->setCurrentWidget(isList ? static_cast<QWidget *>(m_view) : m_empty);
    widget()->setFocusProxy(isList ? static_cast<QWidget *>(m_view) : m_search);
}

qxFindings qxProblemsDock::selected() const
{
    qxFindings findings;
    for (const QModelIndex &index : m_view->selectionModel()->selectedRows())
        findings += m_filter->findingAt(index);
    return findings;
}

void qxProblemsDock::select(const qxFindings &findings)
{
    if (findings.isEmpty())
        return;
    QSet<QString> messages; // They say what belongs to what.
    for (const qxFinding &each : findings)
        messages.insert(each.message);
    QItemSelection rows;
    for (int row = 0; row < m_filter->rowCount(); ++row) {
        const QModelIndex index = m_filter->index(row, 0);
        if (messages.contains(m_filter->findingAt(index).message))
            rows.select(index, index);
    }
    m_view->selectionModel()->select(rows, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    if (!rows.isEmpty())
        m_view->selectionModel()->setCurrentIndex(rows.first().topLeft(),
                                                  QItemSelectionModel::NoUpdate);
}

void qxProblemsDock::showMenu(const QPoint &place)
{
    m_menu->popup(m_view->viewport()->mapToGlobal(place));
}

void qxProblemsDock::fillFixes()
{
    m_menu->clear();
    m_told->hide();
    const qxFindings findings = selected();
    m_menu->addAction(m_go);
    m_menu->addAction(m_copy);
    for (QAction *action : {m_go, m_copy, m_candidates->menuAction()})
        action->setEnabled(!findings.isEmpty());
    m_menu->addSeparator();
    m_menu->addMenu(m_candidates);
    for (const qxProblemFixes::Fix &fix : qxProblemFixes(m_edits).of(findings))
        connect(m_menu->addAction(fix.text), &QAction::triggered, this, fix.run);
    m_menu->addSeparator();
    m_menu->addAction(m_repairClear);
    m_repairClear->setEnabled(m_model->rowCount() > 0);
}

/// They are looked for when somebody asks for them: that takes a while in large scenes.
void qxProblemsDock::fillCandidates()
{
    m_candidates->clear();
    const WaitCursor wait;
    int names = 0;
    for (const qxBreak &broken : qxProblemRepairs::of(selected())) {
        if (++names > namesShown)
            break;
        m_candidates->addSection(plain(broken.name));
        int left = candidatesShown;
        for (const qxRepairCandidate &candidate : broken.candidates) {
            if (left-- <= 0)
                break;
            QAction *const action = m_candidates->addAction(plain(candidate.name));
            action->setToolTip(candidate.reason);
            connect(action, &QAction::triggered, this, [this, broken, name = candidate.name] {
                qxNameEdits::repair(*m_edits->stack(), broken, name);
            });
        }
    }
    m_candidates->setToolTipsVisible(true);
    bool isAny = false;
    for (const QAction *action : m_candidates->actions())
        isAny = isAny || !action->isSeparator();
    if (!isAny)
        m_candidates->addAction(tr("Nothing that could be meant"))->setEnabled(false);
}

void qxProblemsDock::goThere()
{
    const QModelIndex current = m_view->currentIndex();
    if (!current.isValid())
        return;
    const qxFindingPlace place = m_filter->findingAt(current).place;
    if (!place.set.isEmpty())
        Q_EMIT setWanted(place.set, place);
    else if (place.kind)
        Q_EMIT variantWanted(*place.kind, place.name, place.state);
    else if (place.sort == qxFindingPlace::Group)
        Q_EMIT groupWanted(place.name);
}

void qxProblemsDock::copy()
{
    QModelIndexList rows = m_view->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QString text;
    for (const QModelIndex &index : rows) {
        const qxFinding &finding = m_filter->findingAt(index);
        text +=
            QStringLiteral("%1 %2: %3 (%4)\n")
                .arg(qxProblemWords::severity(finding.severity()), qxCheckCodes::id(finding.code),
                     qxProblemWords::text(finding), qxProblemWords::place(finding.place));
    }
    QApplication::clipboard()->setText(text);
}

void qxProblemsDock::repairClear()
{
    const WaitCursor wait;
    const int repaired = qxProblemRepairs::repairClear(*m_edits->stack());
    m_told->setText(repaired > 0 ? tr("%n names were repaired.", nullptr, repaired)
                                 : tr("Of no name is it clear what is meant."));
    m_told->show();
}
