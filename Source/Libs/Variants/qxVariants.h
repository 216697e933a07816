#pragma once

#include "qxVariantLists.h"

#include "qxNodePtr.h"

#include <OpenSG/OSGMaterialGroupFields.h>
#include <OpenSG/OSGMultiPassMaterialFields.h>
#include <OpenSG/OSGSwitchMaterialFields.h>

#include <QMap>
#include <QSet>

class QProgressDialog;
class qxMessage;

/// The one registry of all variants, variant sets and variant groups. It owns them.
///
/// Names are compared exactly. An empty name never matches: find and create return null, remove
/// returns false. With `notify` a creation is announced, else it is silent; an object that exists
/// already is never announced again. All operations run on the user-interface thread.
class qxVariants : public qxVariantLists {
public:
    ///@{
    /// For `_the` alone: listens to the host's "clearAllVariants" as long as it lives.
    qxVariants();
    qxVariants(const qxVariants &) = delete;
    qxVariants &operator=(const qxVariants &) = delete;
    virtual ~qxVariants();
    ///@}

    ///@{
    /// The variant named like the scene object: the existing one or a new one built from the
    /// object. Null for an object without a name, for a node without transform states in the last
    /// case, and when a listener removed the new variant. A material that is no switch material is
    /// wrapped into one, see qxMaterialVariant.
    static qxNodeVariant *createNodeVariant(osg::NodePtr node, bool notify);
    static qxMaterialVariant *createMaterialVariant(osg::MaterialPtr material, bool notify);
    static qxLightVariant *createLightVariant(osg::NodePtr node, bool notify);
    static qxOverlayVariant *createOverlayVariant(osg::NodePtr node, bool notify);
    static qxTransformVariant *createTransformVariant(osg::NodePtr node, bool notify);
    ///@}

    ///@{
    /// The variant of that name: the existing one or a new one without options and scene object,
    /// which the caller fills. An overlay variant takes the name for its overlay, too.
    static qxNodeVariant *createNodeVariant(const QString &name, bool notify);
    static qxMaterialVariant *createMaterialVariant(const QString &name, bool notify);
    static qxLightVariant *createLightVariant(const QString &name, bool notify);
    static qxOverlayVariant *createOverlayVariant(const QString &name, bool notify);
    static qxTransformVariant *createTransformVariant(const QString &name, bool notify);
    ///@}

    ///@{
    /// The first variant of that name, or null. Valid until it is removed; if that happens while an
    /// operation of the module runs, until the outermost one ends.
    static qxNodeVariant *findNodeVariant(const QString &name);
    static qxMaterialVariant *findMaterialVariant(const QString &name);
    static qxLightVariant *findLightVariant(const QString &name);
    static qxOverlayVariant *findOverlayVariant(const QString &name);
    static qxTransformVariant *findTransformVariant(const QString &name);
    ///@}

    ///@{
    /// Deletes the first variant of that name. The removal is announced, and true is returned, also
    /// when there is none. Sets keep their references to it.
    static bool removeNodeVariant(const QString &name);
    static bool removeMaterialVariant(const QString &name);
    static bool removeLightVariant(const QString &name);
    static bool removeOverlayVariant(const QString &name);
    static bool removeTransformVariant(const QString &name);
    ///@}

    ///@{
    /// Deletes all variants of the kind and announces the change once.
    static void clearNodeVariants();
    static void clearMaterialVariants();
    static void clearLightVariants();
    static void clearOverlayVariants();
    static void clearTransformVariants();
    ///@}

