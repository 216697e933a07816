#include "Cameras/qxMainView.h"
#include "OSGOverlayCore.h"
#include "Render/qxTiles.h"
#include "RenderFixture.h"
#include "Scene/qxScene.h"
#include "qxLights.h"

#include <OpenSG/OSGTransform.h>

#include <atomic>
#include <chrono>
#include <limits>
#include <sstream>
#include <thread>

class RendererTest : public RenderFixture {
protected:
    const osg::MaterialPtr red = flat(1, 0, 0);
    const osg::MaterialPtr green = flat(0, 1, 0);
    const osg::MaterialPtr blue = flat(0, 0, 1);

    static qxSurface bothSides()
    {
        qxSurface surface;
        surface.doubleSided = true;
        return surface;
    }
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

TEST_F(RendererTest, ASwitchShowsItsChosenChildren)
{
    const TestNode choices = scene.addSwitch("Switch", {"A", "B"});
    addSquare(red, osg::Vec3f(-0.5f, 0, 0), 1, choices.child(0));
    addSquare(green, osg::Vec3f(0.5f, 0, 0), 1, choices.child(1));
    const auto shown = [&](int choice) {
        choices.choose(choice);
        const TestPicture seen = picture();
        return seen.at(-0.5f, 0) + ", " + seen.at(0.5f, 0);
    };
    EXPECT_EQ(shown(-1), "0 0 0, 0 0 0");
    EXPECT_EQ(shown(0), "255 0 0, 0 0 0");
    EXPECT_EQ(shown(1), "0 0 0, 0 255 0");
    EXPECT_EQ(shown(-2), "255 0 0, 0 255 0");
    EXPECT_EQ(shown(2), "0 0 0, 0 0 0");
}

TEST_F(RendererTest, AMatrixThatChangesMovesWhatIsBelow)
{
    const TestNode mover = scene.addTransformSwitch("Mover", 2);
    addSquare(red, osg::Vec3f(-0.5f, 0, 0), 0.9f, mover);
    EXPECT_EQ(picture().at(-0.5f, 0), "255 0 0");
    mover.choose(1);
    EXPECT_EQ(picture().at(-0.5f, 0), "0 0 0");
    EXPECT_EQ(picture().at(0.5f, 0), "255 0 0");
}

TEST_F(RendererTest, NodesThatShareACoreShowItEachInItsPlace)
{
    const TestNode square = addSquare(red, osg::Vec3f(-0.5f, 0, 0), 0.9f);
    const TestNode mover = scene.addTransformSwitch("Mover", 2);
    mover.choose(1);
    mover.node()->addChild(osg::makeNodeFor(square.core()));
    const TestPicture seen = picture();
    EXPECT_EQ(seen.at(-0.5f, 0), "255 0 0");
    EXPECT_EQ(seen.at(0.5f, 0), "255 0 0");
}

TEST_F(RendererTest, AGeometryThatIsEditedIsShownAsItIs)
{
    const TestNode square = addSquare(red, osg::Vec3f(-0.5f, 0, 0), 0.9f);
    picture();
    const auto core = osg::GeometryPtr::dcast(square.core());
    const osg::GeoPositionsPtr positions = core->getPositions();
    {
        const osg::CPEditor edit(positions);
        for (osg::UInt32 i = 0; i < positions->getSize(); ++i)
            positions->setValue(positions->getValue(i) + osg::Vec3f(1, 0, 0), i);
    }
    EXPECT_EQ(picture().at(-0.5f, 0), "0 0 0");
    EXPECT_EQ(picture().at(0.5f, 0), "255 0 0");
    {
        const osg::CPEditor edit(core);
        core->setPositions(osg::GeoPositionsPtr(osg::NullFC));
    }
    EXPECT_EQ(picture().at(0.5f, 0), "0 0 0");
}

TEST_F(RendererTest, CornersMayHaveAnIndexForEachProperty)
{
    const auto colours = osg::GeoColors3f::create();
    colours->push_back(osg::Color3f(0, 0, 1));
    colours->push_back(osg::Color3f(0, 1, 0));
    const auto indices = osg::GeoIndicesUI32::create();
    for (const osg::UInt32 index : {0, 1, 1, 1, 2, 1, 3, 1})
        indices->push_back(index);
    const auto types = osg::GeoPTypesUI8::create();
    types->push_back(GL_QUADS);
    const auto lengths = osg::GeoPLengthsUI32::create();
    lengths->push_back(4);
    const osg::GeometryPtr core = trianglesOf({{-1, -1, 0}, {1, -1, 0}, {1, 1, 0}, {-1, 1, 0}});
    core->setColors(colours);
    core->setIndices(indices);
    core->getIndexMapping().push_back(osg::Geometry::MapPosition);
    core->getIndexMapping().push_back(osg::Geometry::MapColor);
    core->setTypes(types);
    core->setLengths(lengths);
    core->setMaterial(flat(1, 1, 1));
    scene.root().node()->addChild(osg::makeNodeFor(core));
    EXPECT_EQ(picture().at(-0.5f, 0.5f), "0 255 0");
    EXPECT_EQ(picture().at(0.5f, -0.5f), "0 255 0");
}

TEST_F(RendererTest, TrianglesThatAreNoneAreLeftOut)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const osg::Pnt3f a(-1, -1, 0), b(1, -1, 0), c(1, 1, 0), bad(nan, 0, 0);
    const osg::GeometryPtr core = trianglesOf({a, a, a, a, b, bad, a, b, b, a, b, c});
    core->setMaterial(red);
    scene.root().node()->addChild(osg::makeNodeFor(core));
    const TestNode flat = scene.addTransform("Without depth");
    const auto matrix = osg::TransformPtr::dcast(flat.core());
    matrix->getMatrix().setScale(1, 0, 0);
    addSquare(green, osg::Vec3f(0, 0, 1), 1, flat);
    EXPECT_EQ(picture().at(0.5f, -0.5f), "255 0 0");
    EXPECT_EQ(picture().at(-0.5f, 0.5f), "0 0 0");
}

