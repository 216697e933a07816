#include "qxVariantReader.h"
#include "qxVariantWriter.h"

#include "Files/qxSceneFile.h"
#include "SwitchesFixture.h"
#include "TestFiles.h"

#include <map>

namespace {

const char *const _scene = R"({"asset": {"version": "2.0"},
    "nodes": [{"name": "Car", "children": [1, 2]}, {"name": "Body", "mesh": 0}, {"name": "Roof", "mesh": 1},
              {"name": "Sky", "children": [4], "extras": {"qxSwitch": 0, "qxEnvironment": true}},
              {"name": "Dome", "mesh": 2}],
    "meshes": [{"primitives": [{"attributes": {"POSITION": 0}, "material": 0}]},
               {"primitives": [{"attributes": {"POSITION": 0}, "material": 0}]},
               {"primitives": [{"attributes": {"POSITION": 0}, "material": 3}]}],
    "materials": [{"name": "Red"}, {"name": "Leather"}, {"name": "Blue"},
                  {"name": "Day", "extras": {"qxEnvironment": true}}, {"name": "Night", "extras": {"qxEnvironment": true}}],
    "accessors": [{"componentType": 5126, "count": 3, "type": "VEC3", "min": [0, 0, 0], "max": [0, 0, 0]}]})";

/// A scene in a file, whose sets are saved with it.
class SavedSnapshotsTest : public SwitchesFixture, protected TestFolder {
protected:
    void SetUp() override
    {
        write("scene.gltf", _scene);
        load();
    }

    void load()
    {
        host.clearScene();
        ASSERT_TRUE(file.load(path("scene.gltf"))) << file.errorString().toStdString();
        const QByteArray document = file.variantsDocument();
        if (!document.isEmpty())
            qxVariantReader().read(document.constData());
    }
    void saveAndLoad()
    {
        file.setVariantsDocument(qxVariantWriter().write());
        ASSERT_TRUE(file.save(path("scene.gltf"))) << file.errorString().toStdString();
        load();
    }

    /// The parts of the scene that show something.
    static Nodes parts()
    {
        Nodes found;
        for (const char *name : {"Body", "Roof", "Dome"})
            found.push_back(qxScenegraph::findNode(name)->getChild(0));
        return found;
    }
    /// Gives each part that does not show its material yet that material.
    void paintParts(const Names &materials)
    {
        const Nodes painted = parts();
        for (std::size_t i = 0; i < painted.size(); ++i) {
            if (shownOn({painted[i]}) != Names{materials[i]})
                paint({painted[i]}, materials[i]);
        }
    }

    qxSceneFile file;
};

TEST_F(SavedSnapshotsTest, SetsBringBackTheirMaterialsInLaterSessions)
{
    const std::map<QString, Names> sets = {{"1", {"Red", "Red", "Day"}},
                                           {"2", {"Blue", "Red", "Night"}},
                                           {"3", {"Leather", "Blue", "Night"}}};
    for (const auto &set : sets) {
        paintParts(set.second);
        capture(set.first);
        saveAndLoad();
        EXPECT_EQ(shownOn(parts()), set.second);
    }
    for (const auto &set : sets) {
        expectShown(set.first, parts(), set.second);
        saveAndLoad();
        EXPECT_EQ(shownOn(parts()), set.second);
    }
    paintParts({"Leather", "Leather", "Night"}); // nobody shows the roof's switch material now
    saveAndLoad();
    qxVariants::activateCapturedVariantSet("1");
    expectShown("1", parts(), sets.at("1"));
    expectShown("3", parts(), sets.at("3"));
    EXPECT_EQ(heldOn(parts()[1]), (Names{"Red", "Blue", "Leather"}));
}

} // namespace
