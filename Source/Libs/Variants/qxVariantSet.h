#pragma once

#include "qxStateList.h"
#include "qxUniqueNames.h"
#include "qxAnalyzerVariant.h"

#include <OpenSG/OSGNode.h>

#include <QMap>

#include <string>

class qxLightVariant;
class qxMaterialVariant;
class qxNodeVariant;
class qxOverlayVariant;
class qxTransformVariant;
class qxVariantGroup;

/// A named combination of variant states and scene settings that is applied in one step.
///
/// A set refers to variants by name only: it survives the removal of a variant, and applying it
/// skips what does not exist. The registry creates and deletes sets.
class qxVariantSet {
public:
    qxVariantSet();
    explicit qxVariantSet(const QString &setName);
    qxVariantSet(const qxVariantSet &) = delete;
    qxVariantSet &operator=(const qxVariantSet &) = delete;
    /// Leaves its group.
    ~qxVariantSet();

    /// Refers to the variant; an empty state stands for the variant's default state. A variant that
    /// is referred to already gets the new state and keeps its place. A null one is ignored.
    void add(qxNodeVariant *variant, const QString &state);
    void add(qxMaterialVariant *variant, const QString &state);
    void add(qxLightVariant *variant, const QString &state);
    void add(qxOverlayVariant *variant, const QString &state);
    void add(qxTransformVariant *variant, const QString &state);

    /// The same by name. The variant need not exist, and an empty state is kept as it is.
    void addNodeVariant(const QString &variantName, const QString &state);
    void addMaterialVariant(const QString &variantName, const QString &state);
    void addLightVariant(const QString &variantName, const QString &state);
    void addOverlayVariant(const QString &variantName, const QString &state);
    void addTransformVariant(const QString &variantName, const QString &state);

    /// The entry of that variant, to read or to edit, or null. It is valid until it is removed.
    qxVariantState *findNodeVariant(const QString &variantName);
    qxVariantState *findMaterialVariant(const QString &variantName);
    qxVariantState *findLightVariant(const QString &variantName);
    qxVariantState *findOverlayVariant(const QString &variantName);
    qxVariantState *findTransformVariant(const QString &variantName);

    /// Drops the entry of that variant, if any.
    void removeNodeVariant(const QString &variantName);
    void removeMaterialVariant(const QString &variantName);
    void removeLightVariant(const QString &variantName);
    void removeOverlayVariant(const QString &variantName);
    void removeTransformVariant(const QString &variantName);

    /// Names are added once; removing an absent one does nothing.
    void addGeometry(const QString &nodeName);
    void removeGeometry(const QString &nodeName);
    void addViewpoint(const QString &viewpoint);
    void removeViewpoint(const QString &viewpoint);
    void addAnimation(const QString &animation);
    void removeAnimation(const QString &animation);
    void addTargetNodeName(const QString &nodeName);
    /// Replaces the material recorded for that path, if any.
    void addMaterialSnapshot(const QString &nodePath, const QString &materialName);

    /// Adds one line to the script.
    void appendToScript(const QString &line);

    void setInclInfo(bool nodes, bool mats, bool lights, bool env, bool view);
    void getInclInfo(bool &nodes, bool &mats, bool &lights, bool &env, bool &view) const;
    /// Reads `key` and `modifiers` from `hotkey`.
    void updateShortcut();
    /// The bytes of an encoded picture.
    void setPreview(QByteArray bytes);
    QByteArray getPreview() const;

    const qxAnalyzerVariant &getAnalyzerVariant() const;
    void setAnalyzerVariant(const qxAnalyzerVariant &settings);
    /// Applies the clipping settings alone.
    void executeAnalyzer();

