#include "qxSetEntry.h"

#include "qxVariantKinds.h"
#include "qxVariantSet.h"

#include "qxStateWords.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace {

/// The lists of names in a set.
struct NameList {
    qxSetEntry::Sort sort;
    qxUniqueNames qxVariantSetContents::*names;
};
const NameList nameLists[] = {{qxSetEntry::Viewpoint, &qxVariantSetContents::viewpoints},
                              {qxSetEntry::Animation, &qxVariantSetContents::animations},
                              {qxSetEntry::Target, &qxVariantSetContents::targetNodeNames},
                              {qxSetEntry::Geometry, &qxVariantSetContents::geometries}};

/// What a capture took, as flags of a set.
struct Inclusion {
    bool qxVariantSetContents::*flag;
    const char *word;
};
const Inclusion inclusions[] = {
    {&qxVariantSetContents::inclNodes, QT_TRANSLATE_NOOP("qxSetEntries", "nodes")},
    {&qxVariantSetContents::inclMats, QT_TRANSLATE_NOOP("qxSetEntries", "materials")},
    {&qxVariantSetContents::inclLights, QT_TRANSLATE_NOOP("qxSetEntries", "lights")},
    {&qxVariantSetContents::inclEnv, QT_TRANSLATE_NOOP("qxSetEntries", "environment")},
    {&qxVariantSetContents::inclView, QT_TRANSLATE_NOOP("qxSetEntries", "viewpoint")}};

/// What is made of things that are no variants.
struct State {
    qxSetEntry::Sort sort;
    QLatin1String state;
    const char *word;
    bool isChoice;
};
const State states[] = {
    {qxSetEntry::Viewpoint, QLatin1String("first"),
     QT_TRANSLATE_NOOP("qxSetEntries", "camera goes there"), true},
    {qxSetEntry::Viewpoint, QLatin1String("other"),
     QT_TRANSLATE_NOOP("qxSetEntries", "not used: not the first"), false},
    {qxSetEntry::Animation, QLatin1String("all"), QT_TRANSLATE_NOOP("qxSetEntries", "starts"),
     true},
    {qxSetEntry::Animation, QLatin1String("turn"),
     QT_TRANSLATE_NOOP("qxSetEntries", "starts in its turn"), true},
    {qxSetEntry::Clipping, QLatin1String("1"), QT_TRANSLATE_NOOP("qxSetEntries", "on"), true},
    {qxSetEntry::Clipping, QLatin1String("2"), QT_TRANSLATE_NOOP("qxSetEntries", "off"), true},
    {qxSetEntry::Clipping, QLatin1String("3"), QT_TRANSLATE_NOOP("qxSetEntries", "moved, as it is"),
     true},
    {qxSetEntry::Target, QLatin1String("shown"),
     QT_TRANSLATE_NOOP("qxSetEntries", "shown before all else"), false},
    {qxSetEntry::Target, QLatin1String("idle"), QT_TRANSLATE_NOOP("qxSetEntries", "not used"),
     false},
    {qxSetEntry::Geometry, QLatin1String(""), QT_TRANSLATE_NOOP("qxSetEntries", "left to scripts"),
     false}};

qxUniqueNames &namesOf(qxVariantSet &set, qxSetEntry::Sort sort)
{
    const auto found = std::find_if(std::begin(nameLists), std::end(nameLists),
                                    [sort](const NameList &each) { return each.sort == sort; });
    return set.*found->names;
}

/// Only the first viewpoint is one that the camera goes to.
QString stateOf(const qxVariantSet &set, qxSetEntry::Sort sort, bool isFirst)
{
    switch (sort) {
    case qxSetEntry::Viewpoint:
        return isFirst ? QStringLiteral("first") : QStringLiteral("other");
    case qxSetEntry::Animation:
        return set.sequentialAnimation ? QStringLiteral("turn") : QStringLiteral("all");
    case qxSetEntry::Target:
        return set.inclNodes ? QStringLiteral("shown") : QStringLiteral("idle");
    default:
        return QString();
    }
}

bool isClipped(const qxVariantSet &set)
{
    return set.analyzer.clipState != qxAnalyzerVariant::NoChange;
}

void appendCapture(const qxVariantSet &set, std::vector<qxSetEntry> &entries)
{
    QStringList taken;
    for (const Inclusion &each : inclusions) {
        if (set.*each.flag)
            taken << QLatin1String(each.word);
    }
    if (!taken.isEmpty())
        entries.push_back({qxSetEntry::Capture, nullptr, QString(), taken.join(',')});
}

void putFirst(qxUniqueNames &names, const QString &first)
{
    const QStringList before = names.list();
    names.clear();
    names.add(first);
    for (const QString &name : before)
        names.add(name);
}

QString translated(const char *word)
{
    return QCoreApplication::translate("qxSetEntries", word);
}

} // namespace

