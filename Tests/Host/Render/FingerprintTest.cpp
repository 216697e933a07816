#include "Light/qxEnvironmentLight.h"
#include "OSGUberLight.h"
#include "Scene/qxClipping.h"
#include "TexturedFixture.h"

#include <OpenSG/OSGSwitchMaterial.h>

#include <functional>
#include <set>

/// Something that is done to a scene, and undone when it is done again.
struct Edit {
    const char *what;
    std::function<void()> toggle;
};

/// A scene with something of each kind, of which a part is hidden.
class FingerprintTest : public TexturedFixture {
protected:
    FingerprintTest()
    {
        settings.width = settings.height = 24;
        camera.height = 2.4f;
        addTextured(textured(GL_MODULATE, image), 1);
        choices->addMaterial(material);
        choices->addMaterial(unseenMaterial);
        matrixOf(place).setTranslate(-0.5f, 0, 1);
        addSquare(lit(1, 1, 1), osg::Vec3f(0.6f, 0.6f, 0), 0.4f, hidden);
        addSquare(red, osg::Vec3f(-0.7f, 0.7f, 0), 0.3f, overlay);
        hidden.setMask(0);
        addSquare(red, osg::Vec3f(0, 0, -90), 400, environments.child(0));
        addSquare(blue, osg::Vec3f(0, 0, -90), 400, environments.child(1));
    }

    template <class Value>
    static std::function<void()> swaps(Value &value, const Value &other)
    {
        return [&value, other = Value(other)]() mutable {
            const Value before = value;
            value = other;
            other = before;
        };
    }
    static std::function<void()> chooses(const TestNode &node)
    {
        return [node] { node.choose(1 - node.choice()); };
    }
    static std::function<void()> hides(const TestNode &node)
    {
        return [node] { node.setMask(~node.mask()); };
    }
    static std::function<void()> paints(const osg::MaterialPtr &material)
    {
        return [material, colour = osg::Color3f(0.9f, 0.4f, 0.1f)]() mutable {
            const auto simple = osg::SimpleMaterialPtr::dcast(material);
            const osg::CPEditor edit(simple);
            const osg::Color3f before = simple->getDiffuse();
            simple->setDiffuse(colour);
            colour = before;
        };
    }
    static std::function<void()> movesPoint(const TestNode &square)
    {
        return [square, point = osg::Pnt3f(0.1f, 0.9f, 0)]() mutable {
            const auto positions = osg::GeometryPtr::dcast(square.core())->getPositions();
            const osg::CPEditor edit(positions);
            const osg::Pnt3f before = positions->getValue(1);
            positions->setValue(point, 1);
            point = before;
        };
    }
    static std::function<void()> moves(const TestNode &transform, const osg::Vec3f &by)
    {
        return [transform, by = osg::Vec3f(by)]() mutable {
            const osg::CPEditor edit(transform.core(), osg::Transform::MatrixFieldMask);
            matrixOf(transform)[3] += osg::Vec4f(by[0], by[1], by[2], 0);
            by = -by;
        };
    }
    static std::function<void()> dims(const TestNode &light)
    {
        return [light, amount = 0.5f]() mutable {
            const auto core = osg::UberLightPtr::dcast(light.core());
            const osg::CPEditor edit(core);
            const float before = core->getIntensity();
            core->setIntensity(amount);
            amount = before;
        };
    }

