#pragma once

#include "Script/qxScriptTrust.h"

#include <QList>

#include <set>

/// The scripts of sets that a scene file brought along. Only those run that this person trusts, by
/// whatever way their sets are selected; what is written here runs.
class qxFileScripts {
public:
    struct Script {
        QString set;
        QString text;
        qxScriptTrust::Decision decision;
    };

    qxFileScripts() = default;
    qxFileScripts(const qxFileScripts &) = delete;
    ~qxFileScripts() { clear(); }

    /// The sets were just read from a file.
    void take();
    /// They are gone.
    void clear();

    /// Those of the sets that still have such a script, in the order of the sets.
    QList<Script> list() const;
    /// Why what was decided earlier is unknown; empty when it is not.
    QString flaw() const { return m_trust.flaw(); }
    /// Those of the list that nobody has decided on.
    QList<Script> undecided() const;
    /// Decides on these, and remembers that; `file` is where they were seen. The decision holds for
    /// now even when it cannot be remembered; then it answers why.
    QString decide(const QList<Script> &scripts, qxScriptTrust::Decision decision,
                   const QString &file);
    /// What is in the sets and did not come with a file is of this person, who has saved it: it is
    /// trusted. Answers why that cannot be remembered. Where untrusted scripts were let run nothing
    /// is, for they can write scripts.
    QString rememberOwn(const QString &file) const;

private:
    qxScriptTrust::Decision decisionOn(const std::string &text) const;
    void tellRunner() const;

    std::set<std::string> m_texts;
    std::map<std::string, qxScriptTrust::Decision> m_decided; ///< since they were read
    qxScriptTrust m_trust;
};
