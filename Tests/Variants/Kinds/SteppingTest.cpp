#include "qxSwitchStepping.h"

#include <gtest/gtest.h>

#include <limits>

using namespace qxSwitchStepping;

/// A choice and what "next", "next in a loop", "previous" and "previous in a loop" make of it.
typedef std::array<long, 5> Row;

template <class Result, class Choice, class Count>
static void expectRows(Result (*step)(qxStep, Choice, Count), int count,
                       const std::vector<Row> &rows)
{
    for (const Row &row : rows) {
        for (std::size_t i = 0; i < 4; ++i)
            EXPECT_EQ(long(step(qxStep(i), Choice(row[0]), Count(count))), row[i + 1])
                << actions()[i].toStdString() << " from " << row[0] << " of " << count;
    }
}

const long lowest = std::numeric_limits<osg::Int32>::min();
const long highest = std::numeric_limits<osg::Int32>::max();

TEST(Stepping, OfASwitch)
{
    expectRows(stepSwitch, 3,
               {{lowest, 2, 0, 0, 2},
                {-2, 2, 0, 0, 2},
                {-1, 0, 0, 0, 2},
                {0, 1, 1, 0, 2},
                {1, 2, 2, 0, 0},
                {2, 2, 0, 1, 1},
                {3, 2, 0, 2, 2},
                {4, 2, 0, 2, 2},
                {highest, 2, 0, 2, 2}});
    expectRows(stepSwitch, 1, {{-2, 0, 0, 0, 0}, {-1, 0, 0, 0, 0}, {0, 0, 0, 0, 0}});
    expectRows(stepSwitch, 0, {{-3, 0, 0, -1, -1}, {-1, 0, 0, -1, -1}, {0, 0, 0, -1, -1}});
}

TEST(Stepping, OfATransformSwitchDoesNotLimitTheLoopBackwards)
{
    expectRows(stepTransformSwitch, 3,
               {{0, 1, 1, 0, 2},
                {1, 2, 2, 0, 0},
                {2, 2, 0, 1, 1},
                {3, 2, 0, 2, 2},
                {4, 2, 0, 2, 3},
                {0x80000000, 2, 0, 2, 2},
                {0xFFFFFFFF, 0, 0, 2, 2}});
    expectRows(stepTransformSwitch, 0,
               {{0, 0xFFFFFFFF, 0, 0xFFFFFFFF, 0xFFFFFFFF}, {5, 0xFFFFFFFF, 0, 0xFFFFFFFF, 4}});
}

TEST(Stepping, OfASwitchMaterialStaysInRange)
{
    expectRows(stepMaterial, 3,
               {{lowest, 0, 0, 0, 2},
                {-1, 0, 0, 0, 2},
                {0, 1, 1, 0, 2},
                {1, 2, 2, 0, 0},
                {2, 2, 0, 1, 1},
                {3, 2, 0, 2, 2},
                {highest, 2, 0, 2, 2}});
    expectRows(stepMaterial, 1, {{-1, 0, 0, 0, 0}, {0, 0, 0, 0, 0}, {1, 0, 0, 0, 0}});
}

TEST(Stepping, OfTransformStates)
{
    expectRows(
        stepTransformState, 3,
        {{-1, 0, 0, 0, 2}, {0, 1, 1, 0, 2}, {1, 2, 2, 0, 0}, {2, 2, 0, 1, 1}, {3, 2, 0, 2, 2}});
    expectRows(stepTransformState, 0, {{-1, -1, 0, 0, -1}, {0, -1, 0, 0, -1}});
}
