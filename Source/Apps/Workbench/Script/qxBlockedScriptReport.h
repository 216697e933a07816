#pragma once

#include <QString>

#include <functional>

/// Tells, as long as it lives, of each script of a set that is blocked when the set is selected.
class qxBlockedScriptReport {
public:
    /// Gets the name of the set and the first line of its script.
    typedef std::function<void(const QString &set, const QString &line)> Listener;

    explicit qxBlockedScriptReport(const Listener &listener);
    qxBlockedScriptReport(const qxBlockedScriptReport &) = delete;
    ~qxBlockedScriptReport();

private:
    int m_notificationListener;
    int m_scriptListener;
    QString m_set; ///< the one that is being selected
};
