#pragma once

#include "Internal/Document/qxElementCursor.h"

#include <QSet>
#include <QXmlStreamReader>

/// Goes over the text of a document in one pass and takes it as the DOM does. Behind a fault there
/// are no more elements.
class qxStreamCursor : public qxElementCursor {
public:
    /// Stands at the root, if there is one.
    explicit qxStreamCursor(const QByteArray &document);

    QString attribute(const QString &name) override;
    bool has(const QString &name) const override;
    void eachChild(const Child &child) override;
    QString text() override;
    bool picture(QByteArray &base64) override;
    void pass() override { m_xml.skipCurrentElement(); }

    /// The place of the first character that XML forbids, in bytes; -1 for none.
    int forbidden() const { return m_forbidden; }
    /// Goes to the end of the document, and answers what is wrong with it; empty for nothing.
    QString finish(qxSourceLocation &location);

private:
    qxSourceLocation here() const;
    QString restored(const QString &text) const;

    int m_forbidden;
    QXmlStreamReader m_xml;
    QXmlStreamAttributes m_attributes; ///< of the element
    QSet<QString> m_texts; ///< names come again and again: one copy of each is kept
};
