#include "RandomDocument.h"

#include "qxVariantKinds.h"

#include <algorithm>

namespace {

template <class List, class Place>
void sortBy(List &list, const Place &place)
{
    std::stable_sort(list.begin(), list.end(),
                     [&](const auto &one, const auto &other) { return place(one) < place(other); });
}

int placeIn(const qxVariantKinds::List &order, const qxVariantKind *kind)
{
    return int(std::find(order.begin(), order.end(), kind) - order.begin());
}

template <class List>
bool has(const List &list, const QString &name)
{
    return std::any_of(list.begin(), list.end(),
                       [&](const auto &each) { return each.name == name; });
}

/// Brings sets, variants and entries into the order in which they are written.
void tidy(qxDocument &document)
{
    const unsigned none = unsigned(-1);
    sortBy(document.sets,
           [&](const qxDocumentSet &set) { return set.group < 0 ? none : unsigned(set.group); });
    sortBy(document.variants, [](const qxDocumentVariant &variant) {
        return placeIn(qxVariantKinds::all(), variant.kind);
    });
    for (qxDocumentGroup &group : document.groups)
        group.sets = 0;
    for (qxDocumentSet &set : document.sets) {
        if (set.group >= 0)
            ++document.groups[std::size_t(set.group)].sets;
        sortBy(set.references, [](const qxDocumentReference &entry) {
            return placeIn(qxVariantKinds::referenceOrder().all(), entry.kind);
        });
        sortBy(set.snapshots, [](const qxDocumentText &entry) { return entry.text; });
        sortBy(set.values, [](const qxDocumentText &entry) { return entry.text; });
    }
}

void removeGroup(qxDocument &document, int group)
{
    document.groups.erase(document.groups.begin() + group);
    for (std::size_t i = document.sets.size(); i-- > 0;) {
        int &place = document.sets[i].group;
        if (place == group)
            document.sets.erase(document.sets.begin() + std::ptrdiff_t(i));
        else if (place > group)
            --place;
    }
}

} // namespace

QString RandomDocument::name(const char *kind)
{
    return QStringLiteral("%1 %2").arg(kind).arg(below(6));
}

/// One that nothing else has.
QString RandomDocument::freeName(const char *kind)
{
    return QStringLiteral("%1 %2-%3").arg(kind).arg(++m_count).arg(m_engine(), 0, 36);
}

QString RandomDocument::text()
{
    const QString words = QString::fromUtf8(
        of({"", "oak", "<b> & \"q\"", "two\nlines", "\xC3\xA4 \xF0\x9F\x9A\x97"}));
    return percent(50) ? words + QString::number(below(1000)) : words;
}

QString RandomDocument::hotkey()
{
    return percent(40) ? QString() : QStringLiteral("Ctrl+F%1").arg(1 + below(12));
}

QByteArray RandomDocument::preview()
{
    return percent(50) ? QByteArray() : QByteArray::number(below(1 << 30)).toBase64();
}

/// Mostly to a variant that exists.
qxDocumentReference RandomDocument::reference(const qxDocument &document)
{
    const auto &variants = document.variants;
    qxDocumentReference entry{&qxVariantKinds::node, name("Lost"), QStringLiteral("!Next"), {}};
    if (variants.empty() || percent(10))
        return entry;
    const qxDocumentVariant &variant = variants[below(variants.size())];
    entry.kind = variant.kind;
    entry.variant = variant.name;
    if (!variant.options.empty() && percent(80))
        entry.state = variant.options[below(variant.options.size())].name;
    return entry;
}

void RandomDocument::editClipping(qxAnalyzerVariant &clipping)
{
    switch (below(4)) {
    case 0:
        clipping.clipState = int(below(4));
        break;
    case 1:
        clipping.clipPlanePosition[below(3)] = float(below(100)) / 8;
        break;
    case 2:
        clipping.clipPlaneShow = !clipping.clipPlaneShow;
        break;
    default:
        clipping.clipContourWidth = int(below(9));
    }
}

template <class List>
void RandomDocument::toggle(List &list, const QString &text, const QString &more)
{
    const auto found =
        std::find_if(list.begin(), list.end(), [&](const auto &each) { return each.text == text; });
    if (found == list.end())
        list.insert(list.begin() + std::ptrdiff_t(below(list.size() + 1)), {text, more, {}});
    else if (found->more == more)
        list.erase(found);
    else
        found->more = more;
}

