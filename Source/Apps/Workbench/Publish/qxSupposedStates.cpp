#include "qxSupposedStates.h"

#include <algorithm>

const qxStateSurvey::Effects &
qxSupposedStates::ask(const qxStateRule &rule, const qxSceneObject &object, qxStateRequest &request)
{
    m_effects.clear();
    std::fill(std::begin(m_asked), std::end(m_asked), false);
    rule.decide(object, request, *this);
    return m_effects;
}

std::optional<osg::Int64> qxSupposedStates::after(const qxStateRule &rule,
                                                  const qxSceneObject &object, const QString &state,
                                                  qxAspect aspect, osg::Int64 before)
{
    m_aspect = aspect;
    m_supposed = before;
    qxStateRequest request(state);
    std::optional<osg::Int64> after;
    for (const qxEffect &effect : ask(rule, object, request)) {
        if (effect.aspect == aspect && effect.isChange())
            after = effect.value;
    }
    m_supposed.reset();
    return after;
}

osg::Int64 qxSupposedStates::value(const qxSceneObject &object, qxAspect aspect) const
{
    m_asked[std::size_t(aspect)] = true;
    return m_supposed && aspect == m_aspect ? *m_supposed : qxStateSurvey::value(object, aspect);
}
