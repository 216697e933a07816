#include "qxVariantGroup.h"
#include "qxVariantSet.h"
#include "qxVariantSetsDock.h"
#include "qxVariants.h"

#include "qxPanelEvents.h"
#include "qxSetsView.h"

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>

void qxVariantSetsDock::goToSearch()
{
    show();
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

void qxVariantSetsDock::selectFound()
{
    if (m_view->foundCount() <= 0)
        return;
    m_view->showFirst();
    selectCurrent();
}

/// The search line with the keys that lead out of it.
bool qxVariantSetsDock::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_search || event->type() != QEvent::KeyPress)
        return QDockWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Escape)
        m_search->clear();
    if (key != Qt::Key_Down)
        return false;
    if (m_view->foundCount() > 0 || m_view->currentSet().isEmpty())
        m_view->showFirst();
    m_view->currentWidget()->setFocus(Qt::OtherFocusReason);
    return true;
}

void qxVariantSetsDock::showSet(const QString &name)
{
    const qxVariantSet *const set = qxVariants::findVariantSet(name);
    if (set)
        reveal(set->group, [&] {
            m_view->showSet(name);
            return m_view->currentSet() == name;
        });
}

void qxVariantSetsDock::showGroup(const QString &name)
{
    const qxVariantGroup *const group = qxVariants::findVariantGroup(name);
    if (group)
        reveal(group, [&] {
            m_view->showGroup(name);
            return m_view->currentSet().isEmpty() && m_view->currentGroup() == name;
        });
}

/// What is to be seen may be new.
void qxVariantSetsDock::reveal(const qxVariantGroup *group, const std::function<bool()> &goThere)
{
    show();
    raise();
    if (group && !group->visible)
        m_hidden->setChecked(true);
    m_events->flush();
    if (goThere())
        return;
    m_search->clear();
    goThere();
}
