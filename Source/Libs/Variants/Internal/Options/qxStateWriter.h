#pragma once

#include "qxStateRules.h"

/// Writes effects to the scene as they are decided.
class qxStateWriter : public qxEffectTarget {
public:
    void take(const qxEffect &effect) override
    {
        if (effect.isChange() && !effect.isDone)
            qxStateRules::setValue(effect.object, effect.aspect, effect.value);
    }
};
