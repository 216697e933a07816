#pragma once

#include <QHash>
#include <QString>

#include <map>
#include <string>

/// What this person has decided about scripts that came with files. It is remembered by content, in
/// a file of the person's own, one line for each decision: the same script counts as trusted in
/// whatever file it comes, and one that was changed by a letter does not.
class qxTrustStore {
public:
    /// Undecided scripts are asked about.
    enum Decision { Undecided, Trusted, Never };

    /// Reads what is remembered. Nothing is when the file is broken: flaw() says why then.
    qxTrustStore();

    /// What was decided about the script, UTF-8, when this was made.
    Decision of(const std::string &script) const;
    /// Why the file cannot be read, for people; empty when it can be, or is not there.
    QString flaw() const { return m_flaw; }

    /// Scripts, UTF-8, and for each a line on where it was seen, for those who read the file.
    typedef std::map<std::string, QString> Scripts;
    /// Remembers a decision on all of them, or with Undecided forgets theirs. Answers why that was
    /// not possible, for people; a broken file stays as it is.
    static QString remember(const Scripts &scripts, Decision decision);

    /// Where that file is.
    static QString path();

private:
    struct Entry {
        Decision decision = Undecided;
        QString note;
    };

    bool take(const QString &line);
    QByteArray written() const;

    QHash<QByteArray, Entry> m_entries; ///< by hexadecimal SHA-256 of the script
    QString m_flaw;
};
