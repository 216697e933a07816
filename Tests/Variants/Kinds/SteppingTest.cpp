#include "Internal/qxSwitchStepping.h"

#include <gtest/gtest.h>

#include <limits>

using namespace qxSwitchStepping;

namespace {

/// What the four steps make of a choice.
struct Row {
    long choice;
    long next, nextLoop, previous, previousLoop;
};

template <class Step>
void expectRows(const std::vector<Row> &rows, unsigned int count, Step step)
{
    for (const Row &row : rows) {
        SCOPED_TRACE("choice " + std::to_string(row.choice) + " of " + std::to_string(count));
        EXPECT_EQ(step(qxStep::Next, row.choice, count), row.next);
        EXPECT_EQ(step(qxStep::NextLoop, row.choice, count), row.nextLoop);
        EXPECT_EQ(step(qxStep::Previous, row.choice, count), row.previous);
        EXPECT_EQ(step(qxStep::PreviousLoop, row.choice, count), row.previousLoop);
    }
}

long ofSwitch(qxStep step, long choice, unsigned int count)
{
    return stepSwitch(step, osg::Int32(choice), count);
}

long ofTransformSwitch(qxStep step, long choice, unsigned int count)
{
    return stepTransformSwitch(step, osg::UInt32(choice), count);
}

long ofMaterial(qxStep step, long choice, unsigned int count)
{
    return stepMaterial(step, osg::Int32(choice), count);
}

long ofTransformState(qxStep step, long current, unsigned int count)
{
    return stepTransformState(step, int(current), int(count));
}

const long lowest = std::numeric_limits<osg::Int32>::min();
const long highest = std::numeric_limits<osg::Int32>::max();

} // namespace

TEST(Stepping, OfASwitch)
{
    expectRows({{lowest, 2, 0, 0, 2},
                {-3, 2, 0, 0, 2},
                {-2, 2, 0, 0, 2},
                {-1, 0, 0, 0, 2},
                {0, 1, 1, 0, 2},
                {1, 2, 2, 0, 0},
                {2, 2, 0, 1, 1},
                {3, 2, 0, 2, 2},
                {4, 2, 0, 2, 2},
                {highest, 2, 0, 2, 2}},
               3, ofSwitch);
    expectRows({{-2, 0, 0, 0, 0}, {-1, 0, 0, 0, 0}, {0, 0, 0, 0, 0}, {1, 0, 0, 0, 0}}, 1, ofSwitch);
    expectRows({{-3, 0, 0, -1, -1}, {-1, 0, 0, -1, -1}, {0, 0, 0, -1, -1}, {2, 0, 0, -1, -1}}, 0,
               ofSwitch);
}

TEST(Stepping, OfATransformSwitchDoesNotLimitTheLoopBackwards)
{
    expectRows({{0, 1, 1, 0, 2},
                {1, 2, 2, 0, 0},
                {2, 2, 0, 1, 1},
                {3, 2, 0, 2, 2},
                {4, 2, 0, 2, 3},
                {0x80000000, 2, 0, 2, 2},
                {0xFFFFFFFF, 0, 0, 2, 2}},
               3, ofTransformSwitch);
    expectRows({{0, 0xFFFFFFFF, 0, 0xFFFFFFFF, 0xFFFFFFFF}, {5, 0xFFFFFFFF, 0, 0xFFFFFFFF, 4}}, 0,
               ofTransformSwitch);
}

TEST(Stepping, OfASwitchMaterialStaysInRange)
{
    expectRows({{lowest, 0, 0, 0, 2},
                {-2, 0, 0, 0, 2},
                {-1, 0, 0, 0, 2},
                {0, 1, 1, 0, 2},
                {1, 2, 2, 0, 0},
                {2, 2, 0, 1, 1},
                {3, 2, 0, 2, 2},
                {4, 2, 0, 2, 2},
                {highest, 2, 0, 2, 2}},
               3, ofMaterial);
    expectRows({{-1, 0, 0, 0, 0}, {0, 0, 0, 0, 0}, {1, 0, 0, 0, 0}}, 1, ofMaterial);
}

TEST(Stepping, OfTransformStates)
{
    expectRows(
        {{-1, 0, 0, 0, 2}, {0, 1, 1, 0, 2}, {1, 2, 2, 0, 0}, {2, 2, 0, 1, 1}, {3, 2, 0, 2, 2}}, 3,
        ofTransformState);
    expectRows({{-1, -1, 0, 0, -1}, {0, -1, 0, 0, -1}}, 0, ofTransformState);
}

TEST(Stepping, IsAskedForByExactNames)
{
    EXPECT_EQ(stepOf("!Next"), qxStep::Next);
    EXPECT_EQ(stepOf("!Next (Loop)"), qxStep::NextLoop);
    EXPECT_EQ(stepOf("!Previous"), qxStep::Previous);
    EXPECT_EQ(stepOf("!Previous (Loop)"), qxStep::PreviousLoop);
    for (const char *text : {"", "!", "Next", "!next", "!Next ", "!All", "!Toggle"})
        EXPECT_EQ(stepOf(text), std::nullopt) << text;
}
