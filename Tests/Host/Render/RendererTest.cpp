#include "OSGOverlayCore.h"
#include "Render/qxTiles.h"
#include "RenderFixture.h"
#include "Scene/qxScene.h"
#include "qxLights.h"

#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGThread.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <limits>
#include <thread>

class RendererTest : public RenderFixture {};

TEST_F(RendererTest, UnlitColoursComeOutAsTheyAreNearestInFrontOfTheBackground)
{
    settings.view.gradientTop = settings.view.gradientBottom = osg::Color3f(0.2f, 0.4f, 0.6f);
    EXPECT_EQ(picture().at(0, 0), "51 102 153") << "an empty scene";
    addSquare(red, osg::Vec3f(0, 0, 0), 1);
    addSquare(green, osg::Vec3f(0, 0, -1), 1.8f);
    addSquare(flat(0.5f, 0.2122307f, 0.0f), osg::Vec3f(0.75f, 0.75f, 1), 0.4f);
    settings.view.gradientBottom = osg::Color3f(0, 0, 0);
    const TestPicture seen = picture();
    EXPECT_EQ(seen.at(0, 0), "255 0 0");
    EXPECT_EQ(seen.at(-0.75f, 0), "0 255 0");
    EXPECT_EQ(seen.at(0.75f, 0.75f), "188 127 0");
    EXPECT_GT(seen.brightness(0.98f, 0.98f), seen.brightness(0.98f, -0.98f) + 100);
}

TEST_F(RendererTest, HiddenNodesAndChildrenThatAreNotChosenAreNotThere)
{
    const TestNode choices = scene.addSwitch("Switch", {"A", "B"});
    addSquare(red, osg::Vec3f(-0.5f, 0, 0), 1, choices.child(0));
    addSquare(green, osg::Vec3f(0.5f, 0, 0), 1, choices.child(1));
    for (const auto &[choice, shown] : {std::pair(-1, "0 0 0, 0 0 0"),
                                        {0, "255 0 0, 0 0 0"},
                                        {1, "0 0 0, 0 255 0"},
                                        {2, "0 0 0, 0 0 0"},
                                        {-2, "255 0 0, 0 255 0"}}) {
        choices.choose(choice);
        EXPECT_EQ(picture().halves(), shown) << choice;
    }
    choices.setMask(0);
    EXPECT_EQ(picture().halves(), "0 0 0, 0 0 0");
    choices.setMask(2);
    EXPECT_EQ(picture().halves(), "255 0 0, 0 255 0");
}

TEST_F(RendererTest, NodesThatShareACoreShowItEachInItsPlaceAsItIsNow)
{
    const TestNode square = addSquare(red, osg::Vec3f(-0.5f, 0, 0), 0.9f);
    const TestNode mover = scene.addTransformSwitch("Mover", 2);
    addNode(square.core(), mover);
    EXPECT_EQ(picture().halves(), "255 0 0, 0 0 0");
    mover.choose(1);
    EXPECT_EQ(picture().halves(), "255 0 0, 255 0 0");

    const auto core = osg::GeometryPtr::dcast(square.core());
    const osg::GeoPositionsPtr positions = core->getPositions();
    {
        const osg::CPEditor edit(positions);
        for (osg::UInt32 i = 0; i < positions->getSize(); ++i)
            positions->setValue(positions->getValue(i) + osg::Vec3f(1, 0, 0), i);
    }
    EXPECT_EQ(picture().halves(), "0 0 0, 255 0 0");
    {
        const osg::CPEditor edit(core);
        core->setPositions(osg::GeoPositionsPtr(osg::NullFC));
    }
    osg::Thread::getCurrentChangeList()->clearAll(); // without anybody having read it
    EXPECT_EQ(picture().halves(), "0 0 0, 0 0 0");
}

TEST_F(RendererTest, CornersMayHaveAnIndexForEachProperty)
{
    const auto colours = osg::GeoColors3f::create();
    colours->push_back(osg::Color3f(0, 0, 1));
    colours->push_back(osg::Color3f(0, 1, 1));
    const auto indices = osg::GeoIndicesUI32::create();
    for (const osg::UInt32 index : {0, 1, 1, 1, 2, 1})
        indices->push_back(index);
    const osg::GeometryPtr core = trianglesOf({{-1, -1, 0}, {3, -1, 0}, {-1, 3, 0}});
    core->setColors(colours);
    core->setIndices(indices);
    core->getIndexMapping().push_back(osg::Geometry::MapPosition);
    core->getIndexMapping().push_back(osg::Geometry::MapColor);
    core->setMaterial(flat(1, 1, 0)); // which the colours tint
    addNode(core);
    EXPECT_EQ(picture().halves(), "0 255 0, 0 255 0");
}

