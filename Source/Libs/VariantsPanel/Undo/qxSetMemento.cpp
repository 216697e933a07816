#include "qxSetMemento.h"

#include "qxVariantKinds.h"

#include "qxDocument.h"

#include <algorithm>

namespace {

template <class Value>
bool isSame(const Value &one, const Value &other)
{
    return one == other;
}

/// Pictures are large, and mostly the very same.
bool isSame(const QByteArray &one, const QByteArray &other)
{
    return one.constData() == other.constData() || one == other;
}

/// A set has hundreds of names, and what has not changed is still shared.
bool isSame(const QString &one, const QString &other)
{
    return one.isSharedWith(other) || one == other;
}

bool isSame(const qxUniqueNames &one, const qxUniqueNames &other)
{
    return one.list() == other.list();
}

bool isSame(const qxStateList &one, const qxStateList &other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](const qxVariantState &state, const qxVariantState &second) {
                          return isSame(state.variant, second.variant)
                              && isSame(state.state, second.state);
                      });
}

bool isSame(const qxAnalyzerVariant &one, const qxAnalyzerVariant &other)
{
    return one.clipState == other.clipState && one.script() == other.script();
}

} // namespace

// A list, not a procedure.
template <class Visit>
void qxSetMemento::visitFields(const Visit &visit)
{
    typedef qxSetMemento Held;
    typedef qxVariantSet Set;
    visit(&Held::name, &Set::name);
    visit(&Held::hotkey, &Set::hotkey);
    visit(&Held::comment, &Set::comment);
    visit(&Held::script, &Set::script);
    visit(&Held::defaultViewpoint, &Set::defaultViewpoint);
    visit(&Held::values, &Set::values);
    visit(&Held::preview, &Set::preview);
    visit(&Held::m_viewpoints, &Set::viewpoints);
    visit(&Held::m_animations, &Set::animations);
    visit(&Held::m_geometries, &Set::geometries);
    visit(&Held::m_targets, &Set::targetNodeNames);
    visit(&Held::m_snapshots, &Set::materialSnapshots);
    visit(&Held::m_isSequential, &Set::sequentialAnimation);
    visit(&Held::m_includesNodes, &Set::inclNodes);
    visit(&Held::m_includesMaterials, &Set::inclMats);
    visit(&Held::m_includesLights, &Set::inclLights);
    visit(&Held::m_includesEnvironment, &Set::inclEnv);
    visit(&Held::m_includesView, &Set::inclView);
    visit(&Held::m_clipping, &Set::analyzer);
    for (const qxVariantKind *kind : qxVariantKinds::all())
        visit(kind->states, kind->states);
}

qxSetMemento qxSetMemento::of(const qxVariantSet &set)
{
    qxSetMemento held;
    visitFields([&](auto field, auto own) { held.*field = set.*own; });
    held.m_animationIndex = set.animationIndex;
    return held;
}

void qxSetMemento::applyTo(qxVariantSet &set) const
{
    visitFields([&](auto field, auto own) { set.*own = this->*field; });
    set.animationIndex = m_animationIndex;
    set.updateShortcut();
}

bool qxSetMemento::isOf(const qxVariantSet &set) const
{
    bool isSameSet = true;
    visitFields(
        [&](auto field, auto own) { isSameSet = isSameSet && isSame(this->*field, set.*own); });
    const auto &clipping = qxClippingField::all();
    return isSameSet
        && std::all_of(clipping.begin(), clipping.end(), [&](const qxClippingField &field) {
               return field.isSame(m_clipping, set.analyzer);
           });
}

bool qxSetMemento::differ(const qxSetMemento &before, const qxSetMemento &after)
{
    bool differ = false;
    visitFields([&](auto field, auto) { differ |= !isSame(before.*field, after.*field); });
    return differ;
}

bool qxSetMemento::edit(qxVariantSet &set, const qxSetMemento &before, const qxSetMemento &after)
{
    bool isFree = true;
    visitFields([&](auto field, auto own) {
        const bool isEdited = !isSame(before.*field, after.*field);
        isFree &= !isEdited || isSame(set.*own, before.*field);
    });
    if (!isFree)
        return false;
    visitFields([&](auto field, auto own) {
        if (!isSame(before.*field, after.*field))
            set.*own = after.*field;
    });
    set.updateShortcut();
    return true;
}
