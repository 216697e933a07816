#pragma once

#include "qxVariant.h"

struct qxVariantNotifications;

/// Chooses one of the named transform states that the host keeps on all nodes with one name.
class qxTransformVariant : public qxVariant {
public:
    /// The names under which the registry and the variants of this kind announce what happens.
    static const qxVariantNotifications notifications;

    QString nodeName; ///< the nodes are looked up by this name on every call

    /// A variant without options that drives nothing yet.
    qxTransformVariant() = default;
    /// Drives the nodes of that name and takes the options from them; an empty name drives nothing.
    explicit qxTransformVariant(const QString &node);

    /// Asks the host's transform service, which must exist, for the state: once per node with
    /// transform states, each stepped from its own current state. Unknown states are skipped.
    void onSelect(const QString &state) override;
    /// The selected state of the first node with transform states; empty when there is none.
    QString onCurrent() const override;

    /// Builds the options anew from the first node with transform states. Shortcuts of states that
    /// survive are kept, those of the actions are lost. Without such a node no option is left.
    void updateVariants();
};
