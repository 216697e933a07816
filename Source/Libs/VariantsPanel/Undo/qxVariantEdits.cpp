#include "qxVariantEdits.h"

#include "qxMaterialVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantTexts.h"
#include "qxVariantUndoSteps.h"
#include "qxVariants.h"

#include "Registry/qxVariantSources.h"
#include "qxNameLookUp.h"
#include "qxPanelChanges.h"
#include "qxSceneStep.h"
#include "qxSetUndoSteps.h"
#include "qxStateWords.h"

#include <QHash>
#include <QSet>
#include <QUndoStack>

#include <algorithm>

namespace {

namespace variantEdits {

qxVariant *find(const qxVariantName &variant)
{
    return variant.kind->find(variant.name);
}

bool refersTo(const qxVariantSet &set, const qxVariantEdits::Variants &variants)
{
    return std::any_of(variants.begin(), variants.end(), [&set](const qxVariantName &variant) {
        return (set.*variant.kind->states).find(variant.name);
    });
}

/// Edits a set in a step, which is null when nothing changes.
template <class Change>
std::unique_ptr<qxEditStep> stepOf(const QString &text, qxVariantSet &set, const Change &change)
{
    const qxSetMemento before = qxSetMemento::of(set);
    change(set);
    const qxSetMemento after = qxSetMemento::of(set);
    before.applyTo(set); // The step makes the change, so that it is announced once.
    if (!qxSetMemento::differ(before, after))
        return nullptr;
    return std::make_unique<qxSetEdit>(text, before, after, QString());
}

QString addText(const QStringList &names, const qxVariantName &variant)
{
    return names.size() == 1
        ? qxVariantTexts::tr("Add \"%1\" to \"%2\"").arg(names.first(), variant.name)
        : qxVariantTexts::tr("Add %n options to \"%1\"", nullptr, names.size()).arg(variant.name);
}

/// Edits a material variant with its switch material.
void editMaterials(QUndoStack &steps, const qxVariantName &variant, const QString &text,
                   const std::function<void(qxMaterialVariant &)> &change)
{
    auto *const found = static_cast<qxMaterialVariant *>(find(variant));
    if (!found)
        return;
    const auto before = qxVariantMemento::of(*variant.kind, *found);
    auto scene = std::make_unique<qxSceneStep>();
    change(*found);
    const auto after = qxVariantMemento::of(*variant.kind, *found);
    if (before == after)
        return;
    auto ofVariant = std::make_unique<qxVariantEdit>(QString(), before, after);
    ofVariant->markDone();
    scene->finish();
    steps.beginMacro(text);
    steps.push(scene.release());
    steps.push(ofVariant.release());
    steps.endMacro();
    Q_EMIT qxPanelChanges::the().variantsEdited();
}

} // namespace variantEdits
} // namespace

void qxVariantEdits::remove(QUndoStack &steps, const Variants &variants, bool withEntries)
{
    auto parts = qxVariantsPresence::partsOf(variants);
    if (parts.empty())
        return;
    const QString text = parts.size() == 1
        ? qxVariantTexts::tr("Delete \"%1\"").arg(parts.front().contents.name)
        : qxVariantTexts::tr("Delete %n variants", nullptr, int(parts.size()));
    if (!withEntries)
        return steps.push(new qxVariantsPresence(text, qxVariantsPresence::Go, std::move(parts)));
    steps.beginMacro(text);
    for (const QString &name : usersOf(variants)) {
        const auto leave = [&variants](qxVariantSet &set) {
            const qxUnchangedNames unchanged;
            for (const qxVariantName &variant : variants)
                (set.*variant.kind->states).remove(variant.name);
        };
        qxVariantSet *const set = qxVariants::findVariantSet(name);
        if (set) // There may be thousands: each is copied as little as possible.
            steps.push(new qxSetEdit(*set, leave));
    }
    Q_EMIT qxPanelChanges::the().setsEdited();
    steps.push(new qxVariantsPresence(QString(), qxVariantsPresence::Go, std::move(parts)));
    steps.endMacro();
}

QStringList qxVariantEdits::usersOf(const Variants &variants)
{
    const qxUnchangedNames unchanged;
    QStringList users;
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        if (variantEdits::refersTo(*set, variants))
            users << set->name;
    }
    return users;
}

void qxVariantEdits::edit(QUndoStack &steps, const qxVariantName &variant, const QString &what,
                          const std::function<void(qxVariant &)> &change)
{
    qxVariant *const found = variantEdits::find(variant);
    if (!found)
        return;
    const auto before = qxVariantMemento::of(*variant.kind, *found);
    change(*found);
    const auto after = qxVariantMemento::of(*variant.kind, *found);
    before.applyTo(*found); // The step makes the change, so that it is announced once.
    if (before != after)
        steps.push(new qxVariantEdit(what, before, after));
}

