#include "HostFixture.h"
#include "Script/qxScriptRunner.h"
#include "Stage.h"

#include <QDir>
#include <QFile>

namespace {

/// A file of Python tests in a host of its own.
class PythonTest : public HostFixture, public testing::WithParamInterface<std::string> {
protected:
    PythonTest() { Stage::current = &m_stage; }
    ~PythonTest() override
    {
        Stage::current = nullptr;
        host.clearScene();
    }

    static std::string textOf(const std::string &fileName)
    {
        QFile file(QString::fromStdString(fileName));
        EXPECT_TRUE(file.open(QFile::ReadOnly)) << fileName;
        return file.readAll().toStdString();
    }

    /// Runs the file as a script would be run, with the same global names.
    static void run(const std::string &name)
    {
        const std::string fileName = QX_PYTHON_TESTS "/" + name;
        EXPECT_TRUE(qxScriptRunner::run(textOf(fileName), fileName)) << fileName;
    }

    int reported = 0;

private:
    void report(const std::string &name, const std::string &failure)
    {
        ++reported;
        std::printf("    %s %s\n", failure.empty() ? "ok    " : "FAILED", name.c_str());
        if (!failure.empty())
            ADD_FAILURE() << name << "\n" << failure;
    }

    Stage m_stage{
        &host, &notifications,
        [this](const std::string &name, const std::string &failure) { report(name, failure); }};
};

std::vector<std::string> testFiles()
{
    std::vector<std::string> names;
    for (const QString &name : QDir(QX_PYTHON_TESTS).entryList({"test_*.py"}, QDir::Files))
        names.push_back(name.toStdString());
    return names;
}

} // namespace

TEST_P(PythonTest, Passes)
{
    run(GetParam());
    run("run_tests.py");
    EXPECT_GT(reported, 0);
}

INSTANTIATE_TEST_SUITE_P(
    File, PythonTest, testing::ValuesIn(testFiles()),
    [](const testing::TestParamInfo<std::string> &file) {
        return QFileInfo(QString::fromStdString(file.param)).baseName().toStdString();
    });
