#pragma once

#include "qxMaterialPtr.h"
#include "qxNodePtr.h"

#include <OpenSG/OSGVector.h>

#include <string>
#include <vector>

class qxVariantSet;

/// A script's handle on a variant set. Texts are UTF-8.
///
/// The registry owns the set: a handle whose set was removed must not be used any more. Through a
/// null handle setters do nothing and getters return nothing. No operation reports an error.
class qxVariantSetPtr {
public:
    ///@{
    /// A handle on the set; null by default.
    qxVariantSetPtr();
    qxVariantSetPtr(qxVariantSet *set);
    ///@}

    ///@{
    /// Assigns the name as it is: no check whether it is taken, no announcement, and references to
    /// the old name stay.
    void setName(const char *name);
    std::string getName() const;
    ///@}

    /// The hotkey as key-sequence text, in the native format or in the old one; empty for none.
    void setHotkeyString(const char *key);
    ///@{
    /// The hotkey of a digit or a capital letter by its key code, in the old form: "Shift-Ctrl F".
    /// Any other key leaves the hotkey as it is. `modifier` is made of Qt's bits for Shift, Control
    /// and Alt; a blank stands for none of them and for all three.
    void setHotkey(int key);
    void setHotkey(int key, int modifier);
    ///@}
    /// The hotkey's text as it was given.
    std::string getHotkey() const;

    ///@{
    /// Refers to the variant of that switch node, switch material or light. A missing variant is
    /// created and announced; an empty state stands for the variant's default state. Null objects
    /// are ignored.
    void addGeometry(qxNodePtr node, const char *state);
    void addMaterial(qxMaterialPtr material, const char *state);
    void addLight(qxNodePtr node, const char *state);
    ///@}
    /// Adds the viewpoint of that name, unless it is there; it need not exist.
    void addViewpoint(const char *name);

    ///@{
    /// The script; a new one replaces the old one, and does not run.
    void addScript(const char *script);
    std::string getScript() const;
    ///@}

    /// See qxAnalyzerVariant::ClipState.
    void setClippingState(int state);
    /// Sets plane and display options; the clipping state and the colours stay.
    void addClippingPlane(const osg::Pnt3f &position, const osg::Vec3f &normal,
                          bool invertDirection, bool hideScene, bool showClippingPlane,
                          bool showGrid, bool showContour);
    /// Copies the host's clipping settings; the clipping state stays. A number that the host's
    /// answer does not hold is 0.
    void addCurrentClippingPlane();

    /// In the set's order.
    std::vector<std::string> getTargetNodeNames() const;
    /// Keys are unique: the last value counts.
    void setValue(const char *key, const char *value);
    /// Empty for an absent key.
    std::string getValue(const char *key) const;

private:
    qxVariantSet *m_set = nullptr;
};
