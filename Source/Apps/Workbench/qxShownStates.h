#pragma once

#include "qxVariantTable.h"

#include "qxSceneIndex.h"

/// What the scene shows of variants, where their own current state does not tell: the place of a
/// transform switch, and whether a switch is hidden as a whole. The scene must not change while it
/// is asked.
class qxShownStates {
public:
    struct Shown {
        QString state; ///< the current state; of a transform switch its place
        bool isHidden = false;
    };

    Shown of(const qxVariantRow &row) const;

private:
    const qxSceneIndex m_scene;
};
