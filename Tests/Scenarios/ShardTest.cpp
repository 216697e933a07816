#include "Program.h"
#include "Session/qxShardCosts.h"
#include "Session/qxShardPlan.h"
#include "qxTestPaths.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>

#include <ostream>

/// Work that several processes share: the parts, and what is made of them.
class ShardTest : public ProgramFixture {
protected:
    typedef QMap<QString, QByteArray> Files; ///< what they hold, by their names

    /// All files below a folder.
    static Files filesIn(const QString &folderPath)
    {
        Files files;
        QDirIterator each(folderPath, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (each.hasNext()) {
            const QString file = each.next();
            files[QDir(folderPath).relativeFilePath(file)] = bytesOf(file);
        }
        return files;
    }
    QStringList products() const
    {
        QStringList names;
        for (const QString &name : filesIn(parts + "/products").keys())
            names += parts + "/products/" + name;
        return names;
    }
    QStringList part(const char *option, const QString &value) const
    {
        return {"--parts", parts, option, value};
    }
    /// Has all shards made, and returns how many products there were to make.
    int share(const QStringList &command, int count) const
    {
        int made = 0;
        for (int shard = 1; shard <= count; ++shard)
            made += done(command + part("--shard", QString("%1/%2").arg(shard).arg(count)))
                        .out.split(' ')
                        .value(4)
                        .toInt();
        return made;
    }
    QJsonObject plan() const { return parsed(bytesOf(parts + "/plan.json")).object(); }
    /// The previews of all sets.
    QStringList previews() const { return {"previews", file, "--all", "--quality", "quick"}; }

    const QString file = write("signs.gltf", sceneWith("signs"));
    const QString parts = made("parts");
};

TEST_F(ShardTest, WhatIsGatheredIsWhatOneProcessMakes)
{
    // Another set shows nothing else than the first one.
    QByteArray twice = documentOf(file);
    twice.replace("<VariantSet name=\"Away\"",
                  "<VariantSet name=\"Twin\"><NodeVariantRef ref=\"Sign\" state=\"Red\"/>"
                  "</VariantSet><VariantSet name=\"Away\"");
    write("signs.gltf", sceneWith("signs", twice));
    for (const auto &[call, option, output, more] :
         {std::tuple("previews --all --quality quick", "--save", "a.glb", ""),
          {"previews --quality quick", "--save", "a.gltf", "--json"},
          {"render --all --size 40x30 --quality quick --view Aside", "--out", "out", ""},
          {"render --all --size 40x30 --quality quick", "--out", "sheet.png", ""},
          {"catalogue --quality quick --exposure 1", "--out", "out", ""},
          {"publish --quality quick --title Signs", "--single-file", "a.html", ""},
          {"verify", "--report", "a.csv", ""},
          {"lint", "--report", "a.txt", ""},
          {"lint", "--report", "a.xml", "--junit"}}) {
        SCOPED_TRACE(call);
        QStringList command = QString(call).split(' ');
        command.insert(1, file);
        const QStringList form = QString(more).split(' ', Qt::SkipEmptyParts);
        const QString out =
            QString(output) == "out" ? made("result/out") : path("result/") + output;
        made("result");
        const ProgramRun whole = workbench(command + QStringList{option, out} + form);
        if (whole.err.contains("built without the viewer"))
            continue;
        const Files files = filesIn(path("result"));
        EXPECT_FALSE(files.isEmpty());
        ASSERT_TRUE(QDir(path("result")).removeRecursively() && QDir(parts).removeRecursively());
        made(QString(output) == "out" ? "result/out" : "result");
        made("parts");

        share(command, 3);
        const ProgramRun gathered =
            exits(whole.code, QStringList{"gather", parts, "--save", out} + form);
        EXPECT_EQ(gathered.out, whole.out);
        EXPECT_EQ(filesIn(path("result")), files);
        ASSERT_TRUE(QDir(path("result")).removeRecursively());
    }
}

TEST_F(ShardTest, WhatIsMissingOrDamagedIsNamedAndMadeAgain)
{
    EXPECT_EQ(share(previews(), 2), 3);
    const QString saved = path("saved.glb");
    const QStringList gather{"gather", parts, "--save", saved};
    const QStringList pictures = products();
    ASSERT_EQ(pictures.size(), 3);
    const auto nameOf = [this](const QString &picture) {
        for (const QJsonValue &item : plan()["items"].toArray()) {
            if (picture.contains(item["product"].toString()))
                return item["name"].toString();
        }
        return QString();
    };

    // One is gone, one is cut off, one is another one.
    const QByteArray one = bytesOf(pictures[0]);
    ASSERT_TRUE(QFile::remove(pictures[0]));
    ASSERT_TRUE(QFile::resize(pictures[1], 700));
    write(pictures[2].mid(folder.path().size() + 1), one);
    const ProgramRun run = failed(gather);
    for (const QString &picture : pictures)
        EXPECT_TRUE(run.err.contains("\"" + nameOf(picture).toUtf8() + "\" of shard "))
            << run.err.toStdString();
    EXPECT_TRUE(run.err.endsWith("3 of 3 are missing; nothing was written\n"));
    EXPECT_EQ(done(previews() + part("--plan", "2") + QStringList("--json")).object()["missing"],
              3);
    EXPECT_EQ(share(previews(), 2), 3);
    EXPECT_EQ(bytesOf(pictures[0]), one);
    EXPECT_EQ(share(previews(), 2), 0);

    // One lost a piece between beginning and end.
    write(pictures[0].mid(folder.path().size() + 1), QByteArray(one).remove(600, 9));
    refused(1, gather, "it is damaged; remove it and have its shard make it again\n");
    EXPECT_FALSE(QFile::exists(saved));
}

TEST_F(ShardTest, AnEditMakesMissingJustWhatItChanges)
{
    EXPECT_EQ(share(previews(), 2), 3);
    const QByteArray edited = documentOf(file).replace(
        "<ViewpointRef", "<NodeVariantRef ref=\"Sign\" state=\"Blue\"/><ViewpointRef");
    write("signs.gltf", sceneWith("signs", edited));
    const QByteArray changed = file.toUtf8()
        + " has changed since the plan was made; --plan 2 plans anew, and keeps what still holds\n";
    const QStringList gather{"gather", parts, "--save", path("gathered.glb")};
    refused(1, gather, changed);
    refused(1, previews() + part("--shard", "1/2"), changed);
    const QJsonObject told =
        done(previews() + part("--plan", "2") + QStringList("--json")).object();
    EXPECT_EQ(told["missing"], 1);
    EXPECT_EQ(told["items"], 3);
    EXPECT_EQ(told["tasks"].toArray().size(), 2);
    EXPECT_GT(told["bytes"].toDouble(), 1e6);
    EXPECT_EQ(share(previews(), 2), 1);
    done(gather);
    done(previews() + QStringList{"--save", path("whole.glb")});
    EXPECT_EQ(bytesOf(path("gathered.glb")), bytesOf(path("whole.glb")));

    // Of stale ones nothing is left to share.
    const QStringList stale{"previews", path("whole.glb"), "--stale", "--quality", "quick"};
    EXPECT_EQ(done(stale + part("--plan", "2") + QStringList("--json")).object()["items"], 0);
}

TEST_F(ShardTest, APlanIsFollowedOnlyByTheWorkThatItIsFor)
{
    done(previews() + part("--plan", "2"));
    refused(1, {"previews", file, "--parts", parts, "--shard", "1/2"},
            "the plan is for \"previews --all --quality quick\", not for \"previews\"\n");
    refused(1, previews() + part("--shard", "1/3"), "the plan is for 2 shards, not for 3\n");
    const QByteArray good = bytesOf(parts + "/plan.json");
    const QStringList gather{"gather", parts, "--save", path("out.glb")};
    for (const auto &[from, to, reason] :
         {std::tuple("\"previews\"", "\"run\"", "the plan is for \"run\", which no shards work on"),
          {"\"--all\"", "\"--save\", \"/tmp/a.glb\"", "the plan is for \"previews --save"},
          {"\"format\": 1", "\"format\": 2", "it is a plan of another version"},
          {"\"workbench ", "\"workbench 9", "the plan is one of workbench 9"},
          {"\"product\": \"", "\"product\": \"../", "it is no sound plan"},
          {"\"shards\": 2", "\"shards\": 0", "it is no sound plan"},
          {"{", "[", "it is no plan"}}) {
        write("parts/plan.json", QByteArray(good).replace(from, to));
        refused(1, gather, reason);
    }
}

TEST_F(ShardTest, SeveralProcessesOfOneShardDoNoHarm)
{
    TestProgram first;
    TestProgram second;
    for (QProcess *process : {static_cast<QProcess *>(&first), static_cast<QProcess *>(&second)})
        process->start(QStringLiteral(QX_BUILD_BIN "/workbench"),
                       previews() + part("--shard", "1/1"));
    EXPECT_EQ(ended(first).code, 0);
    EXPECT_EQ(ended(second).code, 0);
    const QStringList files = filesIn(parts).keys();
    EXPECT_EQ(files.filter("products/").size(), 3);
    EXPECT_EQ(files.size() - files.filter("products/").size() - files.filter("costs/").size(), 1)
        << files.join(' ').toStdString();
    done({"gather", parts, "--save", path("gathered.glb")});
    done(previews() + QStringList{"--save", path("whole.glb")});
    EXPECT_EQ(bytesOf(path("gathered.glb")), bytesOf(path("whole.glb")));
}

TEST_F(ShardTest, AnInterruptedShardKeepsWhatItHasMade)
{
    const QStringList render{"render", file, "--all", "--size", "2000x2000", "--quality", "quick"};
    done(render + part("--plan", "1"));
    const QByteArray said = interrupted(render + part("--shard", "1/1"), "2/3");
    EXPECT_TRUE(said.contains("interrupted; 1 of 3 pictures are in ")) << said.toStdString();
    EXPECT_EQ(products().size(), 1);
    EXPECT_EQ(filesIn(parts + "/costs").size(), 1);
    EXPECT_EQ(done(render + part("--plan", "1") + QStringList("--json")).object()["missing"], 2);
}

TEST_F(ShardTest, ScriptsThatFailFailTheResultAndNotTheShards)
{
    write("signs.gltf",
          sceneWith("signs", documentOf(file).replace("print(", "raise ValueError(")));
    const QStringList scripts("--scripts");
    failed(previews() + scripts + QStringList{"--save", path("whole.glb")});
    share(previews() + scripts, 2);
    failed({"gather", parts, "--save", path("gathered.glb")});
    EXPECT_EQ(bytesOf(path("gathered.glb")), bytesOf(path("whole.glb")));
}

TEST_F(ShardTest, ShardsAreBalancedByWhatWasMeasured)
{
    write("parts/costs/elsewhere.json",
          R"({"command": ["previews", "--all", "--quality", "quick"], "loadSeconds": 10,
              "peakBytes": 5000000, "items": [{"name": "Stop / halt", "seconds": 30},
              {"name": "stop : halt", "seconds": 20}, {"name": "Away", "seconds": 15}]})");
    write("parts/costs/other.json",
          R"({"command": ["previews"], "items": [{"name": "Away", "seconds": 999}]})");
    write("parts/costs/half.json", R"({"command": ["prev)");
    const QJsonObject told =
        done(previews() + part("--plan", "2") + QStringList("--json")).object();
    QStringList shards;
    for (const QJsonValue &item : plan()["items"].toArray())
        shards += item["name"].toString() + QString(" in %1").arg(item["shard"].toInt());
    EXPECT_EQ(shards, (QStringList{"Stop / halt in 1", "stop : halt in 2", "Away in 2"}));
    EXPECT_EQ(told["seconds"], 45);
    EXPECT_EQ(told["bytes"], 5000000);

    // What is there weighs nothing, but has a shard in case that it is lost.
    qxShardPlan plan;
    plan.shards = 2;
    plan.items = {{"a", "aa", 9}, {"b", "bb", 5}, {"c", "cc", 4}, {"d", "aa", 9}, {"e", "ee", 3}};
    const auto isThere = [](const QByteArray &product) { return product == "aa"; };
    plan.share(isThere);
    QVector<int> places;
    for (const qxShardPlan::Item &item : plan.items)
        places += item.shard;
    EXPECT_EQ(places, (QVector<int>{1, 1, 2, 1, 2}));
    EXPECT_EQ(plan.secondsOfShards(isThere), (QVector<double>{5, 7}));

    QVector<double> seconds{-1, 4, -1, -1, -1, 8, -1};
    qxShardCosts::fill(seconds);
    EXPECT_EQ(seconds, (QVector<double>{4, 4, 4, 4, 8, 8, 8}));
}
