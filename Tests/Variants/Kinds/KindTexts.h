#pragma once

#include "qxVariant.h"

#include <string>
#include <vector>

typedef std::vector<std::string> Texts;

/// The options in order: the name, "*" behind actions, the shortcut in brackets.
inline Texts textsOf(const std::vector<qxVariantOption> &options)
{
    Texts texts;
    for (const qxVariantOption &option : options) {
        std::string text = option.name.toStdString() + (option.isAction ? "*" : "");
        if (!option.shortcut.isEmpty())
            text += " (" + option.shortcut.toStdString() + ")";
        texts.push_back(text);
    }
    return texts;
}
