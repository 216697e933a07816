#include "Registry/qxRegistryEdit.h"

#include "qxVariantGroup.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxRegistryFill.h"
#include "qxRegistryNotice.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

/// All of one sort in the registry: sets, groups, or variants of one kind.
struct Things {
    /// Where the things have their names.
    std::function<std::vector<QString *>()> names;
    std::function<bool(const QString &name)> remove;
};

/// The names that a document gives to things of one sort.
struct Names {
    QSet<QString> all;
    QHash<QString, QString> renamed; ///< by their names before
    QSet<QString> taken; ///< new names of renamed things
};

template <class List>
std::vector<QString *> namesIn(const List &list)
{
    std::vector<QString *> names;
    for (auto *each : list)
        names.push_back(&each->name);
    return names;
}

Things thingsOf(const qxVariantKind &kind)
{
    const auto names = [&kind] {
        std::vector<QString *> all;
        kind.visit([&all](qxVariant &variant) { all.push_back(&variant.name); });
        return all;
    };
    return {names, kind.remove};
}

Names namesOf(std::vector<QString> all, const Things &things, const qxRenames &renames,
              const std::function<bool(const qxRename &rename)> &isOfSort)
{
    Names names;
    names.all = QSet<QString>(all.begin(), all.end());
    QSet<QString> present;
    for (const QString *name : things.names())
        present.insert(*name);
    for (const qxRename &each : renames) {
        const bool fits = isOfSort(each) && each.from != each.to && present.contains(each.from)
            && names.all.contains(each.to) && !names.renamed.contains(each.from)
            && !names.taken.contains(each.to);
        if (!fits)
            continue;
        names.renamed.insert(each.from, each.to);
        names.taken.insert(each.to);
    }
    return names;
}

/// The name that the thing of that name is to have; empty when it has to go.
QString nextName(const QString &name, const Names &names)
{
    const auto renamed = names.renamed.constFind(name);
    if (renamed != names.renamed.constEnd())
        return *renamed;
    return names.all.contains(name) && !names.taken.contains(name) ? name : QString();
}

/// Takes out what the document does not have, and twins; the registry does not remove what has no
/// name. Listeners hear of each and may do anything, so names are gathered before.
bool removeOthers(const Things &things, const Names &names)
{
    QStringList leaving;
    QSet<QString> staying;
    for (const QString *name : things.names()) {
        const bool stays = !nextName(*name, names).isEmpty() && !staying.contains(*name);
        if (stays)
            staying.insert(*name);
        else if (!name->isEmpty())
            leaving.push_back(*name);
    }
    for (const QString &name : leaving)
        things.remove(name);
    return !leaving.isEmpty();
}

bool rename(const Things &things, const Names &names)
{
    if (names.renamed.isEmpty())
        return false;
    for (QString *name : things.names())
        *name = names.renamed.value(*name, *name);
    qxNameLookUp::noteRename();
    return true;
}

/// Objects of one sort in the order of the document, made where they are missing.
template <class T>
struct Made {
    std::vector<T *> objects;
    bool isAnyNew = false;

    void add(T *found, const std::function<T *()> &create)
    {
        isAnyNew |= !found;
        objects.push_back(found ? found : create());
    }
};

class Edit {
public:
    Edit(const qxDocument &wanted, const qxRenames &renames) : m_wanted(wanted), m_renames(renames)
    {
    }

    bool run()
    {
        bringNames();
        {
            const qxUnchangedNames unchanged;
            fillGroups();
            fillSets();
            for (const qxVariantKind *kind : qxVariantKinds::all())
                fillVariants(*kind);
        }
        completeScene();
        return announce();
    }

private:
    void bringNames();
    bool bringNames(const std::vector<QString> &all, const Things &things,
                    const std::function<bool(const qxRename &rename)> &isOfSort);
    void fillGroups();
    void fillSets();
    bool placeSets(const std::vector<qxVariantSet *> &sets);
    void fillVariants(const qxVariantKind &kind);
    void completeScene();
    bool announce() const;

    const qxDocument &m_wanted;
    const qxRenames &m_renames;
    bool m_haveGroupsChanged = false;
    bool m_haveSetsChanged = false;
    bool m_isAnyGone = false;
    QSet<const qxVariantKind *> m_changedKinds;
    /// Variants that may need something in the scene.
    std::vector<const qxDocumentVariant *> m_incomplete;
};

template <class List>
std::vector<QString> wantedNames(const List &list)
{
    std::vector<QString> names;
    for (const auto &each : list)
        names.push_back(each.name);
    return names;
}

/// Whether anything was renamed.
bool Edit::bringNames(const std::vector<QString> &all, const Things &things,
                      const std::function<bool(const qxRename &rename)> &isOfSort)
{
    const Names names = namesOf(all, things, m_renames, isOfSort);
    m_isAnyGone |= removeOthers(things, names);
    return rename(things, names);
}

