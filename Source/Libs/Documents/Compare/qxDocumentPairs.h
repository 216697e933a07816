#pragma once

#include "Compare/qxPairing.h"
#include "qxDocument.h"

#include <QHash>

/// Finds what of a settled document became what of a later one, by name and, where a name is on one
/// side alone, by likeness: a thing is renamed when more than half of what is in it is the same.
///
/// What names a thing that is renamed itself counts as the same. The base of a variant weighs as
/// much as its states. A state is renamed when most of what says so agrees: its place between the
/// states that stayed, its hotkey, whether it is the default, and each set that selects it.
/// It takes n log n, and refers to the documents, which must neither change nor end before it.
class qxDocumentPairs {
public:
    /// Pairs all things.
    qxDocumentPairs(const qxDocument &before, const qxDocument &after);

    ///@{
    /// The pairs of all things of one sort.
    const qxPairing &groups() const { return m_groups; }
    const qxPairing &sets() const { return m_sets; }
    const qxPairing &variants() const { return m_variants; }
    ///@}

    ///@{
    /// What the later document calls that which has this name in the earlier one, whose variants
    /// need not exist; the same name where nothing was renamed.
    QString variant(const qxVariantKind *kind, const QString &name) const;
    QString state(const qxVariantKind *kind, const QString &variant, const QString &name) const;
    ///@}

private:
    typedef QPair<const qxVariantKind *, QString> Variant;
    struct States;

    void pairVariants();
    void pairStates();
    void pairSets();
    void pairGroups();
    void countUses(QHash<Variant, States> &open) const;

    const qxDocument &m_before;
    const qxDocument &m_after;
    qxPairing m_groups;
    qxPairing m_sets;
    qxPairing m_variants;
    QHash<Variant, QString> m_renamed; ///< the later names of variants
    QHash<QPair<Variant, QString>, QString> m_renamedStates; ///< by the earlier names of both
};
