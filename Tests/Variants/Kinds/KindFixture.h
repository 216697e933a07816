#pragma once

#include "qxVariant.h"

#include "HostFixture.h"

#include <algorithm>

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

/// The four stepping actions as a new variant has them, and the other options.
inline Texts stepsAnd(const Texts &others)
{
    Texts texts{"!Next*", "!Next (Loop)*", "!Previous*", "!Previous (Loop)*"};
    texts.insert(texts.end(), others.begin(), others.end());
    return texts;
}

/// The variant's options after a rebuild.
template <class Variant>
Texts rebuilt(Variant &variant)
{
    variant.updateVariants();
    return textsOf(variant.options);
}

/// What a rebuild makes of that default state.
template <class Variant>
QString rebuiltDefault(Variant &variant, const char *before)
{
    variant.defaultState = before;
    variant.updateVariants();
    return variant.defaultState;
}

class KindFixture : public HostFixture {
protected:
    /// Selects the state and returns what was sent before the closing notification of that name.
    Texts select(qxVariant &variant, const QString &state, const std::string &closing)
    {
        notifications.clear();
        variant.onSelect(state);
        Texts sent = notifications.lines();
        const auto last =
            std::find(sent.begin(), sent.end(), "1 " + closing + " variant=" + addressOf(&variant));
        EXPECT_EQ(sent.end() - last, 1) << closing << " comes last";
        sent.erase(last, sent.end());
        return sent;
    }
};
