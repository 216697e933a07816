#pragma once

#include "qxVariantSetContents.h"

#include <OpenSG/OSGNode.h>

#include <string>

class qxLightVariant;
class qxMaterialVariant;
class qxNodeVariant;
class qxOverlayVariant;
class qxTransformVariant;

/// A named combination of variant states and scene settings that is applied in one step.
///
/// A set refers to variants by name only: it survives the removal of a variant, and applying it
/// skips what does not exist. The registry creates and deletes sets.
class qxVariantSet : public qxVariantSetContents {
public:
    ///@{
    /// An empty set. One for the registry comes from qxVariants::createVariantSet.
    qxVariantSet();
    explicit qxVariantSet(const QString &setName);
    ///@}
    qxVariantSet(const qxVariantSet &) = delete;
    qxVariantSet &operator=(const qxVariantSet &) = delete;
    /// Leaves its group.
    ~qxVariantSet();

    ///@{
    /// Refers to the variant; an empty state stands for the variant's default state. A variant that
    /// is referred to already gets the new state and keeps its place. A null one is ignored.
    void add(qxNodeVariant *variant, const QString &state);
    void add(qxMaterialVariant *variant, const QString &state);
    void add(qxLightVariant *variant, const QString &state);
    void add(qxOverlayVariant *variant, const QString &state);
    void add(qxTransformVariant *variant, const QString &state);
    ///@}

    ///@{
    /// The same by name. The variant need not exist, and an empty state is kept as it is.
    void addNodeVariant(const QString &variantName, const QString &state)
    {
        nodeVariants.add(variantName, state);
    }
    void addMaterialVariant(const QString &variantName, const QString &state)
    {
        materialVariants.add(variantName, state);
    }
    void addLightVariant(const QString &variantName, const QString &state)
    {
        lightVariants.add(variantName, state);
    }
    void addOverlayVariant(const QString &variantName, const QString &state)
    {
        overlayVariants.add(variantName, state);
    }
    void addTransformVariant(const QString &variantName, const QString &state)
    {
        transformVariants.add(variantName, state);
    }
    ///@}

    ///@{
    /// The entry of that variant, to read or to edit, or null. It is valid until it is removed.
    qxVariantState *findNodeVariant(const QString &variantName)
    {
        return nodeVariants.find(variantName);
    }
    qxVariantState *findMaterialVariant(const QString &variantName)
    {
        return materialVariants.find(variantName);
    }
    qxVariantState *findLightVariant(const QString &variantName)
    {
        return lightVariants.find(variantName);
    }
    qxVariantState *findOverlayVariant(const QString &variantName)
    {
        return overlayVariants.find(variantName);
    }
    qxVariantState *findTransformVariant(const QString &variantName)
    {
        return transformVariants.find(variantName);
    }
    ///@}

    ///@{
    /// Drops the entry of that variant, if any.
    void removeNodeVariant(const QString &variantName) { nodeVariants.remove(variantName); }
    void removeMaterialVariant(const QString &variantName) { materialVariants.remove(variantName); }
    void removeLightVariant(const QString &variantName) { lightVariants.remove(variantName); }
    void removeOverlayVariant(const QString &variantName) { overlayVariants.remove(variantName); }
    void removeTransformVariant(const QString &variantName)
    {
        transformVariants.remove(variantName);
    }
    ///@}

    ///@{
    /// Names are added once; removing an absent one does nothing.
    void addGeometry(const QString &nodeName) { geometries.add(nodeName); }
    void removeGeometry(const QString &nodeName) { geometries.remove(nodeName); }
    void addViewpoint(const QString &viewpoint) { viewpoints.add(viewpoint); }
    void removeViewpoint(const QString &viewpoint) { viewpoints.remove(viewpoint); }
    void addAnimation(const QString &animation) { animations.add(animation); }
    void removeAnimation(const QString &animation) { animations.remove(animation); }
    void addTargetNodeName(const QString &nodeName) { targetNodeNames.add(nodeName); }
    ///@}
    /// Replaces the material recorded for that path, if any.
    void addMaterialSnapshot(const QString &nodePath, const QString &materialName);

    /// Adds a line to the script, or several.
    void appendToScript(const QString &line);

    ///@{
    /// What the last capture took, see qxVariantSetContents::inclNodes.
    void setInclInfo(bool nodes, bool mats, bool lights, bool env, bool view);
    void getInclInfo(bool &nodes, bool &mats, bool &lights, bool &env, bool &view) const;
    ///@}
    /// Reads `key` and `modifiers` from `hotkey`, in the native format or in the old one, such as
    /// "Shift-Ctrl F"; to be called after `hotkey` was changed. Both are 0 when it names no key.
    void updateShortcut();
    ///@{
    /// The bytes of an encoded picture, taken as they are; empty for none.
    void setPreview(QByteArray bytes) { preview = bytes; }
    QByteArray getPreview() const { return preview; }
    ///@}

    ///@{
    /// The clipping settings as a whole. Nothing is applied.
    const qxAnalyzerVariant &getAnalyzerVariant() const { return analyzer; }
    void setAnalyzerVariant(const qxAnalyzerVariant &settings) { analyzer = settings; }
    ///@}
    /// Applies the clipping settings alone.
    void executeAnalyzer() { analyzer.execute(); }

