#pragma once

#include <QString>

/// Leaves out, as long as it lives, the scripts that a scene file brings along, and says on
/// standard error which sets they belong to. What a command runs itself is not touched.
class qxLeftOutScripts {
public:
    /// Does nothing with `leaveOut` false.
    explicit qxLeftOutScripts(bool leaveOut);
    qxLeftOutScripts(const qxLeftOutScripts &) = delete;
    ~qxLeftOutScripts();

private:
    const bool m_leaveOut;
    int m_notificationListener = 0;
    int m_scriptListener = 0;
    QString m_set; ///< the one that is being selected
};
