#include "qxDocument.h"

#include "Internal/Options/qxHotkey.h"

#include <QHash>

#include <algorithm>

namespace {

/// Leaves one entry of each key, where the first one was. `fold` gives it what a later one says.
template <class Entry, class KeyOf, class Fold>
void foldTwinsOf(std::vector<Entry> &entries, const KeyOf &keyOf, const Fold &fold)
{
    QHash<decltype(keyOf(entries.front())), std::size_t> places;
    places.reserve(int(entries.size()));
    std::size_t kept = 0;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto known = places.constFind(keyOf(entries[i]));
        if (known != places.constEnd()) {
            fold(entries[*known], entries[i]);
            continue;
        }
        places.insert(keyOf(entries[i]), kept);
        if (kept != i)
            entries[kept] = std::move(entries[i]);
        ++kept;
    }
    entries.erase(entries.begin() + std::ptrdiff_t(kept), entries.end());
}

/// Leaves the last entry of each key, where it is.
template <class Entry, class KeyOf>
void keepLast(std::vector<Entry> &entries, const KeyOf &keyOf)
{
    const auto ignore = [](Entry &, const Entry &) {};
    std::reverse(entries.begin(), entries.end());
    foldTwinsOf(entries, keyOf, ignore);
    std::reverse(entries.begin(), entries.end());
}

template <class Entry>
QString entryName(const Entry &entry)
{
    return entry.name;
}

QString entryText(const qxDocumentText &entry)
{
    return entry.text;
}

/// The place of each kind in an order of them.
QHash<const qxVariantKind *, int> placesOf(const qxVariantKinds::List &kinds)
{
    QHash<const qxVariantKind *, int> places;
    for (const qxVariantKind *kind : kinds)
        places.insert(kind, places.size());
    return places;
}

template <class Entry>
void sortByKind(std::vector<Entry> &entries, const qxVariantKinds::List &kinds)
{
    const QHash<const qxVariantKind *, int> places = placesOf(kinds);
    std::stable_sort(entries.begin(), entries.end(), [&](const Entry &one, const Entry &other) {
        return places.value(one.kind) < places.value(other.kind);
    });
}

/// As a map holds them.
void settlePairs(std::vector<qxDocumentText> &pairs)
{
    foldTwinsOf(pairs, entryText, [](qxDocumentText &kept, qxDocumentText &later) {
        kept.more = std::move(later.more);
    });
    std::sort(pairs.begin(), pairs.end(),
              [](const qxDocumentText &one, const qxDocumentText &other) {
                  return one.text < other.text;
              });
}

void settleVariants(std::vector<qxDocumentVariant> &variants)
{
    foldTwinsOf(
        variants, [](const qxDocumentVariant &each) { return qMakePair(each.kind, each.name); },
        [](qxDocumentVariant &kept, qxDocumentVariant &later) {
            kept.base = std::move(later.base);
            kept.options = std::move(later.options);
            if (later.hasStandard || !later.standard.text.isEmpty())
                kept.standard = std::move(later.standard);
        });
    for (qxDocumentVariant &variant : variants)
        variant.settle();
    sortByKind(variants, qxVariantKinds::all());
}

/// Leaves one group of each name, and the sets of the others without a group.
void settleGroups(qxDocument &document)
{
    std::vector<QString> names;
    for (const qxDocumentGroup &group : document.groups)
        names.push_back(group.name);
    QHash<QString, std::size_t> last;
    for (std::size_t i = 0; i < names.size(); ++i)
        last.insert(names[i], i);
    keepLast(document.groups, entryName<qxDocumentGroup>);
    QHash<QString, int> places;
    for (qxDocumentGroup &group : document.groups) {
        group.sets = 0;
        places.insert(group.name, places.size());
    }
    for (qxDocumentSet &set : document.sets) {
        if (set.group < 0)
            continue;
        const std::size_t group = std::size_t(set.group);
        set.group = last.value(names[group]) == group ? places.value(names[group]) : -1;
    }
}

template <auto field>
bool isSameField(const qxAnalyzerVariant &one, const qxAnalyzerVariant &other)
{
    return one.*field == other.*field;
}

template <int qxAnalyzerVariant::*field>
qxClippingField whole(const char *attribute)
{
    return {
        QString::fromLatin1(attribute), false,
        [](const qxAnalyzerVariant &clipping) { return QString::number(clipping.*field); },
        [](qxAnalyzerVariant &clipping, const QString &text) { clipping.*field = text.toInt(); },
        isSameField<field>};
}

template <bool qxAnalyzerVariant::*field>
qxClippingField flag(const char *attribute)
{
    return {QString::fromLatin1(attribute), false,
            [](const qxAnalyzerVariant &clipping) { return QString::number(int(clipping.*field)); },
            [](qxAnalyzerVariant &clipping, const QString &text) {
                clipping.*field = text.toInt() != 0;
            },
            isSameField<field>};
}

