#include "qxNodeMenu.h"

#include "qxVariant.h"
#include "qxVariantKinds.h"

#include "Undo/qxVariantEdits.h"
#include "qxNames.h"
#include "qxNodeControls.h"
#include "qxNodeVisibility.h"
#include "qxStateRules.h"
#include "qxStateWords.h"

#include <QApplication>
#include <QClipboard>

#include <algorithm>

namespace {

const int mostUsers = 20; ///< sets that a menu lists

QString menuText(QString text)
{
    return text.replace('&', QLatin1String("&&"));
}

QString kindWord(const qxVariantKind &kind)
{
    QString word = qxStateWords::kind(kind);
    return word.replace(0, 1, word.left(1).toUpper());
}

QAction *addNote(QMenu *menu, const QString &text)
{
    QAction *const note = menu->addAction(text);
    note->setEnabled(false);
    return note;
}

} // namespace

// A list, not a procedure.
qxNodeMenu::qxNodeMenu(qxNodeSelection *picked, qxNodeVisibility *visibility, QUndoStack *steps,
                       QWidget *parent)
    : QMenu(parent), m_picked(picked), m_visibility(visibility), m_steps(steps)
{
    m_ofNodes << add(QT_TR_NOOP("&Hide"), Qt::CTRL + Qt::Key_H,
                     [this] { m_visibility->hide(m_picked->nodes()); });
    m_ofNodes << add(QT_TR_NOOP("&Show"), Qt::CTRL + Qt::SHIFT + Qt::Key_H,
                     [this] { m_visibility->show(m_picked->nodes()); });
    m_isolate = add(QT_TR_NOOP("&Isolate"), Qt::CTRL + Qt::Key_I, [this] { toggleIsolation(); });
    m_isolate->setCheckable(true);
    m_showAll = add(QT_TR_NOOP("Show &All Again"), Qt::CTRL + Qt::SHIFT + Qt::Key_I,
                    [this] { m_visibility->showAll(); });
    m_ofNodes << add(QT_TR_NOOP("&Frame"), 0, [this] { Q_EMIT frameWanted(); });
    m_ofNodes << add(QT_TR_NOOP("Pick the &Parent"), Qt::CTRL + Qt::Key_Up,
                     [this] { pickParent(); });
    addSeparator();
    m_make = addSubmenu(QT_TR_NOOP("&Make Variant"), &qxNodeMenu::fillMake);
    m_controls = addSubmenu(QT_TR_NOOP("&What Controls This"), &qxNodeMenu::fillControls);
    m_addToSet = add(QT_TR_NOOP("A&dd Present State to Set"), 0, [this] { addToSet(); });
    addSeparator();
    m_ofNodes << add(QT_TR_NOOP("Copy &Name"), 0, [this] { copy(false); });
    m_ofNodes << add(QT_TR_NOOP("&Copy Path"), 0, [this] { copy(true); });
    connect(this, &QMenu::aboutToShow, this, &qxNodeMenu::prepare);
    connect(m_picked, &qxNodeSelection::changed, this, &qxNodeMenu::prepare);
    connect(m_visibility, &qxNodeVisibility::changed, this, &qxNodeMenu::prepare);
    retranslate();
}

QAction *qxNodeMenu::add(const char *text, int key, const std::function<void()> &run)
{
    QAction *const action = addAction(QString());
    if (key != 0)
        action->setShortcut(key);
    connect(action, &QAction::triggered, this, run);
    m_texts.append({action, text});
    return action;
}

QMenu *qxNodeMenu::addSubmenu(const char *text, void (qxNodeMenu::*fill)())
{
    auto *const menu = new QMenu(this);
    menu->setToolTipsVisible(true);
    m_texts.append({addMenu(menu), text});
    m_ofNodes << menu->menuAction();
    connect(menu, &QMenu::aboutToShow, this, fill);
    return menu;
}

