// The steps that edit the registry.

#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantGroup.h"
#include "qxVariantSet.h"
#include "qxVariantSetPtr.h"
#include "qxVariants.h"

#include "qxMaterials.h"
#include "qxNodeUtils.h"
#include "qxOverlays.h"
#include "qxScenegraph.h"
#include "qxSoakSteps.h"

#include <OpenSG/OSGSwitchMaterial.h>

static qxVariant *createOf(int kind, const QByteArray &object)
{
    switch (kind) {
    case 0: {
        const osg::NodePtr sky = qxScenegraph::environmentGeometrySwitch();
        const bool isSky = sky != osg::NullFC && qxNodeUtils::getName(sky) == object.constData();
        return qxVariants::createNodeVariant(
            isSky ? sky : qxScenegraph::findNode(object.constData()), false);
    }
    case 1:
        return qxVariants::createMaterialVariant(qxMaterials::findMaterial(object.constData()),
                                                 false);
    case 2:
        return qxVariants::createLightVariant(qxScenegraph::findNode(object.constData()), false);
    case 3:
        return qxVariants::createOverlayVariant(qxOverlays::findOverlay(object.constData()), false);
    default:
        return qxVariants::createTransformVariant(qxScenegraph::findNode(object.constData()),
                                                  false);
    }
}

static bool isNothing(const qxPlainSet &set)
{
    const auto isEmpty = [](const auto &references) { return references.empty(); };
    return std::all_of(set.references.begin(), set.references.end(), isEmpty)
        && set.viewpoints.isEmpty() && set.animations.isEmpty();
}

/// One of the model's variants, of a kind that it answers; null when the kind has none.
qxPlainVariant *qxSoakSteps::anyVariant(int &kind)
{
    kind = int(m_choice(qxPlainKinds));
    auto &all = m_model.variants[std::size_t(kind)];
    return all.empty() ? nullptr : &all[m_choice(unsigned(all.size()))];
}

void qxSoakSteps::createVariant()
{
    const Object &wanted = object();
    auto &all = m_model.variants[std::size_t(wanted.kind)];
    const bool isKnown = qxPlainFind(all, wanted.name) != all.end();
    const qxVariant *const made = createOf(wanted.kind, wanted.name.toUtf8());
    if (!made || made->name != wanted.name)
        return fail(QStringLiteral("no variant of \"%1\"").arg(wanted.name));
    if (isKnown)
        return;
    all.push_back({wanted.name, wanted.name, made->defaultState, {}});
    for (const qxVariantOption &option : made->options)
        all.back().options << option.name + '\t' + option.shortcut;
    for (const QString &state : wanted.states) {
        if (!all.back().options.contains(state + '\t'))
            fail(QStringLiteral("\"%1\" has no option \"%2\"").arg(wanted.name, state));
    }
}

void qxSoakSteps::createNamedVariant()
{
    const Object &driven = object();
    const QString name = text();
    auto &all = m_model.variants[std::size_t(driven.kind)];
    if (name.isEmpty() || qxPlainFind(all, name) != all.end())
        return; // callers never pass an empty one
    qxVariant *const made = qxPlainKind(driven.kind).create(name, false);
    made->*qxPlainKind(driven.kind).sceneName = driven.name;
    all.push_back({name, driven.name, QString(), {}});
}

void qxSoakSteps::removeVariant()
{
    int kind = 0;
    const qxPlainVariant *const variant = anyVariant(kind);
    const QString name = variant && m_choice(4) > 0 ? variant->name : text();
    qxPlainKind(kind).remove(name);
    auto &all = m_model.variants[std::size_t(kind)];
    const auto found = qxPlainFind(all, name);
    if (found != all.end())
        all.erase(found);
}

void qxSoakSteps::renameVariant()
{
    int kind = 0;
    qxPlainVariant *const variant = anyVariant(kind);
    const QString name = text();
    auto &all = m_model.variants[std::size_t(kind)];
    if (!variant || name.isEmpty() || qxPlainFind(all, name) != all.end())
        return;
    qxPlainKind(kind).find(variant->name)->name = name;
    variant->name = name;
}

