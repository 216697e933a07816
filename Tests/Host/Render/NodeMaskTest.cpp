#include "RenderFixture.h"
#include "Scene/qxClipping.h"

#include <OpenSG/OSGQuaternion.h>

/// Where pictures have nodes: the red square of each of these scenes.
class NodeMaskTest : public RenderFixture {
protected:
    NodeMaskTest() : m_square(addNode(osg::Transform::create())) { addSquareOf(1); }

    void addSquareOf(float width) { addSquare(flat(1, 0, 0, bothSides), {}, width, m_square); }
    qxNodeMask mask() { return renderer.mask(settings, {m_square}); }

    /// The mask has what is red, and at most a pixel more on each side.
    void expectMaskIsPicture()
    {
        const qxPicture picture = renderer.render(settings);
        const qxNodeMask found = mask();
        const auto isRed = [&](int x, int y) {
            if (x < 0 || y < 0 || x >= picture.width || y >= picture.height)
                return false;
            const std::uint8_t *const rgb = &picture.rgba[std::size_t(y * picture.width + x) * 4];
            return rgb[0] > 100 && rgb[1] < 100;
        };
        int count = 0;
        for (int y = 0; y < picture.height; ++y) {
            for (int x = 0; x < picture.width; ++x) {
                const int inX = x - found.left;
                const int inY = y - found.bottom;
                const bool isCovered = inX >= 0 && inY >= 0 && inX < found.width
                    && inY < found.height && found.covers(inX, inY);
                bool isNear = false;
                for (int side = 0; side < 9; ++side)
                    isNear = isNear || isRed(x + side % 3 - 1, y + side / 3 - 1);
                EXPECT_TRUE(isCovered ? isNear : !isRed(x, y)) << x << ' ' << y;
                count += isRed(x, y);
            }
        }
        EXPECT_GT(count, 20);
        for (const qxNodeMask::Rim &rim : found.rim)
            EXPECT_TRUE(rim.isSeen && found.covers(rim.x, rim.y)) << rim.x << ' ' << rim.y;
        EXPECT_FALSE(found.rim.empty());
    }
    osg::Matrix &place() { return matrixOf(m_square); }

private:
    const TestNode m_square;
};

TEST_F(NodeMaskTest, AMaskIsWhereThePictureHasTheNode)
{
    expectMaskIsPicture();
    place().setTransform(osg::Vec3f(0.3f, -0.2f, 0), osg::Quaternion(osg::Vec3f(1, 1, 1), 0.7f),
                         osg::Vec3f(-1.2f, 0.5f, 1));
    expectMaskIsPicture();
    camera.height = 0;
    camera.fieldOfView = 0.2f;
    expectMaskIsPicture();
    qxClipping::the().enabled = true;
    qxClipping::the().showPlane = qxClipping::the().showContour = false;
    expectMaskIsPicture();
    qxClipping::the().enabled = false;
    // A floor from before the camera to behind it.
    place().setTransform(osg::Vec3f(0, -0.5f, 9), osg::Quaternion(osg::Vec3f(1, 0, 0), 1.57f),
                         osg::Vec3f(1, 8, 1));
    camera.fieldOfView = 1.5f;
    camera.nearPlane = 0.3f;
    camera.farPlane = 4;
    expectMaskIsPicture();
}

TEST_F(NodeMaskTest, TheRimTellsWhatStandsInFront)
{
    EXPECT_TRUE(mask().isEmpty()) << "there is no picture yet";
    addSquare(green, osg::Vec3f(0.7f, 0, 1), 1.4f);
    addSquare(blue, osg::Vec3f(-0.5f, 0, -1), 1.4f);
    picture();
    const qxNodeMask found = mask();
    EXPECT_NEAR(found.width, 24, 2);
    EXPECT_NEAR(found.left, 12, 1);
    int seen = 0;
    for (const qxNodeMask::Rim &rim : found.rim) {
        seen += rim.isSeen;
        const int fromMiddle = found.left + rim.x - 24;
        EXPECT_TRUE(std::abs(fromMiddle) <= 3 || rim.isSeen == (fromMiddle < 0)) << fromMiddle;
    }
    EXPECT_NEAR(double(seen) / double(found.rim.size()), 0.5, 0.05);
    qxClipping::the().enabled = qxClipping::the().hideScene = true;
    EXPECT_TRUE(mask().isEmpty());
    EXPECT_TRUE(renderer.mask(settings, {}).isEmpty());
}
