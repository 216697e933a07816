#pragma once

#include <QString>

#include <functional>

/// Tells, as long as it lives, of each script of a set that is left out, when that is selected.
class qxLeftOutScripts {
public:
    /// Gets the name of the set and the first line of its script.
    typedef std::function<void(const QString &set, const QString &line)> Listener;

    explicit qxLeftOutScripts(const Listener &listener);
    qxLeftOutScripts(const qxLeftOutScripts &) = delete;
    ~qxLeftOutScripts();

private:
    int m_notificationListener;
    int m_scriptListener;
    QString m_set; ///< the one that is being selected
};
