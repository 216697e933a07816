#include "qxControlCharacters.h"
#include "qxSyntaxTreeReader.h"

#include <QCryptographicHash>

#include <algorithm>

namespace {

/// Positions, normals and colours have one attribute for each of their components.
bool isReal(const QString &attribute)
{
    return attribute.contains(QLatin1String("Position"))
        || attribute.contains(QLatin1String("Normal"))
        || attribute.contains(QLatin1String("Color"));
}

} // namespace

void qxSyntaxTreeReader::eachChild(const Child &child)
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

QString qxSyntaxTreeReader::elementText()
{
    QString text;
    int depth = 1;
    while (depth > 0 && !m_xml.atEnd()) {
        m_xml.readNext();
        depth += m_xml.isStartElement() - m_xml.isEndElement();
        // Text that is only white space is lost while a document is read, in a CDATA section it is
        // not.
        if (m_xml.isCharacters() && (m_xml.isCDATA() || !m_xml.isWhitespace()))
            text += m_xml.text();
    }
    return m_forbidden < 0 ? text : qxControlCharacters::restored(text);
}

void qxSyntaxTreeReader::skipUnknown(const QString &path, const qxSourceLocation &location)
{
    const QString tag = m_xml.name().toString();
    m_xml.skipCurrentElement();
    add(qxCode::UnknownElement, QStringLiteral("the unknown element \"%1\" is skipped").arg(tag),
        path, location);
}

qxSourceLocation qxSyntaxTreeReader::here() const
{
    // Behind text the parser has already looked at the next "<".
    const bool isAhead = m_xml.isCharacters() && !m_xml.isCDATA();
    return {int(m_xml.lineNumber()), int(m_xml.columnNumber()) + (isAhead ? 0 : 1), 0};
}

QString qxSyntaxTreeReader::attribute(const QString &name)
{
    const QStringRef value = m_attributes.value(name);
    if (value.isEmpty())
        return QString();
    const auto known = m_texts.constFind(QString::fromRawData(value.data(), value.size()));
    if (known != m_texts.constEnd())
        return *known;
    const QString text = value.toString();
    return *m_texts.insert(m_forbidden < 0 ? text : qxControlCharacters::restored(text));
}

bool qxSyntaxTreeReader::has(const QString &name) const
{
    return m_attributes.hasAttribute(name);
}

void qxSyntaxTreeReader::checkWord(const QString &text, const QString &what,
                                   const qxSourceLocation &location, const QString &path)
{
    if (text != QLatin1String("true") && text != QLatin1String("false"))
        add(qxCode::WordNeitherTrueNorFalse,
            QStringLiteral("%1 \"%2\" reads as false").arg(what, text), path, location);
}

void qxSyntaxTreeReader::checkNumbers(const qxSourceLocation &location, const QString &path)
{
    for (const QXmlStreamAttribute &each : qAsConst(m_attributes)) {
        const QString name = each.name().toString();
        if (!name.startsWith(QLatin1String("clip")) && !name.startsWith(QLatin1String("incl")))
            continue;
        bool isNumber = false;
        if (isReal(name))
            each.value().toFloat(&isNumber);
        else
            each.value().toInt(&isNumber);
        if (!isNumber)
            add(qxCode::UnreadableNumber,
                QStringLiteral("%1 \"%2\" reads as 0").arg(name, each.value().toString()), path,
                location);
    }
}

void qxSyntaxTreeReader::digest(QCryptographicHash &hash, const QString &tag) const
{
    // The order of attributes says nothing, and differs from program to program.
    QXmlStreamAttributes sorted = m_attributes;
    std::sort(sorted.begin(), sorted.end(), [](const auto &one, const auto &other) {
        return one.qualifiedName() < other.qualifiedName();
    });
    digestText(hash, tag);
    for (const QXmlStreamAttribute &each : qAsConst(sorted)) {
        digestText(hash, each.qualifiedName().toString());
        digestText(hash, each.value().toString());
    }
}

void qxSyntaxTreeReader::digestText(QCryptographicHash &hash, const QString &text) const
{
    const int size = text.size();
    hash.addData(reinterpret_cast<const char *>(&size), sizeof size);
    hash.addData(reinterpret_cast<const char *>(text.constData()), size * int(sizeof(QChar)));
}

void qxSyntaxTreeReader::add(qxCode code, const QString &message, const QString &path,
                             const qxSourceLocation &location)
{
    m_findings.add({code, message, path, location.line, location.column});
}

bool qxSyntaxTreeReader::refuseNameless(const QString &path, const qxSourceLocation &location)
{
    if (!attribute(QStringLiteral("name")).isEmpty())
        return false;
    const QString tag = m_xml.name().toString();
    m_xml.skipCurrentElement();
    add(qxCode::ElementWithoutName,
        QStringLiteral("a %1 without a name is skipped with all that is in it").arg(tag), path,
        location);
    return true;
}
