#include "qxPlaces.h"

#include "Scene/qxTransformStates.h"

#include <algorithm>

namespace {

osg::TransformPtr transformOf(const osg::NodePtr &node)
{
    return node == osg::NullFC ? osg::TransformPtr() : osg::TransformPtr::dcast(node->getCore());
}

/// Puts it where no file would.
void putAside(const osg::TransformPtr &transform)
{
    osg::Matrix aside;
    aside.setTranslate(12345.5f, -54321.25f, 777.125f);
    const auto components = osg::ComponentTransformPtr::dcast(transform);
    if (components != osg::NullFC)
        return qxTransformStates::setPose(components, aside);
    const osg::CPEditor edit(transform, osg::Transform::MatrixFieldMask);
    transform->setMatrix(aside);
}

/// Whether the value does nothing but be there.
bool isPlain(const qxSceneObject &object, qxAspect aspect)
{
    if (aspect == qxAspect::Choice)
        return transformOf(object.node) == osg::NullFC;
    return aspect != qxAspect::Pose;
}

const qxPlaces::Outcome plainOutcome;

} // namespace

qxPlaces::Trial qxPlaces::trialOf(const qxSceneObject &object, qxAspect aspect,
                                  qxSlots::Value value)
{
    return {qxForecast::keyOf(object, aspect), value};
}

const qxPlaces::Outcome &qxPlaces::outcome(const qxSceneObject &object, qxAspect aspect,
                                           qxSlots::Value value)
{
    if (isPlain(object, aspect))
        return plainOutcome;
    const Trial trial = trialOf(object, aspect, value);
    const auto known = m_outcomes.find(trial);
    return known != m_outcomes.end()
        ? known->second
        : m_outcomes.emplace(trial, tryOut(object, aspect, value)).first->second;
}

const qxPlaces::Outcome &qxPlaces::known(const qxSceneObject &object, qxAspect aspect,
                                         qxSlots::Value value) const
{
    return isPlain(object, aspect) ? plainOutcome : m_outcomes.at(trialOf(object, aspect, value));
}

qxPlaces::Outcome qxPlaces::tryOut(const qxSceneObject &object, qxAspect aspect,
                                   qxSlots::Value value)
{
    const osg::TransformPtr transform = transformOf(object.node);
    const bool isMovable = transform != osg::NullFC;
    const int slot = isMovable ? addSlot(transform) : -1;
    osg::Matrix aside;
    if (isMovable) {
        putAside(transform);
        aside = transform->getMatrix();
    }
    qxStateRules::setValue(object, aspect, value);
    Outcome outcome;
    outcome.isTaken = qxStateRules::valueOf(object, aspect) == value;
    if (isMovable && transform->getMatrix() != aside)
        outcome.place = placeOf(transform->getMatrix(), slot);
    return outcome;
}

int qxPlaces::slotOf(const osg::NodePtr &node) const
{
    const osg::TransformPtr transform = transformOf(node);
    return transform == osg::NullFC ? -1 : m_cores.value(transform.getFieldContainerId(), -1);
}

/// Called before the core is moved for the first time.
int qxPlaces::addSlot(const osg::TransformPtr &transform)
{
    const auto known = m_cores.constFind(transform.getFieldContainerId());
    if (known != m_cores.constEnd())
        return *known;
    const int slot = m_slots.add(0);
    m_cores.insert(transform.getFieldContainerId(), slot);
    placeOf(transform->getMatrix(), slot);
    return slot;
}

qxSlots::Value qxPlaces::placeOf(const osg::Matrix &matrix, int slot)
{
    Numbers numbers;
    std::copy_n(matrix.getValues(), numbers.size(), numbers.begin());
    Places &places = m_places[slot];
    return places.emplace(numbers, qxSlots::Value(places.size())).first->second;
}

std::vector<osg::Matrix> qxPlaces::matrices(int slot) const
{
    const Places places = m_places.value(slot);
    std::vector<osg::Matrix> matrices(places.size());
    for (const auto &[numbers, place] : places)
        std::copy_n(numbers.begin(), numbers.size(), matrices[std::size_t(place)].getValues());
    return matrices;
}
