#include "qxHtmlWriter.h"

#include <QBuffer>
#include <QImageReader>
#include <QVector>

namespace {

bool isForbidden(uint character)
{
    const bool isControl = character < 0x20 && character != '\t' && character != '\n';
    return isControl || (character >= 0x7f && character < 0xa0) || (character & 0xfffe) == 0xfffe;
}

QString printable(const QString &text)
{
    QVector<uint> characters = text.toUcs4(); // Lone halves of characters are replaced here.
    for (uint &character : characters) {
        if (isForbidden(character))
            character = QChar::ReplacementCharacter;
    }
    return QString::fromUcs4(characters.constData(), characters.size());
}

QString dataUri(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return QStringLiteral("data:image/%1;base64,%2")
        .arg(QLatin1String(QImageReader::imageFormat(&buffer)), QLatin1String(bytes.toBase64()));
}

} // namespace

qxHtmlWriter::qxHtmlWriter(QIODevice &page, const QString &title, const QString &style)
    : m_writer(&page)
{
    m_writer.writeDTD(QStringLiteral("<!DOCTYPE html>\n"));
    open("html");
    attribute("lang", QStringLiteral("en"));
    open("head");
    open("meta");
    attribute("charset", QStringLiteral("utf-8"));
    close();
    open("meta");
    attribute("name", QStringLiteral("viewport"));
    attribute("content", QStringLiteral("width=device-width, initial-scale=1"));
    close();
    open("meta");
    attribute("name", QStringLiteral("color-scheme"));
    attribute("content", QStringLiteral("light dark"));
    close();
    element("title", title);
    element("style", style);
    close();
    open("body");
}

void qxHtmlWriter::open(const char *tag, const char *cssClass)
{
    m_writer.writeStartElement(QLatin1String(tag));
    if (cssClass)
        attribute("class", QLatin1String(cssClass));
}

void qxHtmlWriter::attribute(const char *name, const QString &value)
{
    m_writer.writeAttribute(QLatin1String(name), printable(value));
}

void qxHtmlWriter::text(const QString &text)
{
    m_writer.writeCharacters(printable(text));
}

void qxHtmlWriter::element(const char *tag, const QString &content, const char *cssClass)
{
    open(tag, cssClass);
    // A browser takes <td/> for the beginning of a cell, not for an empty one.
    text(content.isEmpty() ? QString(QChar(QChar::Nbsp)) : content);
    close();
}

void qxHtmlWriter::picture(const QByteArray &bytes, const QString &alternative)
{
    open("img");
    attribute("alt", alternative);
    attribute("src", dataUri(bytes));
    close();
}

void qxHtmlWriter::pictureWhere(const QString &media, const QByteArray &bytes)
{
    open("source");
    attribute("media", media);
    attribute("srcset", dataUri(bytes));
    close();
}
