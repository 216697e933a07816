#pragma once

#include "Internal/Document/qxElementCursor.h"

/// Takes the elements of a document for what they stand for. The module reads documents with it,
/// and so does everyone else.
class qxDocumentParser {
public:
    /// Without a listener, paths and locations are left empty.
    explicit qxDocumentParser(qxElementCursor &cursor,
                              const qxDocument::FlawListener *listener = nullptr);

    /// The whole document; the cursor stands at the root.
    void readDocument(qxDocument &document);

    ///@{
    /// What the element at which the cursor stands is, which is passed; without a name if it has
    /// none. Of a group this is the head: its children are not passed.
    qxDocumentGroup groupHead();
    qxDocumentSet set();
    qxDocumentVariant variant(const qxVariantKind &kind);
    ///@}

private:
    /// An element on the way to the one at which the cursor stands. Its path is put together only
    /// when somebody wants it.
    struct Place {
        const Place *parent;
        QString tag;
        qxSourceLocation location;
        QString name;

        QString path() const;
    };
    typedef std::function<void(const Place &place)> Child;

    qxDocumentGroup groupHead(Place place);
    qxDocumentSet set(Place place);
    qxDocumentVariant variant(const qxVariantKind &kind, Place place);

    void readGroup(qxDocument &document, const Place &place);
    void readRootChild(qxDocument &document, const Place &place);
    void readSetChild(qxDocumentSet &set, const Place &place);
    void readName(qxDocumentSet &set, qxNameList list, const Place &place);
    void readSnapshot(qxDocumentSet &set, const Place &place);
    void readValue(qxDocumentSet &set, const Place &place);
    void readSequence(qxDocumentSet &set, const Place &place);
    void readInclusions(qxDocumentSet &set, const Place &place);
    void readClipping(qxDocumentSet &set, const Place &place);
    void readPreview(qxDocumentSet &set, const Place &place);
    qxDocumentOption option(const Place &place);

    void eachChild(const Place &parent, const Child &child);
    bool refuseNameless(const Place &place);
    void passUnknown(const Place &place);
    bool word(const QString &text, const QString &what, const Place &place);
    void checkNumber(const QString &attribute, bool isReal, const Place &place);
    QString pathOf(const Place &place) const;
    void tell(qxDocumentFlaw::Sort sort, const QString &message, const Place &place) const;

    qxElementCursor &m_cursor;
    const qxDocument::FlawListener *m_listener;
};
