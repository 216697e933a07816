#pragma once

#include "qxVariant.h"

#include <QList>

/// A variant with its kind in words, such as "node".
struct qxVariantRow {
    const char *kind;
    qxVariant *variant;
};

/// The variants of all kinds in one list, as the command line shows and addresses them.
namespace qxVariantTable {

/// All variants: node, material, light, overlay, transform, each kind in the registry's order.
QList<qxVariantRow> all();
/// The variants of that name: at most one of each kind.
QList<qxVariantRow> named(const QString &name);
/// The words of all kinds in that order.
QStringList kinds();

} // namespace qxVariantTable
