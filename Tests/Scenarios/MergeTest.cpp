#include "Program.h"

#include <QDir>
#include <QStandardPaths>

/// Files that two sides have changed, brought together by the program and by git.
class MergeScenario : public ProgramFixture {
protected:
    static QByteArray document(const QByteArray &sets)
    {
        return "<Variants>" + sets + "</Variants>";
    }
    static QByteArray set(const QByteArray &name, const QByteArray &comment = QByteArray())
    {
        return "<VariantSet name='" + name + "' comment='" + comment + "'/>";
    }
    /// A desk with these sets, in which texts are replaced.
    QByteArray scene(const QByteArray &sets, const QList<QPair<QByteArray, QByteArray>> &edits = {})
    {
        QByteArray text = sceneWith("desk", document(sets));
        for (const auto &[before, after] : edits) {
            EXPECT_TRUE(text.contains(before)) << before.constData();
            text.replace(before, after);
        }
        return text;
    }
    ProgramRun merge(int code, const QStringList &options = {})
    {
        return exits(code,
                     QStringList{"merge", path("base.gltf"), path("ours.gltf"), path("theirs.gltf"),
                                 "--out", path("merged.gltf")}
                         + options);
    }
};

TEST_F(MergeScenario, ScenesAreMergedWithTheirDocuments)
{
    typedef QPair<QByteArray, QByteArray> Edit;
    const Edit price{"12.5", "13"}, otherPrice{"12.5", "14"}, lamp{"\"Lamp\"", "\"Light\""};
    const Edit noChair{"\"name\": \"Chair\"", "\"name\": \"Lamp\""};
    const Edit camera{"\"cameras\"", "\"extensionsUsed\": [\"A\"], \"cameras\""};
    const Edit otherCamera{"\"cameras\"", "\"extensionsUsed\": [\"B\"], \"cameras\""};
    const struct {
        QList<Edit> ours, theirs, merged;
        const char *place; ///< of the conflict
    } rows[] = {
        {{price}, {}, {price}, nullptr},
        {{}, {price}, {price}, nullptr},
        {{price}, {price}, {price}, nullptr},
        {{price}, {lamp}, {price, lamp}, nullptr},
        {{price}, {otherPrice}, {price}, "nodes[0] \"Desk\"/extras/price"},
        {{price, lamp}, {otherPrice}, {price, lamp}, "nodes[0] \"Desk\"/extras/price"},
        {{price}, {lamp, noChair}, {price}, ""}, // a node of that name was elsewhere
        {{camera},
         {otherCamera},
         {{"\"cameras\"", "\"extensionsUsed\": [\"A\", \"B\"], \"cameras\""}},
         nullptr},
    };
    for (const auto &row : rows) {
        write("base.gltf", scene(set("A")));
        write("ours.gltf", scene(set("A") + set("B"), row.ours));
        write("theirs.gltf", scene(set("A") + set("C"), row.theirs));
        const QJsonObject report = merge(row.place ? 1 : 0, {"--json"}).object();
        const QJsonArray conflicts = report["conflicts"].toArray();
        EXPECT_EQ(conflicts.size(), row.place ? 1 : 0);
        if (row.place) {
            EXPECT_EQ(conflicts[0].toObject()["place"].toString(), row.place);
        }
        const QString wanted = write("wanted.gltf", scene(QByteArray(), row.merged));
        const QStringList differing =
            differences(sceneJson(wanted), sceneJson(path("merged.gltf")));
        EXPECT_EQ(differing, QStringList("/scenes/0/extras/qxVariants"));
        EXPECT_EQ(documentOf(path("merged.gltf")).count("<VariantSet"), 3);
    }
}

