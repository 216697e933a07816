#pragma once

#include <QString>

#include <string>
#include <vector>

class qxMessage;
class qxVariant;
class qxVariantGroup;
class qxVariantSet;
struct qxNodesChange;
struct qxVariantNotifications;

/// Everything that the module tells the host: one function per notification, called like it. Those
/// about variants have their names from the kind.
///
/// Notifications ask views to follow at once, except those of transform variants, which may wait.
/// Texts travel as UTF-8, objects as untyped addresses.
namespace qxNotify {

// Variants of one kind came, went or were selected, or the user wants to see those of these names.
void variantAdded(const qxVariantNotifications &names, qxVariant *variant);
void variantRemoved(const qxVariantNotifications &names);
void variantsChanged(const qxVariantNotifications &names);
/// The same after a document was read, when views follow at once.
void variantsChangedByDocument(const qxVariantNotifications &names);
/// A state was selected; sent once, after all changes.
void variantSelected(const qxVariantNotifications &names, qxVariant *variant);
void highlightVariants(const qxVariantNotifications &names, const std::vector<QString> &variants);

// Sets and groups came or went; removed ones still exist during the call.
void variantSetAdded(qxVariantSet *set);
void variantSetRemoved(qxVariantSet *set);
void variantSetChanged();
void variantGroupAdded(qxVariantGroup *group);
void variantGroupRemoved(qxVariantGroup *group);
void variantGroupChanged();

// A set was applied.
void variantsSetSelected(const QString &setName);
void variantSetSelected();
void variantSetSelected(qxVariantSet *set);
void animationStart(const QString &animation);

/// The beginning of a message about one changed node: the name of the variant that changed it.
qxMessage changeBy(const std::string &variantName);
/// Notes in such a message that the node was hidden; the change itself replaces it.
void setHidden(qxMessage &message);
/// These add the change to `message` and send it.
void variantsNodesChanged(qxMessage &message, qxNodesChange &&change);
void variantsOverlaysChanged(qxMessage &message, qxNodesChange &&change);
void variantsLightsChanged(qxMessage &message, std::vector<std::string> &&enabled,
                           std::vector<std::string> &&disabled);

/// The switch material `materialBaseName` now shows the material `materialName`.
void variantsMaterialChanged(const std::string &variantName, const std::string &materialName,
                             const std::string &materialBaseName);
/// The materials of a switch material changed.
void updateMaterials();
/// The host's name for a new switch material that would be called `wanted`: one that no material
/// has. Empty when no host answers.
QString uniqueMaterialName(const QString &wanted);
/// Tells the other modules that materials came, went or were replaced in the scene.
void sceneMaterialsChanged();

/// Asks the host to put the overlays of that name into a state.
void activateOverlays(const QString &state, const QString &overlayName);

} // namespace qxNotify