    /// A new set, added to `group` unless that is null. A name that is taken is refused with a
    /// warning and null; null as well when a listener removed the set.
    static qxVariantSet *createVariantSet(const QString &name, bool notify, qxVariantGroup *group);
    /// The first set of that name, or null. Valid as a variant is.
    static qxVariantSet *findVariantSet(const QString &name) { return _variantSets.find(name); }
    /// Deletes the set and announces it; an unknown name is silent. False only for an empty name.
    static bool removeVariantSet(const QString &name);
    /// Deletes all sets and announces the change once.
    static void clearVariantSets();
    ///@{
    /// Deletes the sets that hold nothing, see qxVariantSet::isEmpty, and announces each; whether
    /// there is one.
    static void clearEmptyVariantSets();
    static bool hasEmptyVariantSets();
    ///@}
    /// Strips references that can no longer work from all sets, see qxVariantSet::optimize.
    static void optimizeVariantSets();

    /// A new group. A name that is taken is refused with a warning and null; null as well when a
    /// listener removed the group.
    static qxVariantGroup *createVariantGroup(const QString &name, bool notify, bool visible);
    /// The first group of that name, or null. Valid as a variant is.
    static qxVariantGroup *findVariantGroup(const QString &name)
    {
        return _variantGroups.find(name);
    }
    /// The group of that name; a new one when there is none. A new "Render Queue" is hidden and not
    /// announced. Null for an empty name.
    static qxVariantGroup *findOrCreateVariantGroup(const QString &name);
    /// As removeVariantSet. The sets of the group stay, without a group.
    static bool removeVariantGroup(const QString &name);
    /// Deletes all groups and announces the change once; the sets stay.
    static void clearVariantGroups();
    ///@{
    /// Deletes the groups without sets and announces each; whether there is one.
    static void clearEmptyGroups();
    static bool hasEmptyGroups();
    ///@}

    ///@{
    /// `base`, or the host's variation of it that no set (no group) has.
    static QString getUniqueVariantSetName(QString base);
    static QString getUniqueVariantGroupName(QString base);
    ///@}

    /// Asks the user interface to highlight the variants of that set; nothing for an unknown one.
    static void showConnectedVariants(QString setName);
    /// Applies the set of that name (UTF-8) after showing its target nodes. `flag` keeps the camera
    /// where it is. An unknown name is ignored.
    static void selectVariantSet(const char *name, bool flag);
    /// Whether every node of the scene can be told apart by its name or path; otherwise the user is
    /// asked to let those that cannot be renamed, and the answer is true when they were.
    static bool verifyNodeNames();
    /// Asks that question; true for "Rename". Without windows the nodes are logged, and it is
    /// false.
    static bool showAmbiguousNodesDialog(std::vector<osg::NodePtr> &nodes);
    /// Whether a set refers to one of the nodes, so that renaming it might break the set.
    static bool containsAmbiguousVSets(std::vector<osg::NodePtr> &nodes);
    /// Whether a node has exactly that path (UTF-8), as far as the last capture knows the scene.
    /// With `apply` all further nodes of that path get the material of the first one. `node` does
    /// not matter.
    static bool checkIfNodeMatchesNodePath(osg::NodePtr node, const char *path, bool apply);

