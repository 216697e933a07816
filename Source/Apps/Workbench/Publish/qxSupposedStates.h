#pragma once

#include "qxForecast.h"

/// Asks the rules what states do, in the scene as it is or with another value of an aspect, and
/// which aspects the answer depends on.
class qxSupposedStates : public qxStateSurvey {
public:
    /// One effect at least; valid until the next question.
    const Effects &ask(const qxStateRule &rule, const qxSceneObject &object,
                       qxStateRequest &request);
    /// Whether the last answer depends on the present value of that aspect.
    bool dependsOn(qxAspect aspect) const { return m_asked[std::size_t(aspect)]; }

    /// The value of the aspect after the state when it was `before`; none when it stays.
    std::optional<osg::Int64> after(const qxStateRule &rule, const qxSceneObject &object,
                                    const QString &state, qxAspect aspect, osg::Int64 before);

    /// What is supposed, else what the scene has.
    osg::Int64 value(const qxSceneObject &object, qxAspect aspect) const override;

private:
    std::optional<osg::Int64> m_supposed; ///< of m_aspect
    qxAspect m_aspect = qxAspect::Visibility;
    mutable bool m_asked[4] = {};
};
