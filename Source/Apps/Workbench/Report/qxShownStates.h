#pragma once

#include "qxSceneLookup.h"
#include "qxScenegraph.h"

class qxVariant;

/// States of variants with more detail than their own current state: the position of a transform
/// switch, and whether a switch is hidden as a whole. While it lives, the look-up cache of names is
/// on, so the scene must not change.
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
