#pragma once

#include "qxCheckCodes.h"
#include "qxForecast.h"
#include "qxSceneLookup.h"

#include <QMap>
#include <QStringList>

class qxVariantSet;
struct qxVariantKind;

/// What one entry of a set does when the set is selected.
struct qxExplainedEntry {
    QString kind; ///< "node" and the other kinds of variants, "viewpoint", "animation" and so on
    QString name; ///< of the variant, viewpoint, animation; empty for what a set has once
    QString state; ///< empty for what is no variant
    bool isVariant = false; ///< rather than a viewpoint, an animation and so on
    bool isVariantFound = false; ///< the registry has it
    bool isStateKnown = false; ///< it is an option of the variant
    QString object; ///< the name of what is looked up in the scene
    int found = 0; ///< how many of that name there are
    int reached = 0; ///< how many of them take the state
    int changed = 0; ///< how many of these had another one
    QMap<qxCode, int> left; ///< why the others do not, and how many
    QString from; ///< the first that takes it, just before its turn; empty for what has no state
    QString to; ///< the same just after its turn
    /// Why it does nothing, or has done nothing; none when all is well.
    std::optional<qxCode> code;
    bool isDone = false; ///< the scene shows it, after the selection
};

/// What only the host can see of a selection.
struct qxSelectionOutcome {
    QString viewpoint; ///< where the camera is
    QStringList animations; ///< that were started, in order
    bool isClipped = false; ///< the clipping plane is as the set has it
};

/// Foresees what selecting a set in full does to the scene of the host, and compares it with what
/// it did. It does not select and changes nothing.
class qxExplanation {
public:
    /// Whether it is foreseen that the set shows its target nodes with all below them, which takes
    /// the longer the more there are. Without it, entries may tell `from` and `to` otherwise.
    enum Targets { ForeseeTargets, PassTargets };
    /// Goes on from what `forecast`, which must outlive this, has foreseen. What is there now must
    /// stay there until compare, but for what the set changes.
    qxExplanation(const qxVariantSet &set, qxForecast &forecast, Targets targets = ForeseeTargets);

    /// Looks at the scene after the selection: completes the code and isDone of each entry.
    void compare(const qxSelectionOutcome &outcome);

    /// In the order in which a selection goes through the set.
    const std::vector<qxExplainedEntry> &entries() const { return m_entries; }

private:
    /// What an entry makes of one object.
    struct Change {
        std::size_t entry;
        qxEffect effect;
    };

    void addTargets(const qxVariantSet &set, Targets targets);
    void addVariants(const qxVariantSet &set, const qxVariantKind *kind);
    void addViewpoints(const qxVariantSet &set);
    void addRest(const qxVariantSet &set);
    void addAnimations(const qxVariantSet &set);
    /// Foresees the state in every object of the entry's name.
    void foresee(qxExplainedEntry &entry, const qxVariantKind &kind);
    void showTarget(const osg::NodePtr &node);
    /// An entry that is no variant; without a code it is expected to happen.
    void addPlain(const char *kind, const QString &name, std::optional<qxCode> code);
    bool isShown(const qxExplainedEntry &entry, const qxSelectionOutcome &outcome) const;
    void compareChanges();

    const qxSceneLookup m_scene;
    std::vector<qxExplainedEntry> m_entries;
    std::vector<Change> m_changes;
    qxForecast &m_forecast;
};
