#include "Merge/qxMergeFields.h"

#include "Merge/qxMergeOrder.h"
#include "qxFieldWords.h"

#include <QHash>
#include <QStringList>

namespace {

typedef qxMergeFields::Versions<qxDocumentSet> SetVersions;

// A text that is there is not null.
QString mergeText(const QString &text)
{
    return text.isNull() ? QStringLiteral("") : text;
}

QString mergeText(bool flag)
{
    return flag ? QStringLiteral("true") : QStringLiteral("false");
}

QString mergeText(const QByteArray &picture)
{
    return picture.isEmpty()
        ? QStringLiteral("")
        : QStringLiteral("picture of %1 bytes").arg(QByteArray::fromBase64(picture).size());
}

template <class Thing, class Access>
qxMergeField<Thing> field(const char *name, const Access &access, const QString &entry = QString())
{
    return {QString::fromLatin1(name), entry,
            [access](const Thing &one, const Thing &other) { return access(one) == access(other); },
            [access](const Thing &thing) { return mergeText(access(thing)); },
            [access](Thing &to, const Thing &from) { access(to) = access(from); }};
}

/// The attribute without its component: what has three is changed as a whole.
QString wholeOf(const qxClippingField &field)
{
    return field.isReal ? field.attribute.left(field.attribute.size() - 1) : field.attribute;
}

qxMergeField<qxDocumentSet> clipping(const QString &name, std::vector<qxClippingField> parts)
{
    const auto isSame = [parts](const qxDocumentSet &one, const qxDocumentSet &other) {
        return std::all_of(parts.begin(), parts.end(), [&](const qxClippingField &each) {
            return each.text(one.clipping) == each.text(other.clipping);
        });
    };
    const auto text = [parts](const qxDocumentSet &set) {
        QStringList texts;
        for (const qxClippingField &each : parts)
            texts << each.text(set.clipping);
        return texts.join(QLatin1Char(' '));
    };
    const auto assign = [parts](qxDocumentSet &to, const qxDocumentSet &from) {
        for (const qxClippingField &each : parts)
            each.assign(to.clipping, each.text(from.clipping));
    };
    return {QStringLiteral("clipping"), name, isSame, text, assign};
}

std::vector<qxMergeField<qxDocumentSet>> setFields()
{
    typedef qxDocumentSet Set;
    std::vector<qxMergeField<Set>> fields{
        field<Set>(
            "comment", [](auto &set) -> auto & { return set.comment; }),
        field<Set>(
            "hotkey", [](auto &set) -> auto & { return set.hotkey.text; }),
        field<Set>(
            "defaultViewpoint", [](auto &set) -> auto & { return set.defaultViewpoint; }),
        field<Set>(
            "sequential", [](auto &set) -> auto & { return set.isSequential; }),
        field<Set>(
            "script", [](auto &set) -> auto & { return set.script.text; }),
        field<Set>(
            "preview", [](auto &set) -> auto & { return set.preview; })};
    for (std::size_t i = 0; i < qxInclusions; ++i) {
        fields.push_back(field<Set>(
            "include", [i](auto &set) -> auto & { return set.inclusions[i]; },
            qxFieldWords::of(qxInclusion(i))));
    }
    std::vector<qxClippingField> parts;
    for (const qxClippingField &each : qxClippingField::all()) {
        if (!parts.empty() && wholeOf(parts.front()) != wholeOf(each)) {
            fields.push_back(clipping(wholeOf(parts.front()), parts));
            parts.clear();
        }
        parts.push_back(each);
    }
    fields.push_back(clipping(wholeOf(parts.front()), parts));
    return fields;
}

/// A list of entries of a set, each with a key of its own.
template <class Entry>
struct EntryList {
    std::function<std::vector<Entry> &(qxDocumentSet &set)> list;
    std::function<QPair<const qxVariantKind *, QString>(const Entry &entry)> key;
    std::function<QString(const Entry &entry)> text; ///< what it says besides its key
    QString field; ///< empty for the word of the kind
};

bool isSameEntry(const qxDocumentReference &one, const qxDocumentReference &other)
{
    return one.kind == other.kind && one.variant == other.variant && one.state == other.state;
}

bool isSameEntry(const qxDocumentText &one, const qxDocumentText &other)
{
    return one.text == other.text && one.more == other.more;
}

template <class Entry>
bool areSameEntries(const std::vector<Entry> &one, const std::vector<Entry> &other)
{
    return one.size() == other.size()
        && std::equal(one.begin(), one.end(), other.begin(),
                      [](const Entry &a, const Entry &b) { return isSameEntry(a, b); });
}

/// Merges the lists of three sets entry by entry.
template <class Entry>
class EntryMerge {
public:
    typedef std::vector<Entry> List;