    /// One clipping setting each, see qxAnalyzerVariant.
    void setClippingState(int state);
    void setClippingPlanePositionX(double x);
    void setClippingPlanePositionY(double y);
    void setClippingPlanePositionZ(double z);
    void setClippingPlaneNormalX(double x);
    void setClippingPlaneNormalY(double y);
    void setClippingPlaneNormalZ(double z);
    void setClippingInvert(bool invert);
    void setClippingHideScene(bool hide);
    void setClippingShowPlane(bool show);
    void setClippingPlaneColorR(double red);
    void setClippingPlaneColorG(double green);
    void setClippingPlaneColorB(double blue);
    void setClippingShowGrid(bool show);
    void setClippingGridColorR(double red);
    void setClippingGridColorG(double green);
    void setClippingGridColorB(double blue);
    void setClippingShowContour(bool show);
    void setClippingContourColorR(double red);
    void setClippingContourColorG(double green);
    void setClippingContourColorB(double blue);
    void setClippingContourWidth(int width);

    int getClippingState() const;
    osg::Pnt3f getClippingPlanePosition() const;
    osg::Vec3f getClippingPlaneNormal() const;
    bool getClippingInvert() const;
    bool getClippingHideScene() const;
    bool getClippingShowPlane() const;
    osg::Color3f getClippingPlaneColor() const;
    bool getClippingShowGrid() const;
    osg::Color3f getClippingGridColor() const;
    bool getClippingShowContour() const;
    osg::Color3f getClippingContourColor() const;
    int getClippingContourWidth() const;

    /// Empties the contents. Name, group, clipping, preview, inclusion flags, geometries and
    /// modifiers stay.
    void clear();

    /// Applies the set. `full` adds script, clipping, animations and the default viewpoint;
    /// `keepCamera` leaves out the move to the first viewpoint.
    void select(bool full, bool keepCamera);
    /// Puts the node, material, light and transform variants of the set into their default states.
    void selectDefault();
    /// Runs the script alone.
    void executeScript();
    /// Makes everything below the nodes in `geometries` visible, or hides the geometry there.
    void showGeometry();
    void hideGeometry();
    void pushEnable(osg::NodePtr node);
    void pushDisable(osg::NodePtr node);

    /// Whether the set would do nothing. Comment, hotkey, default viewpoint, target nodes,
    /// snapshots, values and preview do not count.
    bool isEmpty();
    /// Whether anything that the set refers to exists; transform states do not count.
    bool isUsed();
    /// Whether the set refers to the variant of that name (UTF-8).
    bool containsNodeVariant(std::string variantName);
    bool containsMaterialVariant(std::string variantName);
    bool containsLightVariant(std::string variantName);
    bool containsOverlayVariant(std::string variantName);
    bool containsTransformVariant(const std::string &variantName);
    /// Asks the user interface to highlight the existing variants of the set, kind by kind.
    void showConnectedVariants();
    /// Drops references that can no longer work. Those to missing variants stay.
    void optimize();

    QString name; ///< unique among the sets of the registry
    QString hotkey;
    QString comment;
    QString script;
    int key = -1; ///< read from `hotkey`, as are the modifiers
    Qt::KeyboardModifiers modifiers;
    QString defaultViewpoint;
    qxUniqueNames viewpoints; ///< selecting moves to the first one
    qxStateList overlayVariants;
    qxUniqueNames animations;
    unsigned int animationIndex = 0; ///< the next one to start when they start in turn
    bool sequentialAnimation = false;
    qxUniqueNames geometries; ///< names of nodes
    qxStateList nodeVariants;
    qxStateList materialVariants;
    qxStateList lightVariants;
    qxStateList transformVariants;
    QMap<QString, QString> values;
    qxVariantGroup *group = nullptr; ///< maintained by the group
    qxAnalyzerVariant analyzer;
    QByteArray preview;
    qxUniqueNames targetNodeNames;
    QMap<QString, QString> materialSnapshots; ///< material names by node path
    bool inclNodes = false;
    bool inclMats = false;
    bool inclLights = false;
    bool inclEnv = false;
    bool inclView = false;

private:
    friend class qxVariantGroup;
    /// Takes the set out of its group; given by the group, which sets do not know.
    void (*m_leaveGroup)(qxVariantSet *set) = nullptr;
};
