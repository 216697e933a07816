#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Files/Gltf/Common/qxGltfSwitchMaterialState.h"
#include "Materials/qxSurface.h"
#include "OSGUberLight.h"
#include "Program.h"
#include "Publish/qxPlainExport.h"
#include "RandomScene.h"
#include "Script/qxScriptRunner.h"
#include "Session/qxSceneSnapshot.h"
#include "Session/qxSession.h"
#include "TestScene.h"
#include "qxNodeWalk.h"
#include "qxScenegraph.h"
#include "qxTestPaths.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGTriangleIterator.h>

#include <QDirIterator>

#include <algorithm>
#include <cmath>
#include <limits>
#include <sstream>

namespace {

/// What the scene shows, in its order: parts and burning lights, with where they are.
struct Shown {
    osg::NodePtr node;
    std::string text;
    std::vector<float> place; ///< a matrix
    std::vector<float> box; ///< of the triangles of a part: least and greatest coordinates
};

/// By its looks, because what has no material has no name. Numbers are those that glTF allows.
std::string lookOf(const osg::GeometryPtr &geometry)
{
    const osg::MaterialPtr material = qxGltfShownMaterial(geometry->getMaterial());
    const auto plain = osg::SimpleMaterialPtr::dcast(material);
    if (plain == osg::NullFC)
        return "1 1 1 0 0 0 0 1 1 ";
    const qxSurface surface = qxSurface::of(material);
    std::ostringstream text;
    const auto write = [&text](float number) { text << std::clamp(number, 0.0f, 1.0f) << ' '; };
    for (const osg::Color3f &colour : {plain->getDiffuse(), plain->getEmission()}) {
        for (const float number : {colour.red(), colour.green(), colour.blue()})
            write(number);
    }
    for (const float number : {plain->getTransparency(), surface.metallic, surface.roughness})
        write(number);
    return text.str();
}

std::vector<float> placeOf(const osg::NodePtr &node)
{
    const osg::Matrix matrix = node->getToWorld();
    return {matrix.getValues(), matrix.getValues() + 16};
}

/// To so many parts of the largest one, unless that is beyond all numbers.
void expectNear(const std::vector<float> &is, const std::vector<float> &wanted, float share)
{
    float largest = 0;
    for (const float number : wanted)
        largest = std::max(largest, std::fabs(number));
    for (std::size_t i = 0; i < wanted.size() && std::isfinite(largest); ++i)
        EXPECT_NEAR(is[i], wanted[i], largest * share) << i;
}

Shown partOf(const osg::NodePtr &node, const osg::GeometryPtr &geometry)
{
    const float far = std::numeric_limits<float>::max();
    Shown part{node, "part ", placeOf(node), {far, far, far, -far, -far, -far}};
    int triangles = 0;
    for (auto each = geometry->beginTriangles(); each != geometry->endTriangles(); ++each) {
        ++triangles;
        for (int corner = 0; corner < 9; ++corner) {
            const float number = each.getPosition(corner / 3)[corner % 3];
            float *const box = part.box.data() + corner % 3;
            box[0] = std::min(box[0], number);
            box[3] = std::max(box[3], number);
        }
    }
    part.text += std::to_string(triangles);
    return part;
}

std::vector<Shown> shownThings()
{
    std::vector<Shown> all;
    const auto visit = [&all](const osg::NodePtr &node, std::vector<osg::NodePtr> &below) {
        if (node->getTravMask() == 0)
            return;
        const auto geometry = osg::GeometryPtr::dcast(node->getCore());
        const auto light = osg::UberLightPtr::dcast(node->getCore());
        const auto choices = osg::SwitchPtr::dcast(node->getCore());
        if (geometry != osg::NullFC && geometry->getPositions()->getSize() > 0)
            all.push_back(partOf(node, geometry));
        if (light != osg::NullFC && light->getOn())
            all.push_back({node, "light " + std::to_string(light->getKind()), placeOf(node), {}});
        const osg::MFNodePtr &children = *node->getMFChildren();
        for (osg::UInt32 i = 0; i < children.size(); ++i) {
            const bool isChosen = choices == osg::NullFC || choices->getChoice() == osg::Switch::ALL
                || choices->getChoice() == osg::Int32(i);
            if (isChosen)
                below.push_back(children[i]);
        }
    };
    qxWalkTree(std::vector<osg::NodePtr>{qxScenegraph::getRoot()}, visit);
    return all;
}

std::vector<std::string> textsOf(const std::vector<Shown> &things)
{
    std::vector<std::string> texts;
    for (const Shown &each : things)
        texts.push_back(each.text);
    return texts;
}

/// What the parts of these wear now.
std::vector<std::string> looksOf(const std::vector<Shown> &things)
{
    std::vector<std::string> looks;
    for (const Shown &each : things) {
        const auto geometry = osg::GeometryPtr::dcast(each.node->getCore());
        looks.push_back(geometry == osg::NullFC ? std::string() : lookOf(geometry));
    }
    return looks;
}

void selectWithoutScript(const QString &set)
{
    const qxScriptRunner::Allowed before = qxScriptRunner::setAllowed(qxScriptRunner::Nothing);
    qxVariants::selectVariantSet(set.toUtf8().constData(), false);
    qxScriptRunner::setAllowed(before);
}

} // namespace