QString qxSetEntry::key() const
{
    return QStringLiteral("%1 %2 ").arg(int(sort)).arg(kind ? kind->word : QLatin1String()) + name;
}

std::vector<qxSetEntry> qxSetEntries::of(const qxVariantSet &set)
{
    std::vector<qxSetEntry> entries;
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        for (const qxVariantState &each : set.*kind->states)
            entries.push_back({qxSetEntry::Variant, kind, each.variant, each.state});
    }
    for (const NameList &list : nameLists) {
        for (const QString &name : set.*list.names) {
            const bool isFirst = name == (set.*list.names).front();
            entries.push_back({list.sort, nullptr, name, stateOf(set, list.sort, isFirst)});
        }
    }
    if (isClipped(set))
        entries.push_back(
            {qxSetEntry::Clipping, nullptr, QString(), QString::number(set.analyzer.clipState)});
    for (auto each = set.materialSnapshots.begin(); each != set.materialSnapshots.end(); ++each)
        entries.push_back({qxSetEntry::Snapshot, nullptr, each.key(), each.value()});
    appendCapture(set, entries);
    return entries;
}

void qxSetEntries::remove(qxVariantSet &set, const qxSetEntry &entry)
{
    switch (entry.sort) {
    case qxSetEntry::Variant:
        return (set.*entry.kind->states).remove(entry.name);
    case qxSetEntry::Clipping:
        return set.setClippingState(qxAnalyzerVariant::NoChange);
    case qxSetEntry::Snapshot:
        set.materialSnapshots.remove(entry.name);
        return;
    case qxSetEntry::Capture:
        return set.setInclInfo(false, false, false, false, false);
    default:
        return namesOf(set, entry.sort).remove(entry.name);
    }
}

void qxSetEntries::put(qxVariantSet &set, const qxSetEntry &entry)
{
    switch (entry.sort) {
    case qxSetEntry::Variant:
        return (set.*entry.kind->states).add(entry.name, entry.state);
    case qxSetEntry::Clipping:
        return set.setClippingState(entry.state.toInt());
    case qxSetEntry::Snapshot:
        return set.addMaterialSnapshot(entry.name, entry.state);
    case qxSetEntry::Capture:
        return;
    default:
        namesOf(set, entry.sort).add(entry.name);
    }
    if (entry.sort == qxSetEntry::Animation && !entry.state.isEmpty())
        set.sequentialAnimation = entry.state == QLatin1String("turn");
    if (entry.sort == qxSetEntry::Viewpoint && entry.state == QLatin1String("first"))
        putFirst(set.viewpoints, entry.name);
}

std::vector<QString> qxSetEntries::choicesOf(const qxSetEntry &entry)
{
    if (entry.kind) {
        const qxVariant *const variant = entry.kind->find(entry.name);
        return variant ? qxStateWords::choicesOf(*entry.kind, *variant) : std::vector<QString>();
    }
    std::vector<QString> choices;
    for (const State &each : states) {
        if (each.sort == entry.sort && each.isChoice)
            choices.push_back(each.state);
    }
    return choices;
}

QString qxSetEntries::sortOf(const qxSetEntry &entry)
{
    static const char *const words[] = {nullptr,
                                        QT_TRANSLATE_NOOP("qxSetEntries", "viewpoint"),
                                        QT_TRANSLATE_NOOP("qxSetEntries", "animation"),
                                        QT_TRANSLATE_NOOP("qxSetEntries", "clipping"),
                                        QT_TRANSLATE_NOOP("qxSetEntries", "target node"),
                                        QT_TRANSLATE_NOOP("qxSetEntries", "geometry"),
                                        QT_TRANSLATE_NOOP("qxSetEntries", "snapshot"),
                                        QT_TRANSLATE_NOOP("qxSetEntries", "capture")};
    return entry.kind ? qxStateWords::kind(*entry.kind) : translated(words[entry.sort]);
}

QString qxSetEntries::nameOf(const qxSetEntry &entry)
{
    if (entry.sort == qxSetEntry::Clipping)
        return QCoreApplication::translate("qxSetEntries", "Clipping plane");
    if (entry.sort == qxSetEntry::Capture)
        return QCoreApplication::translate("qxSetEntries", "What was captured");
    return entry.name;
}

QString qxSetEntries::wordOf(const qxSetEntry &entry, const QString &state)
{
    if (entry.kind)
        return qxStateWords::shown(*entry.kind, entry.kind->find(entry.name), state);
    if (entry.sort == qxSetEntry::Capture) {
        QStringList words;
        for (const QString &word : state.split(','))
            words << translated(word.toLatin1());
        return words.join(QStringLiteral(", "));
    }
    const auto found = std::find_if(std::begin(states), std::end(states), [&](const State &each) {
        return each.sort == entry.sort && each.state == state;
    });
    return found == std::end(states) ? state : translated(found->word);
}
