#pragma once

#include "qxDocument.h"
#include "qxMergeThings.h"

class qxDocumentPairs;

/// What the groups, sets, variants and states of three documents are called in the merged one.
class qxMergeNames {
public:
    /// As they were read; none is null.
    typedef qxMergeTriple<const qxDocument *> Documents;
    /// Two names for one thing, or one name for two; see qxMergeThings::Clash.
    struct Clash {
        qxMergeThings *things; ///< that it is about
        int variant; ///< whose states they are; -1 for others
        int thing; ///< its number
        int other; ///< likewise; the same for two names
    };

    /// Pairs everything and gives it names.
    qxMergeNames(const Documents &documents, qxMergePreference preference);
    qxMergeNames(const qxMergeNames &) = delete;

    /// The document of that side in which variants and states have the merged names, and sets name
    /// their groups by the numbers of the things.
    qxDocument translated(int side) const;

    qxMergeThings groups; ///< all of them
    qxMergeThings sets; ///< all of them
    qxMergeThings variants; ///< all of them
    std::vector<qxMergeThings> states; ///< of each variant, by its number
    std::vector<Clash> clashes; ///< of groups, sets, variants, then states

private:
    qxMergeNames(const Documents &documents, const qxDocumentPairs &ours,
                 const qxDocumentPairs &theirs, qxMergePreference preference);
    void addStates(const qxDocumentPairs &ours, const qxDocumentPairs &theirs);
    void settle(qxMergeThings &things, int variant, qxMergePreference preference);
    const qxDocumentVariant *variantOf(int side, int number) const;

    Documents m_documents;
};
