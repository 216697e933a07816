#include "qxLintReach.h"

#include "qxVariantKinds.h"

#include <algorithm>

qxLintVariant::qxLintVariant(const qxDocumentVariant &variant, qxStateSurvey &survey)
    : m_element(variant), m_survey(survey), m_objects(variant.kind->rule.objects(variant.base))
{
    // What is of the wrong sort says so to any state.
    for (const qxSceneObject &each : m_objects)
        m_hasFittingObject = m_hasFittingObject
            || !survey.ask(variant.kind->rule, each, QString()).front().isMisfit();
    for (const qxDocumentOption &option : variant.options)
        m_options.insert(option.name);
}

const qxLintVariant::Reach &qxLintVariant::reach(const QString &state)
{
    const auto known = m_reaches.constFind(state);
    if (known != m_reaches.constEnd())
        return *known;
    Reach reach;
    for (const qxSceneObject &object : m_objects) {
        const qxStateSurvey::Effects &effects = m_survey.ask(m_element.kind->rule, object, state);
        if (std::none_of(effects.begin(), effects.end(),
                         [](const qxEffect &each) { return each.isTaken(); }))
            continue;
        reach.isTaken = true;
        for (const qxEffect &each : effects) {
            const bool isPut = each.reason != qxReason::Toggled && each.reason != qxReason::Stepped;
            if (each.isChange())
                reach.changes.push_back(
                    {qxForecast::keyOf(object, each.aspect), isPut, each.value});
        }
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
    m_isStepped = m_isStepped || qxSwitchStepping::stepOf(state);
}

bool qxLintVariant::isUsed(const QString &state) const
{
    return m_isStepped || m_used.contains(state);
}

qxLintVariants::qxLintVariants(const qxDocument &tree)
{
    m_all.reserve(tree.variants.size());
    for (const qxDocumentVariant &each : tree.variants) {
        m_all.push_back(std::make_unique<qxLintVariant>(each, m_survey));
        m_byName[each.kind].insert(each.name, m_all.back().get());
    }
}

qxLintVariant *qxLintVariants::find(const qxVariantKind *kind, const QString &name) const
{
    return m_byName.value(kind).value(name, nullptr);
}
