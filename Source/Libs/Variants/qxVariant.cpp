#include "qxVariant.h"

#include "Internal/Options/qxHotkey.h"

#include <algorithm>

// Not literals of QString: copies of these texts may outlive the module in the host.
const QString variantEnable(QLatin1String("!Enable"));
const QString variantDisable(QLatin1String("!Disable"));
const QString variantToggle(QLatin1String("!Toggle"));
const QString variantNext(QLatin1String("!Next"));
const QString variantNextLoop(QLatin1String("!Next (Loop)"));
const QString variantPrevious(QLatin1String("!Previous"));
const QString variantPreviousLoop(QLatin1String("!Previous (Loop)"));
const QString variantAll(QLatin1String("!All"));
const QString variantNone(QLatin1String("!None"));

namespace {

auto findOption(std::vector<qxVariantOption> &options, const QString &name)
{
    return std::find_if(options.begin(), options.end(),
                        [&name](const qxVariantOption &option) { return option.name == name; });
}

} // namespace

qxVariantOption qxVariantOption::make(bool action, const QString &name, const QString &shortcut)
{
    qxVariantOption option;
    option.name = name;
    option.shortcut = shortcut;
    option.isAction = action;
    if (!shortcut.isEmpty())
        option.updateShortcut();
    return option;
}

void qxVariantOption::updateShortcut()
{
    qxHotkey::map(shortcut, key, modifiers);
}

bool qxShownState::is(const QString &wanted) const
{
    return !wanted.isEmpty() && (wanted == current || wanted == visibleState());
}

qxVariant::~qxVariant() {}

void qxVariant::onSelect(const QString &) {}

QString qxVariant::onCurrent() const
{
    return QString();
}

qxShownState qxVariant::shown() const
{
    return {onCurrent(), QString()};
}

void qxVariant::add(const QString &optionName, const QString &shortcut)
{
    add(false, optionName, shortcut);
}

void qxVariant::add(bool action, const QString &optionName, const QString &shortcut)
{
    if (findOption(options, optionName) == options.end())
        options.push_back(qxVariantOption::make(action, optionName, shortcut));
}

void qxVariant::remove(const QString &optionName)
{
    const auto found = findOption(options, optionName);
    if (found != options.end())
        options.erase(found);
}

qxVariantOption *qxVariant::find(const QString &optionName)
{
    if (optionName.isEmpty())
        return nullptr;
    const auto found = findOption(options, optionName);
    return found == options.end() ? nullptr : &*found;
}

bool qxVariant::isAction(const QString &optionName)
{
    const qxVariantOption *option = find(optionName);
    return option && option->isAction;
}
