#include "qxVariantSet.h"
#include "qxVariantSetPtr.h"

#include "HostFixture.h"
#include "Scene/qxClipping.h"
#include "qxScript.h"

#include <locale>

/// A script's answer, printed just so, in place of the host's.
static void answer(const std::string &word, const std::string &printed)
{
    const std::string script = "class Answer(object):\n"
                               "    def __init__(self, text): self.text = text\n"
                               "    def __str__(self): return self.text\n"
                               "def "
        + word + "(): return Answer('''" + printed + "''')\n";
    qxScript::run(script.c_str());
}

struct DecimalComma : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
};

class ClippingAnswersTest : public HostFixture {
protected:
    const qxAnalyzerVariant &copied()
    {
        qxVariantSetPtr(&set).addCurrentClippingPlane();
        return set.analyzer;
    }

    qxVariantSet set{"Winter"};
};

TEST_F(ClippingAnswersTest, EverySettingOfTheHostArrivesExactlyInEveryLanguage)
{
    const std::locale before =
        std::locale::global(std::locale(std::locale::classic(), new DecimalComma));
    qxScript::run("setClippingPlane(Pnt3f(0.1, -2.5, 1e-7), Vec3f(1e20, 0.333333343, -0.0), true)\n"
                  "setClippingPlaneVisualization(false, Vec3f(0.11, 0.22, 0.33))\n"
                  "setClippingGridVisualization(true, Vec3f(0.44, 0.55, 0.66))\n"
                  "setClippingContourVisualization(false, Vec3f(0.77, 0.88, 0.99), 7)\n"
                  "setClippingHideScene(true)\n");
    set.setClippingState(3);
    const qxAnalyzerVariant &clip = copied();
    EXPECT_EQ(clip.clipState, 3);
    EXPECT_EQ(clip.clipPlanePosition, osg::Pnt3f(0.1f, -2.5f, 1e-7f));
    EXPECT_EQ(clip.clipPlaneNormal, osg::Vec3f(1e20f, 0.333333343f, 0));
    EXPECT_EQ(clip.clipPlaneColor, osg::Color3f(0.11f, 0.22f, 0.33f));
    EXPECT_EQ(clip.clipGridColor, osg::Color3f(0.44f, 0.55f, 0.66f));
    EXPECT_EQ(clip.clipContourColor, osg::Color3f(0.77f, 0.88f, 0.99f));
    EXPECT_EQ(clip.clipContourWidth, 7);
    EXPECT_TRUE(clip.clipPlaneInvert && clip.clipPlaneHideScene && clip.clipGridShow);
    EXPECT_FALSE(clip.clipPlaneShow || clip.clipContourShow);

    qxScript::run("setClippingPlane(Pnt3f(), Vec3f(), false)");
    set.executeAnalyzer();
    EXPECT_EQ(qxClipping::the().position, osg::Pnt3f(0.1f, -2.5f, 1e-7f)) << "and goes back";
    std::locale::global(before);
}

TEST_F(ClippingAnswersTest, NumbersThatAnAnswerLacksAreZero)
{
    const struct {
        std::string printed;
        osg::Pnt3f read;
    } cases[] = {
        {"1 , 2 , 3", {1, 2, 3}},
        {"1, 2, 3", {1, 2, 3}},
        {"1 and 2 and 3 and 4", {1, 2, 3}},
        {"  1e2\t|\n-.5 | +3", {100, -0.5f, 3}},
        {"1,2,3", {1, 0, 0}},
        {"1, 2", {1, 2, 0}},
        {"1, two, 3", {1, 0, 0}},
        {"Pnt3f(1, 2, 3)", {0, 0, 0}},
        {"[1, 2, 3]", {0, 0, 0}},
        {"", {0, 0, 0}},
        {std::string(100000, 'x'), {0, 0, 0}},
        {"1 " + std::string(100000, 'x') + " 2 , 3", {1, 2, 3}},
    };
    for (const auto &each : cases) {
        set.analyzer.clipPlanePosition = osg::Pnt3f(7, 7, 7);
        set.analyzer.clipContourColor = {7, 7, 7};
        answer("getClippingPlanePosition", each.printed);
        answer("getClippingContourColor", each.printed);
        const qxAnalyzerVariant &clip = copied();
        EXPECT_EQ(clip.clipPlanePosition, each.read) << each.printed.substr(0, 60);
        EXPECT_EQ(clip.clipContourColor, osg::Color3f(each.read[0], each.read[1], each.read[2]));
    }
}

TEST_F(ClippingAnswersTest, AWidthMayBeWrittenInAnyBaseAndAFlagIsSetByTheTextTrueAlone)
{
    const std::pair<const char *, int> cases[] = {{"12", 12},  {" -3 px", -3}, {"0x10", 16},
                                                  {"2.75", 2}, {"wide", 0},    {"", 0}};
    for (const auto &each : cases) {
        set.setClippingContourWidth(9);
        answer("getClippingContourWidth", each.first);
        EXPECT_EQ(copied().clipContourWidth, each.second) << each.first;
    }

    for (const char *printed : {"False", "true", "TRUE", "1", " True", "True.", "", "True"}) {
        const bool isSet = printed == std::string("True");
        set.setClippingShowGrid(!isSet);
        answer("getClippingShowGrid", printed);
        EXPECT_EQ(copied().clipGridShow, isSet) << printed;
    }
}

TEST_F(ClippingAnswersTest, AnErrorInTheHostsWordLeavesZeroAndFalse)
{
    qxScript::run("def getClippingPlaneNormal(): raise ValueError('broken')\n"
                  "def getClippingShowPlane(): raise ValueError('broken')\n"
                  "def getClippingContourWidth(): raise ValueError('broken')\n");
    const qxAnalyzerVariant &clip = copied();
    EXPECT_EQ(clip.clipPlaneNormal, osg::Vec3f(0, 0, 0));
    EXPECT_FALSE(clip.clipPlaneShow);
    EXPECT_EQ(clip.clipContourWidth, 0);
    EXPECT_EQ(clip.clipPlaneColor, qxClipping::the().planeColor) << "the others arrive";
    EXPECT_EQ(takeErrors().size(), 3u);
}
