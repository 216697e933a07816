#include "qxSwitchStepping.h"

#include "qxVariant.h"

#include <algorithm>

// Children are counted in 64 bits: there -1 and -2 have neighbours on both sides, and a number
// below zero taken as unsigned lies beyond every count.

const std::array<QString, 4> &qxSwitchStepping::actions()
{
    static const std::array<QString, 4> names{variantNext, variantNextLoop, variantPrevious,
                                              variantPreviousLoop};
    return names;
}

std::optional<qxStep> qxSwitchStepping::stepOf(const QString &state)
{
    if (!state.startsWith(QLatin1Char('!')))
        return std::nullopt;
    const auto &names = actions();
    const auto found = std::find(names.begin(), names.end(), state);
    if (found == names.end())
        return std::nullopt;
    return qxStep(found - names.begin());
}

osg::Int32 qxSwitchStepping::shownChild(osg::Int32 choice, osg::UInt32 count)
{
    return osg::UInt64(osg::Int64(choice)) < count ? choice : -1;
}

osg::Int32 qxSwitchStepping::stepSwitch(qxStep step, osg::Int32 choice, osg::UInt32 count)
{
    const auto beyond = [count](osg::Int64 index) { return osg::UInt64(index) >= count; };
    const osg::Int64 last = osg::Int64(count) - 1;
    osg::Int64 index = choice;
    switch (step) {
    case qxStep::Next:
        index = beyond(index + 1) ? last : index + 1;
        return osg::Int32(std::max<osg::Int64>(index, 0));
    case qxStep::NextLoop:
        return osg::Int32(beyond(index + 1) ? 0 : index + 1);
    case qxStep::Previous:
        index = std::max<osg::Int64>(index - 1, 0);
        return osg::Int32(beyond(index) ? last : index);
    case qxStep::PreviousLoop:
        index = (index < 1 ? osg::Int64(count) : index) - 1;
        return osg::Int32(beyond(index) ? last : index);
    }
    return choice;
}

osg::UInt32 qxSwitchStepping::stepTransformSwitch(qxStep step, osg::UInt32 choice,
                                                  osg::UInt32 count)
{
    const osg::UInt32 last = count - 1;
    const osg::UInt32 next = choice + 1;
    const osg::UInt32 previous = choice == 0 ? 0 : choice - 1;
    switch (step) {
    case qxStep::Next:
        return next >= count ? last : next;
    case qxStep::NextLoop:
        return next >= count ? 0 : next;
    case qxStep::Previous:
        return previous >= count ? last : previous;
    case qxStep::PreviousLoop:
        return osg::Int32(choice) < 1 ? last : previous;
    }
    return choice;
}

osg::UInt32 qxSwitchStepping::stepMaterial(qxStep step, osg::Int32 choice, osg::UInt32 count)
{
    const osg::Int64 last = osg::Int64(count) - 1;
    osg::Int64 index = choice;
    switch (step) {
    case qxStep::Next:
        index = std::min(index + 1, last);
        break;
    case qxStep::NextLoop:
        index = index + 1 > last ? 0 : index + 1;
        break;
    case qxStep::Previous:
        index = std::min(index - 1, last);
        break;
    case qxStep::PreviousLoop:
        index = index < 1 || index > last ? last : index - 1;
        break;
    }
    return osg::UInt32(std::max<osg::Int64>(index, 0));
}

int qxSwitchStepping::stepTransformState(qxStep step, int current, int count)
{
    const bool hasNext = current < count - 1;
    switch (step) {
    case qxStep::Next:
        return hasNext ? current + 1 : count - 1;
    case qxStep::NextLoop:
        return hasNext ? current + 1 : 0;
    case qxStep::Previous:
        return current > 0 ? current - 1 : 0;
    case qxStep::PreviousLoop:
        return (current > 0 ? current : count) - 1;
    }
    return current;
}