    EntryMerge(const EntryList<Entry> &what, const qxMergeTriple<const List *> &lists, bool isAdded)
        : m_what(what), m_lists(lists), m_isAdded(isAdded)
    {
    }

    void into(qxMergeFork<qxDocumentSet> &fork)
    {
        numberAll();
        const auto nameOf = [this](int number) { return m_what.key(*any(number)).second; };
        const std::vector<int> order =
            qxMergeOrder::merged(m_numbers, int(m_at.size()),
                                 [&](int one, int other) { return nameOf(one) < nameOf(other); });
        List ours, theirs;
        for (const int number : order)
            add(number, ours, theirs, fork);
        m_what.list(fork.ours) = std::move(ours);
        m_what.list(fork.theirs) = std::move(theirs);
    }

private:
    typedef qxMergeTriple<const Entry *> At;

    void numberAll()
    {
        QHash<QPair<const qxVariantKind *, QString>, int> known;
        for (const int side : {MergeBase, MergeOurs, MergeTheirs}) {
            for (const Entry &each : *m_lists[std::size_t(side)]) {
                auto found = known.find(m_what.key(each));
                if (found == known.end()) {
                    found = known.insert(m_what.key(each), int(m_at.size()));
                    m_at.push_back({{nullptr, nullptr, nullptr}});
                }
                m_at[std::size_t(*found)][std::size_t(side)] = &each;
                m_numbers[std::size_t(side)].push_back(*found);
            }
        }
    }

    const Entry *any(int number) const
    {
        const At &at = m_at[std::size_t(number)];
        return at[MergeOurs] ? at[MergeOurs] : at[MergeTheirs] ? at[MergeTheirs] : at[MergeBase];
    }

    static bool isSame(const Entry *one, const Entry *other)
    {
        return one && other ? isSameEntry(*one, *other) : one == other;
    }

    void add(int number, List &ours, List &theirs, qxMergeFork<qxDocumentSet> &fork) const
    {
        const At &at = m_at[std::size_t(number)];
        const bool takesTheirs = !m_isAdded && isSame(at[MergeOurs], at[MergeBase]);
        const bool takesOurs = isSame(at[MergeOurs], at[MergeTheirs])
            || (!m_isAdded && isSame(at[MergeTheirs], at[MergeBase]));
        const Entry *const forOurs = at[!takesOurs && takesTheirs ? MergeTheirs : MergeOurs];
        const Entry *const forTheirs = at[takesOurs ? MergeOurs : MergeTheirs];
        if (forOurs)
            ours.push_back(*forOurs);
        if (forTheirs)
            theirs.push_back(*forTheirs);
        if (!takesOurs && !takesTheirs)
            fork.conflicts.push_back(conflict(at, m_what.key(*any(number))));
    }

    qxMergeConflict conflict(const At &at, const QPair<const qxVariantKind *, QString> &key) const
    {
        qxMergeConflict conflict;
        conflict.field = key.first ? QString(key.first->word) : m_what.field;
        conflict.entry = key.second;
        for (std::size_t side = 0; side < at.size(); ++side) {
            if (at[side])
                conflict.texts[side] = mergeText(m_what.text(*at[side]));
        }
        return conflict;
    }

