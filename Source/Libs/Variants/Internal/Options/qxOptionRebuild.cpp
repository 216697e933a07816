#include "Internal/Options/qxOptionRebuild.h"

#include "qxSwitchStepping.h"

qxOptionRebuild::qxOptionRebuild(qxVariant &variant)
    : m_variant(variant), m_options(variant), m_defaultState(variant.defaultState)
{
    for (qxVariantOption &option : variant.options) {
        const QString name = option.name;
        m_old.insert(name, std::move(option));
    }
    variant.options.clear();
}

void qxOptionRebuild::add(const QString &name)
{
    const auto old = m_old.constFind(name);
    const bool known = old != m_old.constEnd();
    m_options.add(known && old->isAction, name, known ? old->shortcut : QString());
}

void qxOptionRebuild::addAction(const QString &name)
{
    const auto old = m_old.constFind(name);
    const bool known = old != m_old.constEnd();
    m_options.add(known, name, known ? old->shortcut : QString());
}

void qxOptionRebuild::addSteps()
{
    for (const QString &name : qxSwitchStepping::actions())
        addAction(name);
}

bool qxOptionRebuild::restoreDefault()
{
    const qxVariantOption *option = m_variant.find(m_defaultState);
    if (!option || option->isAction)
        return false;
    m_variant.defaultState = m_defaultState;
    return true;
}
