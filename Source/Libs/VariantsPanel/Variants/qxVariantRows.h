#pragma once

#include "Undo/qxVariantEdits.h"

#include <QHash>

/// The variants of the registry as rows of a tree: kinds, variants, states, and behind the states
/// of a variant a row with its actions below. It holds names, no pointers to variants.
class qxVariantRows {
public:
    struct Option {
        QString name;
        QString shortcut;
        bool isAction;
    };
    struct Variant {
        QString name;
        std::vector<Option> options; ///< first states, then actions
        int states = 0; ///< how many of the options are no actions
        mutable QString current; ///< what the scene shows, when known
        mutable bool isCurrentKnown = false;
    };

    /// What stands above a row. Each row of the tree has a number for that.
    struct Above {
        int kind = -1; ///< -1 for a row without anything above it, which is a kind itself
        int variant = -1; ///< -1 for a variant
        bool isActions = false; ///< for an action

        static Above of(quintptr number);
        quintptr number() const;
    };

    /// Reads the registry: the variants in whose name, or the name of an option, each of the words
    /// occurs.
    void read(const QStringList &words);
    static int kindCount();
    static const qxVariantKind &kindAt(int kind);
    /// The row of the kind.
    static int rowOf(const qxVariantKind &kind);
    const std::vector<Variant> &variantsOf(int kind) const
    {
        return m_kinds[std::size_t(kind)].variants;
    }
    /// The row of the variant in its kind; -1 for none.
    int rowOf(int kind, const QString &variant) const;
    /// How many variants there are.
    int count() const;

    /// How many rows are below the row of that number that stands below `above`.
    int countBelow(const Above &above, int row) const;
    /// The variant of that row or of the row above it; null for a kind.
    const Variant *variantAt(const Above &above, int row) const;
    /// The option of that row; null for other rows.
    const Option *optionAt(const Above &above, int row) const;
    /// Whether the row stands above the actions of a variant.
    bool isActions(const Above &above, int row) const;

private:
    struct Kind {
        std::vector<Variant> variants;
        QHash<QString, int> rows; ///< of the variants, by name
    };

    static Variant rowsOf(const qxVariantKind &kind, const qxVariant &variant);

    std::vector<Kind> m_kinds; ///< in the order of qxVariantKinds::all
};
