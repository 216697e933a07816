#include "qxVariantActions.h"

#include "qxVariantKinds.h"
#include "qxVariants.h"
#include "qxVariantsModel.h"
#include "qxVariantsView.h"

#include "Registry/qxVariantSources.h"
#include "Undo/qxNameEdits.h"
#include "Undo/qxSetUndoSteps.h"
#include "qxMenuText.h"
#include "qxNameChooser.h"
#include "qxNames.h"
#include "qxPanelEvents.h"
#include "qxStateWords.h"

#include <OpenSG/OSGSwitchMaterial.h>

#include <QAction>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QUndoStack>

#include <algorithm>

namespace {

/// What of the scene bears the name of the option, as a word of qxRenameWords; null for nothing.
const char *thingOf(const qxVariantName &variant, const QString &option)
{
    const qxVariant *const found = variant.kind->find(variant.name);
    const auto made = found ? qxVariantSources::madeAnew(*variant.kind, *found) : nullptr;
    if (!made || !made->find(option))
        return nullptr;
    if (variant.kind == &qxVariantKinds::material)
        return "material";
    if (variant.kind == &qxVariantKinds::transform)
        return "transform-state";
    return variant.kind == &qxVariantKinds::overlay ? "overlay" : "node";
}

/// Materials of the scene that are no options of the variant.
QStringList otherMaterials(const qxVariantName &variant, const QStringList &missing)
{
    std::vector<osg::MaterialPtr> pool;
    qxScenegraph::getMaterialPool()->get(pool);
    qxVariant *const found = variant.kind->find(variant.name);
    QStringList names;
    for (const osg::MaterialPtr &material : pool) {
        const QString name = qxNames::nameOf(material);
        if (osg::SwitchMaterialPtr::dcast(material) == osg::NullFC && !name.isEmpty()
            && !(found && found->find(name)) && !missing.contains(name))
            names << name;
    }
    names.removeDuplicates();
    return names;
}

} // namespace

qxVariantActions::qxVariantActions(QUndoStack *steps, qxPanelEvents *events, qxVariantsModel *rows,
                                   qxVariantsView *view, QMenu *newMenu)
    : QObject(view), m_steps(*steps), m_events(events), m_rows(rows), m_view(view)
{
    m_actions << newMenu->menuAction();
    m_texts << QT_TR_NOOP("&New");
    build();
    connect(m_view, &qxVariantsView::selectionMoved, this, &qxVariantActions::follow);
    connect(m_view, &qxVariantsView::currentMoved, this, &qxVariantActions::follow);
    // The editor of the name must close first, and the drag end.
    connect(rows, &qxVariantsModel::renameWanted, this,
            [this](const qxVariantName &variant, const QString &option, const QString &name) {
                QTimer::singleShot(0, this, [=] { rename(variant, option, name); });
            });
    connect(rows, &qxVariantsModel::orderWanted, this,
            [this](const qxVariantName &variant, const QStringList &options) {
                QTimer::singleShot(
                    0, this, [=] { qxVariantEdits::orderOptions(m_steps, variant, options); });
            });
    follow();
}

// A list, not a procedure.
void qxVariantActions::build()
{
    typedef qxVariantActions Own;
    m_ofOption << add(QT_TR_NOOP("&Show This State"), QKeySequence(), &Own::selectWanted);
    m_rename = add(QT_TR_NOOP("&Rename"), QKeySequence(Qt::Key_F2), &Own::renameCurrent);
    m_ofVariant << add(QT_TR_NOOP("De&lete"), QKeySequence::Delete, &Own::remove);
    m_ofVariant << add(QT_TR_NOOP("Add &Options..."), QKeySequence(Qt::Key_Insert),
                       &Own::addOptions);
    m_ofOption << add(QT_TR_NOOP("Move &Up"), QKeySequence(Qt::ALT + Qt::Key_Up), &Own::moveUp);
    m_ofOption << add(QT_TR_NOOP("Move &Down"), QKeySequence(Qt::ALT + Qt::Key_Down),
                      &Own::moveDown);
    m_ofOption << add(QT_TR_NOOP("Make It the De&fault"), QKeySequence(), &Own::makeDefault);
    m_ofOption << add(QT_TR_NOOP("&Key..."), QKeySequence(), &Own::keyWanted);
    m_addToCurrent = add(QT_TR_NOOP("&Add to the Current Set"),
                         QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_A), &Own::addToCurrent);
    m_ofVariant << add(QT_TR_NOOP("Add to Se&t..."), QKeySequence(), &Own::addToChosen);
}

