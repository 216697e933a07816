#pragma once

#include "qxVariant.h"

struct qxVariantNotifications;

#include <OpenSG/OSGMaterialFields.h>

/// Chooses which material of all switch materials with one name is in use.
class qxMaterialVariant : public qxVariant {
public:
    /// The names under which the registry and the variants of this kind announce what happens.
    static const qxVariantNotifications notifications;

    QString switchMaterialName; ///< the switch materials are looked up by this name on every call

    /// A variant without options that drives nothing yet.
    qxMaterialVariant() = default;
    /// Takes name and options from a switch material. Any other named material is first wrapped
    /// into a new switch material, called like it with " Switch" behind it, which takes its place
    /// in the scene for good. A nameless one that is no switch gives an empty variant.
    explicit qxMaterialVariant(osg::MaterialPtr material);

    /// Chooses the material named by `state` or reached by the action; an unknown one changes
    /// nothing.
    void onSelect(const QString &state) override;
    /// The name of the chosen material; empty without a switch material or for a choice out of
    /// range.
    QString onCurrent() const override;

    using qxVariant::add;
    /// Adds the material to the switch material, unless it is there, and an option for it. Has no
    /// effect when the switch material is not editable; the same holds for the two removals.
    void add(osg::MaterialPtr material, const QString &shortcut);
    /// Takes the material out of the switch material, and its option out of the variant.
    void remove(osg::MaterialPtr material);
    /// Takes out the materials of that name; of two neighbours with one name the second one stays.
    void remove(const QString &optionName);

    /// Builds the options anew from the switch material. Shortcuts of options that survive are
    /// kept, and so is a default state that is still a state. Without a switch material no option
    /// is left.
    void updateVariants();

    ///@{
    /// Sets or clears the traversal mask of every node that uses the switch material, and of no
    /// other node.
    void showGeometry();
    void hideGeometry();
    ///@}
};
