#include "qxRegistryRecord.h"

#include "qxVariantGroup.h"
#include "qxVariantKinds.h"
#include "qxVariants.h"

#include "qxNameLookUp.h"

namespace {

/// Forgets what is not there any more.
template <class Contents, class Find>
void drop(QHash<QString, Contents> &known, const Find &find)
{
    const qxUnchangedNames unchanged;
    for (auto each = known.begin(); each != known.end();)
        each = find(each.key()) ? std::next(each) : known.erase(each);
}

} // namespace

qxRegistryOrder qxRegistryOrder::now()
{
    qxRegistryOrder order;
    for (const qxVariantGroup *group : qxVariants::_variantGroups) {
        order.groups.append({group->name, {}});
        for (const qxVariantSet *set : group->sets)
            order.groups.back().sets += set->name;
    }
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        if (!set->group)
            order.sets += set->name;
    }
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        order.variants.append(QStringList());
        kind->visit([&](const qxVariant &variant) { order.variants.back() += variant.name; });
    }
    return order;
}

qxRegistryRecord::Changes qxRegistryRecord::changes() const
{
    Changes changes;
    for (const qxVariantGroup *group : qxVariants::_variantGroups) {
        const auto known = m_groups.constFind(group->name);
        if (known == m_groups.constEnd() || known->comment != group->comment
            || known->isVisible != group->visible)
            changes.groups.push_back(group);
    }
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        const auto known = m_sets.constFind(set->name);
        if (known == m_sets.constEnd() || !known->isOf(*set))
            changes.sets.push_back(set);
    }
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        const QHash<QString, qxVariantMemento> all = m_variants.value(kind);
        kind->visit([&](const qxVariant &variant) {
            const auto known = all.constFind(variant.name);
            if (known == all.constEnd() || *known != qxVariantMemento::of(*kind, variant))
                changes.variants.emplace_back(kind, &variant);
        });
    }
    changes.isOrderOther = !(m_order == qxRegistryOrder::now());
    return changes;
}

void qxRegistryRecord::update(const Changes &changes)
{
    for (const qxVariantGroup *group : changes.groups)
        m_groups.insert(group->name, {group->comment, group->visible});
    for (const qxVariantSet *set : changes.sets)
        m_sets.insert(set->name, qxSetMemento::of(*set));
    for (const auto &each : changes.variants)
        m_variants[each.first].insert(each.second->name,
                                      qxVariantMemento::of(*each.first, *each.second));
    if (!changes.isOrderOther)
        return;
    m_order = qxRegistryOrder::now();
    drop(m_groups, [](const QString &name) { return qxVariants::findVariantGroup(name); });
    drop(m_sets, [](const QString &name) { return qxVariants::findVariantSet(name); });
    for (const qxVariantKind *kind : qxVariantKinds::all())
        drop(m_variants[kind], [kind](const QString &name) { return kind->find(name); });
}