QAction *qxVariantActions::add(const char *text, const QKeySequence &key,
                               void (qxVariantActions::*run)())
{
    auto *const action = new QAction(this);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, run);
    m_view->addAction(action);
    m_actions << action;
    m_texts << text;
    return action;
}

void qxVariantActions::retranslate()
{
    for (int number = 0; number < m_actions.size(); ++number)
        m_actions[number]->setText(tr(m_texts[number]));
    nameAddToCurrent();
}

void qxVariantActions::setCurrentSet(const QString &set)
{
    m_set = set;
    nameAddToCurrent();
    follow();
}

void qxVariantActions::nameAddToCurrent()
{
    if (!m_set.isEmpty())
        m_addToCurrent->setText(tr("&Add to \"%1\"").arg(qxMenuText(m_set)));
}

void qxVariantActions::follow()
{
    const bool isOption = !m_view->currentOption().isEmpty();
    const bool isAny = isOption || !m_view->currentVariant().name.isEmpty();
    for (QAction *action : m_ofOption)
        action->setEnabled(isOption);
    for (QAction *action : m_ofVariant)
        action->setEnabled(isAny);
    m_rename->setEnabled(m_rows->flags(m_view->currentIndex()).testFlag(Qt::ItemIsEditable));
    m_addToCurrent->setEnabled(isAny && !m_set.isEmpty());
}

void qxVariantActions::renameCurrent()
{
    m_view->edit(m_view->currentIndex().siblingAtColumn(qxVariantsModel::NameColumn));
}

/// An option that the scene has is renamed together with what it names.
void qxVariantActions::rename(const qxVariantName &variant, const QString &option,
                              const QString &name)
{
    if (name.trimmed().isEmpty())
        return told(tr("A name has more than blanks."));
    const char *const thing = option.isEmpty() ? nullptr : thingOf(variant, option);
    const QString word = thing
        ? QString(QLatin1String(thing))
        : variant.kind->word + QLatin1String(option.isEmpty() ? "-variant" : "-option");
    qxRenameRequest request;
    qxRenameWords::take(word, request);
    request.before = option.isEmpty() ? variant.name : option;
    request.after = name;
    request.owner = option.isEmpty() || (thing && request.thing != qxRenameRequest::TransformState)
        ? QString()
        : variant.name;
    if (request.thing == qxRenameRequest::TransformState)
        request.owner = variant.kind->find(variant.name)->*variant.kind->sceneName;
    const auto outcome = qxNameEdits::rename(m_steps, word, request);
    Q_EMIT told(outcome.refusal);
    if (!outcome.refusal.isEmpty())
        return;
    m_events->flush();
    if (option.isEmpty())
        m_view->showVariants({{variant.kind, name}});
    else
        m_view->showOption(variant, name);
}

/// The cursor goes on to what stays beside it.
void qxVariantActions::remove()
{
    const qxVariantEdits::Variants variants = m_view->selectedVariants();
    QStringList beside;
    const QModelIndex current = m_view->currentIndex();
    for (const int step : {1, -1}) {
        for (int row = current.row() + step; row >= 0 && row < m_rows->rowCount(current.parent());
             row += step)
            beside << current.siblingAtRow(row).data(Qt::EditRole).toString();
    }
    const qxVariantName variant = m_view->currentVariant();
    if (variants.empty())
        removeOptions();
    else
        removeVariants(variants);
    m_events->flush();
    for (const QString &name : beside) {
        if (m_view->currentIndex().isValid())
            return;
        if (variants.empty())
            m_view->showOption(variant, name);
        else
            m_view->showVariants({{variant.kind, name}});
    }
}

/// Sets that refer to them are asked about: nothing is lost silently.
void qxVariantActions::removeVariants(const qxVariantEdits::Variants &variants)
{
    const int users = qxVariantEdits::usersOf(variants).size();
    if (users == 0)
        return qxVariantEdits::remove(m_steps, variants, false);
    QMessageBox question(QMessageBox::Question, tr("Delete Variants"),
                         tr("%n sets have entries of what you delete.", nullptr, users),
                         QMessageBox::Cancel, m_view->window());
    question.setTextFormat(Qt::PlainText);
    question.setInformativeText(
        tr("Entries that are kept do nothing until there is a variant of that name again."));
    const QPushButton *const together =
        question.addButton(tr("&Delete the Entries, Too"), QMessageBox::DestructiveRole);
    const QPushButton *const alone =
        question.addButton(tr("&Keep the Entries"), QMessageBox::AcceptRole);
    question.exec();
    if (question.clickedButton() != together && question.clickedButton() != alone)
        return;
    const bool withEntries = question.clickedButton() == together;
    qxVariantEdits::remove(m_steps, variants, withEntries);
    Q_EMIT told(withEntries ? tr("Entries of %n sets were deleted.", nullptr, users)
                            : tr("Entries of %n sets were kept.", nullptr, users));
}

