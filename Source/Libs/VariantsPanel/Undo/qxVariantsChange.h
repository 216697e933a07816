#pragma once

#include "qxVariant.h"

#include <QHash>

struct qxVariantKind;

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
    struct Contents {
        QString sceneName;
        QString defaultState;
        std::vector<qxVariantOption> options;
    };
    struct Changed {
        QString name;
        Contents before;
        Contents after;
    };
    struct Kind {
        const qxVariantKind *kind;
        QHash<QString, Contents> noted; ///< all, until finish
        std::vector<Changed> edited;
        std::vector<Changed> come; ///< in their order
    };

    void apply(bool forward) const;
    static bool edit(const qxVariantKind &kind, const Changed &changed, bool forward);
    static bool bring(const Kind &change);
    static bool takeBack(const Kind &change);
    static Contents contentsOf(const qxVariantKind &kind, const qxVariant &variant);
    static void give(const qxVariantKind &kind, qxVariant &variant, const Contents &contents);
    static bool isSame(const Contents &one, const Contents &other);

    std::vector<Kind> m_kinds;
};
