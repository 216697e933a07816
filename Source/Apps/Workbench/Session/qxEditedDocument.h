#pragma once

#include "Files/qxDocumentFile.h"
#include "Rename/qxRenames.h"
#include "Session/qxSession.h"
#include "qxDocument.h"

#include <QCommandLineOption>

class QCommandLineParser;

/// The variants document that a command edits: that of a scene, which is opened for it, or one that
/// stands alone in a file.
///
/// Operations that fail print the reason to standard error.
class qxEditedDocument {
public:
    /// With `trace` every notification is printed to standard error.
    explicit qxEditedDocument(bool trace) : m_session(trace) {}

    /// What a text is read as, settled. Flaws of the text go to standard error; false when it is
    /// no document.
    static bool read(const QString &path, const QByteArray &xml, qxDocument &document);

    /// Opens the file. Flaws of the document are told, too.
    bool open(const QString &path);
    /// Whether there is a scene, which is the host's then.
    bool isScene() const { return m_file.isScene(); }
    /// The option for save: the scene or the document that is written.
    static QCommandLineOption saveOption();
    ///@{
    /// Whether the value of --save, if there is one, is a name for what was opened.
    static bool maySave(const qxDocumentFile &file, const QCommandLineParser &parser);
    bool maySave(const QCommandLineParser &parser) const { return maySave(m_file, parser); }
    ///@}
    /// Saves if --save was given; the registry gets what the document holds now. Returns the exit
    /// code.
    int saveIfAsked(const QCommandLineParser &parser, const qxRenames &renames = {});

    qxDocument document; ///< settled; may be edited

private:
    qxDocumentFile m_file;
    qxSession m_session;
};
