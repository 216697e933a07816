#include "HostFixture.h"

HostFixture::HostFixture()
{
    m_logListener = qxLog::addListener([this](qxLog::Level level, const std::string &line) {
        m_lines.push_back({level, line});
    });
}

HostFixture::~HostFixture()
{
    qxLog::removeListener(m_logListener);
}

void HostFixture::TearDown()
{
    EXPECT_EQ(logged(qxLog::Error), m_expectedErrors);
}

std::vector<std::string> HostFixture::logged(qxLog::Level level) const
{
    std::vector<std::string> found;
    for (const auto &line : m_lines) {
        if (line.first == level)
            found.push_back(line.second);
    }
    return found;
}
