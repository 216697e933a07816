#include "RenderFixture.h"
#include "qxLights.h"

class RendererTest : public RenderFixture {
protected:
    const osg::MaterialPtr red = flat(1, 0, 0);
    const osg::MaterialPtr green = flat(0, 1, 0);
    const osg::MaterialPtr blue = flat(0, 0, 1);
};

TEST_F(RendererTest, AnEmptySceneIsItsBackground)
{
    settings.backgroundTop = settings.backgroundBottom = osg::Color3f(0.2f, 0.4f, 0.6f);
    EXPECT_EQ(picture().at(0, 0), "51 102 153");
}

TEST_F(RendererTest, UnlitColoursComeOutAsTheyAreNearestInFront)
{
    addSquare(red, osg::Vec3f(0, 0, 0), 1);
    addSquare(green, osg::Vec3f(0, 0, -1), 2);
    addSquare(flat(0.5f, 0.2122307f, 0.0f), osg::Vec3f(0.75f, 0.75f, 1), 0.4f);
    const TestPicture seen = picture();
    EXPECT_EQ(seen.at(0, 0), "255 0 0");
    EXPECT_EQ(seen.at(-0.75f, 0), "0 255 0");
    EXPECT_EQ(seen.at(0.75f, 0.75f), "188 127 0");
}

TEST_F(RendererTest, AHiddenChildIsNotThere)
{
    addSquare(green, osg::Vec3f(0, 0, -1), 2);
    const TestNode group = scene.add("Group");
    addSquare(red, osg::Vec3f(0, 0, 0), 1, group);
    EXPECT_EQ(picture().at(0, 0), "255 0 0");
    group.setMask(0);
    EXPECT_EQ(picture().at(0, 0), "0 255 0");
    group.setMask(2);
    EXPECT_EQ(picture().at(0, 0), "255 0 0");
}
