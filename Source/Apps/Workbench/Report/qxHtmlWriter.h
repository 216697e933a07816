#pragma once

#include <QXmlStreamWriter>

/// Writes HTML that is also well-formed XML.
class qxHtmlWriter {
public:
    /// Writes the beginning of the page, up to its body. The style is without quotation marks, "<",
    /// ">" and "&", which mean different things there in HTML and in XML.
    qxHtmlWriter(QIODevice &page, const QString &title, const QString &style);

    void open(const char *tag, const char *cssClass = nullptr);
    void attribute(const char *name, const QString &value);
    void close() { m_writer.writeEndElement(); }
    /// Writes text; characters that XML forbids become replacement characters.
    void text(const QString &text);
    /// An element with a text; an empty text becomes a blank, so that it keeps its height.
    void element(const char *tag, const QString &text, const char *cssClass = nullptr);
    /// A picture of any format that Qt reads, as part of the page. `alternative` stands in for it.
    void picture(const QByteArray &bytes, const QString &alternative);
    /// An alternative for media that match this CSS, inside an element "picture" and before the
    /// picture.
    void pictureWhere(const QString &media, const QByteArray &bytes);
    /// Closes all open elements.
    void finish() { m_writer.writeEndDocument(); }

private:
    QXmlStreamWriter m_writer;
};
