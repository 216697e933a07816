#include "Internal/Document/qxDomCursor.h"

/// A copy of its own: a text that shares the document's memory keeps whole pages of it alive.
QString qxDomCursor::attribute(const QString &name)
{
    const QString shared = m_element.attribute(name);
    return QString(shared.constData(), shared.size());
}

bool qxDomCursor::has(const QString &name) const
{
    return m_element.hasAttribute(name);
}

void qxDomCursor::eachChild(const Child &child)
{
    const QDomElement parent = m_element;
    for (QDomElement each = parent.firstChildElement(); !each.isNull();
         each = each.nextSiblingElement()) {
        m_element = each;
        child(each.tagName(), {});
    }
    m_element = parent;
}

QString qxDomCursor::text()
{
    return m_element.text();
}

bool qxDomCursor::picture(QByteArray &base64)
{
    const QDomNode content = m_element.firstChild();
    if (!content.isCDATASection())
        return false;
    base64 = content.nodeValue().toLatin1();
    return true;
}
