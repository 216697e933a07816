#pragma once

#include "qxVariant.h"

struct qxVariantKind;

/// A variant of the registry, by names.
struct qxVariantName {
    const qxVariantKind *kind; ///< never null
    QString name;
};

/// The contents of a variant as a value, to restore a variant, to undo an edit.
struct qxVariantMemento {
    /// The present contents of `variant`.
    static qxVariantMemento of(const qxVariantKind &kind, const qxVariant &variant);
    /// Gives `variant` these contents, announcing nothing.
    void applyTo(qxVariant &variant) const;

    bool operator==(const qxVariantMemento &other) const;
    bool operator!=(const qxVariantMemento &other) const { return !(*this == other); }

    const qxVariantKind *kind = nullptr; ///< never null, but for nothing
    QString name;
    QString sceneName; ///< of its scene object
    QString defaultState;
    std::vector<qxVariantOption> options;
};
