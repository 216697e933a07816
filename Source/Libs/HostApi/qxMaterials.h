#pragma once

#include "qxNodePtr.h"

#include <OpenSG/OSGMaterial.h>

#include <string>
#include <vector>

/// The materials of the scene: those in the scene's material pool and those they are made of.
///
/// The order is that of the pool; what a switch or multi-pass material contains follows behind it.
/// Each material counts once. Look-ups follow every change of the scene that is made inside an edit
/// bracket, and all others after a module message qxModuleBase::MaterialsChanged before which the
/// pool itself was not edited inside one.
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
    /// Names the material: with `exact` true just so, else with a number behind it when the name is
    /// taken.
    static void setName(const osg::MaterialPtr &material, const char *name, bool exact);

    /// The first material of that name, or null.
    static osg::MaterialPtr findMaterial(const char *name);
    /// All materials of that name.
    static std::vector<osg::MaterialPtr> findMaterials(const char *name);

    /// Whether the user may change the material; false for a null one.
    static bool isEditable(const osg::MaterialPtr &material);
    /// Whether the material is made for what surrounds the scene: one that is marked so, and a
    /// switch or multi-pass material that contains one. False for a null one.
    static bool isEnvironmentMaterial(const osg::MaterialPtr &material);
    /// Appends every scene node whose core shows this very material, in scene order.
    static void getNodesWithMaterial(std::vector<qxNodePtr> &nodes,
                                     const osg::MaterialPtr &material);

    /// Whether what is below the node's material group ignores the material of the group; false
    /// for a node without such a core. The flag belongs to the core, whatever nodes share it.
    static bool getIgnoreMaterialGroup(const osg::NodePtr &node);
    /// Sets the flag; false when the node has no material group.
    static bool setIgnoreMaterialGroup(const osg::NodePtr &node, bool ignore);
};
