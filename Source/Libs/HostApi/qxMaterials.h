#pragma once

#include "qxNodePtr.h"

#include <OpenSG/OSGMaterial.h>

#include <string>
#include <vector>

/// The materials of the scene: those in its material pool and those contained in them.
///
/// The order is that of the pool; the contents of a switch or multi-pass material follow it. Each
/// material occurs once. Look-ups see every change that was made inside an edit bracket. They see
/// other changes after a module message qxModuleBase::MaterialsChanged, unless the pool itself was
/// edited inside a bracket before it.
///
/// Names are UTF-8; an empty or null name finds nothing.
///
/// The host answers the call "MaterialGetUniqueName": the field "Switch" (text) is the wanted name
/// of a new switch material, and the reply "newname" (text) is that name, with a number behind it
/// when a material of the scene has it already.
class qxMaterials {
public:
    /// The material's name; empty for a null material and for one without a name.
    static std::string getName(const osg::MaterialPtr &material);
    /// Names the material; with `exact` false a number is added to a name that is taken.
    static void setName(const osg::MaterialPtr &material, const char *name, bool exact);

    /// The first material of that name, or null.
    static osg::MaterialPtr findMaterial(const char *name);
    /// All materials of that name.
    static std::vector<osg::MaterialPtr> findMaterials(const char *name);

    /// Whether the user may change the material; false for a null one.
    static bool isEditable(const osg::MaterialPtr &material);
    /// Whether the material is marked as one for environments, or is a switch or multi-pass
    /// material that contains such a material. False for null.
    static bool isEnvironmentMaterial(const osg::MaterialPtr &material);
    /// Appends, in scene order, every scene node whose core has this very material.
    static void getNodesWithMaterial(std::vector<qxNodePtr> &nodes,
                                     const osg::MaterialPtr &material);

    /// Whether the sub-tree of the node's material group ignores the group's material; false for a
    /// node without such a core. The flag belongs to the core, so all its nodes share it.
    static bool getIgnoreMaterialGroup(const osg::NodePtr &node);
    /// Sets the flag; false when the node has no material group.
    static bool setIgnoreMaterialGroup(const osg::NodePtr &node, bool ignore);
};
