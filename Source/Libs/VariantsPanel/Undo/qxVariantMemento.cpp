#include "qxVariantMemento.h"

#include "qxVariantKind.h"

#include "qxNameLookUp.h"

#include <algorithm>

qxVariantMemento qxVariantMemento::of(const qxVariantKind &kind, const qxVariant &variant)
{
    return {&kind, variant.name, variant.*kind.sceneName, variant.defaultState, variant.options};
}

void qxVariantMemento::applyTo(qxVariant &variant) const
{
    if (variant.name != name) {
        variant.name = name;
        qxNameLookUp::noteRename();
    }
    variant.*kind->sceneName = sceneName;
    variant.defaultState = defaultState;
    variant.options = options;
}

bool qxVariantMemento::operator==(const qxVariantMemento &other) const
{
    return kind == other.kind && name == other.name && sceneName == other.sceneName
        && defaultState == other.defaultState
        && std::equal(options.begin(), options.end(), other.options.begin(), other.options.end(),
                      [](const qxVariantOption &option, const qxVariantOption &second) {
                          return option.name == second.name && option.shortcut == second.shortcut
                              && option.isAction == second.isAction;
                      });
}
