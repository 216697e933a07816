#pragma once

#include "qxDocument.h"

#include <optional>

/// What a name in a document means.
enum class qxNamed {
    Group,
    Set,
    Variant,
    State, ///< of a variant: an option, or an action
    Node,
    Overlay,
    Material,
    Path, ///< of a node
    Viewpoint,
    Animation
};

/// One place where a document names something, valid while it is visited.
struct qxDocumentPlace {
    qxNamed named; ///< what the name means
    const char *word; ///< what the place is, such as "target node"
    const qxDocumentSet *set = nullptr; ///< that names it; null when a variant or group does
    const qxDocumentVariant *variant = nullptr; ///< the same, null when a set or group does
    const qxVariantKind *kind = nullptr; ///< of the variant that is named or whose state it is
    QString owner = QString(); ///< of a state, the name of its variant
    bool isOwn = false; ///< the thing itself has its name here, rather than being referred to

    /// Whether the default state of a variant stands there.
    bool isDefault() const { return variant && named == qxNamed::State && !isOwn; }
    /// The place in words, such as: set "Red", target node
    QString text() const;
};

/// The one list of what a document names, and where. Scripts are left to qxScriptLiterals.
namespace qxDocumentPlaces {

/// May change the name.
typedef std::function<void(const qxDocumentPlace &place, QString &name)> Visit;

/// Goes over all names of groups, variants and sets, in the order of the document. Empty ones that
/// mean nothing are left out.
void visit(qxDocument &document, const Visit &visit);
/// What the scene object of a variant of the kind is.
qxNamed objectOf(const qxVariantKind &kind);
/// What of the scene a state of the kind's variants is named by; empty for actions and for kinds
/// that have nothing else.
std::optional<qxNamed> stateOf(const qxVariantKind &kind, const QString &state);

} // namespace qxDocumentPlaces
