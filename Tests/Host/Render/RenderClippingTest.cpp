#include "RenderFixture.h"
#include "Scene/qxClipping.h"

/// A red square, cut along the y axis: the right half is gone.
class RenderClippingTest : public RenderFixture {
protected:
    RenderClippingTest()
    {
        addSquare(red, osg::Vec3f(0, 0, 0), 1.6f);
        clipping.enabled = true;
        clipping.normal = osg::Vec3f(3, 0, 0);
        clipping.showPlane = clipping.showGrid = clipping.showContour = false;
    }

    qxClipping &clipping = qxClipping::the();
};

TEST_F(RenderClippingTest, TheHalfThatTheNormalPointsToIsGone)
{
    EXPECT_EQ(picture().halves(), "255 0 0, 0 0 0");
    clipping.invert = true;
    EXPECT_EQ(picture().halves(), "0 0 0, 255 0 0");
    clipping.position = osg::Pnt3f(0.6f, 0, 0);
    EXPECT_EQ(picture().halves(), "0 0 0, 0 0 0");
    clipping.normal = osg::Vec3f(0, 0, 0);
    EXPECT_EQ(picture().halves(), "255 0 0, 255 0 0");
    clipping.normal = osg::Vec3f(1, 0, 0);
    clipping.enabled = false;
    EXPECT_EQ(picture().halves(), "255 0 0, 255 0 0");
}

TEST_F(RenderClippingTest, WhatIsCutAwayThrowsNoShadow)
{
    addSquare(lit(1, 1, 1), osg::Vec3f(0, 0, -1), 2);
    addSquare(green, osg::Vec3f(0.9f, 0.9f, 20), 0.2f);
    addSun(3);
    clipping.enabled = false;
    const int inShadow = picture().brightness(0.9f, 0.9f);
    clipping.enabled = true;
    clipping.normal = osg::Vec3f(0, 0, 1);
    clipping.position = osg::Pnt3f(0, 0, 15);
    EXPECT_GT(picture().brightness(0.9f, 0.9f), inShadow);
}

TEST_F(RenderClippingTest, TheContourRunsWhereThePlaneCutsInItsWidth)
{
    clipping.showContour = true;
    clipping.contourColor = osg::Color3f(0, 1, 0);
    settings.width = settings.height = 100;
    for (const int width : {1, 4}) {
        clipping.contourWidth = width;
        const TestPicture seen = picture();
        int greens = 0;
        for (float x = -0.99f; x < 1; x += 0.02f)
            greens += seen.at(x, 0) != "255 0 0" && seen.at(x, 0) != "0 0 0";
        EXPECT_GE(greens, width);
        EXPECT_LE(greens, width + 1);
    }
    EXPECT_EQ(picture().at(0.01f, 0), "0 255 0");
    EXPECT_EQ(picture().at(0.01f, 0.95f), "0 0 0");
    addSquare(blue, osg::Vec3f(-0.2f, 0, 2), 0.5f);
    clipping.contourWidth = 6;
    EXPECT_EQ(picture().at(-0.03f, 0), "0 255 0") << "the nearer square's own contour";
    clipping.position = osg::Pnt3f(0.1f, 0, 0);
    addSquare(blue, osg::Vec3f(0, 0, 5), 0.15f);
    EXPECT_EQ(picture().at(0.06f, 0), "0 0 255") << "a surface in front hides the line";
}

TEST_F(RenderClippingTest, AHiddenSceneLeavesPlaneGridAndContour)
{
    clipping.showContour = true;
    clipping.contourWidth = 4;
    clipping.contourColor = osg::Color3f(1, 1, 1);
    clipping.hideScene = true;
    EXPECT_EQ(picture().at(-0.4f, 0), "0 0 0");
    EXPECT_EQ(picture().at(-0.01f, 0), "255 255 255");
    EXPECT_EQ(picture().content(), qxPicture::Shown) << "what is hidden on purpose is not missed";
    clipping.showContour = false;
    clipping.normal = osg::Vec3f(0, 0, 1);
    clipping.showPlane = true;
    clipping.planeColor = osg::Color3f(1, 1, 1);
    const int plane = picture().brightness(0.5f, 0.5f);
    EXPECT_GT(plane, 100);
    clipping.showPlane = false;
    clipping.showGrid = true;
    clipping.gridColor = osg::Color3f(1, 1, 1);
    EXPECT_GT(picture().brightness(0, 0), plane);
    EXPECT_EQ(picture().brightness(0.1f, 0.1f), 0);
}
