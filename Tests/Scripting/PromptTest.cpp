#include "Program.h"

#include <QProcess>

#include <fcntl.h>
#include <poll.h>

#include <csignal>
#include <cstdlib>
#include <unistd.h>

/// The prompt as a person at a terminal sees it.
class PromptTest : public ProgramFixture {
protected:
    PromptTest() : m_terminal(posix_openpt(O_RDWR | O_NOCTTY))
    {
        EXPECT_TRUE(m_terminal >= 0 && grantpt(m_terminal) == 0 && unlockpt(m_terminal) == 0);
    }
    ~PromptTest() override
    {
        m_program.kill();
        m_program.waitForFinished();
        close(m_terminal);
    }

    void start(const QStringList &arguments)
    {
        const QString name = QString::fromLocal8Bit(ptsname(m_terminal));
        m_program.setStandardInputFile(name);
        m_program.setStandardOutputFile(name);
        m_program.setStandardErrorFile(name);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("TERM", "dumb");
        m_program.setProcessEnvironment(environment);
        m_program.start(QStringLiteral(QX_BUILD_BIN "/workbench"), arguments);
        ASSERT_TRUE(m_program.waitForStarted());
    }

    /// What the terminal shows until `end`.
    QByteArray shownUntil(const QByteArray &end)
    {
        QByteArray shown;
        pollfd waiting{m_terminal, POLLIN, 0};
        while (!shown.endsWith(end) && poll(&waiting, 1, 30000) == 1) {
            char byte;
            if (read(m_terminal, &byte, 1) != 1)
                break;
            shown += byte;
        }
        EXPECT_TRUE(shown.endsWith(end)) << shown.toStdString();
        return shown;
    }

    /// Types the keys and returns what is shown until the next prompt.
    QByteArray typed(const QByteArray &keys, const QByteArray &next = ">>> ")
    {
        EXPECT_EQ(::write(m_terminal, keys.constData(), std::size_t(keys.size())), keys.size());
        return shownUntil(next).replace("\r\n", "\n");
    }

    /// As Ctrl-C does, at human speed: a prompt that is still busy with the key before would notice
    /// it with the next one only.
    void interrupt()
    {
        sleep(1);
        kill(pid_t(m_program.processId()), SIGINT);
    }

    int ended()
    {
        EXPECT_TRUE(m_program.waitForFinished(30000));
        EXPECT_EQ(m_program.exitStatus(), QProcess::NormalExit);
        return m_program.exitCode();
    }

private:
    const int m_terminal;
    QProcess m_program;
};

TEST_F(PromptTest, StatementsRunInTheSceneAndTheEndOfInputSavesIt)
{
    const QString saved = path("saved.gltf");
    start({"python", desk(), "--save", saved});
    shownUntil(">>> ");
    EXPECT_TRUE(typed("getVariantSets()[0]\n").contains("\n'Morning'\n"));
    EXPECT_TRUE(typed("selectVariantSet('Evening')\n").contains("\nlate\n"));
    typed("for i in range(2):\n", "... ");
    typed("    print('no. %d' % i)\n", "... ");
    EXPECT_TRUE(typed("\n").contains("no. 0\nno. 1\n"));
    EXPECT_TRUE(typed("print(u'Stra\xC3\x9F' + u'e')\n")
                    .contains("\nStra\xC3\x9F"
                              "e\n"));
    typed("\x04", "\n");
    EXPECT_EQ(ended(), 0);
    EXPECT_EQ(done({"select", saved, "Evening", "--json"}).array()[0]["changes"], QJsonArray());
}

TEST_F(PromptTest, LinesCanBeEditedCompletedAndTakenFromTheHistory)
{
    start({"python", desk()});
    shownUntil(">>> ");
    EXPECT_TRUE(typed("print(6 * 8\x7f"
                      "7)\n")
                    .contains("\n42\n"));
    EXPECT_TRUE(typed("\x1b[A\n").contains("\n42\n"));
    EXPECT_TRUE(typed("len(getVariantSe\t))\n").contains("\n3\n"));
    typed("\x04", "\n");
    EXPECT_EQ(ended(), 0);
}

TEST_F(PromptTest, ACaptureAsksBeforeItRenamesNodes)
{
    const QString twins = write("twins.gltf", R"({"asset":{"version":"2.0"},"scene":0,
        "scenes":[{"nodes":[0,1]}],"nodes":[
        {"name":"Wheels","children":[2],"extras":{"qxSwitch":0}},
        {"name":"Wheels","children":[3],"extras":{"qxSwitch":0}},
        {"name":"Steel"},{"name":"Alloy"}]})");
    const QString saved = path("saved.gltf");
    const QByteArray question = "Rename them? [y/N] ";
    for (const char *answer : {"n\n", "\n", "\x04"}) {
        start({"capture", twins, "Sport", "--save", saved});
        shownUntil(question);
        typed(answer, "new names\r\n");
        EXPECT_EQ(ended(), 1);
        EXPECT_FALSE(QFile::exists(saved));
    }
    start({"capture", twins, "Sport", "--save", saved});
    shownUntil(question);
    typed("y\n", "to \"Wheels 2\"\r\n");
    EXPECT_EQ(ended(), 0);
    EXPECT_TRUE(QFile::exists(saved));
}

TEST_F(PromptTest, MistakesAreShownAndThePromptGoesOn)
{
    start({"python", desk()});
    shownUntil(">>> ");
    EXPECT_TRUE(typed("1 / 0\n").contains("ZeroDivisionError"));
    EXPECT_TRUE(typed("foo bar\n").contains("SyntaxError"));
    typed("'no UTF-8: \xFF'\n");
    EXPECT_TRUE(typed("findVariantSet('Morning').addScript('selectVariantSet(\"Morning\")')\n")
                    .endsWith("\n>>> "));
    EXPECT_TRUE(typed("selectVariantSet('Morning')\n").contains("more than 32 levels deep"));
    typed("while True:\n", "... ");
    typed("abandoned(", "abandoned(");
    interrupt();
    EXPECT_TRUE(shownUntil(">>> ").contains("KeyboardInterrupt"));
    EXPECT_TRUE(typed("while True: pass\n", "... ").contains("while"));
    typed("\n", "\r\n");
    interrupt();
    EXPECT_TRUE(shownUntil(">>> ").contains("KeyboardInterrupt"));
    EXPECT_TRUE(typed("1 + 1\n").contains("\n2\n"));
    typed("import sys; sys.exit(3)\n", "\n");
    EXPECT_EQ(ended(), 1);
}