TEST_F(MergeScenario, DataComesFromTheSideThatChangedThem)
{
    const QByteArray text = bytesOf(testData("Scenes/triangle.gltf"));
    const QByteArray data = QByteArray(text).replace("AAAAAACAPw", "AAAAAACAQA");
    const QByteArray named = QByteArray(text).replace("Part", "Tile");
    const QByteArray both = QByteArray(named).replace("AAAAAACAPw", "AAAAAACAQA");
    ASSERT_FALSE(text == data || text == named);
    const auto binary = [this](const QString &name, const QByteArray &gltf) {
        const QString file = path(name + ".glb");
        done({"create", write(name + ".gltf", gltf), "--save", file});
        return file;
    };
    const QString base = binary("base", text), ours = binary("ours", named);
    const QString theirs = binary("theirs", data), merged = path("merged.glb");
    done({"merge", base, ours, theirs, "--out", merged});
    EXPECT_EQ(bytesOf(merged), bytesOf(binary("both", both)));
    const QString other = binary("other", QByteArray(text).replace("AAAAAACAPw", "AAAAAACAQQ"));
    const QByteArray told = failed({"merge", base, other, theirs, "--out", merged}).out;
    EXPECT_TRUE(told.contains("the scene itself")) << told.constData();
    EXPECT_EQ(bytesOf(merged), bytesOf(other));
    done({"merge", base, other, theirs, "--out", merged, "--prefer", "theirs"});
    EXPECT_EQ(bytesOf(merged), bytesOf(theirs));
}

TEST_F(MergeScenario, WhatIsNoDocumentIsRefusedAndTheTargetStays)
{
    const QString whole = write("whole.xml", document(set("A")));
    const QString target = write("target.xml", "valuable");
    const QPair<QByteArray, QByteArray> faulty[] = {
        {document("<VariantSet"), "variants document, line 1"},
        {"<Variants>\xFF</Variants>", "it is not UTF-8"},
        {"<svg/>", "it is no variants document"},
        {sceneWith("desk"), "it is a scene"},
        {"{\"asset\": 1}", "asset"}};
    for (const auto &[bytes, reason] : faulty) {
        const QString file = write("faulty.xml", bytes);
        for (const QStringList &files :
             {QStringList{file, whole, whole}, {whole, file, whole}, {whole, whole, file}})
            refused(2, QStringList("merge") + files + QStringList{"--out", target}, reason);
    }
    refused(2, {"merge", whole, whole, whole}, "merge needs --out");
    const QString large =
        write("large.xml", document(QByteArray("<NodeVariant name='a' base='b'/>").repeated(2500)));
    done({"diff", large, large, "--memory-limit", "2MB"});
    refused(2, {"merge", large, large, large, "--out", target, "--memory-limit", "1MB"},
            "MB of memory are needed");
    EXPECT_EQ(bytesOf(target), "valuable");
}

/// The same in a repository. It is its own configuration, whatever that of the user says.
class GitScenario : public MergeScenario {
protected:
    void SetUp() override
    {
        if (QStandardPaths::findExecutable("git").isEmpty())
            GTEST_SKIP() << "git is not installed";
        for (const char *name : {"GIT_CONFIG_GLOBAL", "HOME", "XDG_CONFIG_HOME"})
            qputenv(name, path(name).toUtf8());
        qputenv("GIT_CONFIG_NOSYSTEM", "1");
        for (const char *name : {"GIT_AUTHOR_", "GIT_COMMITTER_"}) {
            qputenv(QByteArray(name) + "NAME", "A. Tester");
            qputenv(QByteArray(name) + "EMAIL", "tester@example.org");
        }
        for (const char *name : {"GIT_DIR", "GIT_WORK_TREE", "GIT_INDEX_FILE", "GIT_EXTERNAL_DIFF"})
            qunsetenv(name);
        QDir::setCurrent(made("work tree"));
        git(0, {"init", "--quiet", "--initial-branch=ours"});
    }
    void TearDown() override { QDir::setCurrent("/"); }

    static QByteArray git(int code, const QStringList &arguments)
    {
        TestProgram program;
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start("git", QStringList{"--no-pager"} + arguments);
        const ProgramRun run = ended(program);
        EXPECT_EQ(run.code, code) << arguments.join(' ').toStdString() << "\n"
                                  << run.out.constData();
        return run.out;
    }
    /// Commits both files with these sets, and with another lamp in the scene.
    void commit(const QByteArray &sets, const QByteArray &lamp)
    {
        write("work tree/cars/desk.gltf", scene(sets, {{"\"Lamp\"", '"' + lamp + '"'}}));
        write("work tree/all.variants.xml", document(sets));
        git(0, {"add", "--all"});
        git(0, {"commit", "--quiet", "--message", "sets"});
    }
};

