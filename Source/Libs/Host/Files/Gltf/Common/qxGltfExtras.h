#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGQuaternion.h>

#include <QStringList>

#include <optional>
#include <vector>

/// The names of our own entries in the `extras` of nodes, materials and scenes.
namespace qxGltfKeys {
constexpr const char *switchChoice = "qxSwitch";
constexpr const char *transformStates = "qxTransformStates";
constexpr const char *transformChoice = "qxTransformChoice";
constexpr const char *sharesCoreOf = "qxSharesCoreOf";
constexpr const char *poses = "qxPoses";
constexpr const char *poseNames = "qxPoseNames";
constexpr const char *pose = "qxPose";
constexpr const char *hiddenParts = "qxHiddenParts";
constexpr const char *lightOn = "qxLightOn";
constexpr const char *overlay = "qxOverlay";
constexpr const char *overlayLayer = "qxOverlayLayer";
constexpr const char *environment = "qxEnvironment"; ///< of nodes and materials
constexpr const char *environmentPicture = "qxEnvironmentPicture";
constexpr const char *environmentExposure = "qxEnvironmentExposure";
constexpr const char *environmentRotation = "qxEnvironmentRotation";
constexpr const char *switchMaterial = "qxSwitchMaterial"; ///< of primitives
constexpr const char *switchMaterials = "qxSwitchMaterials"; ///< of the file
constexpr const char *partName = "qxPartName"; ///< of primitives
constexpr const char *inPose = "qxInPose";
constexpr const char *viewpoint = "qxViewpoint";
constexpr const char *viewpointName = "qxViewpointName";
constexpr const char *materialPool = "qxMaterialPool"; ///< of the file
constexpr const char *variants = "qxVariants";
constexpr const char *otherExtras = "qxOther"; ///< the original extras that were no object
} // namespace qxGltfKeys

/// Reads the entries of one node, or of one object of another `kind`. An entry of the wrong form is
/// ignored with a warning.
class qxGltfExtras {
public:
    qxGltfExtras(int index, const qxJson &node, QStringList &warnings, const char *kind = "node");

    bool has(const char *key) const;
    bool isNumber(const char *key) const;
    /// Also from a number such as 2.0, which some tools write.
    std::optional<int> integer(const char *key) const;
    std::optional<float> number(const char *key) const;
    /// Also from the numbers 0 and 1; `fallback` when there is none.
    bool flag(const char *key, bool fallback) const;
    std::optional<std::string> text(const char *key) const;
    /// Matrices from ten numbers each: translation, rotation quaternion x y z w, scale.
    std::vector<osg::Matrix> transforms(const char *key) const;
    /// A matrix from sixteen numbers, as nodes have it.
    std::optional<osg::Matrix> matrix(const char *key) const;
    /// The whole numbers of a list.
    std::vector<int> integers(const char *key) const;
    /// Texts from a list, or from one text with ";" between them.
    std::vector<std::string> texts(const char *key) const;

private:
    const qxJson &value(const char *key) const;
    std::vector<float> numbers(const char *key) const;
    void warn(const char *key, const QString &reason) const;

    int m_index;
    const qxJson &m_node;
    QStringList &m_warnings;
    const char *m_kind;
};

/// Whether the indices of the node's children matter: it is a switch, or shares a core.
bool qxGltfCountsChildren(const qxJson &node);
bool qxGltfIsFinite(const osg::Matrix &matrix);
/// The rotation of the four numbers x y z w. Numbers far from a unit quaternion are normalized, so
/// that matrices stay finite.
osg::Quaternion qxGltfRotation(const float *numbers);
/// The transform that ten numbers stand for.
osg::Matrix qxGltfMatrix(const float *numbers);

/// Puts `value` under `key` of the node's extras, or takes the entry out when it is null.
/// Extras that hold no entries, such as a text, become an entry until ours are gone.
void qxGltfSetExtra(qxJson &node, const char *key, const qxJson &value);
