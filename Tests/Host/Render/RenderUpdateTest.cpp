#include "RenderFixture.h"

#include <OpenSG/OSGSimpleGeometry.h>
#include <OpenSG/OSGThread.h>

#include <array>
#include <map>
#include <random>

/// A wall of small squares below switches, hidden and shown, painted and moved by chance.
class RenderUpdateTest : public RenderFixture {
protected:
    RenderUpdateTest()
    {
        for (int i = 0; i < 60; ++i)
            addPart(i);
        addSun(2);
    }
    void changeSomething()
    {
        const std::size_t i = random(m_parts.size());
        switch (random(6)) {
        case 0:
            m_parts[i].setMask(random(2) ? 0xFFFFFFFF : 0);
            break;
        case 1:
            m_movers[i].choose(int(random(3)));
            break;
        case 2:
            m_switches[i].choose(int(random(3)) - 1);
            break;
        case 3:
            osg::GeometryPtr::dcast(m_squares[i].core())->setMaterial(material());
            break;
        case 4:
            osg::Thread::getCurrentChangeList()->clearAll();
            break;
        default:
            m_parts[i].moveTo(scene.root());
        }
    }
    std::size_t random(std::size_t below) { return m_random() % below; }

private:
    osg::MaterialPtr material() { return std::array{red, green, blue}[random(3)]; }

    void addPart(int number)
    {
        m_parts.push_back(scene.add("Part"));
        m_movers.push_back(scene.addTransformSwitch("Mover", 3, m_parts.back()));
        m_switches.push_back(scene.addSwitch("Switch", {"A", "B"}, m_movers.back()));
        const osg::Vec3f place(float(number % 10) * 0.2f - 0.9f, float(number / 10) * 0.3f - 0.8f,
                               float(number % 7));
        m_squares.push_back(addSquare(material(), place, 0.19f, m_switches.back().child(0)));
        addSquare(lit(1, 1, 1), place, 0.1f, m_switches.back().child(1));
        m_switches.back().choose(0);
    }
    std::mt19937 m_random{17};
    std::vector<TestNode> m_parts, m_movers, m_switches, m_squares;
};

TEST_F(RenderUpdateTest, WhatWasKeptGivesThePictureOfAFreshRendererWithAnyNumberOfThreads)
{
    std::map<QByteArray, std::vector<std::uint8_t>> pictures;
    for (int round = 0; round < 60; ++round) {
        for (std::size_t i = random(5); i > 0; --i)
            changeSomething();
        settings.quality = round % 10 < 8 ? 0 : round % 10 == 8 ? 5 : -1;
        settings.threads = 0;
        const QByteArray fingerprint =
            round % 3 ? renderer.fingerprint(settings) : qxRenderer().fingerprint(settings);
        const TestPicture seen = picture();
        EXPECT_EQ(renderer.fingerprint(settings), fingerprint);
        settings.threads = 1 + round % 5;
        ASSERT_EQ(seen.bytes(), freshPicture().bytes()) << "round " << round;
        EXPECT_EQ(pictures.try_emplace(fingerprint, seen.bytes()).first->second, seen.bytes());
    }
}

TEST_F(RenderUpdateTest, ARendererOutlivesScenes)
{
    picture();
    host.clearScene();
    EXPECT_EQ(picture().bytes(), freshPicture().bytes());
    addSquare(flat(1, 1, 0), osg::Vec3f(0, 0, 0), 1);
    camera.height = 2;
    EXPECT_EQ(picture().bytes(), freshPicture().bytes());
}

/// Rays take other ways through scenes with very many triangles.
TEST_F(RenderUpdateTest, ManyTrianglesBehindTheCameraChangeNothing)
{
    const TestNode mirrored = scene.addTransform("Mirrored");
    matrixOf(mirrored).setScale(-1, 1, 1);
    addSquare(lit(1, 0.5f, 0.2f), osg::Vec3f(0, 0, 8), 0.5f, mirrored);
    settings.quality = 4;
    const TestPicture few = picture();
    const TestNode crowd = scene.addTransform("Crowd");
    matrixOf(crowd).setTranslate(0, 0, 50);
    addNode(osg::makeBoxGeo(0.005f, 0.005f, 0.005f, 150, 150, 150), crowd);
    const TestPicture many = picture();
    EXPECT_EQ(many.bytes(), freshPicture().bytes());
    for (const float x : {-0.8f, -0.1f, 0.1f, 0.7f})
        EXPECT_NEAR(many.brightness(x, 0.1f), few.brightness(x, 0.1f), 9) << x;
    EXPECT_GT(many.brightness(0.1f, 0.1f), 100);
    crowd.setMask(0);
    EXPECT_EQ(picture().bytes(), few.bytes());
}
