#include "qxLog.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

typedef std::vector<std::pair<qxLog::Level, std::string>> Lines;

class LogTest : public testing::Test {
protected:
    LogTest()
    {
        m_listener = qxLog::addListener([this](qxLog::Level level, const std::string &line) {
            lines.push_back({level, line});
        });
    }
    ~LogTest() override { qxLog::removeListener(m_listener); }

    Lines lines;

private:
    int m_listener;
};

} // namespace

TEST_F(LogTest, LinesEndInOneBreakWhateverTheirTextEndsIn)
{
    const std::string name(5000, 'x');
    testing::internal::CaptureStderr();
    qxLog::info("plain");
    qxLog::warning("%s\n", name.c_str());
    qxLog::error("%d of %s\n", 3, "100%");

    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "plain\nwarning: " + name + "\nerror: 3 of 100%\n");
    EXPECT_EQ(lines,
              (Lines{{qxLog::Info, "plain"}, {qxLog::Warning, name}, {qxLog::Error, "3 of 100%"}}));
}