QStringList qxVariantEdits::missingOptions(const qxVariantName &variant)
{
    const qxVariant *const found = variantEdits::find(variant);
    const auto made = found ? qxVariantSources::madeAnew(*variant.kind, *found) : nullptr;
    QStringList missing;
    if (!made)
        return missing;
    QSet<QString> known;
    for (const qxVariantOption &option : found->options)
        known.insert(option.name);
    for (const qxVariantOption &option : made->options) {
        if (!option.name.isEmpty() && !known.contains(option.name))
            missing << option.name;
    }
    std::stable_partition(missing.begin(), missing.end(), [&](const QString &name) {
        return !qxStateWords::isAction(*variant.kind, name);
    });
    return missing;
}

void qxVariantEdits::addOptions(QUndoStack &steps, const qxVariantName &variant,
                                const QStringList &names)
{
    edit(steps, variant, variantEdits::addText(names, variant), [&](qxVariant &edited) {
        for (const QString &name : names) {
            if (!name.isEmpty())
                edited.add(qxStateWords::isAction(*variant.kind, name), name, QString());
        }
    });
}

void qxVariantEdits::removeOptions(QUndoStack &steps, const qxVariantName &variant,
                                   const QStringList &names)
{
    const QString text = names.size() == 1
        ? qxVariantTexts::tr("Remove \"%1\" from \"%2\"").arg(names.first(), variant.name)
        : qxVariantTexts::tr("Remove %n options from \"%1\"", nullptr, names.size())
              .arg(variant.name);
    if (variant.kind == &qxVariantKinds::material) {
        return variantEdits::editMaterials(steps, variant, text, [&](qxMaterialVariant &edited) {
            for (const QString &name : names)
                edited.remove(name);
        });
    }
    edit(steps, variant, text, [&](qxVariant &edited) {
        for (const QString &name : names)
            edited.remove(name);
    });
}

void qxVariantEdits::addMaterials(QUndoStack &steps, const qxVariantName &variant,
                                  const std::vector<osg::MaterialPtr> &materials)
{
    if (variant.kind != &qxVariantKinds::material)
        return;
    QStringList names;
    for (const osg::MaterialPtr &material : materials)
        names << qxVariantSources::nameOf(qxSceneObject(material));
    variantEdits::editMaterials(steps, variant, variantEdits::addText(names, variant),
                                [&](qxMaterialVariant &edited) {
                                    for (const osg::MaterialPtr &material : materials)
                                        edited.add(material, QString());
                                });
}

void qxVariantEdits::orderOptions(QUndoStack &steps, const qxVariantName &variant,
                                  const QStringList &names)
{
    const QString text = qxVariantTexts::tr("Order the options of \"%1\"").arg(variant.name);
    edit(steps, variant, text, [&](qxVariant &edited) {
        QHash<QString, qxVariantOption> known;
        for (const qxVariantOption &option : edited.options)
            known.insert(option.name, option);
        auto next = names.begin();
        for (qxVariantOption &option : edited.options) {
            if (names.contains(option.name) && next != names.end())
                option = known.value(*next++, option);
        }
    });
}

QString qxVariantEdits::presentState(const qxVariantKind &kind, const QString &variant)
{
    const qxVariant *const found = kind.find(variant);
    return found ? found->shown().visibleState() : QString();
}

int qxVariantEdits::addToSet(QUndoStack &steps, const QString &set, const States &states)
{
    qxVariantSet *const found = qxVariants::findVariantSet(set);
    if (!found)
        return 0;
    QStringList added;
    const auto add = [&](qxVariantSet &edited) {
        const qxUnchangedNames unchanged;
        for (const qxDraggedState &each : states) {
            const QString state =
                each.state.isEmpty() ? presentState(*each.kind, each.variant) : each.state;
            qxStateList &entries = edited.*each.kind->states;
            const qxVariantState *const entry = entries.find(each.variant);
            if (state.isEmpty() || (entry && entry->state == state))
                continue;
            entries.add(each.variant, state);
            added << each.variant;
        }
    };
    auto step = variantEdits::stepOf(QString(), *found, add);
    if (!step)
        return 0;
    step->setText(
        added.size() == 1
            ? qxVariantTexts::tr("Add \"%1\" to \"%2\"").arg(added.first(), set)
            : qxVariantTexts::tr("Add %n variants to \"%1\"", nullptr, added.size()).arg(set));
    steps.push(step.release());
    return added.size();
}
