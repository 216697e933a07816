#include "Program.h"

/// Verifying and optimizing on the command line.
class VerifyTest : public ProgramFixture {
protected:
    const QByteArray variant = "<NodeVariant name='Desk' base='Desk'><Default ref='Oak'/>"
                               "<State name='Oak'/><State name='Glass'/></NodeVariant>";
};

TEST_F(VerifyTest, TheLinesGoToStandardOutputAndToTheReport)
{
    const ProgramRun run = failed({"verify", desk(), "--report", path("report.csv")});
    EXPECT_TRUE(run.out.startsWith("Info,VariantSet,Morning,,,valid\n"
                                   "Error,VariantSet,Evening,Shelf,,node variant not found\n"));
    EXPECT_EQ(run.out.count('\n'), 6);
    EXPECT_TRUE(run.err.startsWith("workbench: 3 errors by the letter")) << run.err.toStdString();
    EXPECT_TRUE(run.err.contains("\"workbench lint FILE\""));
    EXPECT_EQ(bytesOf(path("report.csv")), run.out);
    EXPECT_EQ(failed({"verify", desk(), "--report", "-"}).out, run.out);

    const QString sound = deskWithSet("<NodeVariantRef ref='Desk' state='Oak'/>", variant);
    EXPECT_EQ(done({"verify", sound}).out,
              "Info,VariantSet,Only,,,valid\nInfo,NodeVariant,Desk,Desk,,valid\n");
}

TEST_F(VerifyTest, OptimizingKeepsWorkingStepsUnlessItIsStrict)
{
    const QString saved = path("saved.gltf");
    const QString scene = deskAndDoor();
    done({"document", scene, "--in", "-", "--save", scene},
         "<Variants><VariantSet name='Only'><TransformRef ref='Desk' state='!Next'/>"
         "<TransformRef ref='Door' state='!Next (Loop)'/>"
         "<ViewpointRef ref='Gone'/><AnimationRef ref='Sunset'/></VariantSet>"
         "<TransformVariant name='Door' base='Door'/>"
         "<TransformVariant name='Desk' base='Desk'/></Variants>");
    const ProgramRun run = done({"optimize", scene, "--save", saved});
    EXPECT_EQ(run.out,
              "Only\n  dropped  viewpoint Gone\n  dropped  animation Sunset\n"
              "  dropped  transform Desk = !Next\n");
    EXPECT_EQ(run.err,
              "workbench: \"Only\" keeps transform Door = !Next (Loop), which works; "
              "--strict drops it\n");
    EXPECT_EQ(done({"optimize", saved, "--json"}).json(),
              parsed(R"x({"sets": [{"name": "Only", "dropped": [],
                         "kept": ["transform Door = !Next (Loop)"]}], "removed": []})x"));
    const QStringList strictly{"optimize", saved, "--strict", "--remove-empty"};
    EXPECT_EQ(done(strictly + QStringList("--json")).json(),
              parsed(R"x({"sets": [{"name": "Only", "dropped": ["transform Door = !Next (Loop)"],
                         "kept": []}], "removed": ["Only"]})x"));
    EXPECT_EQ(done(strictly + QStringList{"--save", saved}).out,
              "Only\n  dropped  transform Door = !Next (Loop)\n"
              "Only\n  removed, it holds nothing\n");
    EXPECT_FALSE(documentOf(saved).contains("VariantSet"));
    EXPECT_EQ(done({"optimize", saved}).out, "nothing to drop\n");
}
