#include "Session/qxEditedDocument.h"

#include "Commands/qxCommand.h"
#include "Registry/qxRegistryEdit.h"
#include "Report/qxOutput.h"
#include "qxDocumentXml.h"
#include "qxRegistryDocument.h"

#include <QCommandLineParser>
#include <QFileInfo>

QCommandLineOption qxEditedDocument::saveOption()
{
    return {qxCommands::saveOption().names(),
            QStringLiteral("Saves the scene with its variants, or the document, to it."),
            QStringLiteral("SCENE|XML")};
}

bool qxEditedDocument::read(const QString &path, const QByteArray &xml, qxDocument &document)
{
    const auto listener = [&path](const qxDocumentFlaw &flaw) {
        qxOutput::error(QStringLiteral("%1: variants document, line %2: %3")
                            .arg(path)
                            .arg(flaw.location.line)
                            .arg(flaw.message));
    };
    document = xml.isEmpty() ? qxDocument() : qxDocumentXml::read(xml, listener);
    document.settle();
    return document.isWhole;
}

bool qxEditedDocument::open(const QString &path)
{
    if (!m_file.load(path)) {
        qxOutput::error(m_file.errorString());
        return false;
    }
    if (!read(path, m_file.document(), document))
        return false;
    if (!isScene())
        return true;
    if (!m_session.open(path))
        return false;
    // Also the variants that the file has without a document.
    document = qxRegistryDocument::current();
    document.settle();
    return true;
}

bool qxEditedDocument::maySave(const qxDocumentFile &file, const QCommandLineParser &parser)
{
    const QString out = parser.value(QStringLiteral("save"));
    const QString suffix = QFileInfo(out).suffix().toLower();
    const bool isSceneName = suffix == QLatin1String("gltf") || suffix == QLatin1String("glb");
    if (out.isEmpty() || isSceneName == file.isScene())
        return true;
    qxOutput::error(QStringLiteral("%1: what is saved there is %2")
                        .arg(out,
                             file.isScene() ? QStringLiteral("a scene, .gltf or .glb")
                                            : QStringLiteral("a document without a scene")));
    return false;
}

int qxEditedDocument::saveIfAsked(const QCommandLineParser &parser, const qxRenames &renames)
{
    const QString out = parser.value(QStringLiteral("save"));
    const bool overwrites = parser.isSet(QStringLiteral("force"));
    if (isScene()) {
        qxRegistryEdit::apply(document, renames);
        return qxCommands::saveIfAsked(m_session, parser);
    }
    if (out.isEmpty() || m_file.save(out, qxDocumentXml::write(document), overwrites))
        return Success;
    return qxCommands::fail(m_file.errorString());
}
