#pragma once

#include <QDomElement>
#include <QHash>
#include <QSet>

#include <functional>

/// Texts on their way into a document.
namespace qxElementText {

/// Sets an attribute; characters that a document cannot hold are left out.
void setText(QDomElement &element, const QString &name, const QString &text);
/// Sets an attribute to a name of something. One with characters that a document cannot hold
/// becomes a name that nothing else has, the same each time while an outermost qxDocumentLoss
/// lives.
void setName(QDomElement &element, const QString &attribute, const QString &name);
/// Sets a flag as 1 or 0.
void setFlag(QDomElement &element, const QString &name, bool value);
/// Appends a child without content.
QDomElement appendElement(QDomElement &parent, const QString &tag);
/// Appends a child with one text in it; characters that a document cannot hold are left out.
QDomElement appendText(QDomElement &parent, const QString &tag, const QString &text);

} // namespace qxElementText

/// Notes, while it lives, what texts lose on their way into a document, and reports it at its end
/// unless it is silent. Texts are written only while one lives; those inside another one leave all
/// to that.
class qxDocumentLoss {
public:
    enum Report { Logged, Silent };

    /// `allNames` gives every name that may be written. It is called when the first one cannot be.
    explicit qxDocumentLoss(const std::function<QSet<QString>()> &allNames, Report report = Logged);
    ~qxDocumentLoss();
    qxDocumentLoss(const qxDocumentLoss &) = delete;
    qxDocumentLoss &operator=(const qxDocumentLoss &) = delete;

    /// The text without characters that a document cannot hold.
    static QString writable(const QString &text);
    static QString writableName(const QString &name);

private:
    QString newName(const QString &name);

    const std::function<QSet<QString>()> m_allNames;
    const Report m_report;
    int m_lostTexts = 0;
    QHash<QString, QString> m_names; ///< what is written for those that a document cannot hold
    QSet<QString> m_taken;
    QHash<QString, int> m_lastNumbers; ///< behind names to make them unique
};