TEST_F(RendererTest, TrianglesThatAreNoneAreLeftOut)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const osg::Pnt3f a(-1, -1, 0), b(1, -1, 0), c(1, 1, 0), bad(nan, 0, 0);
    const osg::GeometryPtr core = trianglesOf({a, a, a, a, b, bad, a, b, b, a, b, c});
    core->setMaterial(red);
    addNode(core);
    const TestNode flat = scene.addTransform("Without depth");
    matrixOf(flat).setScale(1, 0, 0);
    addSquare(green, osg::Vec3f(0, 0, 1), 1, flat);
    EXPECT_EQ(picture().at(0.5f, -0.5f), "255 0 0");
    EXPECT_EQ(picture().at(-0.5f, 0.5f), "0 0 0");
}

TEST_F(RendererTest, AnOverlayLiesOnTopAndHigherLayersInFront)
{
    addSquare(red, osg::Vec3f(0, 0, 5), 2);
    const TestNode high = scene.addOverlay("High");
    const TestNode low = scene.addOverlay("Low");
    osg::OverlayCorePtr::dcast(high.core())->setLayer(2);
    osg::OverlayCorePtr::dcast(low.core())->setLayer(1);
    addSquare(lit(0, 1, 0), osg::Vec3f(0, 0, 0), 1.2f, low);
    addSquare(blue, osg::Vec3f(-0.5f, 0, -5), 0.5f, high);
    EXPECT_EQ(picture().halves(), "0 0 255, 0 255 0");
    EXPECT_EQ(picture().at(0.8f, 0), "255 0 0");
    high.setMask(0);
    EXPECT_EQ(picture().halves(), "0 255 0, 0 255 0");
    low.setMask(0);
    EXPECT_EQ(picture().halves(), "255 0 0, 255 0 0");
}

TEST_F(RendererTest, TheChosenEnvironmentIsBehindEverything)
{
    const TestNode choices = scene.addEnvironments("Environments", {"Day", "Night"}).choose(0);
    addSquare(lit(0, 0, 1), osg::Vec3f(0, 0, 5), 20, choices.child(0));
    addSquare(red, osg::Vec3f(0, 0, 5), 20, choices.child(1));
    addSquare(green, osg::Vec3f(0.5f, 0, 0), 1);
    EXPECT_EQ(picture().halves(), "0 0 255, 0 255 0");
    choices.choose(1);
    EXPECT_EQ(picture().halves(), "255 0 0, 0 255 0");
    qxScene::current()->setEnvironment(osg::NullFC);
    EXPECT_EQ(picture().halves(), "0 0 0, 0 255 0");
}

TEST_F(RendererTest, AMirrorShowsTheSceneAndTheEnvironment)
{
    qxSurface mirror;
    mirror.roughness = 0;
    addSquare(lit(1, 1, 1, mirror), osg::Vec3f(0, 0, 0), 2);
    addSquare(flat(0, 1, 0, bothSides), osg::Vec3f(-0.5f, 0, 20), 1); // behind the camera
    const TestNode choices = scene.addEnvironments("Environments", {"Red"}).choose(0);
    addSquare(flat(1, 0, 0, bothSides), osg::Vec3f(0, 0, 30), 50, choices.child(0));
    settings.quality = 4;
    const TestPicture seen = picture();
    for (const float x : {-0.5f, 0.5f}) {
        const int reds = std::stoi(seen.at(x, 0)); // the first of the three numbers
        EXPECT_NEAR(reds, x > 0 ? 230 : 0, 90);
        EXPECT_NEAR(seen.brightness(x, 0) - reds, x > 0 ? 0 : 230, 90);
    }
}

