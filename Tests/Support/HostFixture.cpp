#include "HostFixture.h"

#include "Core/qxModuleBus.h"

HostFixture::HostFixture()
{
    m_logListener = qxLog::addListener([this](qxLog::Level level, const std::string &line) {
        m_lines.push_back({level, line});
    });
    m_moduleListener = qxModuleBus::addListener(
        [this](qxMessage &message) { moduleMessages.push_back(message.code()); });
}

HostFixture::~HostFixture()
{
    host.clearScene(); // and the registry with it, where the test has one
    qxModuleBus::removeListener(m_moduleListener);
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

std::vector<std::string> HostFixture::takeErrors()
{
    const std::vector<std::string> all = logged(qxLog::Error);
    const std::vector<std::string> taken(all.begin() + long(m_expectedErrors.size()), all.end());
    m_expectedErrors = all;
    return taken;
}
