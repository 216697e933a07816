#pragma once

#include "qxLintParts.h"

class qxVariantSet;

/// Lints what the registry holds beside the scene, bit by bit, and later only what has changed.
///
/// It keeps a copy of what it has looked at, so nobody has to say what changed. The findings are
/// those of qxLinter for the document of the registry, except for their order, for places in a
/// text, and for which thousand of a code are listed.
class qxRegistryLint {
public:
    /// Nothing is looked at yet.
    explicit qxRegistryLint(const qxLintContext::Compile &compile);

    /// Sets, groups and variants may have changed.
    void lookAgain();
    /// So may the scene.
    void lookAtScene();
    /// Goes on for about so many milliseconds. Whether everything is looked at, so that the
    /// findings are current.
    bool work(int milliseconds);
    /// Whether there may be other findings than when this was last asked.
    bool takeChange() { return std::exchange(m_isChanged, false); }

    /// Those that were found until now: of sets, of variants, and of all beside one another. The
    /// last one of a code knows how many more there are.
    qxFindings all() const;
    ///@{
    /// Those of the set with all that it holds, and of the variant with its options; all of them,
    /// also where all() has too many.
    qxFindings ofSet(const QString &name);
    qxFindings ofVariant(const qxVariantKind &kind, const QString &name);
    ///@}

private:
    enum Step { Scene, Variants, Sets, UsedVariants, Together, Done };
    typedef QPair<const qxVariantKind *, QString> VariantName;
    typedef std::vector<const qxVariantSet *> SetList;
    /// What was found of something.
    struct Piece {
        qxFindingList findings;
        bool isDue = true;
    };
    /// A set as it was when it was looked at.
    struct SetPiece : Piece {
        qxDocumentSet set;
        QByteArray digest;
        int round = 0; ///< in which it was seen last; 0 for never
    };
    class Deadline;

    void begin(Step step);
    void checkScene();
    void readVariants();
    void takeVariants(std::vector<qxDocumentVariant> variants);
    void lintSets(const Deadline &deadline);
    void look(const qxVariantSet &set);
    void dropSets();
    void lintVariants(const Deadline &deadline);
    void lintTogether();
    /// Whether pieces are due again because what all keep has room for more of theirs.
    bool isRoomForMore();
    void drop(const Piece &piece);
    template <class Lint>
    void lint(Piece &piece, const Lint &lint);
    template <class Lint>
    qxFindings whole(const Piece &piece, const Lint &lint);
    template <class Visit>
    void visitPieces(const Visit &visit) const;

    qxLintContext m_context;
    Step m_step = Scene;
    std::size_t m_next = 0; ///< set or variant of the step
    int m_round = 1;
    bool m_isSceneDue = true;
    bool m_isChanged = true;
    std::vector<qxDocumentVariant> m_variants;
    std::vector<Piece> m_variantPieces; ///< of each of them
    QSet<VariantName> m_changedVariants; ///< since all sets were looked at
    std::unordered_map<const qxVariantSet *, SetPiece> m_sets; ///< a set may be gone by now
    SetList m_order;
    Piece m_together;
    qxFindingList::Counts m_counts;
    qxFindingList::Counts m_kept;
};
