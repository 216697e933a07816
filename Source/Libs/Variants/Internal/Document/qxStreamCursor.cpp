#include "Internal/Document/qxStreamCursor.h"

#include "Internal/Document/qxControlCharacters.h"

#include <QHash>

qxStreamCursor::qxStreamCursor(const QByteArray &document)
    : m_xml(qxControlCharacters::replaced(document, m_forbidden))
{
    // The DOM knows no name spaces either.
    m_xml.setNamespaceProcessing(false);
    m_xml.readNextStartElement();
    m_attributes = m_xml.attributes();
}

QString qxStreamCursor::attribute(const QString &name)
{
    const QStringRef value = m_attributes.value(name);
    if (value.isEmpty())
        return QString();
    const auto known = m_texts.constFind(QString::fromRawData(value.data(), value.size()));
    if (known != m_texts.constEnd())
        return restored(*known);
    return restored(*m_texts.insert(value.toString()));
}

bool qxStreamCursor::has(const QString &name) const
{
    return m_attributes.hasAttribute(name);
}

void qxStreamCursor::eachChild(const Child &child)
{
    QHash<QString, int> ordinals;
    while (!m_xml.atEnd()) {
        qxSourceLocation location = here();
        m_xml.readNext();
        if (m_xml.isEndElement())
            return;
        if (!m_xml.isStartElement())
            continue;
        const QString tag = m_xml.name().toString();
        location.ordinal = ++ordinals[tag];
        m_attributes = m_xml.attributes();
        child(tag, location);
    }
}

QString qxStreamCursor::text()
{
    QString text;
    int depth = 1;
    while (depth > 0 && !m_xml.atEnd()) {
        m_xml.readNext();
        depth += m_xml.isStartElement() - m_xml.isEndElement();
        // The DOM loses text that is only white space, but not in a CDATA section.
        if (m_xml.isCharacters() && (m_xml.isCDATA() || !m_xml.isWhitespace()))
            text += m_xml.text();
    }
    return restored(text);
}

bool qxStreamCursor::picture(QByteArray &base64)
{
    m_xml.readNext();
    while (m_xml.isCharacters() && !m_xml.isCDATA() && m_xml.isWhitespace())
        m_xml.readNext();
    const bool isPicture = m_xml.isCDATA();
    if (isPicture)
        base64 = m_xml.text().toLatin1();
    if (!m_xml.isEndElement()) {
        if (m_xml.isStartElement())
            m_xml.skipCurrentElement();
        m_xml.skipCurrentElement();
    }
    return isPicture;
}

QString qxStreamCursor::finish(qxSourceLocation &location)
{
    while (!m_xml.atEnd())
        m_xml.readNext();
    location = {int(m_xml.lineNumber()), int(m_xml.columnNumber()) + 1, 0};
    return m_xml.hasError() ? m_xml.errorString() : QString();
}

/// Where the next token begins.
qxSourceLocation qxStreamCursor::here() const
{
    // Behind text the parser has already looked at the next "<".
    const bool isAhead = m_xml.isCharacters() && !m_xml.isCDATA();
    return {int(m_xml.lineNumber()), int(m_xml.columnNumber()) + (isAhead ? 0 : 1), 0};
}

QString qxStreamCursor::restored(const QString &text) const
{
    return m_forbidden < 0 ? text : qxControlCharacters::restored(text);
}
