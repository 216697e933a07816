#pragma once

#include <QXmlStreamWriter>

/// Writes HTML that is well-formed XML as well.
class qxHtmlWriter {
public:
    /// Writes the beginning of the page, up to its body. The style is without quotation marks, "<",
    /// ">" and "&", which mean different things there in HTML and in XML.
    qxHtmlWriter(QByteArray &page, const QString &title, const QString &style);

    void open(const char *tag, const char *cssClass = nullptr);
    void attribute(const char *name, const QString &value);
    void close() { m_writer.writeEndElement(); }
    /// Writes text; what no page can hold becomes a replacement character.
    void text(const QString &text);
    /// An element with a text in it; a blank one keeps the place of an empty text.
    void element(const char *tag, const QString &text, const char *cssClass = nullptr);
    /// A picture of any format that Qt reads, as part of the page. `alternative` stands in for it.
    void picture(const QByteArray &bytes, const QString &alternative);
    /// Within an element "picture" and before the picture: shown instead where this CSS holds.
    void pictureWhere(const QString &media, const QByteArray &bytes);
    /// Ends all that is open.
    void finish() { m_writer.writeEndDocument(); }

private:
    QXmlStreamWriter m_writer;
};
