#include "Animation/qxAnimationPlayer.h"
#include "Render/RenderFixture.h"
#include "Render/qxReprojection.h"

typedef qxAnimationCurve Curve;
typedef std::vector<float> Numbers;
typedef qxAnimationClip::Channel Channel;

static Curve curve(Curve::Interpolation interpolation, const Numbers &times, const Numbers &values,
                   std::size_t width, Curve::Kind kind = Curve::Plain)
{
    return {std::make_shared<Numbers>(times), std::make_shared<Numbers>(values), width,
            interpolation, kind};
}

TEST(AnimationCurveTest, EachInterpolationGivesItsExactValues)
{
    const Curve line = curve(Curve::Linear, {1, 3}, {0, 0, 2, 4, 8, 0}, 3);
    const Curve steps = curve(Curve::Step, {1, 3, 4}, {5, 6, 7}, 1);
    const Curve spline = curve(Curve::CubicSpline, {0, 2}, {9, 0, 1, -1, 4, 9}, 1);
    const Curve once = curve(Curve::CubicSpline, {2}, {9, 5, 9}, 1);
    const float root = std::sqrt(0.5f);
    // A quarter turn about z, by the quaternion and by its opposite, which is the same.
    const Curve turn =
        curve(Curve::Linear, {0, 1}, {0, 0, 0, 1, 0, 0, root, root}, 4, Curve::Rotation);
    const Curve other =
        curve(Curve::Linear, {0, 1}, {0, 0, 0, 1, 0, 0, -root, -root}, 4, Curve::Rotation);
    const Curve half = curve(Curve::CubicSpline, {0, 1}, {0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0,
                                                          0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0},
                             4, Curve::Rotation);
    const float sine = 0.1950903f; // of an eighth of a right angle
    const float cosine = 0.9807853f;
    for (const auto &[each, time, expected] :
         {std::tuple<Curve, float, Numbers>(line, 0, {0, 0, 2}),
          {line, 1, {0, 0, 2}},
          {line, 1.5f, {1, 2, 1.5f}},
          {line, 3, {4, 8, 0}},
          {line, 9, {4, 8, 0}},
          {steps, 0, {5}},
          {steps, 2.99f, {5}},
          {steps, 3, {6}},
          {steps, 4, {7}},
          {spline, -1, {0}},
          {spline, 1, {2.5f}},
          {spline, 2, {4}},
          {once, 2.5f, {5}},
          {turn, 0.25f, {0, 0, sine, cosine}},
          {other, 0.25f, {0, 0, sine, cosine}},
          {half, 0.5f, {0, 0, root, root}},
          {half, 1, {0, 0, 1, 0}}}) {
        const Numbers value = each.at(time);
        ASSERT_EQ(value.size(), expected.size());
        for (std::size_t i = 0; i < value.size(); ++i)
            EXPECT_NEAR(value[i], expected[i], 1e-6f) << "at " << time << ", number " << i;
    }
}

/// A square on a node without transform, which the clip "Slide" moves to the right in two seconds,
/// "Jump" upwards after one; "Lamp" moves a light.
class AnimationTest : public RenderFixture {
protected:
    AnimationTest()
    {
        square = addSquare(red, osg::Vec3f(-0.5f, 0, 0), 0.5f, part);
        player.setClips({clip("Slide", part, {0, 2}, {0, 0, 0, 1, 0, 0}),
                         clip("Jump", part, {0, 1}, {0, 0, 0, 0, 5, 0}),
                         clip("Lamp", lamp, {0, 1}, {0, 0, 0, 0, 0, -90})});
        player.setLooping(false);
    }
    ~AnimationTest() override
    {
        player.setListener({});
        player.setLooping(true);
        player.setSpeed(1);
        player.setClips({});
    }
    static qxAnimationClip clip(const char *name, const TestNode &node, const Numbers &times,
                                const Numbers &values)
    {
        return {name,
                {{node.node().getFieldContainerId(), Channel::Translation,
                  curve(Curve::Linear, times, values, 3)}}};
    }
    void chooseOnly(std::size_t clip)
    {
        for (std::size_t i = 0; i < player.clips().size(); ++i)
            player.choose(i, i == clip);
    }

    static int differing(const std::vector<std::uint8_t> &one,
                         const std::vector<std::uint8_t> &other)
    {
        int count = 0;
        for (std::size_t i = 0; i < one.size(); i += 4) {
            for (std::size_t c = i; c < i + 3; ++c)
                if (std::abs(one[c] - other[c]) > 40) {
                    ++count;
                    break;
                }
        }
        return count;
    }

    qxAnimationPlayer &player = qxAnimationPlayer::the();
    const TestNode part = scene.add("Part");
    const TestNode lamp = scene.addLight("Lamp");
    TestNode square = part;
};

