#pragma once

#include "qxVariantMemento.h"

#include <QHash>

/// The changes of a capture to the registry's variants, for undo: new variants, and new options of
/// existing ones.
///
/// Undo and redo do not touch what others have changed since, nor variants that sets refer to.
class qxVariantsChange {
public:
    /// Records all variants.
    qxVariantsChange();
    /// Keeps only those that are new or have changed.
    void finish();

    void redo() const { apply(true); }
    void undo() const { apply(false); }

private:
    struct Changed {
        qxVariantMemento before;
        qxVariantMemento after;
    };
    struct Kind {
        const qxVariantKind *kind;
        QHash<QString, qxVariantMemento> noted; ///< all, until finish
        std::vector<Changed> edited;
        std::vector<Changed> come; ///< in their order
    };

    void apply(bool forward) const;
    static bool edit(const qxVariantKind &kind, const Changed &changed, bool forward);
    static bool bring(const Kind &change);
    static bool takeBack(const Kind &change);

    std::vector<Kind> m_kinds;
};
