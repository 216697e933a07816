#pragma once

#include "qxStateRules.h"

#include <QString>

#include <memory>
#include <vector>

class qxVariant;
struct qxVariantKind;

/// What of the scene variants are made of, and making them.
namespace qxVariantSources {

/// Makes a variant of each thing that varies and has none, as the module's operations do it:
/// switches with children, switch materials, lights, switches among the overlays, nodes with
/// transform states.
void createAll(const qxVariantKind &kind);
/// What createAll would make a variant of, each name once, in the order of the scene.
std::vector<qxSceneObject> varying(const qxVariantKind &kind);
/// What else a variant can be made of, each name once, in the order of the scene: for nodes and
/// overlays whatever can be shown and hidden, for materials those that nodes of the scene have.
std::vector<qxSceneObject> others(const qxVariantKind &kind);

/// What a variant of the kind drives when it is made of the node, which for materials is the
/// material of the node. Both parts are null when none can be made of it.
qxSceneObject sourceAt(const qxVariantKind &kind, const osg::NodePtr &node);
/// The name of the scene object by the rules of its sort.
QString nameOf(const qxSceneObject &object);
/// The variant of the object, see qxVariants::createNodeVariant and its like; null for none.
qxVariant *create(const qxVariantKind &kind, const qxSceneObject &object, bool notify);
/// What a variant of the same scene object would be if it were made now, outside of the registry;
/// null when the scene has nothing that fits.
std::unique_ptr<qxVariant> madeAnew(const qxVariantKind &kind, const qxVariant &variant);

} // namespace qxVariantSources
