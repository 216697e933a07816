#pragma once

#include "qxFinding.h"
#include "qxLintVariantTable.h"

/// Where a finding is: what it belongs to, and its element when there is a text.
struct qxLintSpot {
    ///@{
    /// The thing as a whole.
    static qxLintSpot of(const qxDocumentGroup &group);
    static qxLintSpot of(const qxDocumentSet &set);
    static qxLintSpot of(const qxDocumentVariant &variant);
    ///@}
    /// An element in the one of this, which belongs to `part`.
    qxLintSpot within(const QString &tag, const qxSourceLocation &where,
                      const qxFindingPlace &part) const;

    qxFindingPlace place;
    QString path;
    qxSourceLocation location;
};

/// What the parts of a look over sets and variants share.
class qxLintContext {
public:
    /// Answers what is wrong with a script, or an empty text.
    typedef std::function<QString(const QString &script)> Compile;

    /// `remembers` is that of qxLintScene.
    qxLintContext(const Compile &compileScript, bool remembers)
        : compile(compileScript), scene(remembers), variants(scene)
    {
    }
    qxLintContext(const qxLintContext &) = delete;

    /// A finding there; see qxFinding for the texts.
    void add(qxCode code, const qxLintSpot &spot, const QString &message,
             const QString &detail = QString());

    const Compile compile;
    qxLintScene scene;
    qxLintVariantTable variants;
    QHash<QString, int> keys; ///< of hotkeys, by their texts; 0 for one that names none
    qxFindingList findings;
};

/// Finds things of one name among those of one sort.
class qxTwinLint {
public:
    qxTwinLint(qxLintContext &context, qxCode code) : m_context(context), m_code(code) {}

    /// `replacing` begins the sentence of the finding, which goes on with the earlier one.
    template <class Spot, class Replacing>
    void note(const QString &name, int line, const Spot &spot, const Replacing &replacing)
    {
        const auto known = m_lines.find(name);
        if (known == m_lines.end())
            m_lines.insert(name, line);
        else
            add(spot(), replacing(), std::exchange(*known, line));
    }

private:
    void add(const qxLintSpot &spot, const QString &replacing, int line);

    qxLintContext &m_context;
    const qxCode m_code;
    QHash<QString, int> m_lines;
};

/// A set with what it is compared by.
struct qxLintedSet {
    const qxDocumentSet *set; ///< never null
    QByteArray digest; ///< the same for sets that do the same; empty for one that does nothing
};

/// The parts of a look: each takes what it needs, so that what has not changed is left out.
namespace qxLintParts {

///@{
/// A set by itself: its references, names, snapshots and script. What it uses is noted.
void lintSet(qxLintContext &context, const qxDocumentSet &set);
/// Notes only what it uses.
void noteUses(qxLintContext &context, const qxDocumentSet &set);
/// Takes back what these noted.
void forgetUses(qxLintContext &context, const qxDocumentSet &set);
///@}
/// See qxLintedSet.
QByteArray digestOf(const qxDocumentSet &set);
/// A variant by itself, when all uses are noted.
void lintVariant(qxLintContext &context, const qxLintVariant &variant);
///@{
/// All of them beside one another.
void lintGroups(qxLintContext &context, const std::vector<qxDocumentGroup> &groups);
void compareSets(qxLintContext &context, const std::vector<qxLintedSet> &sets);
void compareVariants(qxLintContext &context);
/// Hotkeys of sets and of the options of variants.
void compareHotkeys(qxLintContext &context, const std::vector<qxLintedSet> &sets);
///@}

} // namespace qxLintParts