TEST_F(RendererTest, AnOverlayLiesOnTopAndHigherLayersInFront)
{
    addSquare(red, osg::Vec3f(0, 0, 5), 2);
    const TestNode low = scene.addOverlay("Low");
    const TestNode high = scene.addOverlay("High");
    osg::OverlayCorePtr::dcast(low.core())->setLayer(1);
    osg::OverlayCorePtr::dcast(high.core())->setLayer(2);
    addSquare(lit(0, 1, 0, qxSurface()), osg::Vec3f(0, 0, 0), 1, low);
    addSquare(blue, osg::Vec3f(0, 0, -5), 0.5f, high);
    EXPECT_EQ(picture().at(0, 0), "0 0 255");
    EXPECT_EQ(picture().at(0.4f, 0), "0 255 0");
    EXPECT_EQ(picture().at(0.8f, 0), "255 0 0");
    high.setMask(0);
    EXPECT_EQ(picture().at(0, 0), "0 255 0");
    low.setMask(0);
    EXPECT_EQ(picture().at(0, 0), "255 0 0");
}

TEST_F(RendererTest, TheChosenEnvironmentIsBehindEverything)
{
    const TestNode choices = scene.addSwitch("Environments", {"Day", "Night"});
    osg::NodeRefPtr kept(choices.node());
    addSquare(lit(0, 0, 1, qxSurface()), osg::Vec3f(0, 0, 5), 20, choices.child(0));
    addSquare(red, osg::Vec3f(0, 0, 5), 20, choices.child(1));
    scene.root().node()->subChild(choices.node());
    qxScene::current()->setEnvironment(choices);
    choices.choose(0);
    addSquare(green, osg::Vec3f(0.5f, 0, 0), 1);
    EXPECT_EQ(picture().at(-0.5f, 0), "0 0 255");
    EXPECT_EQ(picture().at(0.5f, 0), "0 255 0");
    choices.choose(1);
    EXPECT_EQ(picture().at(-0.5f, 0), "255 0 0");
    qxScene::current()->setEnvironment(osg::NullFC);
    EXPECT_EQ(picture().at(-0.5f, 0), "0 0 0");
}

