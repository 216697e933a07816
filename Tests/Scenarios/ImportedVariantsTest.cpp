#include "Program.h"

#include <QFileInfo>

/// Real scenes whose material variants come with the file. Needs the folder that the environment
/// variable QX_SCENES names.
class ImportedVariantsTest : public ProgramFixture {
protected:
    void SetUp() override
    {
        if (qEnvironmentVariableIsEmpty("QX_SCENES"))
            GTEST_SKIP() << "QX_SCENES names no folder of real scenes";
    }
    static QString sample(const QString &name)
    {
        return qEnvironmentVariable("QX_SCENES") + "/" + name;
    }
    /// Per primitive the material that it shows: its own, or the one that the file maps to this
    /// variant.
    static QList<int> materialsIn(const QJsonValue &json, int variant = -1)
    {
        QList<int> shown;
        for (const QJsonValue &mesh : json["meshes"].toArray()) {
            for (const QJsonValue &part : mesh["primitives"].toArray()) {
                shown += part["material"].toInt(-1);
                for (const QJsonValue &each :
                     part["extensions"]["KHR_materials_variants"]["mappings"].toArray()) {
                    if (each["variants"].toArray().contains(variant))
                        shown.last() = each["material"].toInt();
                }
            }
        }
        return shown;
    }
};

TEST_F(ImportedVariantsTest, EverySetShowsTheMaterialsThatTheFileMapsToItsVariant)
{
    for (const char *name :
         {"MaterialsVariantsShoe.glb", "GlamVelvetSofa.glb", "18_variants/18_variants.gltf"}) {
        SCOPED_TRACE(name);
        const QJsonValue original = sceneJson(sample(name));
        const QJsonArray variants =
            original["extensions"]["KHR_materials_variants"]["variants"].toArray();
        const QString saved = path("saved." + QFileInfo(name).suffix());
        // From the file itself, then each time from what the last round saved.
        QString source = sample(name);
        for (int variant = variants.size() - 1; variant >= 0; --variant) {
            const QString set = variants[variant].toObject()["name"].toString();
            done({"select", source, set, "--save", saved});
            EXPECT_EQ(materialsIn(sceneJson(saved)), materialsIn(original, variant))
                << set.toStdString();
            source = saved;
        }
        for (const QString &pointer : differences(original, sceneJson(saved)))
            EXPECT_TRUE(pointer.contains("/extras") || pointer.endsWith("/material"))
                << pointer.toStdString();
    }
}

TEST_F(ImportedVariantsTest, ASceneWithItsOwnVariantsAloneIsSavedAsItIs)
{
    const QString saved = path("saved.glb");
    done({"create", sample("MaterialsVariantsShoe.glb"), "--kinds", "nodes", "--save", saved});
    EXPECT_EQ(bytesOf(saved), bytesOf(sample("MaterialsVariantsShoe.glb")));
}
