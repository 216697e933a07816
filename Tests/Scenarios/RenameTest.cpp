#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Program.h"
#include "RandomScene.h"
#include "Registry/qxRegistryEdit.h"
#include "Rename/qxSceneRename.h"
#include "Repair/qxDocumentRepair.h"
#include "Session/qxSession.h"
#include "qxExplanation.h"
#include "qxRegistryDocument.h"
#include "qxTestPaths.h"

/// Renaming and repairing by the program, and what sets show before and after.
class RenameStoryTest : public ProgramFixture {
protected:
    /// What selecting each set does, without the names of things.
    static QStringList shown()
    {
        QStringList all;
        for (const qxVariantSet *set : qxVariants::_variantSets) {
            qxForecast forecast;
            const qxExplanation explanation(*set, forecast);
            for (const qxExplainedEntry &each : explanation.entries())
                all += QStringLiteral("%1 %2 %3 %4 %5")
                           .arg(each.kind)
                           .arg(each.found)
                           .arg(each.reached)
                           .arg(each.code ? int(*each.code) : -1)
                           .arg(each.isStateKnown);
            for (const QString &path : set->materialSnapshots.keys())
                all += QString::number(qxSceneLookup().hasPath(path));
        }
        return all;
    }

    static int breaks()
    {
        return int(qxDocumentRepair::find(qxRegistryDocument::current()).size());
    }

    /// Renames it in scene and registry; false when that is refused.
    static bool rename(const qxRenameRequest &wanted)
    {
        qxDocument document = qxRegistryDocument::current();
        const qxSceneRename scene(wanted, document);
        const qxRenameScope scope = scene.scope();
        if (!qxDocumentRename::isKnown(document, scene.request(), scope)
            || !qxDocumentRename::flawOf(document, scene.request(), scope).isEmpty()
            || !scene.flaw().isEmpty())
            return false;
        const qxRenameImpact impact = qxDocumentRename::apply(document, scene.request(), scope);
        scene.apply();
        qxRegistryEdit::apply(document, impact.renames);
        return true;
    }

    /// Renames whatever the document names, one after the other; says how much of it.
    static int renameEverything(const std::vector<qxRenameRequest> &sorts)
    {
        int count = 0;
        const QStringList before = shown();
        const int broken = breaks();
        for (const qxRenameRequest &sort : sorts) {
            const QStringList names =
                qxDocumentRename::namesOf(qxRegistryDocument::current(), sort);
            for (const QString &name : names) {
                SCOPED_TRACE(QStringLiteral("%1 \"%2\"").arg(sort.thing).arg(name).toStdString());
                qxRenameRequest request = sort;
                request.before = name;
                request.after = QStringLiteral("Nêw %1").arg(++count);
                if (!rename(request))
                    continue;
                EXPECT_EQ(shown(), before);
                EXPECT_EQ(breaks(), broken);
                if (testing::Test::HasFailure())
                    return count;
            }
        }
        return count;
    }

    /// Everything that can be renamed in the present registry.
    static std::vector<qxRenameRequest> allSorts()
    {
        std::vector<qxRenameRequest> sorts;
        for (const auto thing :
             {qxRenameRequest::Node, qxRenameRequest::Overlay, qxRenameRequest::Material,
              qxRenameRequest::Viewpoint, qxRenameRequest::TransformState})
            sorts.push_back({thing, nullptr, "", "", ""});
        for (const qxDocumentVariant &each : qxRegistryDocument::current().variants)
            sorts.push_back({qxRenameRequest::Option, each.kind, each.name, "", ""});
        for (const qxVariantKind *kind : qxVariantKinds::all())
            sorts.push_back({qxRenameRequest::Variant, kind, "", "", ""});
        for (const auto thing : {qxRenameRequest::Set, qxRenameRequest::Group})
            sorts.push_back({thing, nullptr, "", "", ""});
        return sorts;
    }
};

TEST_F(RenameStoryTest, SetsOfTheDemoShowWhatTheyShowed)
{
    qxSession session;
    ASSERT_TRUE(session.open(QX_DEMO_SCENE));
    EXPECT_GT(renameEverything(allSorts()), 100);
    const QStringList before = shown();
    ASSERT_TRUE(session.save(path("renamed.gltf")));
    ASSERT_TRUE(session.open(path("renamed.gltf")));
    EXPECT_EQ(shown(), before);
    EXPECT_EQ(breaks(), 0);
}

TEST_F(RenameStoryTest, SetsOfRandomScenesShowWhatTheyShowed)
{
    int count = 0;
    for (unsigned seed = 1; seed <= 60 && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        RandomChoices random(seed);
        const std::string json = randomScene(random, false).dump();
        qxSession session;
        const QString file = write("scene.gltf", QByteArray::fromStdString(json));
        if (!session.open(file))
            continue;
        count += renameEverything(allSorts());
    }
    EXPECT_GT(count, 500);
}