void Edit::bringNames()
{
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        std::vector<QString> names;
        for (const qxDocumentVariant &each : m_wanted.variants) {
            if (each.kind == kind)
                names.push_back(each.name);
        }
        if (bringNames(names, thingsOf(*kind), [kind](const qxRename &each) {
                return each.thing == qxRename::Variant && each.kind == kind;
            }))
            m_changedKinds.insert(kind);
    }
    const Things sets{[] { return namesIn(qxVariants::_variantSets); },
                      qxVariants::removeVariantSet};
    m_haveSetsChanged = bringNames(wantedNames(m_wanted.sets), sets, [](const qxRename &each) {
        return each.thing == qxRename::Set;
    });
    const Things groups{[] { return namesIn(qxVariants::_variantGroups); },
                        qxVariants::removeVariantGroup};
    m_haveGroupsChanged =
        bringNames(wantedNames(m_wanted.groups), groups,
                   [](const qxRename &each) { return each.thing == qxRename::Group; });
}

void Edit::fillGroups()
{
    Made<qxVariantGroup> made;
    for (const qxDocumentGroup &each : m_wanted.groups) {
        made.add(qxVariants::findVariantGroup(each.name), [&each] {
            return qxVariants::createVariantGroup(each.name, false, each.isVisible);
        });
        m_haveGroupsChanged |= qxRegistryFill::fill(*made.objects.back(), each);
    }
    m_haveGroupsChanged |= made.isAnyNew;
    m_haveGroupsChanged |= qxVariants::_variantGroups.arrange(made.objects);
}

void Edit::fillSets()
{
    Made<qxVariantSet> made;
    for (const qxDocumentSet &each : m_wanted.sets) {
        made.add(qxVariants::findVariantSet(each.name),
                 [&each] { return qxVariants::createVariantSet(each.name, false, nullptr); });
        m_haveSetsChanged |= qxRegistryFill::fill(*made.objects.back(), each);
    }
    m_haveSetsChanged |= made.isAnyNew;
    m_haveSetsChanged |= placeSets(made.objects);
}

/// Only the order of sets without a group is that of the registry, so that it is left alone as long
/// as these follow each other as they should.
bool Edit::placeSets(const std::vector<qxVariantSet *> &sets)
{
    std::vector<std::vector<qxVariantSet *>> members(m_wanted.groups.size());
    std::vector<const qxVariantSet *> loose;
    for (std::size_t place = 0; place < sets.size(); ++place) {
        const int group = m_wanted.sets[place].group;
        if (group >= 0)
            members[std::size_t(group)].push_back(sets[place]);
        else
            loose.push_back(sets[place]);
    }
    std::vector<std::pair<qxVariantGroup *, std::size_t>> changed;
    std::size_t place = 0;
    for (qxVariantGroup *group : qxVariants::_variantGroups) {
        if (place < members.size() && group->sets != members[place])
            changed.emplace_back(group, place);
        ++place;
    }
    // All are emptied before any is filled: a set is in one group.
    for (const auto &each : changed)
        each.first->clear();
    for (const auto &each : changed) {
        for (qxVariantSet *set : members[each.second])
            each.first->append(set);
    }
    std::vector<const qxVariantSet *> looseNow;
    std::copy_if(qxVariants::_variantSets.begin(), qxVariants::_variantSets.end(),
                 std::back_inserter(looseNow), [](const qxVariantSet *set) { return !set->group; });
    const bool isInOrder = looseNow == loose;
    return (!isInOrder && qxVariants::_variantSets.arrange(sets)) || !changed.empty();
}

void Edit::fillVariants(const qxVariantKind &kind)
{
    Made<qxVariant> made;
    bool hasChanged = false;
    for (const qxDocumentVariant &each : m_wanted.variants) {
        if (each.kind != &kind)
            continue;
        qxVariant *const found = kind.find(each.name);
        made.add(found, [&] { return kind.create(each.name, false); });
        qxVariant &variant = *made.objects.back();
        if (kind.complete && (!found || variant.*kind.sceneName != each.base))
            m_incomplete.push_back(&each);
        hasChanged |= qxRegistryFill::fill(variant, each);
    }
    hasChanged |= kind.arrange(made.objects);
    if (hasChanged || made.isAnyNew)
        m_changedKinds.insert(&kind);
}

/// Comes after all edits, because it has listeners.
void Edit::completeScene()
{
    for (const qxDocumentVariant *each : m_incomplete) {
        if (const qxVariant *variant = each->kind->find(each->name))
            each->kind->complete(*variant);
    }
}

bool Edit::announce() const
{
    for (const qxVariantKind *kind : qxVariantKinds::readingOrder().all()) {
        if (m_changedKinds.contains(kind))
            qxRegistryNotice::variantsChanged(*kind);
    }
    if (m_haveSetsChanged)
        qxRegistryNotice::setsChanged();
    if (m_haveGroupsChanged)
        qxRegistryNotice::groupsChanged();
    return m_isAnyGone || m_haveSetsChanged || m_haveGroupsChanged || !m_changedKinds.isEmpty();
}

} // namespace

bool qxRegistryEdit::apply(const qxDocument &wanted, const qxRenames &renames)
{
    return Edit(wanted, renames).run();
}
