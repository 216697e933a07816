#pragma once

#include <QDomElement>

/// Texts on their way into a document and out of it.
namespace qxDocumentText {

/// The text of an attribute, empty when it is missing. It is a copy of its own: a text that shares
/// the document's memory keeps whole pages of it alive.
QString attribute(const QDomElement &element, const QString &name);
int integer(const QDomElement &element, const QString &name);
bool flag(const QDomElement &element, const QString &name);
/// Read with the precision of a float.
double real(const QDomElement &element, const QString &name);
/// Assigns the attribute's text to `target` if the attribute is present.
void apply(const QDomElement &element, const QString &name, QString &target);

/// Calls `action` with each child element in order; other nodes are skipped.
template <class Action>
void forEachChild(const QDomElement &parent, const Action &action)
{
    for (QDomNode node = parent.firstChild(); !node.isNull(); node = node.nextSibling()) {
        QDomElement child = node.toElement();
        if (!child.isNull())
            action(child);
    }
}

/// Sets an attribute; characters that a document cannot hold are left out.
void setText(QDomElement &element, const QString &name, const QString &text);
/// Sets a flag as 1 or 0.
void setFlag(QDomElement &element, const QString &name, bool value);
/// Appends a child without content.
QDomElement appendElement(QDomElement &parent, const QString &tag);
/// Appends a child with one text in it; characters that a document cannot hold are left out.
QDomElement appendText(QDomElement &parent, const QString &tag, const QString &text);

/// Counts, while it lives, the texts that lost characters, and reports them at its end.
class LossReport {
public:
    LossReport();
    ~LossReport();
    LossReport(const LossReport &) = delete;
    LossReport &operator=(const LossReport &) = delete;
};

} // namespace qxDocumentText
