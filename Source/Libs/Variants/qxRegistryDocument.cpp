#include "qxRegistryDocument.h"

#include "qxVariantGroup.h"
#include "qxVariantLists.h"
#include "qxVariantSet.h"

namespace {

template <class Names>
std::vector<qxDocumentText> textsOf(const Names &names)
{
    std::vector<qxDocumentText> texts;
    texts.reserve(std::size_t(names.size()));
    for (const QString &name : names)
        texts.push_back({name, QString(), {}});
    return texts;
}

std::vector<qxDocumentText> textsOf(const QMap<QString, QString> &map)
{
    std::vector<qxDocumentText> texts;
    for (auto each = map.begin(); each != map.end(); ++each)
        texts.push_back({each.key(), each.value(), {}});
    return texts;
}

} // namespace

qxDocumentGroup qxRegistryDocument::of(const qxVariantGroup &group)
{
    qxDocumentGroup data;
    data.name = group.name;
    data.comment = group.comment;
    data.isVisible = group.visible;
    return data;
}

qxDocumentSet qxRegistryDocument::of(const qxVariantSet &set)
{
    qxDocumentSet data = headOf(set);
    data.references = referencesOf(set);
    data.preview = set.preview.toBase64();
    return data;
}

qxDocumentSet qxRegistryDocument::headOf(const qxVariantSet &set)
{
    qxDocumentSet data;
    data.name = set.name;
    data.comment = set.comment;
    data.defaultViewpoint = set.defaultViewpoint;
    data.hotkey.text = set.hotkey;
    data.hasHotkey = true;
    data.isSequential = set.sequentialAnimation;
    data.script.text = set.script;
    data.of(qxNameList::Viewpoints) = textsOf(set.viewpoints);
    data.of(qxNameList::Animations) = textsOf(set.animations);
    data.of(qxNameList::Geometries) = textsOf(set.geometries);
    data.of(qxNameList::Targets) = textsOf(set.targetNodeNames);
    data.inclusions = {set.inclNodes, set.inclMats, set.inclLights, set.inclEnv, set.inclView};
    data.snapshots = textsOf(set.materialSnapshots);
    data.values = textsOf(set.values);
    data.clipping = set.analyzer;
    return data;
}

std::vector<qxDocumentReference> qxRegistryDocument::referencesOf(const qxVariantSet &set)
{
    std::vector<qxDocumentReference> references;
    for (const qxVariantKind *kind : qxVariantKinds::referenceOrder().all()) {
        references.reserve(references.size() + (set.*kind->states).size());
        for (const qxVariantState &each : set.*kind->states)
            references.push_back({kind, each.variant, each.state, {}});
    }
    return references;
}

bool qxRegistryDocument::hasStill(const qxVariantSet &set,
                                  const std::vector<qxDocumentReference> &references)
{
    auto held = references.begin();
    for (const qxVariantKind *kind : qxVariantKinds::referenceOrder().all()) {
        for (const qxVariantState &each : set.*kind->states) {
            if (held == references.end() || held->kind != kind || held->variant != each.variant
                || held->state != each.state)
                return false;
            ++held;
        }
    }
    return held == references.end();
}

qxDocumentVariant qxRegistryDocument::of(const qxVariantKind &kind, const qxVariant &variant)
{
    qxDocumentVariant data;
    data.kind = &kind;
    data.name = variant.name;
    data.base = variant.*kind.sceneName;
    data.standard.text = variant.defaultState;
    data.hasStandard = true;
    for (const qxVariantOption &option : variant.options)
        data.options.push_back({option.name, {option.shortcut, QString(), {}}, {}});
    return data;
}

qxDocument qxRegistryDocument::current()
{
    qxDocument document;
    const auto add = [&document](const qxVariantSet &set, int group) {
        document.sets.push_back(of(set));
        document.sets.back().group = group;
    };
    for (const qxVariantGroup *group : qxVariantLists::_variantGroups) {
        const int index = int(document.groups.size());
        document.groups.push_back(of(*group));
        document.groups.back().sets = int(group->sets.size());
        for (const qxVariantSet *set : group->sets)
            add(*set, index);
    }
    for (const qxVariantSet *set : qxVariantLists::_variantSets) {
        if (!set->group)
            add(*set, -1);
    }
    qxVariantKinds::visit([&document](const qxVariantKind &kind, const qxVariant &variant) {
        document.variants.push_back(of(kind, variant));
    });
    return document;
}