void RandomDocument::editSettings(qxDocumentSet &set)
{
    switch (below(8)) {
    case 0:
        set.comment = text();
        break;
    case 1:
        set.defaultViewpoint = name("View");
        break;
    case 2:
        set.hotkey.text = hotkey();
        break;
    case 3:
        set.isSequential = !set.isSequential;
        break;
    case 4:
        set.script.text = text();
        break;
    case 5:
        set.preview = preview();
        break;
    case 6:
        editClipping(set.clipping);
        break;
    default: {
        bool &inclusion = set.inclusions[below(qxInclusions)];
        inclusion = !inclusion;
    }
    }
}

void RandomDocument::editSet(const qxDocument &document, qxDocumentSet &set)
{
    const unsigned what = below(10);
    if (what < 4) {
        const qxDocumentReference entry = reference(document);
        const auto found = std::find_if(
            set.references.begin(), set.references.end(), [&](const qxDocumentReference &each) {
                return each.kind == entry.kind && each.variant == entry.variant;
            });
        if (found == set.references.end())
            set.references.push_back(entry);
        else if (percent(50))
            set.references.erase(found);
        else
            found->state = entry.state;
    } else if (what < 6) {
        toggle(set.of(qxNameList(below(qxNameLists))), name("Name"));
    } else if (what < 7) {
        const QString key = name("Key");
        const QString more = text();
        toggle(percent(50) ? set.values : set.snapshots, key, more);
    } else {
        editSettings(set);
    }
}

void RandomDocument::editVariant(qxDocumentVariant &variant)
{
    const unsigned what = below(6);
    auto &options = variant.options;
    if (what == 0)
        variant.base = name("Base");
    else if (what == 1)
        variant.standard.text = options.empty() ? QString() : options[below(options.size())].name;
    else if (what == 2 && !options.empty())
        options[below(options.size())].hotkey.text = hotkey();
    else if (what == 3 && options.size() > 1)
        options.erase(options.begin() + std::ptrdiff_t(below(options.size())));
    else if (const QString option = name("Option"); !has(options, option)) {
        const qxDocumentOption added{option, {hotkey(), {}, {}}, {}};
        options.insert(options.begin() + std::ptrdiff_t(below(options.size() + 1)), added);
    }
}

qxDocumentVariant RandomDocument::variant(const qxVariantKind &kind, const QString &name)
{
    qxDocumentVariant variant;
    variant.kind = &kind;
    variant.name = name;
    variant.base = freeName("Base");
    const unsigned count = below(4);
    for (unsigned i = 0; i < count; ++i)
        variant.options.push_back({freeName("Option"), {hotkey(), {}, {}}, {}});
    for (int i = 0; i < 3; ++i)
        editVariant(variant);
    return variant;
}

qxDocumentSet RandomDocument::set(const qxDocument &document, const QString &name)
{
    qxDocumentSet set;
    set.name = name;
    set.group = int(below(document.groups.size() + 1)) - 1;
    set.comment = freeName("comment"); // so that it is known when it gets another name
    const unsigned edits = 4 + below(16);
    for (unsigned i = 0; i < edits; ++i)
        editSet(document, set);
    return set;
}

qxDocument RandomDocument::make(unsigned size)
{
    qxDocument document;
    for (unsigned i = below(size + 1); i > 0; --i) {
        qxDocumentGroup group;
        group.name = freeName("Group");
        group.comment = text();
        group.isVisible = percent(70);
        document.groups.push_back(group);
    }
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        for (unsigned i = below(size + 1); i > 0; --i)
            document.variants.push_back(variant(*kind, freeName("Variant")));
    }
    for (unsigned i = below(size * 2 + 1); i > 0; --i)
        document.sets.push_back(set(document, freeName("Set")));
    tidy(document);
    return document;
}

void RandomDocument::editContents(qxDocument &document)
{
    const unsigned what = below(10);
    if (what < 6 && !document.sets.empty())
        editSet(document, document.sets[below(document.sets.size())]);
    else if (what < 9 && !document.variants.empty())
        editVariant(document.variants[below(document.variants.size())]);
    else if (!document.groups.empty()) {
        qxDocumentGroup &group = document.groups[below(document.groups.size())];
        group.isVisible = percent(50) ? !group.isVisible : group.isVisible;
        group.comment = text();
    }
}

