#pragma once

#include <QString>

#include <vector>

class qxVariant;
struct qxVariantKind;

/// What states of variants are called in the language of the window. Documents hold states as they
/// are; tool tips show these.
namespace qxStateWords {

/// Such as "hidden", "next", the name of a transform state, or "Place 3 of 5"; the state itself
/// when it is a name. The variant may be null: then a place is "Place 3". Only a place is looked
/// for in the scene.
QString shown(const qxVariantKind &kind, const qxVariant *variant, const QString &state);
/// The same with the state as the document has it, if it differs, for a tool tip, as HTML.
QString toolTip(const qxVariantKind &kind, const qxVariant *variant, const QString &state);
/// Whether the state does something to what is shown, such as "!Next", rather than saying what to
/// show.
bool isAction(const qxVariantKind &kind, const QString &state);
/// The states that users may choose of the variant: first names, then words that say what to show,
/// such as "none", then actions.
std::vector<QString> choicesOf(const qxVariantKind &kind, const qxVariant &variant);
/// What one variant of the kind is called, such as "node".
QString kind(const qxVariantKind &kind);

} // namespace qxStateWords
