#include "qxDocumentXml.h"

#include "Internal/Document/qxDocumentGuard.h"
#include "Internal/Document/qxDocumentParser.h"
#include "Internal/Document/qxDocumentPrint.h"
#include "Internal/Document/qxElementText.h"
#include "Internal/Document/qxStreamCursor.h"

namespace {

/// The place of a byte.
qxSourceLocation locationOf(int byte, const QByteArray &xml)
{
    const QByteArray before = xml.left(byte);
    const QString inLine = QString::fromUtf8(before.mid(before.lastIndexOf('\n') + 1));
    return {1 + before.count('\n'), 1 + inLine.size(), 0};
}

} // namespace

qxDocument qxDocumentXml::read(const QByteArray &xml, const qxDocument::FlawListener &listener)
{
    const auto tell = [&](qxDocumentFlaw::Sort sort, const QString &message,
                          const qxSourceLocation &location) {
        if (listener)
            listener({sort, message, QString(), location});
    };
    qxDocument document;
    qxDocumentError refusal;
    const std::string_view look(xml.constData(), std::size_t(xml.size()));
    if (!qxDocumentGuard::admits(look, refusal)) {
        document.isWhole = false;
        tell(qxDocumentFlaw::Unreadable, refusal.message, {refusal.line, refusal.column, 0});
        return document;
    }
    qxStreamCursor cursor(xml);
    if (cursor.forbidden() >= 0)
        tell(qxDocumentFlaw::Forbidden,
             QStringLiteral("XML forbids this character; saving drops it"),
             locationOf(cursor.forbidden(), xml));
    qxDocumentParser(cursor, listener ? &listener : nullptr).readDocument(document);
    qxSourceLocation fault;
    const QString reason = cursor.finish(fault);
    document.isWhole = reason.isEmpty();
    if (!document.isWhole)
        tell(qxDocumentFlaw::Unreadable, reason, fault);
    return document;
}

QByteArray qxDocumentXml::write(const qxDocument &document)
{
    const qxDocumentLoss loss([&document] { return document.allNames(); });
    return qxDocumentPrint::print(document);
}