TEST_F(AnimationTest, AClipMovesWhatPicturesShowAndPickingFindsAndNotTheScene)
{
    const TestPicture rest = picture();
    EXPECT_EQ(rest.halves(), "255 0 0, 0 0 0");
    chooseOnly(0);
    player.seek(2);
    EXPECT_EQ(picture().halves(), "0 0 0, 255 0 0");
    EXPECT_TRUE(renderer.nodeAt(settings, 36, 24) == square.node());
    EXPECT_TRUE(renderer.nodeAt(settings, 12, 24) == osg::NullFC);
    EXPECT_EQ(part.node()->getToWorld(), osg::Matrix());
    // Later clips win; what they do not move stays as the scene has it.
    player.choose(1, true);
    player.seek(1);
    EXPECT_EQ(picture().content(), qxPicture::LookedPast);
    player.stop();
    EXPECT_TRUE(qxPose::the().isEmpty());
    EXPECT_EQ(picture().bytes(), rest.bytes());
    // A node that is gone is left out.
    scene.root().node()->subChild(part.node());
    player.seek(1);
    EXPECT_TRUE(qxPose::the().isEmpty());
}

TEST_F(AnimationTest, ALightMovesWithItsNode)
{
    addMattWall(-1);
    const auto core = osg::UberLightPtr::dcast(lamp.core());
    core->setKind(osg::UberLight::Point);
    core->setIntensity(3);
    const int lit = picture().brightness(0.1f, 0.1f);
    chooseOnly(2);
    player.seek(1);
    EXPECT_LT(picture().brightness(0.1f, 0.1f), lit - 30);
}

TEST_F(AnimationTest, ThePlayerKeepsItsTimes)
{
    int told = 0;
    player.setListener([&told] { ++told; });
    player.advance(1);
    EXPECT_TRUE(told == 0 && qxPose::the().isEmpty()) << "nothing plays";
    player.start("Missing");
    EXPECT_EQ(player.state(), qxAnimationPlayer::Stopped);
    player.start("Slide");
    EXPECT_EQ(player.state(), qxAnimationPlayer::Playing);
    EXPECT_TRUE(told > 0 && qxPose::the().isEmpty()) << "no time has passed yet";
    EXPECT_TRUE(player.isChosen(0) && !player.isChosen(1));
    player.setSpeed(2);
    player.advance(0.5f);
    EXPECT_EQ(player.time(), 1);
    player.start("Jump");
    EXPECT_TRUE(player.isChosen(0)) << "both play";
    EXPECT_EQ(player.time(), 1);
    player.start("Slide");
    EXPECT_EQ(player.time(), 0) << "anew";
    player.advance(0.25f);
    player.pause();
    player.advance(9);
    EXPECT_EQ(player.time(), 0.5f);
    player.play();
    player.advance(9);
    EXPECT_EQ(player.state(), qxAnimationPlayer::Paused) << "all are at their ends";
    EXPECT_EQ(player.time(), 2);
    player.play();
    EXPECT_EQ(player.time(), 0);
    player.setLooping(true);
    player.advance(1.25f);
    EXPECT_EQ(player.time(), 0.5f);
    {
        const qxAnimationRest rest;
        EXPECT_TRUE(qxPose::the().isEmpty() && player.isChosen(2));
        player.start("Lamp");
    }
    EXPECT_TRUE(player.state() == qxAnimationPlayer::Playing && !player.isChosen(2));
    EXPECT_TRUE(player.time() == 0.5f && !qxPose::the().isEmpty());
}

/// What comes from pictures before must not be seen where it is no more.
TEST_F(AnimationTest, AMovingCameraSeesNearlyWhatAQuickPictureShows)
{
    settings.width = settings.height = 128;
    const int pixels = 128 * 128;
    addSquare(green, osg::Vec3f(0, 0, -3), 9);
    addSquare(blue, osg::Vec3f(0.5f, 0.5f, 0), 0.3f, scene.addOverlay("Logo"));
    for (const bool isParallel : {false, true}) {
        camera.fieldOfView = isParallel ? 0.0f : 0.25f;
        qxReprojection memory;
        settings.threads = 0;
        EXPECT_EQ(renderer.renderMoving(settings, memory, pixels).rgba, picture().bytes());
        EXPECT_EQ(memory.drawn(), pixels);
        qxPicture seen;
        for (int step = 1; step <= 12; ++step) {
            camera.toWorld.setTranslate(0.03f * float(step), 0, 10);
            settings.threads = 1 + step % 4;
            seen = renderer.renderMoving(settings, memory, pixels / 10);
            EXPECT_LT(memory.drawn(), pixels / 5);
        }
        EXPECT_EQ(seen.content, qxPicture::Shown);
        EXPECT_LT(differing(seen.rgba, picture().bytes()), pixels / 25);
        part.setMask(0);
        seen = renderer.renderMoving(settings, memory, pixels / 10);
        EXPECT_LT(differing(seen.rgba, picture().bytes()), pixels / 25);
        for (std::size_t i = 0; i < seen.rgba.size(); i += 4)
            ASSERT_LT(seen.rgba[i], 200) << "a ghost of the square";
        part.setMask(0xFFFFFFFF);
    }
}
