#include "Scene/qxPoseParts.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(PosePartsTest, GiveThePoseBackHoweverItIsTurnedScaledAndMirrored)
{
    const osg::Quaternion none;
    const osg::Quaternion turn(osg::Vec3f(1, 2, 3), 0.7f);
    const osg::Quaternion axes(osg::Vec3f(-2, 1, 0), 1.1f);
    const struct {
        const char *name;
        osg::Quaternion rotation;
        osg::Vec3f scale;
        osg::Quaternion axes;
    } rows[] = {
        {"even", turn, osg::Vec3f(2, 2, 2), none},
        {"uneven", none, osg::Vec3f(2, 3, 4), none},
        {"turned and uneven", turn, osg::Vec3f(2, 0.3f, 40), none},
        {"uneven along other axes", turn, osg::Vec3f(2, 3, 4), axes},
        {"mirrored", turn, osg::Vec3f(-2, 3, 4), axes},
        {"tiny in one direction", turn, osg::Vec3f(1, 1e-6f, 1), axes},
        {"flat", none, osg::Vec3f(2, 0, 3), none},
    };
    for (const auto &row : rows) {
        osg::Matrix pose, again;
        pose.setTransform(osg::Vec3f(5, 6, 7), row.rotation, row.scale, row.axes);
        const qxPoseParts parts(pose);
        EXPECT_TRUE(parts.isFinite());
        again.setTransform(parts.translation, parts.rotation, parts.scale, parts.scaleOrientation);
        for (osg::UInt32 i = 0; i < 16; ++i)
            EXPECT_NEAR(again.getValues()[i], pose.getValues()[i], 1e-4f) << row.name << i;
    }
    osg::Matrix huge;
    huge.setScale(3e38f, 3e38f, -3e38f);
    huge[0][1] = 3e38f;
    EXPECT_FALSE(qxPoseParts(huge).isFinite());
}