TEST_F(RenameStoryTest, TheFileDiffersWhereTheNameStood)
{
    const QString demo = QX_DEMO_SCENE;
    const QString out = path("out.gltf");
    const ProgramRun run = done({"rename", demo, "option", "Hard Top", "Coupé", "--save", out});
    EXPECT_EQ(run.out,
              "option \"Hard Top\" -> \"Coupé\" (objects in the scene: 1, places in variants and "
              "sets: 3)\n"
              "  set \"Grand Tour\", entry of node variant \"Roof\"  Hard Top -> Coupé\n"
              "  set \"Winterfest\", entry of node variant \"Roof\"  Hard Top -> Coupé\n"
              "  node variant \"Roof\", option                     Hard Top -> Coupé\n");
    const QStringList changed = differences(sceneJson(demo), sceneJson(out));
    ASSERT_EQ(changed.size(), 2) << changed.join(' ').toStdString();
    EXPECT_TRUE(changed[0].endsWith("/name"));
    done({"lint", out});
    // A rehearsal tells the same and writes nothing.
    const QJsonObject dry =
        done({"rename", demo, "option", "Hard Top", "Coupé", "--dry-run", "--json"}).object();
    EXPECT_EQ(dry["changed"].toArray().size(), 3);
    EXPECT_EQ(dry["changed"][2]["after"], "Coupé");

    // A document alone is renamed by its names.
    const QString xml = path("demo.xml");
    done({"document", demo, "--out", xml});
    EXPECT_TRUE(done({"rename", xml, "option", "Hard Top", "Coupé", "--save", path("out.xml")})
                    .out.contains("places in variants and sets: 3"));
    EXPECT_EQ(bytesOf(path("out.xml")), documentOf(out));
}

TEST_F(RenameStoryTest, WhatCannotBeRenamedIsSaid)
{
    const QString demo = QX_DEMO_SCENE;
    const auto refuses = [&](const QStringList &arguments, const char *reason, int code = 1) {
        refused(code, QStringList{"rename", demo} + arguments + QStringList{"--dry-run"}, reason);
    };
    refuses({"node", "Rof", "x"}, "no node is called \"Rof\"; did you mean \"Roof\"?");
    refuses({"light", "Roof", "x"}, "no light is called \"Roof\"");
    refuses({"node", "Roof", "Body"}, "the scene has something called \"Body\" already");
    refuses({"knot", "Roof", "x"}, "nothing is of the kind \"knot\"", 2);
    refuses({"option", "!Next", "x"}, "say which with --of VARIANT");
    refused(2, {"rename", demo, "node", "Roof", "x"}, "either --save OUT or --dry-run");
    refused(1, {"rename", demo, "node", "Roof", "x", "--save", path("x.xml")}, "is a scene");
}

TEST_F(RenameStoryTest, WhatAnotherProgramRenamedIsRepaired)
{
    QByteArray scene = bytesOf(QX_DEMO_SCENE);
    const QString old = write("old.gltf", scene);
    scene.replace(R"("name": "Hard Top")", R"("name": "Coupe")");
    scene.replace(R"("name": "Headlight")", R"("name": "Glim")");
    const QString now = write("now.gltf", scene);
    const ProgramRun found = failed({"repair", now, "--json"});
    const QJsonArray broken = found.object()["broken"].toArray();
    ASSERT_EQ(broken.size(), 2) << found.out.toStdString();
    EXPECT_EQ(broken[0]["key"], "node-state:Roof:Hard Top");
    EXPECT_EQ(broken[0]["candidates"][0]["name"], "Coupe");
    EXPECT_EQ(broken[1]["key"], "light-object:Headlight");
    EXPECT_EQ(broken[1]["candidates"][0]["name"], "Glim");

    const QString out = path("out.gltf");
    refused(1, {"repair", now, "--choose", "node-state:Roof:Hard Top=x"}, "has no candidate");
    refused(1, {"repair", now, "--choose", "node-state:Roof:Hard Top"}, "as in");
    refused(1, {"repair", now, "--choose", "light-object:Headligt=Glim"}, "did you mean");
    const QString choice = "node-state:Roof:Hard Top=Coupe";
    EXPECT_TRUE(failed({"repair", now, "--choose", choice}).out.contains("nothing is saved"));
    EXPECT_EQ(failed({"repair", now, "--choose", choice, "--json", "--save", out})
                  .object()["repaired"]
                  .toArray()
                  .size(),
              1);
    // Whoever remembers the old scene knows the light as well.
    const QString all = path("all.gltf");
    done({"repair", out, "--history", old, "--apply", "--save", all});
    EXPECT_EQ(done({"repair", all}).out, "repaired: 0, broken: 0\n");
    EXPECT_TRUE(documentOf(all).contains("base=\"Glim\""));
}
