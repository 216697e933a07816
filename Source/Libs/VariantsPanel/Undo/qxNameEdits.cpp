#include "qxNameEdits.h"

#include "qxVariantGroup.h"
#include "qxVariantKinds.h"
#include "qxVariantUndoSteps.h"
#include "qxVariants.h"

#include "Registry/qxRegistryEdit.h"
#include "Repair/qxDocumentRepair.h"
#include "qxPanelChanges.h"
#include "qxRegistryDocument.h"
#include "qxSetUndoSteps.h"

#include <QCoreApplication>

#include <algorithm>
#include <memory>
#include <unordered_map>

namespace {
namespace nameEdits {

qxGroupEdit::Contents contentsOf(const qxVariantGroup &group)
{
    return {group.name, group.comment, group.visible};
}

bool differ(const qxGroupEdit::Contents &one, const qxGroupEdit::Contents &other)
{
    return one.name != other.name || one.comment != other.comment;
}

/// The contents of the registry, by its objects, which an edit of names keeps.
class Record {
public:
    Record()
    {
        for (const qxVariantGroup *group : qxVariants::_variantGroups)
            m_groups.emplace(group, contentsOf(*group));
        for (const qxVariantSet *set : qxVariants::_variantSets)
            m_sets.emplace(set, qxSetMemento::of(*set));
        for (const qxVariantKind *kind : qxVariantKinds::all()) {
            kind->visit([&](const qxVariant &variant) {
                m_variants.emplace(&variant, qxVariantMemento::of(*kind, variant));
            });
        }
    }

    /// Steps that are done already, for what has changed since.
    std::vector<std::unique_ptr<qxEditStep>> steps() const
    {
        std::vector<std::unique_ptr<qxEditStep>> steps;
        for (const qxVariantKind *kind : qxVariantKinds::all()) {
            kind->visit([&](const qxVariant &variant) {
                const auto before = m_variants.find(&variant);
                const auto after = qxVariantMemento::of(*kind, variant);
                if (before != m_variants.end() && before->second != after)
                    steps.push_back(
                        std::make_unique<qxVariantEdit>(QString(), before->second, after));
            });
        }
        for (const qxVariantSet *set : qxVariants::_variantSets) {
            const auto before = m_sets.find(set);
            const auto after = qxSetMemento::of(*set);
            if (before != m_sets.end() && qxSetMemento::differ(before->second, after))
                steps.push_back(
                    std::make_unique<qxSetEdit>(QString(), before->second, after, QString()));
        }
        for (const qxVariantGroup *group : qxVariants::_variantGroups) {
            const auto before = m_groups.find(group);
            if (before != m_groups.end() && differ(before->second, contentsOf(*group)))
                steps.push_back(
                    std::make_unique<qxGroupEdit>(QString(), before->second, contentsOf(*group)));
        }
        for (const auto &step : steps)
            step->markDone();
        return steps;
    }

private:
    std::unordered_map<const qxVariantGroup *, qxGroupEdit::Contents> m_groups;
    std::unordered_map<const qxVariantSet *, qxSetMemento> m_sets;
    std::unordered_map<const qxVariant *, qxVariantMemento> m_variants;
};

/// The names in the scene.
class SceneStep : public qxEditStep {
public:
    explicit SceneStep(std::shared_ptr<const qxSceneRename> rename)
        : qxEditStep(QString(), true), m_rename(std::move(rename))
    {
    }

protected:
    bool perform(bool forward) override
    {
        forward ? m_rename->apply() : m_rename->takeBack();
        Q_EMIT qxPanelChanges::the().sceneRestored();
        return true;
    }

private:
    std::shared_ptr<const qxSceneRename> m_rename;
};

void push(QUndoStack &steps, const QString &text, std::vector<std::unique_ptr<qxEditStep>> parts)
{
    if (parts.empty())
        return;
    steps.beginMacro(text);
    for (auto &part : parts)
        steps.push(part.release());
    steps.endMacro();
}

} // namespace nameEdits
} // namespace

qxRegistryRename::Outcome qxNameEdits::rename(QUndoStack &steps, const QString &word,
                                              const qxRenameRequest &request)
{
    const nameEdits::Record record;
    const qxRegistryRename::Outcome outcome = qxRegistryRename::apply(word, request, false);
    if (!outcome.refusal.isEmpty())
        return outcome;
    auto parts = record.steps();
    if (outcome.scene->count() > 0) {
        parts.push_back(std::make_unique<nameEdits::SceneStep>(outcome.scene));
        Q_EMIT qxPanelChanges::the().sceneRestored();
    }
    nameEdits::push(steps,
                    QCoreApplication::translate("qxNameEdits", "Rename \"%1\"").arg(request.before),
                    std::move(parts));
    return outcome;
}

std::vector<qxBreak> qxNameEdits::breaks()
{
    qxDocument document = qxRegistryDocument::current();
    document.settle();
    return qxDocumentRepair::find(document);
}

bool qxNameEdits::repair(QUndoStack &steps, const qxBreak &broken, const QString &name)
{
    qxBreak repaired = broken;
    repaired.candidates = {{name, 1, QString()}};
    qxDocument document = qxRegistryDocument::current();
    document.settle();
    qxDocumentRepair::apply(document, {repaired});
    const nameEdits::Record record;
    const bool hasChanged = qxRegistryEdit::apply(document);
    nameEdits::push(steps,
                    QCoreApplication::translate("qxNameEdits", "Repair \"%1\"").arg(broken.name),
                    record.steps());
    return hasChanged;
}
