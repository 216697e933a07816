#include "qxVariantReader.h"
#include "qxVariantWriter.h"
#include "qxVariants.h"

#include "Files/qxSceneFile.h"
#include "SwitchesFixture.h"
#include "qxMaterials.h"
#include "qxScenegraph.h"

#include <QFile>
#include <QTemporaryDir>

namespace {

const char *const _scene = R"({"asset": {"version": "2.0"},
    "nodes": [{"name": "Car", "children": [1, 2, 3]}, {"name": "Body", "mesh": 0}, {"name": "Roof", "mesh": 1},
              {"name": "Seat", "mesh": 2}, {"name": "Sky", "children": [5], "extras": {"qxSwitch": 0, "qxEnvironment": true}},
              {"name": "Dome", "mesh": 3}],
    "meshes": [{"primitives": [{"attributes": {"POSITION": 0}, "material": 0}]},
               {"primitives": [{"attributes": {"POSITION": 0}, "material": 0}]},
               {"primitives": [{"attributes": {"POSITION": 0}, "material": 1}]},
               {"primitives": [{"attributes": {"POSITION": 0}, "material": 3}]}],
    "materials": [{"name": "Red"}, {"name": "Leather"}, {"name": "Blue"},
                  {"name": "Day", "extras": {"qxEnvironment": true}}, {"name": "Night", "extras": {"qxEnvironment": true}}],
    "accessors": [{"bufferView": 0, "componentType": 5126, "count": 3, "type": "VEC3", "min": [0, 0, 0], "max": [1, 1, 0]}],
    "bufferViews": [{"buffer": 0, "byteLength": 36}],
    "buffers": [{"byteLength": 36, "uri":
        "data:application/octet-stream;base64,AAAAAAAAAAAAAAAAAACAPwAAAAAAAAAAAAAAAAAAgD8AAAAA"}]})";

/// A scene in a file, whose sets are saved with it.
class SavedSnapshotsTest : public SwitchesFixture {
protected:
    void SetUp() override
    {
        QFile text(path());
        ASSERT_TRUE(text.open(QIODevice::WriteOnly));
        text.write(_scene);
        text.close();
        load();
    }

    QString path() const { return folder.filePath("scene.gltf"); }
    void load()
    {
        host.clearScene();
        ASSERT_TRUE(file.load(path())) << file.errorString().toStdString();
        const QByteArray document = file.variantsDocument();
        if (!document.isEmpty())
            qxVariantReader().read(document.constData());
    }
    void saveAndLoad()
    {
        file.setVariantsDocument(qxVariantWriter().write());
        ASSERT_TRUE(file.save(path())) << file.errorString().toStdString();
        load();
    }

    /// The part of the node that shows something.
    static TestNode part(const char *name) { return qxScenegraph::findNode(name)->getChild(0); }
    static void paintPart(const char *name, const char *material)
    {
        paint(part(name), qxMaterials::findMaterial(material));
    }
    static std::vector<std::string> shown()
    {
        return shownOn({part("Body"), part("Roof"), part("Seat"), part("Dome")});
    }

    QTemporaryDir folder;
    qxSceneFile file;
};

typedef std::vector<std::string> Names;

TEST_F(SavedSnapshotsTest, SetsBringBackTheirMaterialsInLaterSessions)
{
    const Names first = {"Red", "Red", "Leather", "Day"};
    const Names second = {"Blue", "Red", "Leather", "Night"};
    const Names third = {"Leather", "Blue", "Leather", "Night"};
    capture("First");
    saveAndLoad();
    paintPart("Body", "Blue");
    paintPart("Dome", "Night");
    capture("Second");
    EXPECT_EQ(shown(), second);
    saveAndLoad();
    EXPECT_EQ(shown(), second);

    paintPart("Body", "Leather");
    paintPart("Roof", "Blue");
    capture("Third");
    saveAndLoad();
    EXPECT_EQ(shown(), third);
    select("First");
    EXPECT_EQ(shown(), first);
    saveAndLoad();
    EXPECT_EQ(shown(), first);
    select("Second");
    EXPECT_EQ(shown(), second);
    select("Third");
    EXPECT_EQ(shown(), third);
}

TEST_F(SavedSnapshotsTest, ASwitchMaterialThatNobodyShowedIsBackForTheNextActivation)
{
    capture("First");
    paintPart("Body", "Blue");
    capture("Second");
    paintPart("Body", "Leather"); // "Red Switch" is shown by nothing now
    saveAndLoad();
    EXPECT_EQ(shown().front(), "Leather");
    qxVariants::activateCapturedVariantSet("First");
    select("First");
    EXPECT_EQ(shown().front(), "Red");
    select("Second");
    EXPECT_EQ(shown().front(), "Blue");
    EXPECT_EQ(heldOn(part("Body")), (Names{"Red", "Blue", "Leather"}));
}

} // namespace
