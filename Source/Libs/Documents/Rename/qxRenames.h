#pragma once

#include "qxDocument.h"

/// A group, set or variant that has got another name.
struct qxRename {
    /// What it is.
    enum Thing { Group, Set, Variant };

    Thing thing; ///< what it is
    const qxVariantKind *kind; ///< of a variant; null for a group or set
    QString from; ///< its name before
    QString to; ///< its name now
};

/// Renames that happen at once: in exchanging two names none comes first.
typedef std::vector<qxRename> qxRenames;