void qxSoakSteps::editVariant()
{
    int kind = 0;
    qxPlainVariant *const variant = anyVariant(kind);
    if (!variant)
        return;
    qxVariant *const real = qxPlainKind(kind).find(variant->name);
    const QString option = m_choice(2) == 0 ? text() : object().states.front();
    const auto known =
        std::find_if(variant->options.begin(), variant->options.end(),
                     [&](const QString &each) { return each.section('\t', 0, -2) == option; });
    switch (m_choice(3)) {
    case 0:
        real->add(option, QStringLiteral("F5"));
        if (known == variant->options.end())
            variant->options << option + "\tF5";
        break;
    case 1:
        real->remove(option);
        if (known != variant->options.end())
            variant->options.erase(known);
        break;
    default:
        real->defaultState = option;
        variant->standard = option;
    }
}

void qxSoakSteps::clearKind()
{
    const unsigned kind = m_choice(qxPlainKinds);
    qxPlainKind(int(kind)).clear();
    m_model.variants[kind].clear();
}

void qxSoakSteps::createSet()
{
    const QString name = text();
    const QString group = nameIn(m_model.groups);
    const bool isFree = !name.isEmpty() && qxPlainFind(m_model.sets, name) == m_model.sets.end();
    const bool isMade =
        qxVariants::createVariantSet(name, m_choice(2) == 0, qxVariants::findVariantGroup(group));
    if (isMade != isFree)
        return fail(QStringLiteral("a set \"%1\" was wrongly made or refused").arg(name));
    if (!isFree)
        return;
    m_model.sets.push_back({name, {}, {}, {}, {}, {}, {}});
    if (!m_model.groups.empty())
        qxPlainFind(m_model.groups, group)->sets << name;
}

void qxSoakSteps::removeSet()
{
    const QString name = m_choice(4) == 0 ? text() : nameIn(m_model.sets);
    if (qxVariants::removeVariantSet(name) == name.isEmpty())
        fail(QStringLiteral("wrong answer for a removed set"));
    const auto found = qxPlainFind(m_model.sets, name);
    if (found == m_model.sets.end())
        return;
    m_model.sets.erase(found);
    for (qxPlainGroup &group : m_model.groups)
        group.sets.removeAll(name);
}

void qxSoakSteps::renameSet()
{
    const QString old = nameIn(m_model.sets);
    const QString name = text();
    if (old.isEmpty() || name.isEmpty() || qxPlainFind(m_model.sets, name) != m_model.sets.end())
        return;
    qxVariants::findVariantSet(old)->name = name;
    qxPlainFind(m_model.sets, old)->name = name;
    for (qxPlainGroup &group : m_model.groups) {
        if (group.sets.contains(old))
            group.sets[group.sets.indexOf(old)] = name;
    }
}

void qxSoakSteps::addReference()
{
    const auto set = qxPlainFind(m_model.sets, nameIn(m_model.sets));
    int kind = 0;
    const qxPlainVariant *const variant = anyVariant(kind);
    const Object &driven = object();
    const QString state = stateFor(driven);
    const QString name = variant && driven.kind == kind ? variant->name : driven.name;
    if (set == m_model.sets.end())
        return;
    (qxVariants::findVariantSet(set->name)->*qxPlainKind(driven.kind).states).add(name, state);
    auto &references = set->references[std::size_t(driven.kind)];
    const auto known = std::find_if(references.begin(), references.end(),
                                    [&](const auto &each) { return each.first == name; });
    if (known == references.end())
        references.emplace_back(name, state);
    else
        known->second = state;
}

void qxSoakSteps::removeReference()
{
    const auto set = qxPlainFind(m_model.sets, nameIn(m_model.sets));
    const unsigned kind = m_choice(qxPlainKinds);
    const unsigned place = m_choice(8);
    if (set == m_model.sets.end() || place >= set->references[kind].size())
        return;
    const auto reference = set->references[kind].begin() + int(place);
    (qxVariants::findVariantSet(set->name)->*qxPlainKind(int(kind)).states)
        .remove(reference->first);
    set->references[kind].erase(reference);
}

