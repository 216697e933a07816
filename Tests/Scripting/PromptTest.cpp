#include "Program.h"
#include "qxTestPaths.h"

#include <fcntl.h>
#include <poll.h>

#include <cstdlib>
#include <unistd.h>

/// The program at a terminal of its own.
class TerminalProgram : public TestProgram {
public:
    TerminalProgram() : m_screen(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
        EXPECT_TRUE(m_screen >= 0 && grantpt(m_screen) == 0 && unlockpt(m_screen) == 0);
        m_name = ptsname(m_screen);
    }
    ~TerminalProgram() override
    {
        kill();
        waitForFinished();
        ::close(m_screen);
    }
    int screen() const { return m_screen; }

protected:
    void setupChildProcess() override
    {
        TestProgram::setupChildProcess();
        setsid(); // A terminal belongs to whom leads a session and opens it.
        const int terminal = ::open(m_name.c_str(), O_RDWR);
        for (int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
            dup2(terminal, stream);
        setenv("TERM", "dumb", 1);
    }

private:
    const int m_screen; ///< the person's end
    std::string m_name; ///< of the program's
};

/// The prompt as a person at a terminal sees it.
class PromptTest : public ProgramFixture {
protected:
    /// Waits until the program asks.
    void start(const QStringList &arguments, const QByteArray &question = ">>> ")
    {
        m_program = std::make_unique<TerminalProgram>();
        m_terminal = m_program->screen();
        m_program->start(QStringLiteral(QX_BUILD_BIN "/workbench"), arguments);
        ASSERT_TRUE(m_program->waitForStarted());
        shownUntil(question);
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

    void shows(const QByteArray &keys, const QByteArray &text)
    {
        const QByteArray shown = typed(keys);
        EXPECT_TRUE(shown.contains(text)) << shown.toStdString();
    }

    /// As Ctrl-C does, at human speed and until it shows: a prompt that is still busy with the key
    /// before notices it with the next one only.
    void interrupt()
    {
        pollfd waiting{m_terminal, POLLIN, 0};
        for (int tries = 0; tries < 5; ++tries) {
            sleep(1);
            kill(pid_t(m_program->processId()), SIGINT);
            if (poll(&waiting, 1, 6000) == 1)
                return;
        }
    }

    int ended()
    {
        EXPECT_TRUE(m_program->waitForFinished(30000));
        EXPECT_EQ(m_program->exitStatus(), QProcess::NormalExit);
        return m_program->exitCode();
    }

private:
    std::unique_ptr<TerminalProgram> m_program;
    int m_terminal = -1;
};

TEST_F(PromptTest, StatementsRunInTheSceneThatTheEndOfInputSaves)
{
    const QString saved = path("saved.gltf");
    start({"python", desk(), "--scripts", "--save", saved});
    shows("getVariantSets()[0]\n", "\n'Morning'\n");
    shows("selectVariantSet('Evening')\n", "\nlate\n");
    typed("for i in range(2):\n", "... ");
    typed("    print('no. %d' % i)\n", "... ");
    shows("\n", "no. 0\nno. 1\n");
    shows("print(u'Straß' + u'e')\n", "\nStraße\n");
    shows("print(6 * 8\1777)\n", "\n42\n"); // the 8 is deleted
    shows("\x1b[A\n", "\n42\n"); // the same line from the history
    shows("len(getVariantG\t))\n", "\n2\n"); // completed
    typed("\x04", "\n");
    EXPECT_EQ(ended(), 0);
    EXPECT_EQ(done({"select", saved, "Evening", "--json"}).array()[0]["changes"], QJsonArray());
}

TEST_F(PromptTest, ACaptureAsksBeforeItRenamesNodes)
{
    const QString twins = testData("Scenes/twins.gltf");
    const QString saved = path("saved.gltf");
    for (const char *answer : {"n\n", "\n", "\x04", "y\n"}) {
        const bool agreed = answer == std::string("y\n");
        start({"capture", twins, "Sport", "--save", saved}, "Rename them? [y/N] ");
        typed(answer, agreed ? "to \"Wheels 2\"\r\n" : "new names\r\n");
        EXPECT_EQ(ended(), agreed ? 0 : 1);
        EXPECT_EQ(QFile::exists(saved), agreed);
    }
}

TEST_F(PromptTest, MistakesLeaveThePromptUsable)
{
    start({"python", desk()});
    shows("1 / 0\n", "ZeroDivisionError");
    shows("foo bar\n", "SyntaxError");
    typed("'no UTF-8: \xFF'\n");
    typed("findVariantSet('Morning').addScript('selectVariantSet(\"Morning\")')\n");
    shows("selectVariantSet('Morning')\n", "more than 32 levels deep");
    typed("while True:\n", "... ");
    typed("abandoned(", "abandoned(");
    interrupt();
    EXPECT_TRUE(shownUntil(">>> ").contains("KeyboardInterrupt"));
    typed("while True: pass\n", "... ");
    typed("\n", "\r\n");
    interrupt();
    EXPECT_TRUE(shownUntil(">>> ").contains("KeyboardInterrupt"));
    shows("1 + 1\n", "\n2\n");
    typed("import sys; sys.exit(3)\n", "\n");
    EXPECT_EQ(ended(), 1);
}
