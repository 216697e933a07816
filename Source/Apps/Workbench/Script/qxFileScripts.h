#pragma once

#include "Script/qxTrustStore.h"

#include <QList>

#include <set>

/// The scripts of sets that came with a scene file. Only those that the user trusts run, however
/// their sets are selected; scripts written in this program always run.
class qxFileScripts {
public:
    struct Script {
        QString set;
        QString text;
        qxTrustStore::Decision decision;
    };

    qxFileScripts() = default;
    qxFileScripts(const qxFileScripts &) = delete;
    ~qxFileScripts() { clear(); }

    /// Call it when the sets were just read from a file.
    void take();
    /// Call it when the sets are gone.
    void clear();

    /// Those of the sets that still have such a script, in the order of the sets.
    QList<Script> list() const;
    /// Why earlier decisions could not be read; empty if they could.
    QString flaw() const { return m_trust.flaw(); }
    /// Those of the list without a decision.
    QList<Script> undecided() const;
    /// Decides on these scripts, seen in `file`, and stores the decision. If it cannot be stored,
    /// it holds for now, and the reason is returned.
    QString decide(const QList<Script> &scripts, qxTrustStore::Decision decision,
                   const QString &file);
    /// Trusts the scripts that did not come with a file: the user wrote and saved them. Returns why
    /// that cannot be stored. Nothing is trusted if untrusted scripts have run, because they can
    /// write scripts.
    QString rememberOwn(const QString &file) const;

private:
    qxTrustStore::Decision decisionOn(const std::string &text) const;
    void tellRunner() const;

    std::set<std::string> m_texts;
    std::map<std::string, qxTrustStore::Decision> m_decided; ///< since they were read
    qxTrustStore m_trust;
};
