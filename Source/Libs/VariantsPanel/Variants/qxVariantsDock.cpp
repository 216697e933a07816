#include "qxVariantsDock.h"

#include "qxVariant.h"
#include "qxVariantActions.h"
#include "qxVariantForm.h"
#include "qxVariantKinds.h"
#include "qxVariantMaker.h"
#include "qxVariantUses.h"
#include "qxVariantsModel.h"
#include "qxVariantsView.h"

#include "Sets/qxTakenKeys.h"
#include "qxNoVariants.h"
#include "qxPanelEvents.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyle>
#include <QTabWidget>
#include <QToolButton>
#include <QUndoStack>
#include <QVBoxLayout>

qxVariantsDock::qxVariantsDock(QUndoStack *steps, QWidget *parent)
    : QDockWidget(parent), m_events(new qxPanelEvents(this)),
      m_model(new qxVariantsModel(m_events, this)), m_maker(new qxVariantMaker(steps, this)),
      m_view(new qxVariantsView(m_model)),
      m_form(new qxVariantForm(steps, m_events, new qxTakenKeys(this))), m_uses(new qxVariantUses),
      m_nothing(new qxNoVariants(m_maker)),
      m_actions(new qxVariantActions(steps, m_events, m_model, m_view, m_maker->menu())),
      m_pages(new QStackedWidget), m_search(new QLineEdit), m_found(new QLabel), m_note(new QLabel),
      m_new(new QToolButton), m_details(new QTabWidget)
{
    setObjectName(QStringLiteral("qxVariantsDock"));
    buildContents();
    retranslate();
    connectParts();
    // What was said is about the step before.
    connect(steps, &QUndoStack::indexChanged, m_note, &QWidget::hide);
    followVariants();
    followCurrent();
}

void qxVariantsDock::buildContents()
{
    auto *const splitter = new QSplitter(Qt::Vertical);
    splitter->addWidget(m_view);
    splitter->addWidget(buildDetails());
    splitter->setSizes({700, 300});
    splitter->setCollapsible(0, false);
    auto *const nothing = new QScrollArea; // Its buttons may be more than a low dock shows.
    nothing->setWidget(m_nothing);
    nothing->setWidgetResizable(true);
    nothing->setFrameShape(QFrame::NoFrame);
    m_pages->addWidget(splitter);
    m_pages->addWidget(nothing);
    m_note->setObjectName(QStringLiteral("note"));
    m_note->hide();
    for (QLabel *label : {m_found, m_note}) {
        label->setWordWrap(true);
        label->setTextFormat(Qt::PlainText);
        label->setMargin(style()->pixelMetric(QStyle::PM_LayoutLeftMargin) / 2);
    }
    auto *const contents = new QWidget;
    auto *const layout = new QVBoxLayout(contents);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(buildTopLine());
    layout->addWidget(m_found);
    layout->addWidget(m_pages, 1);
    layout->addWidget(m_note);
    contents->setFocusProxy(m_view);
    setWidget(contents);
}

QWidget *qxVariantsDock::buildTopLine()
{
    auto *const line = new QWidget;
    auto *const layout = new QHBoxLayout(line);
    layout->setContentsMargins(4, 4, 4, 0);
    m_search->setObjectName(QStringLiteral("variantSearch"));
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    m_new->setObjectName(QStringLiteral("new"));
    m_new->setMenu(m_actions->actions().first()->menu());
    m_new->setPopupMode(QToolButton::InstantPopup);
    layout->addWidget(m_search, 1);
    layout->addWidget(m_new);
    return line;
}

QWidget *qxVariantsDock::buildDetails()
{
    auto *const scrolled = new QScrollArea; // A low dock must not lose the list.
    scrolled->setWidget(m_form);
    scrolled->setWidgetResizable(true);
    scrolled->setFrameShape(QFrame::NoFrame);
    m_details->setObjectName(QStringLiteral("details"));
    m_details->setDocumentMode(true);
    m_details->addTab(scrolled, QString());
    m_details->addTab(m_uses, QString());
    return m_details;
}

