#pragma once

#include "qxCheckCodes.h"

#include <QHash>

struct qxVariantKind;

/// What a finding belongs to, by names. A set's entries are whatever the set holds of names.
struct qxFindingPlace {
    /// What it is.
    enum Sort {
        Document, ///< none of the others
        Group,
        Set, ///< as a whole
        Reference, ///< an entry of a set: a variant and its state
        Viewpoint, ///< an entry of a set, as the next ones are
        Animation,
        Geometry,
        Target,
        Snapshot,
        Script, ///< of a set
        Variant, ///< as a whole
        Option ///< of a variant
    };

    Sort sort = Document; ///< says which of the names there are
    QString set; ///< of a set, and of what belongs to it
    const qxVariantKind *kind = nullptr; ///< of a reference, a variant, an option
    /// Of the group, the variant, the viewpoint and so on; of a snapshot the path of its node.
    QString name;
    QString state; ///< of a reference; of an option its name

    /// Whether it is something that a set lists.
    bool isEntry() const { return sort >= Reference && sort <= Snapshot; }
    ///@{
    /// Whether all names are the same.
    bool operator==(const qxFindingPlace &other) const;
    bool operator!=(const qxFindingPlace &other) const { return !(*this == other); }
    ///@}
};

/// Something that a check found in a variants document.
struct qxFinding {
    qxCode code; ///< what sort of finding it is
    QString message; ///< a sentence in English on what was found
    QString path; ///< of the element, such as: Variants/VariantSet[3] "Sport"/NodeVariantRef[2]
    int line = 0; ///< in the document, from 1
    int column = 0; ///< of the first character of the element, from 1
    int more = 0; ///< so many further ones of its code are not listed
    qxFindingPlace place; ///< what it belongs to
    /// What else it is about: the name of another set, what a compiler says, and so on; empty for
    /// nothing that the place does not say.
    QString detail;

    /// How much it weighs, by its code.
    qxSeverity severity() const { return qxCheckCodes::row(code).severity; }
};

/// Findings in some order.
typedef QVector<qxFinding> qxFindings;

/// Findings while they are found. Of each code the first thousand are kept, the rest is counted: a
/// document can have millions of the same fault.
class qxFindingList {
public:
    /// How many are kept of each code.
    static constexpr int Limit = 1000;
    /// Numbers of findings, by code.
    typedef QHash<int, int> Counts;

    qxFindingList() = default;
    /// For one of several lists that keep a thousand together: so many are kept by the others.
    explicit qxFindingList(const Counts &elsewhere) : m_elsewhere(elsewhere) {}

    /// Keeps or counts the finding, and counts those that it stands for.
    void add(const qxFinding &finding);
    ///@{
    /// What was kept, in the order of the document, and in that in which it was found. The last one
    /// of a code knows how many more there are.
    qxFindings inOrder() const;
    qxFindings asFound() const { return withRest(m_kept); }
    ///@}
    /// The one that was kept last; there must be one.
    const qxFinding &last() const { return m_kept.last(); }
    /// What was kept, in the order in which it was found.
    const qxFindings &kept() const { return m_kept; }
    ///@{
    /// All that were found, and those of them that were kept.
    const Counts &counts() const { return m_counts; }
    const Counts &keptCounts() const { return m_keptCounts; }
    ///@}

private:
    qxFindings withRest(qxFindings findings) const;

    Counts m_elsewhere;
    qxFindings m_kept;
    Counts m_counts;
    Counts m_keptCounts;
};
