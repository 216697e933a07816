#pragma once

#include "qxSyntaxTree.h"

#include <QHash>
#include <QSet>
#include <QXmlStreamReader>

#include <functional>

class QCryptographicHash;

/// Reads the outline of one document in one pass.
class qxSyntaxTreeReader {
public:
    qxSyntaxTreeReader(const QByteArray &document, qxSyntaxTree &outline, qxFindingList &findings);

    void read();

private:
    /// Reads the child that was just entered, up to and with its end.
    typedef std::function<void(const QString &tag, const qxMark &mark)> Child;

    void readGroup(const qxMark &mark);
    /// False for a set without a name.
    bool readSet(const QString &parent, const qxMark &mark);
    void readSetChild(qxSyntaxTreeSet &set, const QString &tag, const qxMark &mark);
    void readTexts(qxSyntaxTreeSet &set, const QString &tag, const qxSyntaxTreeText &entry);
    void readPreview(const QString &path, const qxMark &mark);
    void readVariant(const qxVariantKind *kind, const qxMark &mark);
    void readOption(qxSyntaxTreeVariant &variant, const qxMark &mark);

    void eachChild(const Child &child);
    /// The text of the element that was just entered, as the document's own reader takes it.
    QString elementText();
    void skipUnknown(const QString &path, const qxMark &mark);
    /// Where the next token begins.
    qxMark here() const;

    void noteForbidden(const QByteArray &document);

    QString attribute(const QString &name);
    bool has(const QString &name) const;
    void checkWord(const QString &text, const QString &what, const qxMark &mark,
                   const QString &path);
    void checkNumbers(const qxMark &mark, const QString &path);
    /// Takes the element that was just entered into the digest of its set.
    void digest(QCryptographicHash &hash, const QString &tag) const;
    void digestText(QCryptographicHash &hash, const QString &text) const;
    void add(qxCode code, const QString &message, const QString &path, const qxMark &mark);
    bool refuseNameless(const QString &path, const qxMark &mark);

    int m_forbidden; ///< the place of the first character that XML forbids, -1 for none
    QXmlStreamReader m_xml;
    qxSyntaxTree &m_outline;
    qxFindingList &m_findings;
    QSet<QString> m_texts; ///< names come again and again: one copy of each is kept
    QXmlStreamAttributes m_attributes; ///< of the element that was just entered
    QCryptographicHash *m_hash = nullptr; ///< of the set that is being read
};
