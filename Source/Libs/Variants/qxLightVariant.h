#pragma once

#include "qxVariant.h"

class qxMessage;
struct qxVariantNotifications;

namespace osg {
class NodePtr;
}

/// Switches all lights with one name.
class qxLightVariant : public qxVariant {
public:
    /// The names under which the registry and the variants of this kind announce what happens.
    static const qxVariantNotifications notifications;

    QString lightName; ///< the light nodes are looked up by this name on every call

    /// A variant without options that drives nothing yet.
    qxLightVariant() = default;
    /// Takes the node's name, and options and default state if it is a light.
    explicit qxLightVariant(osg::NodePtr node);

    /// Applies "!Enable", "!Disable" or "!Toggle" to each light of the name; others change nothing.
    void onSelect(const QString &state) override;
    /// "!Enable" or "!Disable" after the first light of the name; empty when there is none.
    QString onCurrent() const override;

    /// Builds the options anew from the first light of the name; shortcuts are lost. Without a
    /// light no option is left.
    void updateVariants();

    /// Adds to `message` whether the light is on and announces it; nothing for what is no light.
    void callVariantsLightChanged(const osg::NodePtr &node, qxMessage &message);
    /// The names from below the scene root down to the node, each followed by "|".
    QString getNodePath(const osg::NodePtr &node);
};