/// One component, with as many digits as the DOM writes of it.
template <auto field, int component>
qxClippingField real(const QString &attribute)
{
    return {attribute, true,
            [](const qxAnalyzerVariant &clipping) {
                return QString::number(double((clipping.*field)[component]), 'g', 8);
            },
            [](qxAnalyzerVariant &clipping, const QString &text) {
                (clipping.*field)[component] = text.toFloat();
            },
            [](const qxAnalyzerVariant &one, const qxAnalyzerVariant &other) {
                return (one.*field)[component] == (other.*field)[component];
            }};
}

template <auto field>
void addThree(std::vector<qxClippingField> &fields, const char *attribute, const char *components)
{
    const QString name = QString::fromLatin1(attribute);
    fields.push_back(real<field, 0>(name + QLatin1Char(components[0])));
    fields.push_back(real<field, 1>(name + QLatin1Char(components[1])));
    fields.push_back(real<field, 2>(name + QLatin1Char(components[2])));
}

std::vector<qxClippingField> clippingFields()
{
    typedef qxAnalyzerVariant Clipping;
    std::vector<qxClippingField> fields{whole<&Clipping::clipState>("clipState")};
    addThree<&Clipping::clipPlanePosition>(fields, "clipPlanePosition", "XYZ");
    addThree<&Clipping::clipPlaneNormal>(fields, "clipPlaneNormal", "XYZ");
    fields.push_back(flag<&Clipping::clipPlaneInvert>("clipPlaneInvert"));
    fields.push_back(flag<&Clipping::clipPlaneHideScene>("clipPlaneHideScene"));
    fields.push_back(flag<&Clipping::clipPlaneShow>("clipPlaneShow"));
    addThree<&Clipping::clipPlaneColor>(fields, "clipPlaneColor", "RGB");
    fields.push_back(flag<&Clipping::clipGridShow>("clipGridShow"));
    addThree<&Clipping::clipGridColor>(fields, "clipGridColor", "RGB");
    fields.push_back(flag<&Clipping::clipContourShow>("clipContourShow"));
    addThree<&Clipping::clipContourColor>(fields, "clipContourColor", "RGB");
    fields.push_back(whole<&Clipping::clipContourWidth>("clipContourWidth"));
    return fields;
}

void addAll(QSet<QString> &all, const std::vector<qxDocumentText> &texts)
{
    for (const qxDocumentText &each : texts)
        all << each.text;
}

void addNames(QSet<QString> &all, const qxDocumentSet &set)
{
    all << set.name << set.defaultViewpoint;
    for (const qxDocumentReference &each : set.references)
        all << each.variant << each.state;
    for (const auto &list : set.names)
        addAll(all, list);
    addAll(all, set.snapshots);
    for (const qxDocumentText &each : set.snapshots)
        all << each.more;
    addAll(all, set.values);
}

} // namespace

const std::vector<qxClippingField> &qxClippingField::all()
{
    static const std::vector<qxClippingField> fields = clippingFields();
    return fields;
}

bool qxDocumentSet::isEmpty() const
{
    return references.empty() && of(qxNameList::Viewpoints).empty()
        && of(qxNameList::Animations).empty() && of(qxNameList::Geometries).empty()
        && script.text.isEmpty() && clipping.clipState == qxAnalyzerVariant::NoChange;
}

void qxDocumentSet::foldTwins()
{
    foldTwinsOf(
        references,
        [](const qxDocumentReference &each) { return qMakePair(each.kind, each.variant); },
        [](qxDocumentReference &kept, qxDocumentReference &later) {
            kept.state = std::move(later.state);
        });
    sortByKind(references, qxVariantKinds::referenceOrder().all());
    for (auto &list : names)
        foldTwinsOf(list, entryText, [](qxDocumentText &, const qxDocumentText &) {});
    settlePairs(snapshots);
    settlePairs(values);
}

void qxDocumentSet::settle()
{
    hotkey.text = qxHotkey::convertOld(hotkey.text);
    foldTwins();
}

void qxDocumentVariant::foldTwins()
{
    foldTwinsOf(options, entryName<qxDocumentOption>,
                [](qxDocumentOption &, const qxDocumentOption &) {});
}

void qxDocumentVariant::settle()
{
    for (qxDocumentOption &option : options)
        option.hotkey.text = qxHotkey::convertOld(option.hotkey.text);
    foldTwins();
}

void qxDocument::settle()
{
    settleGroups(*this);
    keepLast(sets, entryName<qxDocumentSet>);
    std::stable_sort(sets.begin(), sets.end(),
                     [](const qxDocumentSet &one, const qxDocumentSet &other) {
                         return unsigned(one.group) < unsigned(other.group); // -1 comes last
                     });
    for (qxDocumentSet &set : sets) {
        set.settle();
        if (set.group >= 0)
            ++groups[std::size_t(set.group)].sets;
    }
    settleVariants(variants);
}

QSet<QString> qxDocument::allNames() const
{
    QSet<QString> all;
    for (const qxDocumentGroup &group : groups)
        all << group.name;
    for (const qxDocumentSet &set : sets)
        addNames(all, set);
    for (const qxDocumentVariant &variant : variants) {
        all << variant.name << variant.base << variant.standard.text;
        for (const qxDocumentOption &option : variant.options)
            all << option.name;
    }
    return all;
}