void qxSoakSteps::editSet()
{
    const auto set = qxPlainFind(m_model.sets, nameIn(m_model.sets));
    const QString words = text();
    const unsigned what = m_choice(4);
    if (set == m_model.sets.end())
        return;
    qxVariantSet *const real = qxVariants::findVariantSet(set->name);
    if (what == 0) {
        real->comment = words;
        set->comment = words;
    } else if (what == 1) {
        real->addViewpoint(words);
        if (!set->viewpoints.contains(words))
            set->viewpoints << words;
    } else if (what == 2) {
        real->removeViewpoint(words);
        set->viewpoints.removeAll(words);
    } else {
        real->addAnimation(words);
        if (!set->animations.contains(words))
            set->animations << words;
    }
}

void qxSoakSteps::useHandle()
{
    const auto set = qxPlainFind(m_model.sets, nameIn(m_model.sets));
    const QString key = text();
    static const char *const hotkeys[] = {"", "F5", "Ctrl+S", "Alt+Shift+1"};
    const char *const hotkey = hotkeys[m_choice(4)];
    if (set == m_model.sets.end())
        return;
    qxVariantSetPtr handle(qxVariants::findVariantSet(set->name));
    handle.setHotkeyString(hotkey);
    handle.setValue(key.toUtf8().constData(), hotkey);
    set->hotkey = hotkey;
    set->values[key] = hotkey;
    if (handle.getName() != set->name.toStdString() || handle.getHotkey() != hotkey
        || handle.getValue(key.toUtf8().constData()) != hotkey)
        fail(QStringLiteral("a handle answers something else than it was given"));
}

void qxSoakSteps::createGroup()
{
    const QString name = text();
    const bool isVisible = m_choice(2) == 0;
    const bool isFree =
        !name.isEmpty() && qxPlainFind(m_model.groups, name) == m_model.groups.end();
    if (bool(qxVariants::createVariantGroup(name, false, isVisible)) != isFree)
        return fail(QStringLiteral("a group \"%1\" was wrongly made or refused").arg(name));
    if (isFree)
        m_model.groups.push_back({name, QString(), isVisible, {}});
}

void qxSoakSteps::removeGroup()
{
    const QString name = nameIn(m_model.groups);
    qxVariants::removeVariantGroup(name);
    const auto found = qxPlainFind(m_model.groups, name);
    if (found != m_model.groups.end())
        m_model.groups.erase(found);
}

void qxSoakSteps::editGroup()
{
    const auto group = qxPlainFind(m_model.groups, nameIn(m_model.groups));
    const QString words = text();
    if (group == m_model.groups.end())
        return;
    qxVariantGroup *const real = qxVariants::findVariantGroup(group->name);
    real->comment = words;
    real->visible = !real->visible;
    group->comment = words;
    group->visible = !group->visible;
}

void qxSoakSteps::moveSet()
{
    const QString name = nameIn(m_model.sets);
    const auto group = qxPlainFind(m_model.groups, nameIn(m_model.groups));
    const unsigned place = m_choice(4);
    const bool isTakenOut = m_choice(2) == 0;
    if (name.isEmpty() || group == m_model.groups.end())
        return;
    qxVariantSet *const set = qxVariants::findVariantSet(name);
    qxVariantGroup *const real = qxVariants::findVariantGroup(group->name);
    const bool isFree =
        std::none_of(m_model.groups.begin(), m_model.groups.end(),
                     [&](const qxPlainGroup &each) { return each.sets.contains(name); });
    if (isTakenOut) {
        real->remove(set);
        group->sets.removeAll(name);
        return;
    }
    const int before = std::min(int(place), group->sets.size());
    real->insert(real->sets.begin() + before, set);
    if (isFree)
        group->sets.insert(before, name);
}

void qxSoakSteps::clearEmpty()
{
    qxVariants::clearEmptyVariantSets();
    auto &sets = m_model.sets;
    for (qxPlainGroup &group : m_model.groups) {
        for (const qxPlainSet &set : sets) {
            if (isNothing(set))
                group.sets.removeAll(set.name);
        }
    }
    sets.erase(std::remove_if(sets.begin(), sets.end(), isNothing), sets.end());
    qxVariants::clearEmptyGroups();
    auto &groups = m_model.groups;
    groups.erase(std::remove_if(groups.begin(), groups.end(),
                                [](const qxPlainGroup &group) { return group.sets.isEmpty(); }),
                 groups.end());
}
