#include "qxForecast.h"

#include <algorithm>

const qxStateSurvey::Effects &qxStateSurvey::ask(const qxStateRule &rule,
                                                 const qxSceneObject &object, const QString &state)
{
    m_effects.clear();
    qxStateRequest request(state);
    rule.decide(object, request, *this);
    return m_effects;
}

bool qxStateSurvey::isNamed(const qxStateRule &rule, const qxSceneObject &object,
                            const QString &state)
{
    m_effects.clear();
    qxStateRequest request(state);
    request.step.reset();
    rule.decide(object, request, *this);
    return std::any_of(m_effects.begin(), m_effects.end(),
                       [](const qxEffect &each) { return each.reason == qxReason::Named; });
}

int qxStateSurvey::placeOf(const qxSceneObject &object, qxAspect aspect, const std::string &name)
{
    const bool isNode = object.material == osg::NullFC;
    const quint64 id =
        isNode ? object.node.getFieldContainerId() : object.material.getFieldContainerId();
    const quint64 key = id << 2 | quint64(aspect);
    auto known = m_places.find(key);
    if (known == m_places.end()) {
        known = m_places.insert(key, Places());
        const int count = qxStateRules::countOf(object, aspect);
        for (int place = 0; place < count; ++place)
            known->emplace(qxStateRules::nameAt(object, aspect, place), place);
    }
    const auto found = known->find(name);
    return found == known->end() ? -1 : found->second;
}

void qxStateSurvey::take(const qxEffect &effect)
{
    m_effects.push_back(effect);
}

qxForecast::Key qxForecast::keyOf(const qxSceneObject &object, qxAspect aspect)
{
    osg::UInt32 id = 0;
    if (object.material != osg::NullFC)
        id = object.material.getFieldContainerId();
    else if (aspect == qxAspect::Visibility || aspect == qxAspect::Pose)
        id = object.node.getFieldContainerId();
    else
        id = object.node->getCore().getFieldContainerId();
    return Key(id) << 2 | Key(aspect);
}

qxForeseen qxForecast::foresee(const qxStateRule &rule, const qxSceneObject &object,
                               qxStateRequest &request)
{
    m_foreseen.reset();
    rule.decide(object, request, *this);
    return *m_foreseen;
}

void qxForecast::show(const osg::NodePtr &node)
{
    m_values.insert(keyOf(qxSceneObject(node), qxAspect::Visibility), 1);
}

osg::Int64 qxForecast::value(const qxSceneObject &object, qxAspect aspect) const
{
    const auto changed = m_values.constFind(keyOf(object, aspect));
    return changed != m_values.constEnd() ? *changed : qxEffectTarget::value(object, aspect);
}

void qxForecast::take(const qxEffect &effect)
{
    if (!m_foreseen || (effect.isTaken() && !m_foreseen->effect.isTaken()))
        m_foreseen = {effect, effect.isChange() ? value(effect.object, effect.aspect) : 0};
    if (effect.isChange())
        m_values.insert(keyOf(effect.object, effect.aspect), effect.value);
}
