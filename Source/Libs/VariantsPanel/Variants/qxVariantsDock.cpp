#include "qxVariantsDock.h"

#include "qxVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantsModel.h"

#include "qxPanelEvents.h"

#include <QEvent>
#include <QHeaderView>
#include <QTreeView>

qxVariantsDock::qxVariantsDock(QUndoStack *steps, QWidget *parent)
    : QDockWidget(parent), m_steps(steps), m_events(new qxPanelEvents(this)),
      m_model(new qxVariantsModel(m_events, this)), m_view(new QTreeView)
{
    setObjectName(QStringLiteral("qxVariantsDock"));
    m_view->setModel(m_model);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setUniformRowHeights(true);
    m_view->setExpandsOnDoubleClick(false);
    m_view->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_view->header()->setStretchLastSection(false);
    m_view->header()->resizeSection(1, 14 * fontMetrics().averageCharWidth());
    m_view->expandToDepth(0);
    setWidget(m_view);
    retranslate();
    connect(m_view, &QTreeView::activated, this, &qxVariantsDock::selectOption);
    connect(m_events, &qxPanelEvents::variantsHighlighted, this, &qxVariantsDock::highlight);
}

void qxVariantsDock::changeEvent(QEvent *event)
{
    QDockWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    retranslate();
    m_model->retranslate();
}

void qxVariantsDock::retranslate()
{
    setWindowTitle(tr("Variants"));
}

void qxVariantsDock::selectOption(const QModelIndex &index)
{
    const QModelIndex first = index.sibling(index.row(), 0);
    const QString option = m_model->optionAt(first);
    qxVariant *const variant = m_model->variantAt(first);
    if (!variant || option.isEmpty())
        return m_view->setExpanded(first, !m_view->isExpanded(first));
    Q_EMIT aboutToSelect();
    variant->onSelect(option);
}

/// The kinds are told one after the other, the first of them first.
void qxVariantsDock::highlight(const qxVariantKind &kind, const QStringList &names)
{
    if (&kind == qxVariantKinds::all().front())
        m_view->clearSelection();
    for (const QString &name : names) {
        const QModelIndex index = m_model->indexOf(kind, name);
        m_view->selectionModel()->select(index,
                                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
        m_view->scrollTo(index);
    }
}

void qxVariantsDock::showVariant(const qxVariantKind &kind, const QString &variant)
{
    m_events->flush(); // It may have been made just now.
    const QModelIndex index = m_model->indexOf(kind, variant);
    show();
    raise();
    m_view->setCurrentIndex(index);
    m_view->scrollTo(index);
}