void RandomDocument::editThings(qxDocument &document)
{
    const bool adds = percent(60);
    const unsigned what = below(10);
    if (what < 5 && adds) {
        const QString wanted = percent(80) ? freeName("Set") : name("Set");
        const auto place = std::ptrdiff_t(below(document.sets.size() + 1));
        if (!has(document.sets, wanted))
            document.sets.insert(document.sets.begin() + place, set(document, wanted));
    } else if (what < 5 && !document.sets.empty()) {
        document.sets.erase(document.sets.begin() + std::ptrdiff_t(below(document.sets.size())));
    } else if (what < 8 && adds) {
        const qxVariantKind &kind = *qxVariantKinds::all()[below(qxVariantKinds::all().size())];
        const QString wanted = percent(80) ? freeName("Variant") : name("Variant");
        if (!has(document.variants, wanted))
            document.variants.push_back(variant(kind, wanted));
    } else if (what < 8 && !document.variants.empty()) {
        document.variants.erase(document.variants.begin()
                                + std::ptrdiff_t(below(document.variants.size())));
    } else if (adds) {
        const QString wanted = percent(80) ? freeName("Group") : name("Group");
        if (!has(document.groups, wanted)) {
            document.groups.emplace_back();
            document.groups.back().name = wanted;
        }
    } else if (!document.groups.empty()) {
        removeGroup(document, int(below(document.groups.size())));
    }
}

template <class List>
void RandomDocument::move(List &list)
{
    if (list.empty())
        return;
    const std::size_t from = below(list.size());
    const auto moved = list[from];
    list.erase(list.begin() + std::ptrdiff_t(from));
    list.insert(list.begin() + std::ptrdiff_t(below(list.size() + 1)), moved);
}

void RandomDocument::editOrders(qxDocument &document)
{
    const unsigned what = below(6);
    if (what == 0 && !document.groups.empty()) {
        std::vector<QString> names;
        for (const qxDocumentSet &set : document.sets)
            names.push_back(set.group < 0 ? QString()
                                          : document.groups[std::size_t(set.group)].name);
        move(document.groups);
        for (std::size_t i = 0; i < names.size(); ++i) {
            for (std::size_t j = 0; j < document.groups.size(); ++j) {
                if (document.groups[j].name == names[i])
                    document.sets[i].group = int(j);
            }
        }
    } else if (what == 1) {
        move(document.sets);
    } else if (what == 2) {
        move(document.variants);
    } else if (what == 3 && !document.variants.empty()) {
        move(document.variants[below(document.variants.size())].options);
    } else if (!document.sets.empty()) {
        qxDocumentSet &set = document.sets[below(document.sets.size())];
        if (what == 4)
            move(set.references);
        else
            move(set.of(qxNameList(below(qxNameLists))));
    }
}

void RandomDocument::editGroups(qxDocument &document)
{
    if (!document.sets.empty())
        document.sets[below(document.sets.size())].group =
            int(below(document.groups.size() + 1)) - 1;
}

void RandomDocument::renameOption(qxDocument &document, qxDocumentVariant &variant)
{
    if (variant.options.empty())
        return;
    qxDocumentOption &option = variant.options[below(variant.options.size())];
    const QString old = option.name;
    option.name = freeName("Option");
    if (variant.standard.text == old)
        variant.standard.text = option.name;
    for (qxDocumentSet &set : document.sets) {
        for (qxDocumentReference &each : set.references) {
            if (each.kind == variant.kind && each.variant == variant.name && each.state == old)
                each.state = option.name;
        }
    }
}

void RandomDocument::editNames(qxDocument &document)
{
    const unsigned what = below(10);
    if (what < 4 && !document.sets.empty()) {
        document.sets[below(document.sets.size())].name = freeName("Set");
    } else if (what < 5 && !document.groups.empty()) {
        document.groups[below(document.groups.size())].name = freeName("Group");
    } else if (!document.variants.empty()) {
        qxDocumentVariant &variant = document.variants[below(document.variants.size())];
        if (what < 7)
            return renameOption(document, variant);
        const QString old = variant.name;
        variant.name = freeName("Variant");
        for (qxDocumentSet &set : document.sets) {
            for (qxDocumentReference &each : set.references) {
                if (each.kind == variant.kind && each.variant == old)
                    each.variant = variant.name;
            }
        }
    }
}

void RandomDocument::edit(qxDocument &document, int count, int sorts)
{
    while (count > 0) {
        const int sort = 1 << below(5);
        if (!(sorts & sort))
            continue;
        --count;
        switch (sort) {
        case Contents:
            editContents(document);
            break;
        case Things:
            editThings(document);
            break;
        case Orders:
            editOrders(document);
            break;
        case Groups:
            editGroups(document);
            break;
        default:
            editNames(document);
        }
        tidy(document);
    }
}
