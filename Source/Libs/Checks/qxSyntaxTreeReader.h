#pragma once

#include "qxSyntaxTree.h"

#include <QSet>
#include <QXmlStreamReader>

#include <functional>

class QCryptographicHash;

/// Parses one document in one pass.
class qxSyntaxTreeReader {
public:
    qxSyntaxTreeReader(const QByteArray &document, qxSyntaxTree &tree, qxFindingList &findings);

    void read();

private:
    /// Reads the child that was just entered, up to and with its end.
    typedef std::function<void(const QString &tag, const qxSourceLocation &location)> Child;

    void readGroup(const qxSourceLocation &location);
    /// False for a set without a name.
    bool readSet(const QString &parent, const qxSourceLocation &location);
    void readSetChild(qxSyntaxTreeSet &set, const QString &tag, const qxSourceLocation &location);
    void readTexts(qxSyntaxTreeSet &set, const QString &tag, const qxSyntaxTreeText &entry);
    void readPreview(const QString &path, const qxSourceLocation &location);
    void readVariant(const qxVariantKind *kind, const qxSourceLocation &location);
    void readOption(qxSyntaxTreeVariant &variant, const qxSourceLocation &location);

    void eachChild(const Child &child);
    /// The text of the element that was just entered, as the document's own reader takes it.
    QString elementText();
    void skipUnknown(const QString &path, const qxSourceLocation &location);
    /// Where the next token begins.
    qxSourceLocation here() const;

    void noteForbidden(const QByteArray &document);

    QString attribute(const QString &name);
    bool has(const QString &name) const;
    void checkWord(const QString &text, const QString &what, const qxSourceLocation &location,
                   const QString &path);
    void checkNumbers(const qxSourceLocation &location, const QString &path);
    /// Takes the element that was just entered into the digest of its set.
    void digest(QCryptographicHash &hash, const QString &tag) const;
    void digestText(QCryptographicHash &hash, const QString &text) const;
    void add(qxCode code, const QString &message, const QString &path,
             const qxSourceLocation &location);
    bool refuseNameless(const QString &path, const qxSourceLocation &location);

    int m_forbidden; ///< the place of the first character that XML forbids, -1 for none
    QXmlStreamReader m_xml;
    qxSyntaxTree &m_tree;
    qxFindingList &m_findings;
    QSet<QString> m_texts; ///< names come again and again: one copy of each is kept
    QXmlStreamAttributes m_attributes; ///< of the element that was just entered
    QCryptographicHash *m_hash = nullptr; ///< of the set that is being read
};
