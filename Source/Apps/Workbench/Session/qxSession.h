#pragma once

#include "Files/qxSceneFile.h"
#include "Report/qxOutput.h"
#include "Report/qxTrace.h"
#include "Script/qxFileScripts.h"
#include "qxHost.h"

#include <QString>

#include <memory>
#include <optional>

/// One run of the program over one scene file: the host, the file, and the variants read from it.
///
/// Operations that can fail say why on standard error and answer false.
class qxSession {
public:
    /// With `trace` every notification is printed to standard error.
    explicit qxSession(bool trace = false);
    ~qxSession();

    /// Loads the scene and its variants: those of its document, or else those that the file states
    /// for its materials, each as a set of the group "Material Variants". A file that cannot be
    /// read leaves open what was. A scene whose variants cannot be read must be closed, because
    /// saving it would lose them.
    bool open(const QString &path, const qxSceneFile::StepListener &listener = noListener);
    /// Loads the scene alone; its document stays as it is until readDocument.
    bool openScene(const QString &path, const qxSceneFile::StepListener &listener = noListener);
    /// Leaves an empty scene that has no file.
    void close();
    /// Whether the file may take the memory that reading and checking `xml` takes.
    bool hasRoomFor(const QByteArray &xml);
    /// Reads the variants of `xml` into the opened scene, which has none yet.
    bool readDocument(const QByteArray &xml);

    /// Whether there are no variants, sets and groups.
    bool isEmpty() const;

    /// Saves scene and variants; a file without variants, or with none but its own material
    /// variants, stays without a document.
    bool save(const QString &path);

    const qxSceneFile &file() const { return *m_file; }
    /// The scripts that the file brought along.
    qxFileScripts &scripts() { return m_scripts; }
    /// Why the last operation failed, for people; empty when it did not.
    QString failure() const { return m_failure; }

private:
    static void noListener(qxSceneFile::Step) {}
    void importVariants();
    /// Where libraries may speak: results are for other programs.
    qxCaughtOutput::Place strayPlace() const;
    void takeScripts();
    void rememberScripts(const QString &path);
    bool fail(const QString &reason);

    std::optional<qxCaughtOutput> m_stray; ///< what libraries say while the host ends
    qxFileScripts m_scripts; ///< longer than the sets that have them
    qxHost m_host;
    std::unique_ptr<qxTrace> m_trace;
    std::unique_ptr<qxSceneFile> m_file = std::make_unique<qxSceneFile>();
    QString m_failure;
    QByteArray m_imported; ///< the document of the variants as the file's own became them
};
