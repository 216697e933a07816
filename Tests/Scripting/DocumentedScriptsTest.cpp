#include "Program.h"
#include "qxTestPaths.h"

#include <QRegularExpression>

/// Docs/Scripting.md: its examples run and print what stands there.
class DocumentedScriptsTest : public ProgramFixture {
protected:
    static QStringList namesThatBecome(const QString &state, const QJsonValue &report)
    {
        QStringList names;
        for (const QJsonValue &change : report["changes"].toArray()) {
            if (change["to"] == state)
                names += change["object"].toString().section('/', -1);
        }
        return names;
    }
};

TEST_F(DocumentedScriptsTest, EveryExampleRunsAndPrintsWhatThePageSays)
{
    const QString page = QString::fromUtf8(bytesOf(QStringLiteral(QX_DOCS "/Scripting.md")));
    const QRegularExpression example("^```python\n(.*?)^```\n(?:\n```text\n(.*?)^```\n)?",
                                     QRegularExpression::MultilineOption
                                         | QRegularExpression::DotMatchesEverythingOption);
    int examples = 0;
    for (auto found = example.globalMatch(page); found.hasNext(); ++examples) {
        const QRegularExpressionMatch match = found.next();
        SCOPED_TRACE(match.captured(1).toStdString());
        const ProgramRun run = done({"run", "-", QStringLiteral(QX_DEMO_SCENE), "--scripts"},
                                    match.captured(1).toUtf8());
        EXPECT_EQ(run.out, match.captured(2).toUtf8());
        EXPECT_FALSE(run.out.isEmpty());
        if (match.captured(1).contains("no_such_module"))
            EXPECT_TRUE(run.err.contains("no_such_module")) << run.err.toStdString();
        else
            EXPECT_EQ(run.err, "");
    }
    EXPECT_EQ(examples, page.count("```python"));
    EXPECT_GE(examples, 9);
}

TEST_F(DocumentedScriptsTest, ScriptsOfTheDemoRunWithoutComplaint)
{
    const QString demo = QStringLiteral(QX_DEMO_SCENE);
    const ProgramRun run =
        done({"select", demo, "Without Skin", "Everything Open", "Cut-Away", "Price List",
              "Show Day", "With Skin", "As Delivered", "--json", "--scripts"});
    EXPECT_EQ(run.err,
              "Stadtwagen: 39 900 EUR\n"
              "Küstenstraße: 44 500 EUR\n"
              "Show day: the barrier is up, the sign is put away\n");
    const QStringList skin{"Fenders", "Nose", "Tail Panel", "Sills", "Bonnet", "Rear Deck"};
    EXPECT_EQ(namesThatBecome("hidden", run.array()[0]), skin);
    EXPECT_EQ(namesThatBecome("shown", run.array()[5]), skin);
    EXPECT_TRUE(namesThatBecome("hidden", run.array()[4]).contains("Sign"));
    EXPECT_TRUE(namesThatBecome("shown", run.array()[6]).contains("Sign"));
}
