#pragma once

#include "qxSceneLookup.h"
#include "qxScenegraph.h"

/// What the scene shows of variants, where their own current state does not tell: the place of a
/// transform switch, and whether a switch is hidden as a whole. While it lives, the look-up cache
/// of names is on, so the scene must not change.
class qxShownStates {
public:
    struct Shown {
        QString state; ///< the current state; of a transform switch its place
        bool isHidden = false;
    };

    qxShownStates() { qxScenegraph::initFindCache(); }
    ~qxShownStates() { qxScenegraph::clearFindCache(); }
    qxShownStates(const qxShownStates &) = delete;

    Shown of(const qxVariant &variant) const;

private:
    const qxSceneLookup m_scene;
};
