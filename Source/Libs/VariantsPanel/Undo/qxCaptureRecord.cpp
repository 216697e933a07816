#include "qxCaptureRecord.h"

#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxPanelChanges.h"

namespace {

typedef std::optional<QString> Text;
typedef QMap<QString, QString> Texts;

Text textIn(const Texts &texts, const QString &key)
{
    const auto found = texts.constFind(key);
    return found == texts.constEnd() ? Text() : Text(*found);
}

void compare(const QString &set, bool isSnapshot, const Texts &before, const Texts &after,
             std::vector<qxCaptureRecord::Entry> &entries)
{
    if (before == after)
        return;
    Texts keys = before;
    for (auto each = after.begin(); each != after.end(); ++each)
        keys.insert(each.key(), QString());
    for (auto each = keys.begin(); each != keys.end(); ++each) {
        const Text one = textIn(before, each.key());
        const Text other = textIn(after, each.key());
        if (one != other)
            entries.push_back({set, isSnapshot, each.key(), one, other});
    }
}

void give(qxVariantSet &set, const qxCaptureRecord::Entry &entry, bool forward)
{
    const Text &from = forward ? entry.before : entry.after;
    const Text &to = forward ? entry.after : entry.before;
    if (entry.isSnapshot) {
        if (textIn(set.materialSnapshots, entry.key) != from)
            return;
        to ? void(set.materialSnapshots.insert(entry.key, *to))
           : void(set.materialSnapshots.remove(entry.key));
        return;
    }
    const qxVariantState *const state = set.findMaterialVariant(entry.key);
    if ((state ? Text(state->state) : Text()) != from)
        return;
    to ? set.addMaterialVariant(entry.key, *to) : set.removeMaterialVariant(entry.key);
}

class CaptureStep : public qxEditStep {
public:
    CaptureStep(const QString &text, std::unique_ptr<qxEditStep> ofSet, qxSceneUndo scene,
                qxVariantsChange variants, std::vector<qxCaptureRecord::Entry> entries)
        : qxEditStep(text, true), m_ofSet(std::move(ofSet)), m_scene(std::move(scene)),
          m_variants(std::move(variants)), m_entries(std::move(entries))
    {
    }

protected:
    bool perform(bool forward) override
    {
        if (m_ofSet)
            forward ? m_ofSet->redo() : m_ofSet->undo();
        if (m_ofSet && m_ofSet->isObsolete()) // It still needs what the capture made.
            return false;
        forward ? m_scene.redo() : m_scene.undo();
        for (const qxCaptureRecord::Entry &entry : m_entries) {
            if (qxVariantSet *set = qxVariants::findVariantSet(entry.set))
                give(*set, entry, forward);
        }
        // Now that no set holds what the capture wrote.
        forward ? m_variants.redo() : m_variants.undo();
        if (!m_entries.empty())
            Q_EMIT qxPanelChanges::the().setsEdited();
        return true;
    }

private:
    std::unique_ptr<qxEditStep> m_ofSet;
    qxSceneUndo m_scene;
    qxVariantsChange m_variants;
    std::vector<qxCaptureRecord::Entry> m_entries;
};

} // namespace

qxCaptureRecord::qxCaptureRecord()
{
    for (const qxVariantSet *set : qxVariants::_variantSets)
        m_sets.insert(set->name, contentsOf(*set));
}

std::unique_ptr<qxEditStep> qxCaptureRecord::finish(const QString &text, const QString &captured,
                                                    std::unique_ptr<qxEditStep> ofSet)
{
    m_scene.finish();
    m_variants.finish();
    std::vector<Entry> entries;
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        const auto before = m_sets.constFind(set->name);
        if (before == m_sets.constEnd() || set->name == captured)
            continue;
        const Contents after = contentsOf(*set);
        compare(set->name, true, before->snapshots, after.snapshots, entries);
        compare(set->name, false, before->materials, after.materials, entries);
    }
    return std::make_unique<CaptureStep>(text, std::move(ofSet), std::move(m_scene),
                                         std::move(m_variants), std::move(entries));
}

qxCaptureRecord::Contents qxCaptureRecord::contentsOf(const qxVariantSet &set)
{
    Contents contents;
    contents.snapshots = set.materialSnapshots;
    for (const qxVariantState &state : set.materialVariants)
        contents.materials.insert(state.variant, state.state);
    return contents;
}
