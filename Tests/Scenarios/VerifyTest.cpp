#include "Program.h"

/// Verifying and optimizing on the command line.
class VerifyTest : public ProgramFixture {
protected:
    /// A document with one set of these elements, and the desk's node variant.
    static QByteArray documentWith(const QByteArray &references)
    {
        return "<Variants><VariantSet name='Only'>" + references
            + "</VariantSet><NodeVariant name='Desk' base='Desk'><Default ref='Oak'/>"
              "<State name='Oak'/><State name='Glass'/></NodeVariant></Variants>";
    }
};

TEST_F(VerifyTest, TheLinesGoToStandardOutputAndToTheReport)
{
    const QByteArray expected =
        "Info,VariantSet,Morning,,,valid\n"
        "Error,VariantSet,Evening,Shelf,,node variant not found\n"
        "Info,VariantSet,Leer geräumt,,,valid\n"
        "Error,NodeVariant,Desk,Desk,!Next (Loop),node state not found in switch node\n"
        "Info,NodeVariant,Lamp,Lamp,,valid\n"
        "Error,NodeVariant,Chair,Chair,,node is not a switch-node and has illegal default value\n";
    const ProgramRun run = workbench({"verify", desk(), "--report", path("report.csv")});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, expected);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(bytesOf(path("report.csv")), expected);
    EXPECT_EQ(workbench({"verify", desk()}).out, expected);

    const QString sound = desk(documentWith("<NodeVariantRef ref='Desk' state='Oak'/>"));
    EXPECT_EQ(done({"verify", sound}).out,
              "Info,VariantSet,Only,,,valid\nInfo,NodeVariant,Desk,Desk,,valid\n");
    refused(1, {"verify", sound, "--report", path("none/report.csv")},
            "none/report.csv: the report cannot be written");
}

TEST_F(VerifyTest, OptimizeListsWhatItDropsAndSavesTheRest)
{
    const QString saved = path("saved.gltf");
    const QString scene = desk(documentWith("<NodeVariantRef ref='Desk' state='Pine'/>"
                                            "<NodeVariantRef ref='Shelf' state='Red'/>"
                                            "<ViewpointRef ref='Gone'/>"
                                            "<ViewpointRef ref='Front'/>"
                                            "<AnimationRef ref='Sunset'/>"));
    EXPECT_EQ(done({"optimize", scene, "--save", saved}).out,
              "Only\n"
              "  dropped  node Desk = Pine\n"
              "  dropped  viewpoint Gone\n"
              "  dropped  animation Sunset\n");
    const QByteArray document = documentOf(saved);
    EXPECT_TRUE(document.contains("<ViewpointRef ref=\"Front\"/>"));
    EXPECT_TRUE(document.contains("ref=\"Shelf\""));
    EXPECT_FALSE(document.contains("Pine") || document.contains("Gone"));
    EXPECT_EQ(done({"optimize", saved}).out, "nothing to drop\n");
}

TEST_F(VerifyTest, SetsThatHoldNothingAreRemovedWhenAskedFor)
{
    const QString saved = path("saved.gltf");
    const QString scene = desk(documentWith("<AnimationRef ref='Sunset'/>"));
    EXPECT_EQ(done({"optimize", scene, "--remove-empty", "--save", saved}).out,
              "Only\n"
              "  dropped  animation Sunset\n"
              "Only\n"
              "  removed, it holds nothing\n");
    EXPECT_FALSE(documentOf(saved).contains("VariantSet"));
    EXPECT_EQ(done({"optimize", scene, "--remove-empty", "--json"}).object(),
              (QJsonObject{{"sets",
                            QJsonArray{QJsonObject{{"name", "Only"},
                                                   {"dropped", QJsonArray{"animation Sunset"}}}}},
                           {"removed", QJsonArray{"Only"}}}));
}
