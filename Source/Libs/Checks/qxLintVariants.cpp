#include "qxLintVariants.h"

#include "qxVariant.h"

#include <algorithm>

namespace {

bool isFitting(const qxSceneObject &object)
{
    return !qxStateRules::flawOf(object).has_value();
}

} // namespace

qxLintVariant::qxLintVariant(const qxSyntaxTreeVariant &variant, const qxSceneLookup &scene)
    : m_element(variant), m_objects(qxStateRules::objectsOf(scene, variant.kind, variant.base)),
      m_hasFittingObject(std::any_of(m_objects.begin(), m_objects.end(), isFitting))
{
    for (const qxSyntaxTreeOption &option : variant.options)
        m_options.insert(option.name);
}

const qxLintVariant::Reach &qxLintVariant::reach(const QString &state)
{
    const auto known = m_reaches.constFind(state);
    if (known != m_reaches.constEnd())
        return *known;
    Reach reach;
    for (const qxSceneObject &object : m_objects) {
        const qxEffect effect = qxStateRules::effectOf(object, state);
        if (effect.operation == qxEffect::Nothing)
            continue;
        reach.isTaken = true;
        reach.changes.push_back({qxStateRules::keyOf(object, effect.aspect),
                                 effect.operation == qxEffect::Put, effect.value});
        if (effect.resetsChoice)
            reach.changes.push_back({qxStateRules::keyOf(object, qxAspect::Choice), true, 0});
    }
    // Of clones, which share their choice, the first one has it.
    const auto isBefore = [](const Change &one, const Change &other) {
        return one.key < other.key;
    };
    const auto isSame = [](const Change &one, const Change &other) { return one.key == other.key; };
    std::stable_sort(reach.changes.begin(), reach.changes.end(), isBefore);
    reach.changes.erase(std::unique(reach.changes.begin(), reach.changes.end(), isSame),
                        reach.changes.end());
    return *m_reaches.insert(state, reach);
}

void qxLintVariant::use(const QString &state)
{
    m_used.insert(state);
    m_isStepped = m_isStepped || state == variantNext || state == variantNextLoop
        || state == variantPrevious || state == variantPreviousLoop;
}

bool qxLintVariant::isUsed(const QString &state) const
{
    return m_isStepped || m_used.contains(state);
}

qxLintVariants::qxLintVariants(const qxSyntaxTree &tree, const qxSceneLookup &scene)
{
    m_all.reserve(tree.variants.size());
    for (const qxSyntaxTreeVariant &each : tree.variants) {
        m_all.push_back(std::make_unique<qxLintVariant>(each, scene));
        m_byName[each.kind].insert(each.name, m_all.back().get());
    }
}

qxLintVariant *qxLintVariants::find(const qxVariantKind *kind, const QString &name) const
{
    return m_byName.value(kind).value(name, nullptr);
}