    // A list, not a procedure.
    std::vector<Edit> seenEdits()
    {
        qxViewSettings &view = settings.view;
        const auto dark = std::make_shared<const qxEnvironmentLight>(qxLightPicture(4, 2));
        return {{"place", moves(place, osg::Vec3f(0.25f, 0, 0))},
                {"point", movesPoint(square)},
                {"material", paints(material)},
                {"choice of a material", [this] { choose(1 - choices->getChoice()); }},
                {"pixel of a picture", [this] { invertPixel(); }},
                {"hidden part", hides(hidden)},
                {"light", dims(sun)},
                {"overlay", hides(overlay)},
                {"environment", chooses(environments)},
                {"clipping", swaps(clipping.enabled, true)},
                {"camera", swaps(camera.height, 2.5f)},
                {"width", swaps(settings.width, 25)},
                {"quality", swaps(settings.quality, 4)},
                {"exposure", swaps(view.exposure, 1.0f)},
                {"turned light", swaps(view.environmentRotation, 90.0f)},
                {"other light", swaps(view.environment, decltype(view.environment)(dark))},
                {"background", swaps(view.background, qxViewSettings::None)},
                {"fitted camera", swaps(camera, qxUberCamera())}};
    }
    // A list, not a procedure.
    std::vector<Edit> unseenEdits()
    {
        return {{"material that is not chosen", paints(unseenMaterial)},
                {"place of a hidden part", moves(hidden, osg::Vec3f(0, -1, 0))},
                {"point of a hidden part", movesPoint(hidden.child(0))},
                {"environment that is not chosen", hides(environments.child(1))},
                {"clipping plane that is off", swaps(clipping.position, osg::Pnt3f(0.3f, 0, 0))},
                {"plain colour without a plain background",
                 swaps(settings.view.plainColour, osg::Color3f(0, 1, 0))},
                {"sign of zero", swaps(matrixOf(place)[3][1], -0.0f)},
                {"threads", swaps(settings.threads, 3)}};
    }

    std::string fingerprint() { return renderer.fingerprint(settings).toStdString(); }
    std::string freshFingerprint() const
    {
        return qxRenderer().fingerprint(settings).toStdString();
    }
    void choose(unsigned int choice)
    {
        const osg::CPEditor edit(choices);
        choices->setChoice(choice);
    }
    void invertPixel()
    {
        const osg::CPEditor edit(image);
        image->getData()[0] ^= 255;
    }

    qxClipping &clipping = qxClipping::the();
    const osg::ImagePtr image = fourFields();
    const osg::MaterialPtr material = lit(0.5f, 0.5f, 0.5f);
    const osg::MaterialPtr unseenMaterial = lit(0.2f, 0.9f, 0.3f);
    const osg::SwitchMaterialPtr choices = osg::SwitchMaterial::create();
    const TestNode place = scene.addTransform("Place");
    const TestNode square = addSquare(choices, osg::Vec3f(), 0.8f, place);
    const TestNode hidden = scene.addTransform("Hidden");
    const TestNode overlay = scene.addOverlay("Overlay");
    const TestNode environments = scene.addEnvironments("All", {"Day", "Night"}).choose(0);
    const TestNode sun = addSun(2);
};

TEST_F(FingerprintTest, ItIsAnotherOneExactlyWhenThePictureIs)
{
    const std::string before = fingerprint();
    EXPECT_EQ(before.size(), 40u);
    const std::vector<std::uint8_t> seen = picture().bytes();
    std::set<std::string> all{before};
    for (const Edit &edit : seenEdits()) {
        edit.toggle();
        EXPECT_TRUE(all.insert(fingerprint()).second) << edit.what;
        EXPECT_EQ(fingerprint(), freshFingerprint()) << edit.what;
        EXPECT_FALSE(picture().bytes() == seen) << edit.what;
        edit.toggle();
        EXPECT_EQ(fingerprint(), before) << edit.what << " undone";
        EXPECT_TRUE(picture().bytes() == seen) << edit.what << " undone";
    }
    for (const Edit &edit : unseenEdits()) {
        edit.toggle();
        EXPECT_EQ(fingerprint(), before) << edit.what;
        EXPECT_TRUE(picture().bytes() == seen) << edit.what;
    }
    EXPECT_EQ(freshFingerprint(), before);
}

TEST_F(FingerprintTest, TheOrderOfEditsLeavesNoTrace)
{
    std::vector<Edit> edits = seenEdits();
    edits.pop_back(); // a camera as a whole is no other edit than that of its height
    for (const Edit &edit : edits)
        edit.toggle();
    const std::string all = fingerprint();
    for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit) {
        edit->toggle();
        fingerprint();
    }
    for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit)
        edit->toggle();
    EXPECT_EQ(fingerprint(), all);
}

TEST_F(FingerprintTest, WhatCannotBeDrawnHasNone)
{
    settings.width = 0;
    EXPECT_EQ(fingerprint(), "");
    expectError("A picture cannot have 0 by 24 pixels");
}