    /// Creates a set in the group of that name, which is created when there is none, and captures
    /// the whole scene into it. Both names (UTF-8) are made unique; an empty group name stands for
    /// "New Group 1". Nothing is created while nodes are ambiguous.
    static void createAndCaptureVariantSet(const char *name, const char *groupName);
    /// Replaces the contents of the set by the present state of everything below the roots: by that
    /// of the wanted kinds, of which transforms are not remembered by the set. With `notify`
    /// variants that have to be created are announced; `plainViewpointName` calls the viewpoint
    /// like the set, without " View" behind it.
    static void captureVariantsFromRootNodes(qxVariantSet *set, std::vector<qxNodePtr> roots,
                                             bool captureNodes, bool captureMaterials,
                                             bool captureLights, bool captureEnvironments,
                                             bool captureViewpoint, bool captureTransforms,
                                             bool notify, bool plainViewpointName);
    /// Adds the present state of one subtree to the set, and the names of its materials to
    /// `materials`, by node path. The last collections are those of handleMaterialSnapshots.
    static void
    captureVariantsFromRootNode(qxVariantSet *set, qxNodePtr node, bool captureNodes,
                                bool captureMaterials, bool captureLights, bool captureEnvironments,
                                bool captureTransforms, QMap<QString, QString> &materials,
                                std::vector<qxNodePtr> roots, QSet<QString> &visitedNames,
                                std::set<osg::SwitchMaterialPtr> &visitedSwitchMaterials,
                                std::set<osg::MaterialPtr> &visitedMaterials, bool notify);
    /// Whether the node is active, so that a capture goes on below it. An inactive one is recorded
    /// when nodes are captured: as a variant, or in the script when an active node has its name.
    static bool checkAndSetNodeActive(osg::NodePtr node, qxVariantSet *set, bool &captureNodes,
                                      bool &notify);
    /// Records in the set's script whether the group's material is ignored.
    static void addMaterialGroupIgnoreToVSet(osg::NodePtr node, osg::MaterialGroupPtr group,
                                             qxVariantSet *set);
    ///@{
    /// Add what the material shows, and what that shows in turn when it is a switch material, too.
    static void captureMaterialVariantFromSwitchMaterial(qxVariantSet *set,
                                                         osg::SwitchMaterialPtr &material,
                                                         bool notify);
    static void captureMaterialVariantFromMultiPassMaterial(qxVariantSet *set,
                                                            osg::MultiPassMaterialPtr &material,
                                                            bool notify);
    ///@}
    /// Makes the dialog the one that is shown while a capture runs, and shows it.
    static void initVSetProgressDialog(QProgressDialog *dialog);
    /// Selects the set of that name (UTF-8) after reconciling the scene's materials with all sets.
    static void activateCapturedVariantSet(const char *name);

    /// Reconciles the material of a node with what the snapshots of other sets hold for its path:
    /// where they differ, the node gets a switch material that holds both. `capture` says whether
    /// `set` is being captured. The remaining arguments are those of captureVariantsFromRootNode.
    static void handleMaterialSnapshots(qxVariantSet *set, osg::NodePtr node, const QString &path,
                                        osg::MaterialPtr material,
                                        const std::vector<qxNodePtr> &roots,
                                        QSet<QString> &visitedNames,
                                        std::set<osg::SwitchMaterialPtr> &visitedSwitchMaterials,
                                        std::set<osg::MaterialPtr> &visitedMaterials, bool capture,
                                        bool notify);
    /// Does so for the whole scene, for no set in particular.
    static void restoreSwitchNodes();
    /// Gives the material to a material group or a geometry.
    static void changeMaterial(osg::NodePtr node, osg::MaterialPtr material);

    /// A PNG of 264 by 256 pixels that shows the scene as it is now; with `fullRaytracingQuality`
    /// as well as ray tracing can, if the view traces rays. Empty when it could not be made.
    static QByteArray createPreviewImage(bool showProgress, bool fullRaytracingQuality);
    /// The same from what the main view shows, whatever `set` is; empty without a view.
    static QByteArray getPreviewImageFromFrameBuffer(qxVariantSet *set);
    /// Gives the set a preview made in one of these ways, and lets the view return to the set's
    /// default viewpoint on "home". The set is not selected. Null is ignored.
    static void renderVariantSetPreview(qxVariantSet *set, bool fromFrameBuffer, bool showProgress,
                                        bool fullRaytracingQuality);

    /// Splits key-sequence text in the native format into the key code and the modifiers of its
    /// first combination; both are 0 for a text that names no key.
    static void mapHotkey(const QString &text, int &key, Qt::KeyboardModifiers &modifiers);
    /// Forgets everything, and announces the change of each kind, of sets and of groups: the host's
    /// "clearAllVariants". The message does not matter.
    static void clearAll(qxMessage &message);

    /// The module object: there from loading to unloading, it listens to the host.
    static qxVariants _the;
};