/// Scenes exported for other programs, seen by opening what was exported.
class ExportTest : public ProgramFixture {
protected:
    /// Exports the scene as its set number `shown` shows it, or without one as it is, and compares
    /// the file with the scene, set by set.
    void exportAndCompare(const QString &scene, std::size_t shown, bool compress);

private:
    qxSession session;
};

void ExportTest::exportAndCompare(const QString &scene, std::size_t shown, bool compress)
{
    ASSERT_TRUE(session.open(scene)) << session.failure().toStdString();
    const auto &sets = qxVariants::_variantSets;
    const qxVariantSet *const first = shown < sets.size() ? sets[shown] : nullptr;
    qxExport file;
    qxLossReport report;
    ASSERT_EQ(qxPlainExport::make(session.file(), {first, false, compress}, file, report), "");
    const std::vector<Shown> before = shownThings();
    const std::vector<std::string> plainLooks = looksOf(before);
    QMap<QString, std::vector<std::string>> looks;
    const qxSceneSnapshot start;
    for (const qxVariantSet *set : sets) {
        selectWithoutScript(set->name);
        looks[set->name] = looksOf(before);
        start.restore();
    }

    std::vector<Shown> expected = before;
    for (Shown &each : expected)
        each.node = osg::NullFC; // they go
    const QString exported = write("exported.glb", file.glb);
    session.close();
    ASSERT_TRUE(session.open(exported)) << session.failure().toStdString();
    EXPECT_EQ(session.file().warnings(), QStringList());
    const std::vector<Shown> after = shownThings();
    ASSERT_EQ(textsOf(after), textsOf(expected));
    for (std::size_t i = 0; i < after.size(); ++i) {
        expectNear(after[i].place, expected[i].place, 1e-4f);
        expectNear(after[i].box, expected[i].box, 4e-5f);
    }
    EXPECT_EQ(looksOf(after), plainLooks);
    for (auto look = looks.begin(); look != looks.end(); ++look) {
        EXPECT_TRUE(sets.empty() || qxVariants::findVariantSet(look.key()));
        selectWithoutScript(look.key());
        EXPECT_EQ(looksOf(after), look.value()) << look.key().toStdString();
    }
    session.close();
}

TEST_F(ExportTest, WhatIsExportedIsWhatTheSceneShowsAlsoByItsVariants)
{
    for (const std::size_t shown : {100, 0, 4, 16})
        exportAndCompare(QX_DEMO_SCENE, shown, shown == 4);
    const QStringList range = qEnvironmentVariable("QX_SEEDS", "1:100").split(':');
    for (unsigned seed = range[0].toUInt(); seed < range[0].toUInt() + range[1].toUInt(); ++seed) {
        SCOPED_TRACE(seed);
        RandomChoices random(seed);
        const QString scene =
            write("random.gltf", QByteArray::fromStdString(randomScene(random, false).dump()));
        exportAndCompare(scene, random.below(8), random.percent(30));
        ASSERT_FALSE(HasFailure());
    }
}
