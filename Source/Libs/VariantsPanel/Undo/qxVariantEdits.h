#pragma once

#include "qxVariantMemento.h"

#include "qxDragData.h"

#include <OpenSG/OSGMaterialFields.h>
#include <OpenSG/OSGNode.h>

#include <QStringList>

#include <functional>

class QUndoStack;

/// The user's edits of variants in the panel, each of them one undo step; unknown variants are
/// passed over, and an edit that changes nothing is no step. Changes by others stay: undoing a step
/// that would overwrite them drops the step. qxPanelChanges signals every edit.
///
/// Renaming variants and options is a matter of qxNameEdits.
namespace qxVariantEdits {

typedef std::vector<const qxVariantKind *> Kinds;
typedef std::vector<qxVariantName> Variants;
typedef std::vector<qxDraggedState> States;

/// What came of creating variants.
struct Created {
    Variants made; ///< those that are new
    Variants known; ///< those that were there already; they stay as they are
    QStringList notes; ///< what to tell, such as why others were not made: each a sentence
};

///@{
/// The kinds of variants that can be made of a node, the most telling one first; for materials of
/// the material that the node has. None for a null node and for one without a name of its own.
Kinds kindsOf(const osg::NodePtr &node);
/// Makes variants of that kind of the nodes, for materials of the materials that they have, which
/// puts a switch material in the place of one that is none. Undo takes that back as well.
Created createOf(QUndoStack &steps, const qxVariantKind &kind,
                 const std::vector<osg::NodePtr> &nodes);
/// The same of materials.
Created createOf(QUndoStack &steps, const std::vector<osg::MaterialPtr> &materials);
/// Makes variants of all that varies in the scene: switches, lights, switches among the overlays,
/// nodes with transform states, switch materials, by what of them is among the kinds.
Created createOfAll(QUndoStack &steps, const Kinds &kinds);
///@}

/// Removes the variants. `withEntries` takes them out of the sets that refer to them; else the
/// sets keep their entries, which work again once there is a variant of that name.
void remove(QUndoStack &steps, const Variants &variants, bool withEntries);
/// The names of the sets that refer to one of the variants, in the order of the registry. Asks
/// every set.
QStringList usersOf(const Variants &variants);

/// Lets `change` edit the contents of a variant and makes the difference one step with the text
/// `what`. It touches neither name nor scene.
void edit(QUndoStack &steps, const qxVariantName &variant, const QString &what,
          const std::function<void(qxVariant &)> &change);
/// Options that the scene has for the variant and that it has not; actions come last.
QStringList missingOptions(const qxVariantName &variant);
/// Adds options at the end, those of actions flagged as such; names that are there already are
/// passed over.
void addOptions(QUndoStack &steps, const qxVariantName &variant, const QStringList &names);
/// Removes options by their names, of material variants with their materials, as the module does
/// it. Sets keep their entries.
void removeOptions(QUndoStack &steps, const qxVariantName &variant, const QStringList &names);
/// Adds materials to the switch material of the variant, with an option for each. Undo takes them
/// out again.
void addMaterials(QUndoStack &steps, const qxVariantName &variant,
                  const std::vector<osg::MaterialPtr> &materials);
/// Gives the options the order of the names, within the places that these have now. Each must be
/// the name of one option.
void orderOptions(QUndoStack &steps, const qxVariantName &variant, const QStringList &names);

/// The state of the variant that the scene shows, as a set would hold it; empty for none.
QString presentState(const qxVariantKind &kind, const QString &variant);
/// Gives a set these states, an empty one being the one that the scene shows: an entry of the set
/// takes its new state, others are appended. Says how many entries are new or other than before.
int addToSet(QUndoStack &steps, const QString &set, const States &states);

} // namespace qxVariantEdits
