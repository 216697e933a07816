#pragma once

#include <QLatin1String>

#include <functional>
#include <memory>
#include <typeinfo>
#include <vector>

class QString;
class qxStateList;
class qxVariant;
struct qxStateRule;
struct qxVariantReferences;

/// The names of the notifications about the variants of one kind.
struct qxVariantNotifications {
    const char *added; ///< the registry gained a variant
    const char *removed; ///< the registry was asked to remove a variant
    const char *changed; ///< many variants came or went
    const char *selected; ///< a state was selected; null for a kind that does not tell it
    const char *highlight; ///< the user wants to see some variants
    int flag; ///< of the first three: views follow at once (1), or when the host is idle (0)
};

/// A kind of variants: what it differs in from the others, so that the rest is written once for
/// all of them. The registry holds its variants in order of creation.
struct qxVariantKind {
    typedef std::function<void(qxVariant &variant)> Visit; ///< gets one after the other

    /// For users of commands and reports, such as "node"; a text of the context "qxVariants", ended
    /// by a null character.
    QLatin1String word;
    const char *title; ///< for people, in English; a text of the context "qxVariants"
    QLatin1String tag; ///< of the document's element for a variant
    QLatin1String referenceTag; ///< of the element of a set that refers to a variant
    const qxVariantNotifications &notifications; ///< what is announced of its variants
    qxStateList qxVariantReferences::*states; ///< those of a set to variants of the kind
    QString qxVariant::*sceneName; ///< the name of the scene object; for variants of the kind alone
    const qxStateRule &rule; ///< what the variants make of states
    const std::type_info &type; ///< of its variants

    /// Goes over the variants of the kind in order of creation. `each` must not add or remove any.
    void (*visit)(const Visit &each);
    std::size_t (*count)(); ///< how many variants of the kind there are
    /// The first variant of that name; null for none and for an empty name.
    qxVariant *(*find)(const QString &name);
    /// The variant of that name, see qxVariants::createNodeVariant and its like.
    qxVariant *(*create)(const QString &name, bool notify);
    /// Gives a new variant of the kind to the registry. Null when a listener took it out again.
    qxVariant *(*adopt)(std::unique_ptr<qxVariant> variant, bool notify);
    /// Deletes the first variant of that name and announces it, also when there is none. False for
    /// an empty name alone.
    bool (*remove)(const QString &name);
    /// Deletes all variants of the kind and announces the change once.
    void (*clear)();
    /// Puts these variants of the kind into that order, and all others behind them, announcing
    /// nothing. False when they stood so.
    bool (*arrange)(const std::vector<qxVariant *> &order);

    /// Brings to the scene what a variant that was just read drives; null where nothing is to do.
    void (*complete)(const qxVariant &variant) = nullptr;
    bool hasDefaults = true; ///< selecting the default states of a set includes it
    bool makesUsed = true; ///< a set that refers to one whose scene object exists is used
};
