#include "Internal/Document/qxElementText.h"

#include "qxLog.h"
#include "qxText.h"

#include <QDomDocument>

#include <algorithm>

namespace {

qxDocumentLoss *current = nullptr;

/// Whether XML 1.0 has the character at `index`, and the parser takes it: a parser of Qt 5 loses
/// the rest of the document at a U+FFFE or U+FFFF.
bool isWritable(const QString &text, int index)
{
    const QChar each = text.at(index);
    if (each.unicode() < 0x20)
        return each == QLatin1Char('\t') || each == QLatin1Char('\n') || each == QLatin1Char('\r');
    if (each.isHighSurrogate())
        return index + 1 < text.size() && text.at(index + 1).isLowSurrogate();
    if (each.isLowSurrogate())
        return index > 0 && text.at(index - 1).isHighSurrogate();
    return each.unicode() < 0xFFFE;
}

int firstUnwritable(const QString &text)
{
    int index = 0;
    while (index < text.size() && isWritable(text, index))
        ++index;
    return index;
}

bool isWhole(const QString &text)
{
    return firstUnwritable(text) == text.size();
}

/// The text with `replacement` in the place of each character that a document cannot hold.
QString without(const QString &text, const QString &replacement)
{
    QString kept;
    for (int index = 0; index < text.size(); ++index) {
        if (isWritable(text, index))
            kept.append(text.at(index));
        else
            kept.append(replacement);
    }
    return kept;
}

/// The parser drops a text node that is only white space, but not a CDATA section.
bool needsCData(const QString &text)
{
    return !text.isEmpty()
        && std::all_of(text.begin(), text.end(), [](QChar each) { return each.isSpace(); });
}

} // namespace

namespace qxElementText {

void setText(QDomElement &element, const QString &name, const QString &text)
{
    element.setAttribute(name, qxDocumentLoss::writable(text));
}

void setName(QDomElement &element, const QString &attribute, const QString &name)
{
    element.setAttribute(attribute, qxDocumentLoss::writableName(name));
}

void setFlag(QDomElement &element, const QString &name, bool value)
{
    element.setAttribute(name, value ? 1 : 0);
}

QDomElement appendElement(QDomElement &parent, const QString &tag)
{
    QDomElement child = parent.ownerDocument().createElement(tag);
    parent.appendChild(child);
    return child;
}

QDomElement appendText(QDomElement &parent, const QString &tag, const QString &text)
{
    QDomDocument document = parent.ownerDocument();
    QDomElement child = appendElement(parent, tag);
    const QString content = qxDocumentLoss::writable(text);
    if (needsCData(content))
        child.appendChild(document.createCDATASection(content));
    else
        child.appendChild(document.createTextNode(content));
    return child;
}

} // namespace qxElementText

qxDocumentLoss::qxDocumentLoss(const std::function<QSet<QString>()> &allNames, Report report)
    : m_allNames(allNames), m_report(report)
{
    if (!current)
        current = this;
}

qxDocumentLoss::~qxDocumentLoss()
{
    if (current != this)
        return;
    current = nullptr;
    if (m_lostTexts > 0 && m_report == Logged)
        qxLog::warning("Saving variants: characters that a document cannot hold were left out of "
                       "%d texts.\n",
                       m_lostTexts);
}

QString qxDocumentLoss::writable(const QString &text)
{
    if (isWhole(text))
        return text;
    ++current->m_lostTexts;
    return without(text, QString());
}

QString qxDocumentLoss::writableName(const QString &name)
{
    if (isWhole(name))
        return name;
    ++current->m_lostTexts;
    if (current->m_names.isEmpty())
        current->m_taken = current->m_allNames();
    QString &known = current->m_names[name];
    if (known.isEmpty())
        known = current->newName(name);
    return known;
}

QString qxDocumentLoss::newName(const QString &name)
{
    const QString bare = without(name, QString());
    const QString base = bare.isEmpty() ? QStringLiteral("Unnamed") : bare;
    QString free = base;
    int &last = m_lastNumbers[base];
    while (m_taken.contains(free)) {
        last = qMax(last, 1) + 1;
        free = base + QLatin1Char(' ') + QString::number(last);
    }
    m_taken.insert(free);
    if (free != bare && m_report == Logged)
        qxLog::warning("Saving variants: the name \"%s\" is written as \"%s\".\n",
                       qxText::toUtf8(without(name, QString(QChar::ReplacementCharacter))).c_str(),
                       qxText::toUtf8(free).c_str());
    return free;
}