TEST_F(RendererTest, AMirrorShowsTheSceneAndTheEnvironment)
{
    qxSurface mirror;
    mirror.roughness = 0;
    addSquare(lit(1, 1, 1, mirror), osg::Vec3f(0, 0, 0), 2);
    addSquare(flat(0, 1, 0, bothSides()), osg::Vec3f(-0.5f, 0, 20), 1); // behind the camera
    const TestNode choices = scene.addSwitch("Environments", {"Red"});
    const osg::NodeRefPtr kept(choices.node());
    addSquare(flat(1, 0, 0, bothSides()), osg::Vec3f(0, 0, 30), 50, choices.child(0));
    scene.root().node()->subChild(choices.node());
    qxScene::current()->setEnvironment(choices);
    choices.choose(0);
    settings.quality = 4;
    const TestPicture seen = picture();
    const auto isAbout = [](const std::string &colour, int expectedR, int expectedG) {
        int r = 0, g = 0, b = 0;
        std::istringstream(colour) >> r >> g >> b;
        return std::abs(r - expectedR) < 90 && std::abs(g - expectedG) < 90 && b < 90;
    };
    EXPECT_TRUE(isAbout(seen.at(-0.5f, 0), 0, 230)) << seen.at(-0.5f, 0);
    EXPECT_TRUE(isAbout(seen.at(0.5f, 0), 230, 0)) << seen.at(0.5f, 0);
}

TEST_F(RendererTest, ALightSwitchedOffDarkens)
{
    addSquare(lit(1, 1, 1, qxSurface()), osg::Vec3f(0, 0, 0), 2);
    const int withoutLights = picture().brightness(0, 0);
    const osg::NodePtr sun = addSun(3);
    for (const int quality : {0, 4}) {
        settings.quality = quality;
        qxLights::setOn(sun, true);
        const int on = picture().brightness(0, 0);
        qxLights::setOn(sun, false);
        const int off = picture().brightness(0, 0);
        EXPECT_GT(on, off + 100);
        EXPECT_GT(off, 0);
    }
    EXPECT_GT(withoutLights, 300);
}

TEST_F(RendererTest, WhatStandsInTheLightThrowsAShadow)
{
    addSquare(lit(1, 1, 1, qxSurface()), osg::Vec3f(0, 0, 0), 2);
    addSun(3);
    const int inLight = picture().brightness(0, 0.5f);
    addSquare(red, osg::Vec3f(0, 0, 20), 1); // behind the camera
    EXPECT_LT(picture().brightness(0, 0), inLight - 100);
    EXPECT_EQ(picture().brightness(0, 0.7f), inLight);
}

TEST_F(RendererTest, TheSameSceneGivesTheSameBytes)
{
    addSquare(lit(1, 0.5f, 0.5f, qxSurface()), osg::Vec3f(0, 0, -1), 2);
    addSquare(lit(0.2f, 0.5f, 0.5f, qxSurface()), osg::Vec3f(0.3f, 0.2f, 0), 0.5f);
    addSun(2);
    for (const int quality : {0, 5, -1}) {
        settings.quality = quality;
        settings.threads = 0;
        const std::vector<std::uint8_t> expected = picture().bytes();
        EXPECT_EQ(picture().bytes(), expected);
        for (const int threads : {1, 5}) {
            settings.threads = threads;
            EXPECT_EQ(freshPicture().bytes(), expected);
        }
    }
}

TEST_F(RendererTest, CancellingGivesAnEmptyPicture)
{
    addSquare(red, osg::Vec3f(0, 0, 0), 1);
    int last = -1;
    int total = 0;
    const auto listen = [&](int done, int of) {
        EXPECT_GE(done, last);
        last = done;
        total = of;
        return done < 3;
    };
    EXPECT_TRUE(renderer.render(settings, listen).isEmpty());
    EXPECT_GT(total, 3);
    last = -1;
    const auto watch = [&](int done, int of) {
        last = done;
        return of == total;
    };
    EXPECT_EQ(renderer.render(settings, watch).rgba, picture().bytes());
    EXPECT_EQ(last, total);
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

TEST_F(RendererTest, AViewWithoutACameraShowsAllOfTheScene)
{
    qxMainView::the() = qxMainView();
    settings.backgroundTop = settings.backgroundBottom = osg::Color3f(1, 1, 1);
    settings.width = 90;
    for (const float place : {-300.0f, 0.0f, 300.0f})
        addSquare(red, osg::Vec3f(place, place, place), 200);
    const TestPicture seen = picture();
    const std::vector<std::uint8_t> &bytes = seen.bytes();
    std::size_t reds = 0;
    std::size_t redsAtTheEdge = 0;
    for (std::size_t i = 0; i < bytes.size(); i += 4) {
        const bool isRed = bytes[i + 1] == 0;
        const std::size_t row = i / 4 / 90;
        reds += isRed;
        redsAtTheEdge += isRed && (row == 0 || row == 47 || i / 4 % 90 == 0 || i / 4 % 90 == 89);
    }
    EXPECT_GT(reds, 20u);
    EXPECT_EQ(redsAtTheEdge, 0u);
}
