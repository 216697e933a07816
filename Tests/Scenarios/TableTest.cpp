#include "Program.h"

/// The command that writes the sets as a table, and edits them by one.
class TableTest : public ProgramFixture {
protected:
    const QByteArray table =
        "Group,Set,Comment,node Desk,node Lamp,node Chair,light Lamp,node Shelf\n"
        "Work,Morning,Daylight will do,Glass,!Disable,,,\n"
        "Work,Evening,,Oak,!Enable,Transform 2,,Red\n"
        ",Leer geräumt,,!None,,,,\n";
};

TEST_F(TableTest, WhatIsEditedInTheTableIsEditedInTheSceneAndNothingElse)
{
    EXPECT_EQ(done({"table", desk()}).out, table);
    done({"table", desk(), "--out", path("sets.csv")});
    EXPECT_EQ(bytesOf(path("sets.csv")), table);
    const QString scene = path("scene.gltf");
    EXPECT_EQ(done({"table", desk(), "--in", path("sets.csv"), "--save", scene}).out,
              "no differences\n");
    done({"table", scene, "--in", path("sets.csv"), "--save", path("same.gltf")});
    EXPECT_EQ(bytesOf(path("same.gltf")), bytesOf(scene)); // written as we write

    const QByteArray edit = "Set,node Desk,value Preis\nMorning,Oak,\"1.200,50\"\nNight,Glass,\n";
    const ProgramRun dry = done({"table", scene, "--in", "-", "--dry-run"}, edit);
    EXPECT_TRUE(dry.out.contains("Oak")) << dry.out.toStdString();
    EXPECT_TRUE(dry.out.endsWith("2 sets without a row stay as they are\n"));
    EXPECT_EQ(bytesOf(path("same.gltf")), bytesOf(scene));
    EXPECT_EQ(done({"table", scene, "--in", "-", "--save", scene}, edit).out, dry.out);
    EXPECT_EQ(
        done({"table", scene, "--spreadsheet", "semicolon"}).out,
        "\xEF\xBB\xBF"
        "Group;Set;Comment;node Desk;node Lamp;node Chair;light Lamp;node Shelf;value Preis\r\n"
        "Work;Morning;Daylight will do;Oak;!Disable;;;;\"1.200,50\"\r\n"
        "Work;Evening;;Oak;!Enable;Transform 2;;Red;\r\n"
        ";Leer geräumt;;!None;;;;;\r\n"
        ";Night;;Glass;;;;;\r\n");
    EXPECT_EQ(differences(sceneJson(scene), sceneJson(path("same.gltf"))),
              QStringList("/scenes/0/extras/qxVariants"));
}

TEST_F(TableTest, ADocumentAloneNeedsNoScene)
{
    const QString xml = write("sets.xml", sceneWith("desk", QByteArray()));
    done({"document", desk(), "--out", xml});
    EXPECT_EQ(done({"table", xml}).out, table);
    done({"table", xml, "--in", "-", "--save", path("edited.xml")}, "Set,Comment\nEvening,late");
    EXPECT_TRUE(bytesOf(path("edited.xml")).contains("name=\"Evening\" comment=\"late\""));
}

TEST_F(TableTest, NothingIsWrittenAsLongAsACellIsWrong)
{
    const QString scene = desk();
    const QByteArray before = bytesOf(scene);
    const QString wrong = write("wrong.csv", "Set,node Desk,node Lamb\nMorning,Oack,\nEvening,\"");
    const ProgramRun run = failed({"table", scene, "--in", wrong, "--save", scene});
    EXPECT_EQ(
        run.err,
        QByteArray("workbench: WRONG: C1: no node variant is called \"Lamb\"; did you mean "
                   "\"Lamp\"?\n"
                   "workbench: WRONG: B2: \"Oack\" is no state of node \"Desk\"; did you mean "
                   "\"Oak\"?\n"
                   "workbench: WRONG: B3: its quote does not end\n"
                   "workbench: WRONG: nothing is changed, because of 3 flaws\n")
            .replace("WRONG", wrong.toUtf8()));
    EXPECT_EQ(bytesOf(scene), before);
    refused(1, {"table", deskAndDoor()}, "no variants document; \"workbench create ");
    refused(1, {"table", scene, "--in", "-", "--save", path("scene.xml")}, "is a scene, .gltf");
    refused(1, {"table", write("broken.xml", "<Variants><Set")}, "broken.xml: variants document");
    refused(1,
            {"table", scene, "--in", write("big.csv", "Set" + QByteArray(1500000, '\n')),
             "--dry-run", "--memory-limit", "500MB"},
            "GB of memory are needed for the table, 500 MB are allowed");
    refused(2, {"table", scene, "--spreadsheet", "dots"}, "comma, semicolon or tab");
    refused(2, {"table", scene, "--in", wrong}, "--in goes together with --save or --dry-run");
    refused(2, {"table", scene, "--in", wrong, "--out", "-", "--dry-run"}, "--in does not go");
}
