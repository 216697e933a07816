#pragma once

#include "Files/qxSceneFile.h"
#include "Report/qxOutput.h"
#include "Report/qxTrace.h"
#include "Script/qxFileScripts.h"
#include "qxHost.h"

#include <QMap>

#include <memory>
#include <optional>

/// One run of the program over one scene file: the host, the file, and the variants read from it.
///
/// Operations that fail print the reason to standard error and return false.
class qxSession {
public:
    /// With `trace` every notification is printed to standard error.
    explicit qxSession(bool trace = false);
    ~qxSession();

    /// Loads the scene and its variants: those of its document, or else the file's own material
    /// variants, each as a set of the group "Material Variants". If the file cannot be read, the
    /// old scene stays open. A scene whose variants cannot be read must be closed, because saving
    /// it would lose them.
    bool open(const QString &path, const qxSceneFile::StepListener &listener = noListener);
    /// Loads the scene without its variants, see readDocument.
    bool openScene(const QString &path, const qxSceneFile::StepListener &listener = noListener);
    /// Replaces the scene by an empty one without a file.
    void close();
    /// Whether the file's memory budget allows to read and check `xml`.
    bool hasRoomFor(const QByteArray &xml);
    /// Reads the variants of `xml` into the opened scene, which must have none.
    bool readDocument(const QByteArray &xml);

    /// Whether there are no variants, sets and groups.
    bool isEmpty() const;

    /// Saves scene and variants; a file without variants, or with only its own material variants,
    /// gets no document.
    bool save(const QString &path);
    /// Files of previews, by the names of sets.
    typedef QMap<QString, QString> PreviewFiles;
    /// The same with these previews in place of those that the sets have, which keep theirs. Only
    /// one is in memory at a time.
    bool save(const QString &path, const PreviewFiles &previews);

    const qxSceneFile &file() const { return *m_file; }
    /// The scripts that came with the file.
    qxFileScripts &scripts() { return m_scripts; }
    /// Why the last operation failed, to be shown; empty if it did not.
    QString failure() const { return m_failure; }

private:
    static void noListener(qxSceneFile::Step) {}
    void importVariants();
    /// The target for output of libraries: standard output is for results.
    qxCaughtOutput::Place strayPlace() const;
    void takeScripts();
    void rememberScripts(const QString &path);
    bool fail(const QString &reason);

    std::optional<qxCaughtOutput> m_stray; ///< output of libraries while the host ends
    qxFileScripts m_scripts; ///< must outlive the sets
    qxHost m_host;
    std::unique_ptr<qxTrace> m_trace;
    std::unique_ptr<qxSceneFile> m_file = std::make_unique<qxSceneFile>();
    QString m_failure;
    QByteArray m_imported; ///< the document of the variants as the file's own became them
};
