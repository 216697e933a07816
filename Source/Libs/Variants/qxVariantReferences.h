#pragma once

#include "qxStateList.h"

/// What a set refers to of the variants, one list for each kind.
struct qxVariantReferences {
    ///@{
    /// The variants, by name, each with the state to select.
    qxStateList nodeVariants;
    qxStateList materialVariants;
    qxStateList lightVariants;
    qxStateList overlayVariants;
    qxStateList transformVariants;
    ///@}
};
