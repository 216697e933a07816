#pragma once

#include "qxMergeFields.h"
#include "qxMergeNames.h"

#include <QHash>

/// Merges the variants of three documents.
class qxMergeVariants {
public:
    /// As they were translated.
    typedef qxMergeTriple<qxDocument> Documents;

    /// Takes the documents as `names` has translated them. It refers to all of it.
    qxMergeVariants(const Documents &documents, qxMergeNames &names, qxMergePreference preference);

    /// Whether one side removed a variant or a state that the other one still has.
    bool hasRemoved() const { return m_hasRemoved; }
    /// Says that a set of that side has an entry anew: variant and state come back when the other
    /// side removed them.
    void use(const qxDocumentReference &entry, int side);
    /// The name of the version of theirs of that variant; the same name when there is none.
    QString second(const qxVariantKind *kind, const QString &name) const;

    /// All variants in their order.
    std::vector<qxDocumentVariant> result() const;
    /// The conflicts in that order.
    QVector<qxMergeConflict> conflicts() const;

private:
    struct State {
        bool isInOurs = false;
        bool isInTheirs = false;
        qxDocumentOption ours;
        qxDocumentOption theirs;
        int onlySide = MergeBase; ///< see qxMergeThing
    };
    struct Variant {
        bool isThere = true;
        qxMergeFork<qxDocumentVariant> fork;
        std::vector<State> states;
        QVector<qxMergeConflict> conflicts;
        QString second; ///< empty for none
    };

    const qxDocumentVariant *at(int side, int number) const;
    void merge(int number);
    void mergeOnly(int number, int side);
    void mergeStates(int number);
    void mergeState(int number, const qxMergeThing &thing);
    void keepStandard(int number);
    void noteClashes();
    void noteStates(Variant &variant, const qxMergeNames::Clash &clash, qxMergeConflict conflict);
    void fork(int number);
    void removed(int number, int only, const QString &state);
    void bringBack(int number, const QString &name, int side);
    bool isChanged(int number, int side) const;
    std::vector<int> order() const;

    const Documents &m_documents;
    qxMergeNames &m_names;
    qxMergePreference m_preference;
    std::vector<Variant> m_variants;
    QHash<QPair<const qxVariantKind *, QString>, int> m_numbers; ///< by their merged names
    bool m_hasRemoved = false;
};