void qxVariantActions::removeOptions()
{
    const QStringList options = m_view->selectedOptions();
    if (!options.isEmpty())
        qxVariantEdits::removeOptions(m_steps, m_view->currentVariant(), options);
}

void qxVariantActions::addOptions()
{
    const qxVariantName variant = m_view->currentVariant();
    const QStringList missing = qxVariantEdits::missingOptions(variant);
    const qxVariant *const found = variant.kind->find(variant.name);
    qxNameChooser chooser(tr("Options for \"%1\"").arg(variant.name), tr("Add"), false,
                          m_view->window());
    chooser.setNames(missing, [&](const QString &state) {
        return qxStateWords::shown(*variant.kind, found, state);
    });
    if (variant.kind == &qxVariantKinds::material)
        chooser.setMore(tr("Other materials of the scene, too"),
                        [&] { return otherMaterials(variant, missing); });
    chooser.allowOther(tr("&Another name"));
    if (chooser.exec() != QDialog::Accepted)
        return;
    QStringList options;
    std::vector<osg::MaterialPtr> materials;
    const QStringList names = chooser.chosen() << chooser.other();
    for (const QString &name : names) {
        const osg::MaterialPtr material = variant.kind == &qxVariantKinds::material
            ? qxNames::findMaterial(name)
            : osg::MaterialPtr(osg::NullFC);
        if (material != osg::NullFC)
            materials.push_back(material);
        else if (!name.isEmpty())
            options << name;
    }
    // Of materials with other names it may be both.
    const bool isBoth = !materials.empty() && !options.isEmpty();
    if (isBoth)
        m_steps.beginMacro(tr("Add options to \"%1\"").arg(variant.name));
    qxVariantEdits::addMaterials(m_steps, variant, materials);
    qxVariantEdits::addOptions(m_steps, variant, options);
    if (isBoth)
        m_steps.endMacro();
}

/// By one row each; those at the end stay.
void qxVariantActions::move(bool down)
{
    QStringList order = m_rows->optionsBeside(m_view->currentIndex());
    const QStringList moved = m_view->selectedOptions();
    if (down)
        std::reverse(order.begin(), order.end());
    for (int place = 1; place < order.size(); ++place) {
        if (moved.contains(order[place]) && !moved.contains(order[place - 1]))
            std::swap(order[place], order[place - 1]);
    }
    if (down)
        std::reverse(order.begin(), order.end());
    qxVariantEdits::orderOptions(m_steps, m_view->currentVariant(), order);
}

void qxVariantActions::makeDefault()
{
    const QString option = m_view->currentOption();
    const qxVariantName variant = m_view->currentVariant();
    qxVariantEdits::edit(m_steps, variant, tr("Default state of \"%1\"").arg(variant.name),
                         [&](qxVariant &edited) { edited.defaultState = option; });
}

void qxVariantActions::addToCurrent()
{
    addTo(m_set);
}

/// A name that no set has is that of a new one.
void qxVariantActions::addToChosen()
{
    QStringList sets;
    for (const qxVariantSet *set : qxVariants::_variantSets)
        sets << set->name;
    qxNameChooser chooser(tr("Add to Set"), tr("Add"), true, m_view->window());
    chooser.setNames(sets);
    chooser.allowOther(tr("&New set"));
    if (chooser.exec() != QDialog::Accepted)
        return;
    const QString made = chooser.other();
    if (made.isEmpty())
        return addTo(chooser.chosen().value(0));
    const QString name = qxVariants::getUniqueVariantSetName(made);
    m_steps.beginMacro(tr("Add to the new set \"%1\"").arg(name));
    m_steps.push(new qxSetsPresence(QString(), qxSetsPresence::Come,
                                    {{qxSetMemento::of(qxVariantSet(name)), qxSetPlace()}}));
    addTo(name);
    m_steps.endMacro();
}

void qxVariantActions::addTo(const QString &set)
{
    const qxVariantEdits::States states = m_view->selectedStates();
    const int count = qxVariantEdits::addToSet(m_steps, set, states);
    Q_EMIT told(count > 0 ? tr("\"%1\" has %n new states.", nullptr, count).arg(set)
                          : tr("\"%1\" has nothing new by that.").arg(set));
}
