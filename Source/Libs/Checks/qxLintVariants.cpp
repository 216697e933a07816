#include "qxLintVariants.h"

#include "qxVariant.h"

#include <algorithm>

qxLintVariant::qxLintVariant(const qxOutlineVariant &variant, const qxSceneIndex &scene)
    : m_outline(variant), m_objects(scene.objects(variant.kind, variant.base))
{
    for (const qxOutlineOption &option : variant.options)
        m_options.insert(option.name);
}

bool qxLintVariant::hasFittingObject() const
{
    return std::any_of(m_objects.begin(), m_objects.end(), [](const qxSceneObject &each) {
        return !qxStateRules::flawOf(each).has_value();
    });
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
        reach.keys.push_back(qxStateRules::keyOf(object, effect.aspect));
    }
    std::sort(reach.keys.begin(), reach.keys.end());
    reach.keys.erase(std::unique(reach.keys.begin(), reach.keys.end()), reach.keys.end());
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

qxLintVariants::qxLintVariants(const qxOutline &outline, const qxSceneIndex &scene)
{
    m_all.reserve(outline.variants.size());
    for (const qxOutlineVariant &each : outline.variants) {
        m_all.push_back(std::make_unique<qxLintVariant>(each, scene));
        m_byName[std::size_t(each.kind)].insert(each.name, m_all.back().get());
    }
}

qxLintVariant *qxLintVariants::find(qxVariantKind kind, const QString &name) const
{
    return m_byName[std::size_t(kind)].value(name, nullptr);
}
