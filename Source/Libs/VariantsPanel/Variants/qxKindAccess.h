#pragma once

#include "qxVariantSet.h"

#include <functional>

class qxVariant;

/// What the kinds of variants differ in, so that the rest is written once for all of them.
///
/// Only the removal of a variant is announced.
struct qxKindAccess {
    enum { Count = 5 };
    typedef std::function<void(qxVariant &)> Visit;

    /// The kind as qxVariantsModel numbers it.
    static const qxKindAccess &of(int kind);

    void (*visit)(const Visit &each); ///< in the registry's order
    qxVariant *(*find)(const QString &name); ///< null when there is none
    qxVariant *(*create)(const QString &name);
    bool (*remove)(const QString &name);
    QString &(*sceneName)(qxVariant &variant);
    const qxStateList qxVariantSet::*states; ///< a set's references to variants of the kind
};
