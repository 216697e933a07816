#include "Merge/qxMergeThings.h"

#include <QHash>

int qxMergeThing::onlySide() const
{
    if (!isIn(MergeBase) || isIn(MergeOurs) == isIn(MergeTheirs))
        return MergeBase;
    return isIn(MergeOurs) ? MergeOurs : MergeTheirs;
}

qxMergeThings::qxMergeThings(qxMergeTriple<std::vector<Name>> names,
                             const qxMergeTriple<std::vector<int>> &partners)
    : m_names(std::move(names))
{
    for (const int side : {MergeBase, MergeOurs, MergeTheirs})
        numbers[std::size_t(side)].assign(m_names[std::size_t(side)].size(), -1);
    const auto put = [this](int number, int side, int place) {
        things[std::size_t(number)].at[std::size_t(side)] = place;
        numbers[std::size_t(side)][std::size_t(place)] = number;
    };
    things.resize(m_names[MergeBase].size());
    for (int i = 0; i < int(things.size()); ++i) {
        put(i, MergeBase, i);
        for (const int side : {MergeOurs, MergeTheirs}) {
            const int partner = partners[std::size_t(side)][std::size_t(i)];
            if (partner >= 0)
                put(i, side, partner);
        }
    }
    QHash<Name, int> added;
    for (const int side : {MergeOurs, MergeTheirs}) {
        for (int place = 0; place < int(m_names[std::size_t(side)].size()); ++place) {
            if (numbers[std::size_t(side)][std::size_t(place)] >= 0)
                continue;
            const Name &name = m_names[std::size_t(side)][std::size_t(place)];
            const int known = added.value(name, -1);
            const int number = known < 0 ? int(things.size()) : known;
            if (known < 0) {
                added.insert(name, number);
                things.emplace_back();
            }
            put(number, side, place);
        }
    }
}

QString qxMergeThings::chosenName(int number, qxMergePreference preference,
                                  const Clash &clash) const
{
    const qxMergeThing &thing = things[std::size_t(number)];
    const auto in = [&](int side) { return nameIn(side, thing).second; };
    if (!thing.isIn(MergeOurs))
        return in(thing.isIn(MergeTheirs) ? MergeTheirs : MergeBase);
    if (!thing.isIn(MergeTheirs) || in(MergeOurs) == in(MergeTheirs))
        return in(MergeOurs);
    if (in(MergeOurs) == in(MergeBase))
        return in(MergeTheirs);
    if (in(MergeTheirs) != in(MergeBase)) {
        clash(number, number);
        return in(preference == qxMergePreference::Theirs ? MergeTheirs : MergeOurs);
    }
    return in(MergeOurs);
}

void qxMergeThings::settleNames(qxMergePreference preference, const Clash &clash)
{
    // No two things of one side have one name: whose name comes from there goes first.
    const int first = preference == qxMergePreference::Theirs ? MergeTheirs : MergeOurs;
    const int second = MergeOurs + MergeTheirs - first;
    QHash<Name, int> owners;
    std::vector<int> late;
    const auto nameOf = [this](int number) -> Name {
        const qxMergeThing &thing = things[std::size_t(number)];
        for (const int side : {MergeBase, MergeOurs, MergeTheirs}) {
            if (thing.isIn(side))
                return {nameIn(side, thing).first, thing.name};
        }
        return {};
    };
    for (int i = 0; i < int(things.size()); ++i) {
        qxMergeThing &thing = things[std::size_t(i)];
        thing.name = chosenName(i, preference, clash);
        if (!thing.isIn(MergeOurs) && !thing.isIn(MergeTheirs))
            continue;
        if (thing.isIn(first) && nameIn(first, thing).second == thing.name)
            owners.insert(nameOf(i), i);
        else
            late.push_back(i);
    }
    std::vector<int> homeless;
    for (const int number : late) {
        if (owners.contains(nameOf(number)))
            homeless.push_back(number);
        else
            owners.insert(nameOf(number), number);
    }
    for (auto owner = owners.cbegin(); owner != owners.cend(); ++owner)
        m_taken.insert(owner.key());
    for (const int number : homeless) {
        const Name name = nameOf(number);
        things[std::size_t(number)].name = otherName(name, qxMergeSide(second));
        clash(owners.value(name), number);
    }
}

QString qxMergeThings::otherName(const Name &name, qxMergeSide side)
{
    const QString word = side == MergeTheirs ? QStringLiteral("theirs") : QStringLiteral("ours");
    QString wanted = QStringLiteral("%1 (%2)").arg(name.second, word);
    for (int number = 2; m_taken.contains({name.first, wanted}); ++number)
        wanted = QStringLiteral("%1 (%2 %3)").arg(name.second, word).arg(number);
    m_taken.insert({name.first, wanted});
    return wanted;
}

QString qxMergeThings::freeName(const Name &name)
{
    if (m_taken.contains(name))
        return otherName(name);
    m_taken.insert(name);
    return name.second;
}

qxMergeConflict qxMergeThings::conflictOf(int thing, int other) const
{
    qxMergeConflict conflict;
    if (thing != other) {
        conflict.sort = qxMergeConflict::SameName;
        conflict.second = things[std::size_t(other)].name;
        return conflict;
    }
    conflict.field = QStringLiteral("name");
    const qxMergeThing &named = things[std::size_t(thing)];
    for (const int side : {MergeBase, MergeOurs, MergeTheirs}) {
        if (named.isIn(side))
            conflict.texts[std::size_t(side)] = nameIn(side, named).second;
    }
    return conflict;
}
