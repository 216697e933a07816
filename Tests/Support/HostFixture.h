#pragma once

#include "NotificationLog.h"
#include "TestScene.h"
#include "qxController.h"
#include "qxHost.h"
#include "qxLog.h"
#include "qxMaterials.h"

#include <gtest/gtest.h>

/// A test with its own host and an empty scene, which records every notification and log line.
///
/// An error line that the test did not expect fails it, and so does an expected one that never
/// came. A class derived from this one that overrides TearDown must call this one's.
class HostFixture : public testing::Test {
protected:
    HostFixture();
    ~HostFixture() override;
    void TearDown() override;

    /// Expects exactly this error line (without line break) once more.
    void expectError(const std::string &line) { m_expectedErrors.push_back(line); }
    /// The error lines that were not expected yet; they count as expected from now on.
    std::vector<std::string> takeErrors();
    /// The lines of that level logged so far, in order.
    std::vector<std::string> logged(qxLog::Level level) const;
    /// The notifications of that name heard so far.
    std::vector<Notification> heard(const std::string &name) const
    {
        return notifications.all(name);
    }

    qxHost host;
    TestScene scene;
    NotificationLog notifications;
    std::vector<unsigned int> moduleMessages; ///< the codes of those that all modules heard

private:
    std::vector<std::pair<qxLog::Level, std::string>> m_lines;
    std::vector<std::string> m_expectedErrors;
    int m_logListener = 0;
    int m_moduleListener = 0;
};
