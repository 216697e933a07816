#include "qxStateWords.h"

#include "qxVariant.h"
#include "qxVariantKinds.h"

#include "OSGSwitchComponentTransform.h"
#include "qxStateRules.h"

#include <QCoreApplication>
#include <QTextDocument>

#include <algorithm>

namespace {

struct Word {
    const QString &state;
    const char *word;
    const char *ofLight; ///< null for a state that lights do not know
    bool isOfChoices; ///< materials and transforms know it, too
    bool isAction;
};

// A list, not a procedure.
const Word *wordOf(const qxVariantKind &kind, const QString &state)
{
    static const Word words[] = {
        {variantEnable, QT_TRANSLATE_NOOP("qxStateWords", "shown"),
         QT_TRANSLATE_NOOP("qxStateWords", "on"), false, false},
        {variantDisable, QT_TRANSLATE_NOOP("qxStateWords", "hidden"),
         QT_TRANSLATE_NOOP("qxStateWords", "off"), false, false},
        {variantAll, QT_TRANSLATE_NOOP("qxStateWords", "all"), nullptr, false, false},
        {variantNone, QT_TRANSLATE_NOOP("qxStateWords", "none"), nullptr, false, false},
        {variantToggle, QT_TRANSLATE_NOOP("qxStateWords", "toggle"), "toggle", false, true},
        {variantNext, QT_TRANSLATE_NOOP("qxStateWords", "next"), nullptr, true, true},
        {variantNextLoop, QT_TRANSLATE_NOOP("qxStateWords", "next (loop)"), nullptr, true, true},
        {variantPrevious, QT_TRANSLATE_NOOP("qxStateWords", "previous"), nullptr, true, true},
        {variantPreviousLoop, QT_TRANSLATE_NOOP("qxStateWords", "previous (loop)"), nullptr, true,
         true}};
    const bool isLight = &kind == &qxVariantKinds::light;
    const bool isChoice = &kind == &qxVariantKinds::material || &kind == &qxVariantKinds::transform;
    const auto found = std::find_if(std::begin(words), std::end(words), [&](const Word &each) {
        const bool isKnown = isLight ? each.ofLight != nullptr : !isChoice || each.isOfChoices;
        return isKnown && each.state == state;
    });
    return found == std::end(words) ? nullptr : found;
}

/// Of a transform switch; the state itself where the scene has another thing of that name.
QString placeWord(const qxVariant *variant, osg::UInt32 place, const QString &state)
{
    const QString number = QString::number(osg::UInt64(place) + 1);
    const auto objects = variant
        ? qxVariantKinds::node.rule.objects(variant->*qxVariantKinds::node.sceneName)
        : std::vector<qxSceneObject>();
    if (objects.empty())
        return QCoreApplication::translate("qxStateWords", "Place %1").arg(number);
    const auto core = osg::SwitchComponentTransformPtr::dcast(objects.front().node->getCore());
    if (core == osg::NullFC)
        return state;
    return QCoreApplication::translate("qxStateWords", "Place %1 of %2")
        .arg(number)
        .arg(core->getStates().size());
}

} // namespace

QString qxStateWords::shown(const qxVariantKind &kind, const qxVariant *variant,
                            const QString &state)
{
    if (const Word *const word = wordOf(kind, state))
        return QCoreApplication::translate(
            "qxStateWords", &kind == &qxVariantKinds::light ? word->ofLight : word->word);
    const auto place = qxStateRules::transformPlace(state);
    const bool isPlace = place && qxStateRules::transformName(*place) == state;
    return isPlace && &kind == &qxVariantKinds::node ? placeWord(variant, *place, state) : state;
}

QString qxStateWords::toolTip(const qxVariantKind &kind, const qxVariant *variant,
                              const QString &state)
{
    const QString word = shown(kind, variant, state);
    // A tool tip would take names for markup.
    return Qt::convertFromPlainText(
        word == state ? word : QStringLiteral("%1\n%2").arg(word, state), Qt::WhiteSpaceNormal);
}

bool qxStateWords::isAction(const qxVariantKind &kind, const QString &state)
{
    const Word *const word = wordOf(kind, state);
    return word && word->isAction;
}

std::vector<QString> qxStateWords::choicesOf(const qxVariantKind &kind, const qxVariant &variant)
{
    std::vector<QString> states;
    for (const qxVariantOption &option : variant.options) {
        if (!option.name.isEmpty())
            states.push_back(option.name);
    }
    const auto rank = [&kind](const QString &state) {
        const Word *const word = wordOf(kind, state);
        return !word ? 0 : word->isAction ? 2 : 1;
    };
    std::stable_sort(states.begin(), states.end(), [&](const QString &one, const QString &other) {
        return rank(one) < rank(other);
    });
    return states;
}

QString qxStateWords::kind(const qxVariantKind &kind)
{
    return QCoreApplication::translate("qxVariants", kind.word.latin1());
}