    const EntryList<Entry> &m_what;
    const qxMergeTriple<const List *> &m_lists;
    bool m_isAdded;
    std::vector<At> m_at;
    qxMergeOrder::Lists m_numbers;
};

template <class Entry>
void mergeList(const EntryList<Entry> &what, const SetVersions &versions,
               qxMergeFork<qxDocumentSet> &fork)
{
    static const std::vector<Entry> none;
    qxMergeTriple<const std::vector<Entry> *> lists;
    for (std::size_t side = 0; side < lists.size(); ++side) {
        // The lists are only read: one way to them for both.
        lists[side] =
            versions[side] ? &what.list(const_cast<qxDocumentSet &>(*versions[side])) : &none;
    }
    const bool isAdded = !versions[MergeBase];
    if (areSameEntries(*lists[MergeOurs], *lists[MergeTheirs])
        || (!isAdded && areSameEntries(*lists[MergeTheirs], *lists[MergeBase])))
        return;
    if (!isAdded && areSameEntries(*lists[MergeOurs], *lists[MergeBase])) {
        what.list(fork.ours) = what.list(fork.theirs) = *lists[MergeTheirs];
        return;
    }
    EntryMerge<Entry>(what, lists, isAdded).into(fork);
}

const EntryList<qxDocumentReference> &referenceList()
{
    typedef qxDocumentReference Entry;
    static const EntryList<Entry> list{
        &qxDocumentSet::references,
        [](const Entry &entry) { return qMakePair(entry.kind, entry.variant); },
        [](const Entry &entry) { return entry.state; }, QString()};
    return list;
}

EntryList<qxDocumentText> textList(const QString &field,
                                   std::function<std::vector<qxDocumentText> &(qxDocumentSet &)> of)
{
    typedef qxDocumentText Entry;
    const auto key = [](const Entry &entry) {
        return qMakePair(static_cast<const qxVariantKind *>(nullptr), entry.text);
    };
    return {std::move(of), key, [](const Entry &entry) { return entry.more; }, field};
}

const std::vector<EntryList<qxDocumentText>> &textLists()
{
    static const std::vector<EntryList<qxDocumentText>> lists = [] {
        std::vector<EntryList<qxDocumentText>> all;
        for (int i = 0; i < qxNameLists; ++i) {
            const auto list = qxNameList(i);
            const auto of = [list](qxDocumentSet &set) { return std::ref(set.of(list)); };
            all.push_back(textList(qxFieldWords::of(list), of));
        }
        all.push_back(textList(QStringLiteral("snapshot"), &qxDocumentSet::snapshots));
        all.push_back(textList(QStringLiteral("value"), &qxDocumentSet::values));
        return all;
    }();
    return lists;
}

/// The orders of several kinds, or of keys, in one list came from two sides.
void settleOrders(qxDocumentSet &set)
{
    const qxVariantKinds::List kinds = qxVariantKinds::referenceOrder().all();
    const auto place = [&kinds](const qxDocumentReference &entry) {
        return std::find(kinds.begin(), kinds.end(), entry.kind);
    };
    std::stable_sort(set.references.begin(), set.references.end(),
                     [&](const auto &one, const auto &other) { return place(one) < place(other); });
    for (auto *list : {&set.snapshots, &set.values}) {
        std::sort(list->begin(), list->end(),
                  [](const auto &one, const auto &other) { return one.text < other.text; });
    }
}

} // namespace

const std::vector<qxMergeField<qxDocumentGroup>> &qxMergeFields::ofGroup()
{
    typedef qxDocumentGroup Group;
    static const std::vector<qxMergeField<Group>> fields{
        field<Group>(
            "comment", [](auto &group) -> auto & { return group.comment; }),
        field<Group>(
            "visible", [](auto &group) -> auto & { return group.isVisible; })};
    return fields;
}

const std::vector<qxMergeField<qxDocumentSet>> &qxMergeFields::ofSet()
{
    static const std::vector<qxMergeField<qxDocumentSet>> fields = setFields();
    return fields;
}

const std::vector<qxMergeField<qxDocumentVariant>> &qxMergeFields::ofVariant()
{
    typedef qxDocumentVariant Variant;
    static const std::vector<qxMergeField<Variant>> fields{
        field<Variant>(
            "base", [](auto &variant) -> auto & { return variant.base; }),
        field<Variant>(
            "default", [](auto &variant) -> auto & { return variant.standard.text; })};
    return fields;
}

bool qxMergeFields::areSame(const qxDocumentSet &one, const qxDocumentSet &other)
{
    return one.group == other.group && areSameEntries(one.references, other.references)
        && std::equal(
               one.names.begin(), one.names.end(), other.names.begin(),
               [](const auto &list, const auto &others) { return areSameEntries(list, others); })
        && areSameEntries(one.snapshots, other.snapshots)
        && areSameEntries(one.values, other.values) && areSame(one, other, ofSet());
}

bool qxMergeFields::areAlike(qxDocumentSet one, qxDocumentSet other)
{
    for (qxDocumentSet *set : {&one, &other}) {
        std::sort(set->references.begin(), set->references.end(),
                  [](const auto &each, const auto &its) {
                      return qMakePair(each.kind, each.variant) < qMakePair(its.kind, its.variant);
                  });
        for (auto &list : set->names) {
            std::sort(list.begin(), list.end(),
                      [](const auto &each, const auto &its) { return each.text < its.text; });
        }
    }
    return areSame(one, other);
}

qxMergeFork<qxDocumentSet> qxMergeFields::merged(const Versions<qxDocumentSet> &versions)
{
    qxMergeFork<qxDocumentSet> fork = merged(versions, ofSet());
    mergeList(referenceList(), versions, fork);
    for (const EntryList<qxDocumentText> &list : textLists())
        mergeList(list, versions, fork);
    settleOrders(fork.ours);
    settleOrders(fork.theirs);
    return fork;
}
