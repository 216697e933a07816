#pragma once

/// Overlay references of older documents, which listed the shown overlays without a state.
namespace qxOlderOverlays {

/// Gives them explicit states in all sets.
void makeExplicit();

} // namespace qxOlderOverlays
