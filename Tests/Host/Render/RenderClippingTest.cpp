#include "RenderFixture.h"
#include "Scene/qxClipping.h"

/// A red square, cut along the y axis: the right half is gone.
class RenderClippingTest : public RenderFixture {
protected:
    RenderClippingTest()
    {
        addSquare(flat(1, 0, 0), osg::Vec3f(0, 0, 0), 1.6f);
        clipping.enabled = true;
        clipping.normal = osg::Vec3f(3, 0, 0);
        clipping.showPlane = clipping.showGrid = clipping.showContour = false;
    }

    qxClipping &clipping = qxClipping::the();
};

TEST_F(RenderClippingTest, TheHalfThatTheNormalPointsToIsGone)
{
    EXPECT_EQ(picture().at(-0.4f, 0), "255 0 0");
    EXPECT_EQ(picture().at(0.4f, 0), "0 0 0");
    clipping.invert = true;
    EXPECT_EQ(picture().at(-0.4f, 0), "0 0 0");
    EXPECT_EQ(picture().at(0.4f, 0), "255 0 0");
    clipping.position = osg::Pnt3f(0.6f, 0, 0);
    EXPECT_EQ(picture().at(0.4f, 0), "0 0 0");
    clipping.normal = osg::Vec3f(0, 0, 0);
    EXPECT_EQ(picture().at(0.4f, 0), "255 0 0");
    clipping.normal = osg::Vec3f(1, 0, 0);
    clipping.enabled = false;
    EXPECT_EQ(picture().at(0.4f, 0), "255 0 0");
}

TEST_F(RenderClippingTest, WhatIsCutAwayThrowsNoShadow)
{
    addSquare(lit(1, 1, 1, qxSurface()), osg::Vec3f(0, 0, -1), 2);
    addSun(3);
    clipping.enabled = false;
    const int inShadow = picture().brightness(0.9f, 0.9f) - 1;
    addSquare(flat(0, 1, 0), osg::Vec3f(0.9f, 0.9f, 20), 0.2f);
    const int darker = picture().brightness(0.9f, 0.9f);
    EXPECT_LT(darker, inShadow);
    clipping.enabled = true;
    clipping.normal = osg::Vec3f(0, 0, 1);
    clipping.position = osg::Pnt3f(0, 0, 15);
    EXPECT_GT(picture().brightness(0.9f, 0.9f), darker);
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
        for (int x = 0; x < 100; ++x)
            greens += seen.at(float(x) / 50.0f - 0.99f, 0) != "255 0 0"
                && seen.at(float(x) / 50.0f - 0.99f, 0) != "0 0 0";
        EXPECT_GE(greens, width);
        EXPECT_LE(greens, width + 1);
    }
    EXPECT_EQ(picture().at(0.01f, 0), "0 255 0");
    EXPECT_EQ(picture().at(0.01f, 0.95f), "0 0 0");
    addSquare(flat(0, 0, 1), osg::Vec3f(-0.2f, 0, 2), 0.5f);
    clipping.contourWidth = 6;
    EXPECT_EQ(picture().at(-0.03f, 0), "0 255 0") << "the nearer square's own contour";
    clipping.position = osg::Pnt3f(0.1f, 0, 0);
    addSquare(flat(0, 0, 1), osg::Vec3f(0, 0, 5), 0.15f);
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
