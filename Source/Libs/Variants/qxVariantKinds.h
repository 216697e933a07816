#pragma once

#include "qxVariantKind.h"

#include <vector>

/// The one table of the kinds of variants. Who treats variants alike goes over it.
namespace qxVariantKinds {

///@{
/// The rows of the table.
extern const qxVariantKind node;
extern const qxVariantKind material;
extern const qxVariantKind light;
extern const qxVariantKind overlay;
extern const qxVariantKind transform;
///@}

/// Kinds in some order; the pointers are never null.
typedef std::vector<const qxVariantKind *> List;

/// All kinds in the order of the registry, which the document and the user interface follow.
const List &all();

/// An order of all kinds for those who go through a set. Viewpoints, and what else it holds of
/// names, have their turn after `first`.
struct Order {
    explicit Order(const List &firstKinds); ///< `rest` follows from it

    List first; ///< those before viewpoints and other names
    List rest; ///< all others in the order of the registry

    List all() const; ///< first and rest together
};

const Order &selectionOrder(); ///< in which a set is applied, and explained
const Order &referenceOrder(); ///< of a set's references in the document
const Order &optimizingOrder(); ///< in which a set loses what can no longer work
const Order &readingOrder(); ///< in which the change of all is announced after reading

/// The kind with that text as its word, tag or reference tag; null for none.
const qxVariantKind *by(QLatin1String qxVariantKind::*name, const QString &text);

/// The kind of a variant of the registry; there is always one.
const qxVariantKind &of(const qxVariant &variant);

/// How many variants the registry holds.
std::size_t count();
/// Goes over all variants of the registry, kind by kind. `each` must not add or remove any.
void visit(const std::function<void(const qxVariantKind &kind, qxVariant &variant)> &each);

} // namespace qxVariantKinds