TEST_F(GitScenario, TwoPeopleWorkOnVariants)
{
    const QString attributes = path("work tree/.gitattributes");
    const QByteArray own = "*.glb binary\r\n*.gltf text\r\n*.png binary";
    write("work tree/.gitattributes", own);
    done({"git-setup", "--dry-run"});
    EXPECT_EQ(bytesOf(attributes), own);
    EXPECT_FALSE(git(0, {"config", "--list", "--local"}).contains("qxvariants"));
    done({"git-setup"});
    const QByteArray written = bytesOf(attributes);
    const QByteArray config = git(0, {"config", "--list", "--local"});
    EXPECT_EQ(written,
              own
                  + "\r\n*.gltf merge=qxvariants diff=qxvariants\r\n"
                    "*.variants.xml merge=qxvariants diff=qxvariants\r\n");
    EXPECT_FALSE(done({"git-setup"}).out.contains("+ "));
    EXPECT_EQ(bytesOf(attributes), written);
    EXPECT_EQ(git(0, {"config", "--list", "--local"}), config);

    commit(set("Red") + set("Blue"), "Lamp");
    git(0, {"checkout", "--quiet", "-b", "theirs"});
    commit(set("Red") + set("Blue") + set("Green"), "Lamp");
    git(0, {"checkout", "--quiet", "ours"});
    commit(set("Black") + set("Red", "changed") + set("Blue"), "Light");
    const QByteArray diff = git(0, {"diff", "HEAD~"});
    for (const char *text : {"a/cars/desk.gltf", "b/all.variants.xml", "Black", "changed"})
        EXPECT_TRUE(diff.contains(text)) << text << diff.constData();
    git(0, {"merge", "--quiet", "--no-edit", "theirs"});
    const QByteArray list = "Black\nRed\nBlue\nGreen";
    const auto names = [this](const QByteArray &xml) {
        QByteArray all;
        for (const QByteArray &part : xml.split('\n')) {
            if (part.contains("<VariantSet"))
                all += (all.isEmpty() ? "" : "\n") + part.split('"')[1];
        }
        return all;
    };
    const QString alone = path("work tree/all.variants.xml");
    const QString desk = path("work tree/cars/desk.gltf");
    EXPECT_EQ(names(bytesOf(alone)), list);
    EXPECT_EQ(names(documentOf(desk)), list);
    EXPECT_TRUE(bytesOf(desk).contains("\"Light\""));

    git(0, {"checkout", "--quiet", "-B", "theirs"});
    commit(set("Red", "theirs"), "Light");
    git(0, {"checkout", "--quiet", "ours"});
    commit(set("Red", "ours"), "Light");
    const QByteArray told = git(1, {"merge", "theirs"});
    for (const char *text : {"all.variants.xml: 1 conflict", "set \"Red\", comment",
                             "CONFLICT (content): Merge conflict in cars/desk.gltf"})
        EXPECT_TRUE(told.contains(text)) << text << told.constData();
    EXPECT_EQ(names(bytesOf(alone)), "Red\nRed (theirs)");
    EXPECT_EQ(names(documentOf(desk)), "Red\nRed (theirs)");
    EXPECT_TRUE(git(0, {"status", "--short"}).contains("UU all.variants.xml"));
}

TEST_F(GitScenario, WhatCannotBeReadIsAConflictAndOtherFilesAreShown)
{
    done({"git-setup"});
    commit(set("Red"), "Lamp");
    git(0, {"checkout", "--quiet", "-b", "theirs"});
    commit(set("Red") + set("Blue"), "Lamp");
    git(0, {"checkout", "--quiet", "ours"});
    const QByteArray torn = document("<Torn");
    const QString file = write("work tree/all.variants.xml", torn);
    write("work tree/cars/desk.gltf", scene(set("Red", "new")));
    const QByteArray diff = git(0, {"diff"});
    EXPECT_TRUE(diff.contains('+' + torn) && diff.contains("+ comment: new")) << diff.constData();
    git(0, {"commit", "--quiet", "--all", "--message", "torn"});
    EXPECT_TRUE(git(1, {"merge", "theirs"}).contains("all.variants.xml (ours): variants document"));
    EXPECT_EQ(bytesOf(file), torn);
}
