#pragma once

struct qxVariantSetContents;

/// Brings to the scene what a set holds. Whoever calls this is in an operation and announces it.
namespace qxSetSelection {

/// Puts the variants into their states and moves to the first viewpoint unless `keepCamera` is set;
/// see qxVariantSet::select for what `full` adds.
void apply(qxVariantSetContents &set, bool full, bool keepCamera);
/// Puts the variants of the kinds that have default states into these.
void applyDefaults(const qxVariantSetContents &set);
/// Shows the target nodes with all that is below them, up to the first that the scene does not
/// have.
void showTargets(const qxVariantSetContents &set);

} // namespace qxSetSelection
