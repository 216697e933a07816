#include "qxSetMemento.h"

namespace {

qxStateList qxVariantSet::*const stateLists[] = {
    &qxVariantSet::nodeVariants, &qxVariantSet::materialVariants, &qxVariantSet::lightVariants,
    &qxVariantSet::overlayVariants, &qxVariantSet::transformVariants};

} // namespace

// A list, not a procedure.
qxSetMemento qxSetMemento::of(const qxVariantSet &set)
{
    qxSetMemento held;
    held.name = set.name;
    held.hotkey = set.hotkey;
    held.comment = set.comment;
    held.script = set.script;
    held.defaultViewpoint = set.defaultViewpoint;
    held.values = set.values;
    held.preview = set.preview;
    for (std::size_t kind = 0; kind < std::size(stateLists); ++kind)
        held.m_states[kind] = set.*stateLists[kind];
    held.m_viewpoints = set.viewpoints;
    held.m_animations = set.animations;
    held.m_geometries = set.geometries;
    held.m_targets = set.targetNodeNames;
    held.m_snapshots = set.materialSnapshots;
    held.m_clipping = set.getAnalyzerVariant();
    held.m_animationIndex = set.animationIndex;
    held.m_sequential = set.sequentialAnimation;
    bool *const flags = held.m_inclusion;
    set.getInclInfo(flags[0], flags[1], flags[2], flags[3], flags[4]);
    return held;
}

// A list, not a procedure.
void qxSetMemento::applyTo(qxVariantSet &set) const
{
    if (set.name != name)
        set.name = name;
    set.hotkey = hotkey;
    set.updateShortcut();
    set.comment = comment;
    set.script = script;
    set.defaultViewpoint = defaultViewpoint;
    set.values = values;
    set.setPreview(preview);
    for (std::size_t kind = 0; kind < std::size(stateLists); ++kind)
        set.*stateLists[kind] = m_states[kind];
    set.viewpoints = m_viewpoints;
    set.animations = m_animations;
    set.geometries = m_geometries;
    set.targetNodeNames = m_targets;
    set.materialSnapshots = m_snapshots;
    set.setAnalyzerVariant(m_clipping);
    set.animationIndex = m_animationIndex;
    set.sequentialAnimation = m_sequential;
    const bool *const flags = m_inclusion;
    set.setInclInfo(flags[0], flags[1], flags[2], flags[3], flags[4]);
}
