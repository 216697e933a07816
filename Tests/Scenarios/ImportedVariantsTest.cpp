#include "Program.h"

#include <map>

/// Real scenes whose material variants come with the file. Needs the folder that the environment
/// variable QX_SCENES names.
class ImportedVariantsTest : public ProgramFixture {
protected:
    /// Per mesh and primitive, as text, the material that it shows.
    typedef std::map<QString, int> Shown;

    void SetUp() override
    {
        if (qEnvironmentVariableIsEmpty("QX_SCENES"))
            GTEST_SKIP() << "QX_SCENES names no folder of real scenes";
    }
    static QString sample(const QString &name)
    {
        return qEnvironmentVariable("QX_SCENES") + "/" + name;
    }

    template <class Visit>
    static void eachPrimitive(const QJsonValue &json, const Visit &visit)
    {
        const QJsonArray meshes = json["meshes"].toArray();
        for (int mesh = 0; mesh < meshes.size(); ++mesh) {
            const QJsonArray parts = meshes[mesh]["primitives"].toArray();
            for (int part = 0; part < parts.size(); ++part)
                visit(QStringLiteral("%1/%2").arg(mesh).arg(part), parts[part]);
        }
    }
    /// What the file itself says that this variant shows; -1 is the material of its primitives.
    static Shown stated(const QJsonValue &json, int variant)
    {
        Shown shown;
        eachPrimitive(json, [&](const QString &place, const QJsonValue &part) {
            shown[place] = part["material"].toInt(-1);
            for (const QJsonValue &each :
                 part["extensions"]["KHR_materials_variants"]["mappings"].toArray()) {
                if (each["variants"].toArray().contains(variant))
                    shown[place] = each["material"].toInt();
            }
        });
        return shown;
    }
    static Shown shownIn(const QString &scene) { return stated(sceneJson(scene), -1); }
    static QJsonArray variantsOf(const QJsonValue &json)
    {
        return json["extensions"]["KHR_materials_variants"]["variants"].toArray();
    }
    static QString nameOf(const QJsonArray &variants, int index)
    {
        return variants[index]["name"].toString();
    }
};

TEST_F(ImportedVariantsTest, EverySetShowsTheMaterialsThatTheFileMapsToItsVariant)
{
    for (const QString &name : QStringList{"MaterialsVariantsShoe.glb", "GlamVelvetSofa.glb",
                                           "18_variants/18_variants.gltf"}) {
        SCOPED_TRACE(name.toStdString());
        const QJsonValue original = sceneJson(sample(name));
        const QJsonArray variants = variantsOf(original);
        const QString saved = path("saved." + QFileInfo(name).suffix());
        QString source = sample(name);
        for (int variant = -1; variant < variants.size(); ++variant) {
            // From the file itself, then each time from what the last round saved.
            const int wanted = variant < 0 ? variants.size() - 1 : variant;
            SCOPED_TRACE(nameOf(variants, wanted).toStdString());
            done({"select", source, nameOf(variants, wanted), "--save", saved});
            EXPECT_EQ(shownIn(saved), stated(original, wanted));
            source = saved;
        }
        QStringList changed = differences(original, sceneJson(saved));
        for (const QString &pointer : changed) {
            EXPECT_TRUE(pointer.contains("/extras") || pointer.endsWith("/material"))
                << pointer.toStdString();
        }
    }
}

TEST_F(ImportedVariantsTest, ASceneWithItsOwnVariantsAloneIsSavedAsItIs)
{
    const QString saved = path("saved.glb");
    done({"create", sample("MaterialsVariantsShoe.glb"), "--kinds", "nodes", "--save", saved});
    EXPECT_EQ(bytesOf(saved), bytesOf(sample("MaterialsVariantsShoe.glb")));
}
