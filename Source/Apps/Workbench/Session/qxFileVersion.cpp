#include "Session/qxFileVersion.h"

#include "Files/qxDocumentFile.h"
#include "Session/qxNeededFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>

bool qxFileVersion::find(const QString &file, const QString &version)
{
    if (QFileInfo::exists(version)) {
        m_path = version;
        return true;
    }
    const QFileInfo info(file);
    m_home = info.absolutePath();
    m_revision = version;
    QByteArray scene;
    if (!fetch(info.fileName(), scene)) {
        m_error =
            QStringLiteral("%1: neither a file nor a revision of git: %2").arg(version, m_error);
        return false;
    }
    m_path = m_folder.filePath(info.fileName());
    return write(info.fileName(), scene) && takeNeeded();
}

/// Looks at a file, by its name from the folder of the scene on, as git has it.
bool qxFileVersion::fetch(const QString &name, QByteArray &bytes)
{
    QProcess git;
    git.setWorkingDirectory(m_home);
    git.start(QStringLiteral("git"),
              {QStringLiteral("show"), QStringLiteral("%1:./%2").arg(m_revision, name)});
    if (!git.waitForFinished(-1) || git.exitStatus() != QProcess::NormalExit) {
        m_error = git.errorString();
        return false;
    }
    m_error = QString::fromUtf8(git.readAllStandardError()).trimmed();
    bytes = git.readAllStandardOutput();
    return git.exitCode() == 0;
}

bool qxFileVersion::write(const QString &name, const QByteArray &bytes)
{
    const QString path = m_folder.filePath(name);
    QFile out(path);
    const bool isWritten = QDir().mkpath(QFileInfo(path).path()) && out.open(QIODevice::WriteOnly)
        && out.write(bytes) == bytes.size();
    if (!isWritten)
        m_error = QStringLiteral("%1: %2").arg(path, out.errorString());
    return isWritten;
}

/// Buffers and pictures that lie beside the scene.
bool qxFileVersion::takeNeeded()
{
    qxDocumentFile scene;
    if (!scene.load(m_path)) {
        m_error = scene.errorString();
        return false;
    }
    for (const QString &name : qxNeededFiles::of(scene.sceneJson())) {
        QByteArray bytes;
        QFile present(QDir(m_home).filePath(name));
        if (!fetch(name, bytes) && present.open(QIODevice::ReadOnly))
            bytes = present.readAll();
        if (!write(name, bytes))
            return false;
    }
    return true;
}
