#include "qxPlainRegistry.h"

#include "qxVariant.h"
#include "qxVariantGroup.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

static qxPlainVariant plain(int kind, qxVariant &variant)
{
    qxPlainVariant made{
        variant.name, variant.*qxPlainKind(kind).sceneName, variant.defaultState, {}};
    for (const qxVariantOption &option : variant.options)
        made.options << option.name + '\t' + option.shortcut;
    return made;
}

static qxPlainSet plain(const qxVariantSet &set)
{
    qxPlainSet made{set.name,  set.comment,           set.hotkey,
                    {},        set.viewpoints.list(), set.animations.list(),
                    set.values};
    for (int kind = 0; kind < qxPlainKinds; ++kind) {
        for (const qxVariantState &each : set.*qxPlainKind(kind).states)
            made.references[std::size_t(kind)].emplace_back(each.variant, each.state);
    }
    return made;
}

static QStringList linesOf(const qxPlainRegistry &registry)
{
    QStringList lines;
    for (std::size_t kind = 0; kind < registry.variants.size(); ++kind) {
        for (const qxPlainVariant &each : registry.variants[kind]) {
            lines << QStringLiteral("variant of kind %1 \"%2\" of \"%3\", default \"%4\": %5")
                         .arg(kind)
                         .arg(each.name, each.base, each.standard, each.options.join(", "));
        }
    }
    for (const qxPlainSet &each : registry.sets) {
        QStringList parts{each.comment, each.hotkey, each.viewpoints.join(", "),
                          each.animations.join(", "), QStringList(each.values.keys()).join(", ")};
        for (const auto &references : each.references) {
            for (const qxPlainSet::Reference &reference : references)
                parts << reference.first + "=" + reference.second;
        }
        lines << QStringLiteral("set \"%1\": %2").arg(each.name, parts.join("; "));
    }
    for (const qxPlainGroup &each : registry.groups) {
        lines << QStringLiteral("group \"%1\" (%2, %3): %4")
                     .arg(each.name, each.comment)
                     .arg(each.visible)
                     .arg(each.sets.join(", "));
    }
    return lines;
}

qxPlainRegistry qxPlainRegistry::ofModule()
{
    qxPlainRegistry made;
    for (int kind = 0; kind < qxPlainKinds; ++kind) {
        qxPlainKind(kind).visit([&](qxVariant &variant) {
            made.variants[std::size_t(kind)].push_back(plain(kind, variant));
        });
    }
    for (const qxVariantSet *set : qxVariants::_variantSets)
        made.sets.push_back(plain(*set));
    for (const qxVariantGroup *group : qxVariants::_variantGroups) {
        made.groups.push_back({group->name, group->comment, group->visible, {}});
        for (const qxVariantSet *set : group->sets)
            made.groups.back().sets << set->name;
    }
    return made;
}

QString qxPlainRegistry::difference(const qxPlainRegistry &actual) const
{
    if (*this == actual)
        return QString();
    const QStringList wanted = linesOf(*this);
    const QStringList found = linesOf(actual);
    int line = 0;
    while (line < wanted.size() && line < found.size() && wanted[line] == found[line])
        ++line;
    return QStringLiteral("should be %1\n       but is %2")
        .arg(wanted.value(line, "nothing"), found.value(line, "nothing"));
}

void qxPlainRegistry::orderAsDocument()
{
    std::vector<qxPlainSet> ordered;
    const auto takeSet = [&](const QString &name) {
        const auto found = qxPlainFind(sets, name);
        ordered.push_back(*found);
        sets.erase(found);
    };
    for (const qxPlainGroup &group : groups) {
        for (const QString &name : group.sets)
            takeSet(name);
    }
    ordered.insert(ordered.end(), sets.begin(), sets.end());
    sets = std::move(ordered);
}
