#include "qxTrustStore.h"

#include "Files/qxOutputFile.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>
#include <QStandardPaths>

#include <sys/stat.h>

#include <algorithm>
#include <unistd.h>

namespace {

const char *const introduction =
    "# Scripts that came with scene files, by the SHA-256 of their text: whether they are trusted\n"
    "# and run, or never do. Without a line here a script is asked about.\n";

const int waiting = 10000; ///< milliseconds for another program that writes the file

QString text(const char *source)
{
    return QCoreApplication::translate("qxTrustStore", source);
}

QByteArray hashOf(const std::string &script)
{
    const QByteArray bytes = QByteArray::fromRawData(script.data(), int(script.size()));
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

/// One line of modest length, whatever names went into it.
QString plain(const QString &note)
{
    QString line = note.simplified().left(100);
    std::replace_if(
        line.begin(), line.end(), [](QChar each) { return !each.isPrint(); }, QLatin1Char('?'));
    return line;
}

/// Makes the folder, for the person alone.
bool makeFolder(const QString &folder)
{
    if (QFileInfo(folder).isDir())
        return true;
    return QDir().mkpath(folder)
        && QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

/// Why what stands there need not be what this person has decided; nothing there is no reason.
QString flawOfOwner(const QString &path)
{
    struct stat status;
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return QString();
    if (!S_ISREG(status.st_mode))
        return text(QT_TRANSLATE_NOOP("qxTrustStore", "%1 is no regular file")).arg(path);
    if (status.st_uid != geteuid())
        return text(QT_TRANSLATE_NOOP("qxTrustStore", "%1 is another user's")).arg(path);
    if (status.st_mode & (S_IWGRP | S_IWOTH))
        return text(QT_TRANSLATE_NOOP("qxTrustStore", "others may write %1")).arg(path);
    return QString();
}

} // namespace

QString qxTrustStore::path()
{
    // One place for window and commands, whose applications have other names.
    const QString place = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    // Qt takes a relative one, which would be that of whoever made the current folder.
    const bool isMeant = QDir::isAbsolutePath(place);
    return (isMeant ? place : QDir::homePath() + QLatin1String("/.local/share"))
        + QLatin1String("/qxVariants/scripts-of-files");
}

qxTrustStore::qxTrustStore()
{
    m_flaw = flawOfOwner(path());
    QFile file(path());
    if (!m_flaw.isEmpty() || !file.exists())
        return;
    if (!file.open(QIODevice::ReadOnly)) {
        m_flaw = text(QT_TRANSLATE_NOOP("qxTrustStore", "%1 cannot be read: %2"))
                     .arg(path(), file.errorString());
        return;
    }
    int number = 0;
    for (const QByteArray &line : file.readAll().split('\n')) {
        ++number;
        if (take(QString::fromUtf8(line)))
            continue;
        m_entries.clear();
        m_flaw = text(QT_TRANSLATE_NOOP("qxTrustStore", "%1 is broken in line %2"))
                     .arg(path())
                     .arg(number);
        return;
    }
}

bool qxTrustStore::take(const QString &line)
{
    static const QRegularExpression form(
        QStringLiteral("\\A(trusted|never) ([0-9a-f]{64})(?: (.*))?\\z"));
    if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
        return true;
    const QRegularExpressionMatch parts = form.match(line);
    if (!parts.hasMatch())
        return false;
    const bool isTrusted = parts.captured(1) == QLatin1String("trusted");
    m_entries[parts.captured(2).toLatin1()] = {isTrusted ? Trusted : Never, parts.captured(3)};
    return true;
}

qxTrustStore::Decision qxTrustStore::of(const std::string &script) const
{
    return m_entries.value(hashOf(script)).decision;
}

QByteArray qxTrustStore::written() const
{
    QStringList lines;
    for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry) {
        const bool isTrusted = entry->decision == Trusted;
        const QLatin1String word(isTrusted ? "trusted" : "never");
        lines << word + QLatin1Char(' ') + QLatin1String(entry.key()) + QLatin1Char(' ')
                + entry->note;
    }
    std::sort(lines.begin(), lines.end()); // one content, one file
    return introduction + (lines.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8();
}

QString qxTrustStore::remember(const Scripts &scripts, Decision decision)
{
    const QString failure = text(QT_TRANSLATE_NOOP("qxTrustStore", "%1 cannot be written: %2"));
    if (!makeFolder(QFileInfo(path()).path()))
        return failure.arg(path(),
                           text(QT_TRANSLATE_NOOP("qxTrustStore", "its folder is missing")));
    QLockFile lock(path() + QLatin1String(".lock"));
    if (!lock.tryLock(waiting))
        return failure.arg(path(), text(QT_TRANSLATE_NOOP("qxTrustStore", "it is locked")));
    qxTrustStore trust;
    if (!trust.m_flaw.isEmpty())
        return trust.m_flaw;
    const QByteArray before = trust.written();
    for (const auto &script : scripts) {
        if (decision == Undecided)
            trust.m_entries.remove(hashOf(script.first));
        else if (trust.of(script.first) != decision)
            trust.m_entries[hashOf(script.first)] = {decision, plain(script.second)};
    }
    const QByteArray after = trust.written();
    if (after == before)
        return QString();
    qxOutputFile file(path(), qxOutputFile::OwnerAlone);
    const bool isWritten = file.prepare(after) && file.commit();
    return isWritten ? QString() : failure.arg(path(), file.errorString());
}
