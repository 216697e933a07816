#pragma once

#include "qxVariant.h"

#include <QHash>
#include <QStringList>

struct qxVariantKind;

/// What a capture does to the registry's variants, to undo: variants that come, and options that
/// existing ones get.
///
/// Undoing and redoing leave alone what others changed since, and variants that sets refer to.
class qxVariantsChange {
public:
    /// Notes all variants.
    qxVariantsChange();
    /// Keeps only those that came or have become different.
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