TEST_F(RendererTest, ALightThatIsOnBrightensAndWhatStandsInItThrowsAShadow)
{
    addSquare(lit(1, 1, 1), osg::Vec3f(0, 0, 0), 2);
    EXPECT_GT(picture().brightness(0, 0), 300) << "without any light";
    const osg::NodePtr sun = addSun(3);
    const int inLight = picture().brightness(0, 0);
    addSquare(red, osg::Vec3f(0, 0, 20), 1); // behind the camera
    EXPECT_LT(picture().brightness(0, 0), inLight - 100);
    EXPECT_EQ(picture().brightness(0, 0.7f), inLight);
    for (const int quality : {0, 4}) {
        settings.quality = quality;
        qxLights::setOn(sun, true);
        const int on = picture().brightness(0, 0.7f);
        qxLights::setOn(sun, false);
        const int off = picture().brightness(0, 0.7f);
        EXPECT_GT(on, off + 100);
        EXPECT_GT(off, 0);
    }
}

TEST_F(RendererTest, CancellingGivesAnEmptyPicture)
{
    addSquare(red, osg::Vec3f(0, 0, 0), 1);
    std::vector<int> heard;
    int enough = 3;
    int total = 0;
    const auto listen = [&](int done, int of) {
        heard.push_back(done);
        total = of;
        return done < enough;
    };
    EXPECT_TRUE(renderer.render(settings, listen).isEmpty());
    EXPECT_TRUE(total > enough && std::is_sorted(heard.begin(), heard.end()));
    enough = total + 1;
    EXPECT_EQ(renderer.render(settings, listen).rgba, picture().bytes());
    EXPECT_EQ(heard.back(), total);
}

TEST_F(RendererTest, WhatGoesWrongInAThreadIsThrownInTheCallingOne)
{
    std::atomic<int> begun{0};
    const auto work = [&](int) {
        ++begun;
        while (begun < 2)
            std::this_thread::yield(); // until both threads are at work
        throw std::bad_alloc();
    };
    EXPECT_THROW(qxForAllTiles(1000, 2, work, [](int) { return true; }), std::bad_alloc);
    EXPECT_EQ(begun, 2);

    const std::thread::id caller = std::this_thread::get_id();
    const auto helperFails = [&](int) {
        if (std::this_thread::get_id() != caller)
            throw std::bad_alloc();
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    };
    EXPECT_THROW(qxForAllTiles(30000, 2, helperFails, [](int) { return true; }), std::bad_alloc);
}

TEST_F(RendererTest, APictureTellsWhyNothingOfTheSceneIsToBeSeen)
{
    osg::SimpleMaterialPtr::dcast(red)->setTransparency(1); // as it is meant to be
    const TestNode place = scene.addTransform("Place");
    addSquare(red, osg::Vec3f(0, 0, 0), 1, place);
    const auto content = [&](float right, float size, float depth = 1, float far = 0) {
        matrixOf(place) =
            osg::Matrix(size * depth, 0, 0, right, 0, size, 0, 0.1f, 0, 0, depth, 0, 0, 0, 0, 1);
        camera.farPlane = far;
        return picture().content();
    };
    for (const int quality : {0, 4}) {
        settings.quality = quality;
        EXPECT_EQ(content(0, 1), qxPicture::Shown);
        EXPECT_EQ(content(5, 1), qxPicture::LookedPast);
        EXPECT_EQ(content(0, 1, -1), qxPicture::FromBehind);
        EXPECT_EQ(content(0, 1, 1, 9), qxPicture::CutAway);
        EXPECT_EQ(content(0.1f, 1e-6f), qxPicture::TooSmall);
    }
    place.setMask(0);
    EXPECT_EQ(picture().content(), qxPicture::Hidden);
    addSquare(green, osg::Vec3f(0, 0, 1), 1, scene.addOverlay("Sheet"));
    EXPECT_EQ(picture().content(), qxPicture::Shown);
}

TEST_F(RendererTest, AViewWithoutACameraShowsAllOfTheScene)
{
    qxMainView::the() = qxMainView();
    settings.width = 90;
    const osg::GeometryPtr box = osg::makeBoxGeo(900, 300, 600, 1, 1, 1);
    box->setMaterial(red);
    addNode(box);
    const TestPicture seen = picture();
    EXPECT_EQ(seen.at(0, 0), "255 0 0");
    for (float place = -1; place < 1; place += 0.02f) {
        for (const float edge : {-1.0f, 1.0f})
            EXPECT_EQ(seen.brightness(place, edge) + seen.brightness(edge, place), 0) << place;
    }
}
