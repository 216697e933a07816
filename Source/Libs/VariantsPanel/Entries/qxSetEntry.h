#pragma once

#include <QStringList>

#include <vector>

class qxVariantSet;
struct qxVariantKind;

/// One thing that a set holds by name or as a setting: a variant with the state wanted of it, or
/// something of another sort. Not what the fields of the form are for.
struct qxSetEntry {
    enum Sort { Variant, Viewpoint, Animation, Clipping, Target, Geometry, Snapshot, Capture };

    Sort sort;
    const qxVariantKind *kind; ///< of a variant; null for other sorts
    QString name; ///< of a snapshot the path of its node; empty for clipping and capture
    /// As the set holds it: of a variant its state, of a snapshot its material. What is made of
    /// other sorts in a form that only qxSetEntries knows; empty where nothing is.
    QString state;

    /// The same for entries of the same thing, whatever its state; others differ.
    QString key() const;
    /// Whether the other one has the same key.
    bool isOfSame(const qxSetEntry &other) const
    {
        return sort == other.sort && kind == other.kind && name == other.name;
    }
};

/// What sets hold, as entries.
namespace qxSetEntries {

/// All of them: variants by kind, then the other sorts.
std::vector<qxSetEntry> of(const qxVariantSet &set);
/// Takes out what the entry stands for.
void remove(qxVariantSet &set, const qxSetEntry &entry);
/// Adds it with its state; one that is there already gets the state.
void put(qxVariantSet &set, const qxSetEntry &entry);
/// The states that users may choose for it, those that say what to show first; none for what can
/// only be taken out.
std::vector<QString> choicesOf(const qxSetEntry &entry);

///@{
/// In the language of the window: what it is, what it is called, and a state of it.
QString sortOf(const qxSetEntry &entry);
QString nameOf(const qxSetEntry &entry);
QString wordOf(const qxSetEntry &entry, const QString &state);
///@}

} // namespace qxSetEntries
