#include "qxVariantUndoSteps.h"

#include "qxVariantKinds.h"

#include "qxRegistryNotice.h"
#include "qxSetPlace.h"

#include <QHash>
#include <QSet>

qxVariantsPresence::qxVariantsPresence(const QString &text, Way way, std::vector<Part> parts)
    : qxEditStep(text), m_comes(way == Come), m_parts(std::move(parts))
{
}

std::vector<qxVariantsPresence::Part>
qxVariantsPresence::partsOf(const std::vector<qxVariantName> &variants)
{
    QHash<const qxVariantKind *, QSet<QString>> wanted;
    for (const qxVariantName &variant : variants)
        wanted[variant.kind].insert(variant.name);
    std::vector<Part> parts;
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        const auto names = wanted.constFind(kind);
        if (names == wanted.constEnd())
            continue;
        int index = 0;
        kind->visit([&](const qxVariant &variant) {
            if (names->contains(variant.name))
                parts.push_back({qxVariantMemento::of(*kind, variant), index});
            ++index;
        });
    }
    return parts;
}

bool qxVariantsPresence::perform(bool forward)
{
    return forward == m_comes ? appear() : vanish();
}

/// All come back, or none: sets refer to them by their names.
bool qxVariantsPresence::appear()
{
    for (const Part &part : m_parts) {
        if (part.contents.kind->find(part.contents.name))
            return false;
    }
    QHash<const qxVariantKind *, std::vector<qxPlaces::PlacedVariant>> placed;
    for (const Part &part : m_parts) {
        const qxVariantKind &kind = *part.contents.kind;
        qxVariant *const variant = kind.create(part.contents.name, false);
        part.contents.applyTo(*variant);
        placed[&kind].push_back({variant, part.index});
    }
    for (auto each = placed.begin(); each != placed.end(); ++each)
        qxPlaces::put(*each.key(), *each);
    for (auto each = placed.begin(); each != placed.end(); ++each)
        qxRegistryNotice::variantsChanged(*each.key());
    return true;
}

bool qxVariantsPresence::vanish()
{
    std::vector<qxVariantName> names;
    for (const Part &part : m_parts)
        names.push_back({part.contents.kind, part.contents.name});
    std::vector<Part> found = partsOf(names);
    if (found.empty())
        return false;
    for (const Part &part : found)
        part.contents.kind->remove(part.contents.name);
    m_parts = std::move(found);
    return true;
}

qxVariantEdit::qxVariantEdit(const QString &text, const qxVariantMemento &before,
                             const qxVariantMemento &after)
    : qxEditStep(text), m_before(before), m_after(after)
{
}

bool qxVariantEdit::perform(bool forward)
{
    const qxVariantMemento &from = forward ? m_before : m_after;
    const qxVariantMemento &to = forward ? m_after : m_before;
    const qxVariantKind &kind = *from.kind;
    qxVariant *const variant = kind.find(from.name);
    const bool isNameFree = from.name == to.name || !kind.find(to.name);
    if (!variant || !isNameFree || qxVariantMemento::of(kind, *variant) != from)
        return false;
    to.applyTo(*variant);
    qxRegistryNotice::variantsChanged(kind);
    return true;
}