void qxVariantsDock::connectParts()
{
    connect(m_search, &QLineEdit::textChanged, this, &qxVariantsDock::search);
    connect(m_view, &QTreeView::activated, this, &qxVariantsDock::selectOption);
    connect(m_view, &QWidget::customContextMenuRequested, this, [this](const QPoint &place) {
        QMenu::exec(m_actions->actions(), m_view->viewport()->mapToGlobal(place), nullptr, this);
    });
    connect(m_view, &qxVariantsView::currentMoved, this, &qxVariantsDock::followCurrent);
    connect(m_actions, &qxVariantActions::selectWanted, this, &qxVariantsDock::selectOption);
    connect(m_actions, &qxVariantActions::keyWanted, m_form, &qxVariantForm::goToKey);
    connect(m_actions, &qxVariantActions::told, this, &qxVariantsDock::tell);
    connect(m_maker, &qxVariantMaker::made, this, [this](const qxVariantEdits::Created &created) {
        m_events->flush();
        m_search->clear();
        m_view->showVariants(created.made.empty() ? created.known : created.made);
        m_view->setFocus(Qt::OtherFocusReason);
        tell(created.notes.join('\n'));
    });
    connect(m_details, &QTabWidget::currentChanged, this, &qxVariantsDock::followUses);
    connect(m_uses, &qxVariantUses::setWanted, this, &qxVariantsDock::setWanted);
    connect(m_uses, &qxVariantUses::nodeWanted, this, &qxVariantsDock::nodeWanted);
    connect(m_events, &qxPanelEvents::variantsChanged, this, &qxVariantsDock::followVariants);
    connect(m_events, &qxPanelEvents::setsChanged, this, &qxVariantsDock::followUses);
    connect(m_events, &qxPanelEvents::variantsHighlighted, this, &qxVariantsDock::highlight);
}

void qxVariantsDock::changeEvent(QEvent *event)
{
    QDockWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    retranslate();
    m_model->retranslate();
    followVariants();
}

void qxVariantsDock::retranslate()
{
    setWindowTitle(tr("Variants"));
    m_view->setAccessibleName(tr("Variants"));
    m_search->setPlaceholderText(tr("Search variants"));
    m_search->setAccessibleName(tr("Search variants"));
    m_new->setText(tr("New"));
    m_new->setToolTip(tr("Make variants of what the scene has"));
    m_details->setTabText(0, tr("Details"));
    m_details->setTabText(1, tr("Used By"));
    m_actions->retranslate();
    showFound();
}

const QList<QAction *> &qxVariantsDock::variantActions() const
{
    return m_actions->actions();
}

void qxVariantsDock::setSelectedNodes(const Nodes &nodes)
{
    m_maker->setSelection(nodes);
}

void qxVariantsDock::setCurrentSet(const QString &set)
{
    m_actions->setCurrentSet(set);
}

void qxVariantsDock::showVariant(const qxVariantKind &kind, const QString &variant)
{
    showOption(kind, variant, QString());
}

void qxVariantsDock::showOption(const qxVariantKind &kind, const QString &variant,
                                const QString &option)
{
    m_events->flush(); // It may have been made just now.
    if (!m_model->indexOf(kind, variant).isValid())
        m_search->clear();
    show();
    raise();
    if (option.isEmpty())
        m_view->showVariants({{&kind, variant}});
    else
        m_view->showOption({&kind, variant}, option);
}

void qxVariantsDock::search()
{
    m_model->setSearch(m_search->text());
    showFound();
}

void qxVariantsDock::showFound()
{
    m_found->setVisible(!m_search->text().trimmed().isEmpty());
    m_found->setText(tr("%n variants found", nullptr, m_model->variantCount()));
}

/// The search line with the keys that lead out of it.
bool qxVariantsDock::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_search || event->type() != QEvent::KeyPress)
        return QDockWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Escape)
        m_search->clear();
    if (key != Qt::Key_Down)
        return false;
    m_view->setFocus(Qt::OtherFocusReason);
    return true;
}

void qxVariantsDock::followCurrent()
{
    m_form->showOption(m_view->currentVariant(), m_view->currentOption());
    followUses();
}

/// Gathers nothing while it is not shown.
void qxVariantsDock::followUses()
{
    if (m_details->currentWidget() == m_uses)
        m_uses->showUses(m_view->currentVariant());
}

void qxVariantsDock::followVariants()
{
    const bool isEmpty = qxVariantKinds::count() == 0;
    m_pages->setCurrentIndex(isEmpty ? 1 : 0);
    m_search->setEnabled(!isEmpty);
    if (isEmpty)
        m_nothing->refresh();
    else
        m_nothing->clear();
    showFound();
}

void qxVariantsDock::selectOption()
{
    const QModelIndex row = m_view->currentIndex();
    const QString option = m_view->currentOption();
    qxVariant *const variant = m_model->variantAt(row);
    if (!variant || option.isEmpty())
        return m_view->setExpanded(row, !m_view->isExpanded(row));
    Q_EMIT aboutToSelect();
    variant->onSelect(option);
}

/// The kinds are told one after the other, the first of them first.
void qxVariantsDock::highlight(const qxVariantKind &kind, const QStringList &names)
{
    m_events->flush(); // They may have got their names just now.
    if (&kind == qxVariantKinds::all().front())
        m_view->clearSelection();
    for (const QString &name : names) {
        const QModelIndex index = m_model->indexOf(kind, name);
        m_view->selectionModel()->select(index,
                                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
        m_view->scrollTo(index);
    }
}

void qxVariantsDock::tell(const QString &what)
{
    m_note->setText(what);
    m_note->setVisible(!what.isEmpty());
    if (what.isEmpty())
        return;
    QAccessibleEvent alert(m_note, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}
