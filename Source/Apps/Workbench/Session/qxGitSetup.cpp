#include "Session/qxGitSetup.h"

#include "Files/qxOutputFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>

namespace {

const char driver[] = "qxvariants";
const char *const patterns[] = {"*.gltf", "*.glb", "*.variants.xml"};

/// How a shell starts this program: by its name where that finds it.
QString program()
{
    const QString name = QStringLiteral("workbench");
    const QString path = QCoreApplication::applicationFilePath();
    const QString found = QStandardPaths::findExecutable(name);
    if (!found.isEmpty()
        && QFileInfo(found).canonicalFilePath() == QFileInfo(path).canonicalFilePath())
        return name;
    static const QRegularExpression plain(QStringLiteral("^[\\w@+=:,./-]+$"));
    if (plain.match(path).hasMatch())
        return path;
    return QLatin1Char('\'') + QString(path).replace(QLatin1String("'"), QLatin1String("'\\''"))
        + QLatin1Char('\'');
}

/// What git calls for merging, comparing, and of a driver for people.
QList<QPair<QString, QString>> settings()
{
    const QString merge = QStringLiteral("merge.%1.").arg(driver);
    const QString diff = QStringLiteral("diff.%1.").arg(driver);
    QString escaped = program(); // git replaces %A and the like
    escaped.replace(QLatin1Char('%'), QLatin1String("%%"));
    return {
        {merge + QStringLiteral("name"), QStringLiteral("scenes and variants documents, by name")},
        {merge + QStringLiteral("driver"),
         escaped + QStringLiteral(" merge %O %A %B --out %A --label %P")},
        // To git a difference is no failure, and a failure ends it: what cannot be compared is
        // shown as text. It names a path with conflicts alone, without files.
        {diff + QStringLiteral("command"),
         QStringLiteral("f() { test $# -ge 7 || { echo \"* unmerged: $1\"; return 0; }; "
                        "set -- \"$2\" \"$5\" \"a/$1\" \"b/${8:-$1}\"; "
                        "%1 diff --label \"$3\" --label \"$4\" \"$1\" \"$2\" || test $? -eq 1 || "
                        "diff -u --label \"$3\" --label \"$4\" \"$1\" \"$2\"; :; }; f")
             .arg(program())}};
}

/// Whether a line of attributes says for that pattern how git merges or compares.
bool isAbout(const QString &line, const QString &pattern)
{
    static const QRegularExpression blank(QStringLiteral("\\s+"));
    static const QRegularExpression driven(QStringLiteral("^([-!]?(merge|diff)(=.*)?|binary)$"));
    QStringList words = line.split(blank, Qt::SkipEmptyParts);
    return !words.isEmpty() && words.takeFirst() == pattern && words.indexOf(driven) >= 0;
}

} // namespace

bool qxGitSetup::fail(const QString &reason)
{
    m_error = reason;
    return false;
}

/// Whether git did it; what it says otherwise is the error.
bool qxGitSetup::git(const QStringList &arguments, QString &out)
{
    m_error.clear();
    QProcess process;
    process.start(QStringLiteral("git"), arguments, QIODevice::ReadOnly);
    if (!process.waitForStarted())
        return fail(QStringLiteral("git cannot be started; is it installed?"));
    process.waitForFinished(-1);
    out = QString::fromUtf8(process.readAllStandardOutput());
    if (out.endsWith(QLatin1Char('\n')))
        out.chop(1);
    const QString reason = QString::fromUtf8(process.readAllStandardError()).trimmed();
    const bool isDone = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return isDone || fail(reason);
}

QStringList qxGitSetup::config(const QStringList &arguments) const
{
    return QStringList{QStringLiteral("config"),
                       m_isGlobal ? QStringLiteral("--global") : QStringLiteral("--local")}
    + arguments;
}

bool qxGitSetup::findAttributes()
{
    QString found;
    if (!m_isGlobal) {
        if (!git({QStringLiteral("rev-parse"), QStringLiteral("--show-toplevel")}, found))
            return m_error.isEmpty() ? fail(QStringLiteral("git finds no repository here")) : false;
        m_attributes = QDir(found).filePath(QStringLiteral(".gitattributes"));
        return true;
    }
    // Where git looks for them unless it is told.
    const QString home = qEnvironmentVariable("XDG_CONFIG_HOME");
    m_attributes = (home.isEmpty() ? QDir::home().filePath(QStringLiteral(".config")) : home)
        + QStringLiteral("/git/attributes");
    if (git(config({QStringLiteral("--type=path"), QStringLiteral("--get"),
                    QStringLiteral("core.attributesFile")}),
            found))
        m_attributes = found;
    else if (!m_error.isEmpty())
        return false;
    return true;
}

bool qxGitSetup::readAttributes()
{
    QFile file(m_attributes);
    if (file.exists() && !file.open(QIODevice::ReadOnly))
        return fail(QStringLiteral("%1: %2").arg(m_attributes, file.errorString()));
    const QByteArray old = file.isOpen() ? file.readAll() : QByteArray();
    const QStringList lines = QString::fromUtf8(old).split(QLatin1Char('\n'));
    const QByteArray lineEnd = old.contains("\r\n") ? "\r\n" : "\n";
    QByteArray added;
    const QString shown = m_isGlobal ? m_attributes : QDir().relativeFilePath(m_attributes);
    for (const char *const pattern : patterns) {
        const QString name = QLatin1String(pattern);
        const QString wanted = QStringLiteral("%1 merge=%2 diff=%2").arg(name, driver);
        const auto known = std::find_if(lines.rbegin(), lines.rend(),
                                        [&](const QString &line) { return isAbout(line, name); });
        if (known == lines.rend()) {
            m_report += QStringLiteral("%1: + %2").arg(shown, wanted);
            added += wanted.toUtf8() + lineEnd;
        } else {
            const bool isOurs = known->contains(QLatin1String(driver));
            m_report +=
                QStringLiteral("%1: %2 %3")
                    .arg(shown, QLatin1String(isOurs ? "has" : "keeps"), known->simplified());
        }
    }
    if (!added.isEmpty())
        m_text = old + (old.isEmpty() || old.endsWith('\n') ? QByteArray() : lineEnd) + added;
    return true;
}

bool qxGitSetup::read()
{
    if (!findAttributes() || !readAttributes())
        return false;
    for (const auto &[key, value] : settings()) {
        QString now;
        if (!git(config({QStringLiteral("--get"), key}), now) && !m_error.isEmpty())
            return false;
        const bool isKnown = now == value;
        m_report += QStringLiteral("git config: %1%2 = %3")
                        .arg(isKnown ? QStringLiteral("has ") : QStringLiteral("+ "), key, value);
        if (!isKnown)
            m_settings += {key, value};
    }
    return true;
}

bool qxGitSetup::write()
{
    if (!m_text.isNull()) {
        if (!QDir().mkpath(QFileInfo(m_attributes).absolutePath()))
            return fail(QStringLiteral("%1: its folder cannot be made").arg(m_attributes));
        qxOutputFile file(m_attributes);
        if (!file.prepare(m_text) || !file.commit())
            return fail(QStringLiteral("%1: %2").arg(m_attributes, file.errorString()));
    }
    QString out;
    for (const auto &[key, value] : m_settings) {
        if (!git(config({QStringLiteral("--replace-all"), key, value}), out))
            return fail(QStringLiteral("git config %1: %2").arg(key, m_error));
    }
    return true;
}
