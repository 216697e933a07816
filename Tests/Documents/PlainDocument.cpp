#include "PlainDocument.h"

#include <QSet>
#include <QStringList>

namespace {

/// Names hold no slash here.
QString join(const QStringList &parts)
{
    return parts.join(QLatin1Char('/'));
}

void addSet(PlainDocument &plain, const qxDocument &document, const qxDocumentSet &set)
{
    const QString at = join({"set", set.name, ""});
    plain[at] = QString();
    plain[at + "group"] = set.group < 0 ? QString() : document.groups[std::size_t(set.group)].name;
    plain[at + "comment"] = set.comment;
    plain[at + "view"] = set.defaultViewpoint;
    plain[at + "hotkey"] = set.hotkey.text;
    plain[at + "sequential"] = QString::number(set.isSequential);
    plain[at + "script"] = set.script.text;
    plain[at + "preview"] = QString::fromLatin1(set.preview);
    for (const qxDocumentReference &each : set.references)
        plain[at + each.kind->word + '/' + each.variant] = each.state;
    for (std::size_t i = 0; i < qxNameLists; ++i) {
        for (const qxDocumentText &each : set.names[i])
            plain[at + QString::number(i) + '/' + each.text] = QString();
    }
    for (std::size_t i = 0; i < qxInclusions; ++i)
        plain[at + "include/" + QString::number(i)] = QString::number(set.inclusions[i]);
    for (const qxDocumentText &each : set.snapshots)
        plain[at + "snapshot/" + each.text] = each.more;
    for (const qxDocumentText &each : set.values)
        plain[at + "value/" + each.text] = each.more;
    for (const qxClippingField &each : qxClippingField::all()) {
        const QString name =
            each.isReal ? each.attribute.chopped(1) : each.attribute; // one field of three
        plain[at + "clipping/" + name] += each.text(set.clipping) + ' ';
    }
}

/// The first two parts of a path: the thing that it is about.
QString thingOf(const QString &path)
{
    return path.section('/', 0, path.startsWith("variant/") ? 2 : 1);
}

QMap<QString, PlainDocument> thingsOf(const PlainDocument &document)
{
    QMap<QString, PlainDocument> things;
    for (auto each = document.cbegin(); each != document.cend(); ++each)
        things[thingOf(each.key())][each.key()] = each.value();
    return things;
}

/// Whether a set of ours has what theirs removed and ours did not have before.
bool usesRemoved(const PlainDocument &base, const PlainDocument &ours, const PlainDocument &theirs)
{
    for (auto each = ours.cbegin(); each != ours.cend(); ++each) {
        const QStringList parts = each.key().split('/');
        if (base.contains(each.key()) && base[each.key()] == each.value())
            continue;
        const auto isGone = [&](const QString &path) {
            return base.contains(path) && ours.contains(path) && !theirs.contains(path);
        };
        if (parts[0] == "set" && parts.size() == 4
            && (isGone(join({"variant", parts[2], parts[3], ""}))
                || isGone(join({"variant", parts[2], parts[3], "state", each.value()}))))
            return true;
        if (parts[0] == "set" && parts[2] == "group" && isGone(join({"group", each.value(), ""})))
            return true;
        if (parts[0] == "variant" && parts[3] == "default"
            && isGone(join({"variant", parts[1], parts[2], "state", each.value()})))
            return true;
    }
    return false;
}

template <class Map>
QSet<QString> allKeys(const Map &base, const Map &ours, const Map &theirs)
{
    const QStringList keys = base.keys() + ours.keys() + theirs.keys();
    return {keys.begin(), keys.end()};
}

} // namespace

PlainDocument plain(const qxDocument &document)
{
    PlainDocument plain;
    for (const qxDocumentGroup &each : document.groups) {
        const QString at = join({"group", each.name, ""});
        plain[at] = QString();
        plain[at + "comment"] = each.comment;
        plain[at + "visible"] = QString::number(each.isVisible);
    }
    for (const qxDocumentSet &each : document.sets)
        addSet(plain, document, each);
    for (const qxDocumentVariant &each : document.variants) {
        const QString at = join({"variant", each.kind->word, each.name, ""});
        plain[at] = QString();
        plain[at + "base"] = each.base;
        plain[at + "default"] = each.standard.text;
        for (const qxDocumentOption &option : each.options)
            plain[at + "state/" + option.name] = option.hotkey.text;
    }
    return plain;
}

PlainDocument plainMerge(const PlainDocument &base, const PlainDocument &ours,
                         const PlainDocument &theirs, bool &isClean)
{
    isClean = !usesRemoved(base, ours, theirs) && !usesRemoved(base, theirs, ours);
    const auto baseThings = thingsOf(base), ourThings = thingsOf(ours),
               theirThings = thingsOf(theirs);
    PlainDocument merged;
    for (const QString &name : allKeys(baseThings, ourThings, theirThings)) {
        const PlainDocument b = baseThings[name], o = ourThings[name], t = theirThings[name];
        if (o == b || t == b || o == t) {
            merged.insert(o == b ? t : o);
            continue;
        }
        isClean = isClean && !b.isEmpty() && !o.isEmpty() && !t.isEmpty();
        for (const QString &path : allKeys(b, o, t)) {
            const auto in = [&](const PlainDocument &side) {
                return side.contains(path) ? '=' + side[path] : QString();
            };
            isClean = isClean && (in(o) == in(b) || in(t) == in(b) || in(o) == in(t));
            const PlainDocument &taken = in(o) == in(b) ? t : o;
            if (taken.contains(path))
                merged[path] = taken[path];
        }
    }
    return isClean ? merged : PlainDocument();
}