    ///@{
    /// One clipping setting each, see qxAnalyzerVariant. Nothing is applied.
    void setClippingState(int state) { analyzer.clipState = state; }
    void setClippingPlanePositionX(double x) { analyzer.clipPlanePosition[0] = float(x); }
    void setClippingPlanePositionY(double y) { analyzer.clipPlanePosition[1] = float(y); }
    void setClippingPlanePositionZ(double z) { analyzer.clipPlanePosition[2] = float(z); }
    void setClippingPlaneNormalX(double x) { analyzer.clipPlaneNormal[0] = float(x); }
    void setClippingPlaneNormalY(double y) { analyzer.clipPlaneNormal[1] = float(y); }
    void setClippingPlaneNormalZ(double z) { analyzer.clipPlaneNormal[2] = float(z); }
    void setClippingInvert(bool invert) { analyzer.clipPlaneInvert = invert; }
    void setClippingHideScene(bool hide) { analyzer.clipPlaneHideScene = hide; }
    void setClippingShowPlane(bool show) { analyzer.clipPlaneShow = show; }
    void setClippingPlaneColorR(double red) { analyzer.clipPlaneColor[0] = float(red); }
    void setClippingPlaneColorG(double green) { analyzer.clipPlaneColor[1] = float(green); }
    void setClippingPlaneColorB(double blue) { analyzer.clipPlaneColor[2] = float(blue); }
    void setClippingShowGrid(bool show) { analyzer.clipGridShow = show; }
    void setClippingGridColorR(double red) { analyzer.clipGridColor[0] = float(red); }
    void setClippingGridColorG(double green) { analyzer.clipGridColor[1] = float(green); }
    void setClippingGridColorB(double blue) { analyzer.clipGridColor[2] = float(blue); }
    void setClippingShowContour(bool show) { analyzer.clipContourShow = show; }
    void setClippingContourColorR(double red) { analyzer.clipContourColor[0] = float(red); }
    void setClippingContourColorG(double green) { analyzer.clipContourColor[1] = float(green); }
    void setClippingContourColorB(double blue) { analyzer.clipContourColor[2] = float(blue); }
    void setClippingContourWidth(int width) { analyzer.clipContourWidth = width; }

    int getClippingState() const { return analyzer.clipState; }
    osg::Pnt3f getClippingPlanePosition() const { return analyzer.clipPlanePosition; }
    osg::Vec3f getClippingPlaneNormal() const { return analyzer.clipPlaneNormal; }
    bool getClippingInvert() const { return analyzer.clipPlaneInvert; }
    bool getClippingHideScene() const { return analyzer.clipPlaneHideScene; }
    bool getClippingShowPlane() const { return analyzer.clipPlaneShow; }
    osg::Color3f getClippingPlaneColor() const { return analyzer.clipPlaneColor; }
    bool getClippingShowGrid() const { return analyzer.clipGridShow; }
    osg::Color3f getClippingGridColor() const { return analyzer.clipGridColor; }
    bool getClippingShowContour() const { return analyzer.clipContourShow; }
    osg::Color3f getClippingContourColor() const { return analyzer.clipContourColor; }
    int getClippingContourWidth() const { return analyzer.clipContourWidth; }
    ///@}

    /// Empties the contents. Name, group, clipping, preview, inclusion flags, geometries and
    /// modifiers stay.
    void clear();

    /// Applies the set: its node, material, transform and light variants, the move to the first
    /// viewpoint unless `keepCamera` is set, its overlay variants. `full` adds script, clipping,
    /// animations and the default viewpoint. Variants and viewpoints that do not exist are skipped.
    /// "variantsSetSelected" comes before and after, then "variantSetSelected"; a picture is
    /// requested. Listeners and the script may remove the set meanwhile.
    void select(bool full, bool keepCamera);
    /// Puts the node, material, light and transform variants of the set into their default states,
    /// with the same announcements, the last of which carries the set.
    void selectDefault();
    /// Runs the script alone, by the host's rules for scripts of users.
    void executeScript();
    ///@{
    /// Makes everything at and below the nodes in `geometries` visible, or hides the geometry
    /// there.
    void showGeometry();
    void hideGeometry();
    ///@}
    ///@{
    /// The same for one node; nothing for a null one.
    void pushEnable(osg::NodePtr node);
    void pushDisable(osg::NodePtr node);
    ///@}

    /// Whether the set would do nothing. Comment, hotkey, default viewpoint, target nodes,
    /// snapshots, values and preview do not count.
    bool isEmpty();
    /// Whether anything that the set refers to exists; transform states do not count.
    bool isUsed();
    ///@{
    /// Whether the set refers to the variant of that name (UTF-8).
    bool containsNodeVariant(std::string variantName);
    bool containsMaterialVariant(std::string variantName);
    bool containsLightVariant(std::string variantName);
    bool containsOverlayVariant(std::string variantName);
    bool containsTransformVariant(const std::string &variantName);
    ///@}
    /// Asks the user interface to highlight the existing variants of the set, kind by kind.
    void showConnectedVariants();
    /// Drops references that can no longer work. Those to missing variants stay.
    void optimize();

private:
    friend class qxVariantGroup;
    /// Takes the set out of its group; given by the group, which sets do not know.
    void (*m_leaveGroup)(qxVariantSet *set) = nullptr;
};
