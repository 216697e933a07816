#pragma once

#include <QByteArray>
#include <QString>

#include <limits>

/// The memory limit for the decoded content of one file, since a few hundred bytes can ask for any
/// amount. Memory is taken from the budget before it is allocated.
class qxMemoryBudget {
public:
    /// A budget of so many bytes; without a limit by default.
    explicit qxMemoryBudget(qint64 limit = std::numeric_limits<qint64>::max()) : m_left(limit) {}

    ///@{
    /// For all files that are opened from now on, in bytes; two gigabytes at first.
    static void setLimit(qint64 bytes);
    static qint64 limit();
    ///@}
    /// An amount of bytes for people, such as "2 GB".
    static QString text(double bytes);
    /// The bytes of an amount that was written so, in MB or GB; 0 when it cannot be understood.
    static qint64 fromText(const QString &text);

    /// Takes `count` times `size` bytes. If fewer are left it throws the exception of the readers
    /// of scene files, which qxSceneFile turns into its error.
    void take(qint64 count, qint64 size);
    /// The same; the message begins with what they are for.
    void take(const QString &owner, qint64 count, qint64 size);
    /// The same for what reading and checking a variants document needs.
    void takeDocument(const QByteArray &xml);
    /// The same for what reading it as a qxDocument alone needs.
    void takeDocumentData(const QByteArray &xml);
    /// Gives back memory that was needed temporarily.
    void giveBack(qint64 bytes) { m_left += bytes; }

private:
    qint64 m_left;
};
