#include "qxRegistryFill.h"

#include "qxVariantGroup.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"

#include <QHash>

#include <algorithm>

namespace {

/// Leaves the target alone when it has the value.
template <class Value>
bool assign(Value &target, const Value &value)
{
    if (target == value)
        return false;
    target = value;
    return true;
}

bool assign(qxUniqueNames &target, const std::vector<qxDocumentText> &wanted)
{
    const auto isSame = [](const QString &name, const qxDocumentText &each) {
        return name == each.text;
    };
    if (std::equal(target.begin(), target.end(), wanted.begin(), wanted.end(), isSame))
        return false;
    target.clear();
    for (const qxDocumentText &each : wanted)
        target.add(each.text);
    return true;
}

bool assign(QMap<QString, QString> &target, const std::vector<qxDocumentText> &wanted)
{
    QMap<QString, QString> map;
    for (const qxDocumentText &each : wanted)
        map.insert(each.text, each.more);
    return assign(target, map);
}

/// Entries that stay in their order stay where they are in memory.
bool assign(qxStateList &target, const std::vector<const qxDocumentReference *> &wanted)
{
    const auto isSame = [](const qxVariantState &state, const qxDocumentReference *each) {
        return state.variant == each->variant;
    };
    bool hasChanged = false;
    if (!std::equal(target.begin(), target.end(), wanted.begin(), wanted.end(), isSame)) {
        target.clear();
        for (const qxDocumentReference *each : wanted)
            target.add(each->variant, QString());
        hasChanged = true;
    }
    auto state = target.begin();
    for (const qxDocumentReference *each : wanted)
        hasChanged |= assign((state++)->state, each->state);
    return hasChanged;
}

bool assign(qxAnalyzerVariant &target, const qxAnalyzerVariant &wanted)
{
    const auto &fields = qxClippingField::all();
    const bool isSame = std::all_of(fields.begin(), fields.end(), [&](const qxClippingField &each) {
        return each.text(target) == each.text(wanted);
    });
    if (!isSame)
        target = wanted;
    return !isSame;
}

bool assignReferences(qxVariantSet &set, const std::vector<qxDocumentReference> &wanted)
{
    QHash<const qxVariantKind *, std::vector<const qxDocumentReference *>> byKind;
    for (const qxDocumentReference &each : wanted)
        byKind[each.kind].push_back(&each);
    bool hasChanged = false;
    for (const qxVariantKind *kind : qxVariantKinds::all())
        hasChanged |= assign(set.*kind->states, byKind.value(kind));
    return hasChanged;
}

bool assignHotkey(qxVariantSet &set, const QString &wanted)
{
    if (!assign(set.hotkey, wanted))
        return false;
    set.updateShortcut();
    return true;
}

// A list, not a procedure.
bool assignInclusions(qxVariantSet &set, const qxDocumentSet &wanted)
{
    bool hasChanged = assign(set.inclNodes, wanted.includes(qxInclusion::Nodes));
    hasChanged |= assign(set.inclMats, wanted.includes(qxInclusion::Materials));
    hasChanged |= assign(set.inclLights, wanted.includes(qxInclusion::Lights));
    hasChanged |= assign(set.inclEnv, wanted.includes(qxInclusion::Environment));
    hasChanged |= assign(set.inclView, wanted.includes(qxInclusion::View));
    return hasChanged;
}

bool assignNames(qxVariantSet &set, const qxDocumentSet &wanted)
{
    bool hasChanged = assign(set.viewpoints, wanted.of(qxNameList::Viewpoints));
    hasChanged |= assign(set.animations, wanted.of(qxNameList::Animations));
    hasChanged |= assign(set.geometries, wanted.of(qxNameList::Geometries));
    hasChanged |= assign(set.targetNodeNames, wanted.of(qxNameList::Targets));
    return hasChanged;
}

/// Whether the option that a variant has stands for that of a document. Documents do not tell
/// actions from states, the scene does.
bool isSameOption(const qxVariantOption &option, const qxDocumentOption &wanted)
{
    return option.name == wanted.name && option.shortcut == wanted.hotkey.text;
}

bool assignOptions(qxVariant &variant, const std::vector<qxDocumentOption> &wanted)
{
    std::vector<qxVariantOption> &options = variant.options;
    if (std::equal(options.begin(), options.end(), wanted.begin(), wanted.end(), isSameOption))
        return false;
    QHash<QString, bool> actions;
    for (const qxVariantOption &option : options)
        actions.insert(option.name, option.isAction);
    options.clear();
    for (const qxDocumentOption &each : wanted)
        options.push_back(
            qxVariantOption::make(actions.value(each.name), each.name, each.hotkey.text));
    return true;
}

} // namespace

bool qxRegistryFill::fill(qxVariantGroup &group, const qxDocumentGroup &wanted)
{
    bool hasChanged = assign(group.comment, wanted.comment);
    hasChanged |= assign(group.visible, wanted.isVisible);
    return hasChanged;
}

bool qxRegistryFill::fill(qxVariantSet &set, const qxDocumentSet &wanted)
{
    bool hasChanged = assign(set.comment, wanted.comment);
    hasChanged |= assign(set.defaultViewpoint, wanted.defaultViewpoint);
    hasChanged |= assignHotkey(set, wanted.hotkey.text);
    hasChanged |= assign(set.sequentialAnimation, wanted.isSequential);
    hasChanged |= assign(set.script, wanted.script.text);
    hasChanged |= assign(set.preview, QByteArray::fromBase64(wanted.preview));
    hasChanged |= assignReferences(set, wanted.references);
    hasChanged |= assignNames(set, wanted);
    hasChanged |= assignInclusions(set, wanted);
    hasChanged |= assign(set.materialSnapshots, wanted.snapshots);
    hasChanged |= assign(set.values, wanted.values);
    hasChanged |= assign(set.analyzer, wanted.clipping);
    return hasChanged;
}

bool qxRegistryFill::fill(qxVariant &variant, const qxDocumentVariant &wanted)
{
    bool hasChanged = assign(variant.*wanted.kind->sceneName, wanted.base);
    hasChanged |= assign(variant.defaultState, wanted.standard.text);
    hasChanged |= assignOptions(variant, wanted.options);
    return hasChanged;
}