void qxNodeMenu::changeEvent(QEvent *event)
{
    QMenu::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void qxNodeMenu::retranslate()
{
    for (const auto &action : m_texts)
        action.first->setText(tr(action.second));
    prepare();
}

/// Keys work only for what is enabled, so this does not wait until the menu is shown.
void qxNodeMenu::prepare()
{
    const bool hasNodes = !m_picked->isEmpty();
    for (QAction *action : m_ofNodes)
        action->setEnabled(hasNodes);
    m_isolate->setEnabled(hasNodes || m_visibility->isIsolated());
    m_isolate->setChecked(m_visibility->isIsolated());
    m_showAll->setEnabled(m_visibility->isIsolated() || m_visibility->hasHidden());
    const QString set = m_target ? m_target() : QString();
    m_addToSet->setEnabled(hasNodes && !set.isEmpty());
    m_addToSet->setText(set.isEmpty() ? tr("A&dd Present State to Set")
                                      : tr("A&dd Present State to \"%1\"").arg(menuText(set)));
}

void qxNodeMenu::toggleIsolation()
{
    if (m_visibility->isIsolated())
        m_visibility->endIsolation();
    else
        m_visibility->isolate(m_picked->nodes());
}

void qxNodeMenu::pickParent()
{
    const osg::NodePtr above = m_picked->current()->getParent();
    if (above != qxScenegraph::getRoot())
        m_picked->select({above});
}

void qxNodeMenu::fillMake()
{
    m_make->clear();
    const qxNodeSelection::Nodes nodes = m_picked->nodes();
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        QStringList objects;
        for (const osg::NodePtr &node : nodes)
            objects << qxNodeControls::objectsFor(*kind, node);
        objects.removeDuplicates();
        if (objects.isEmpty())
            continue;
        const QString names =
            objects.size() == 1 ? objects.first() : tr("%n objects", nullptr, objects.size());
        m_make->addAction(tr("%1: %2").arg(kindWord(*kind), menuText(names)),
                          [this, kind] { make(*kind); });
    }
    if (m_make->isEmpty())
        addNote(m_make, tr("Nothing that has a name"));
}

void qxNodeMenu::make(const qxVariantKind &kind)
{
    const qxVariantEdits::Created created =
        qxNodeControls::makeVariants(*m_steps, kind, m_picked->nodes());
    for (const qxVariantName &each : created.made)
        Q_EMIT variantWanted(*each.kind, each.name);
    for (const qxVariantName &each : created.known)
        Q_EMIT variantWanted(*each.kind, each.name);
    if (!created.notes.isEmpty())
        Q_EMIT told(created.notes.join(QLatin1Char(' ')));
    else if (created.made.empty())
        Q_EMIT told(tr("There is such a variant already."));
    else
        Q_EMIT told(tr("%n variants made", nullptr, int(created.made.size())));
}

void qxNodeMenu::fillControls()
{
    m_controls->clear();
    const osg::NodePtr node = m_picked->current();
    for (const qxNodeControls::Control &control : qxNodeControls::of(node)) {
        const qxVariantKind &kind = *control.variant.kind;
        const qxVariant *const variant = kind.find(control.variant.name);
        if (!variant)
            continue;
        const QString state = qxStateWords::shown(kind, variant, variant->shown().visibleState());
        auto *const menu = new QMenu(m_controls);
        menu->setTitle(
            tr("%1 \"%2\": %3").arg(kindWord(kind), menuText(variant->name), menuText(state)));
        QAction *const action = m_controls->addMenu(menu);
        action->setToolTip(
            control.levels == 0
                ? tr("It drives \"%1\".").arg(control.object)
                : tr("It drives \"%1\", which is above this node.").arg(control.object));
        const QString name = variant->name;
        connect(menu, &QMenu::aboutToShow, this,
                [this, menu, &kind, name] { fillUsers(menu, kind, name); });
    }
    if (m_controls->isEmpty())
        addNote(m_controls, tr("No variant"));
}

void qxNodeMenu::fillUsers(QMenu *menu, const qxVariantKind &kind, const QString &variant)
{
    menu->clear();
    menu->addAction(tr("Show in \"Variants\""),
                    [this, &kind, variant] { Q_EMIT variantWanted(kind, variant); });
    menu->addSeparator();
    const QStringList users = qxVariantEdits::usersOf({{&kind, variant}});
    addNote(menu, users.isEmpty() ? tr("No set uses it") : tr("Sets that use it:"));
    for (const QString &set : users.mid(0, mostUsers))
        menu->addAction(menuText(set), [this, set] { Q_EMIT setWanted(set); });
    if (users.size() > mostUsers)
        addNote(menu, tr("and %n more", nullptr, users.size() - mostUsers));
}

void qxNodeMenu::addToSet()
{
    const QString set = m_target();
    qxVariantEdits::States states;
    for (const qxVariantName &each : qxNodeControls::nearestOf(m_picked->nodes()))
        states.push_back({each.kind, each.name, QString()});
    if (states.empty())
        return Q_EMIT told(tr("No variant controls this."));
    const int count = qxVariantEdits::addToSet(*m_steps, set, states);
    Q_EMIT told(
        count == 0
            ? tr("\"%1\" has this state already.").arg(set)
            : tr("%n entries of \"%1\" are new or other than before", nullptr, count).arg(set));
}

void qxNodeMenu::copy(bool withPath)
{
    QStringList texts;
    for (const osg::NodePtr &node : m_picked->nodes())
        texts << (withPath ? qxText::fromUtf8(qxNames::pathOf(node)) : qxNames::nameOf(node));
    QApplication::clipboard()->setText(texts.join(QLatin1Char('\n')));
}
