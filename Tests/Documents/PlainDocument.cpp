#include "PlainDocument.h"

#include <QSet>
#include <QStringList>

namespace {

/// Names hold no slash here.
QString join(const QStringList &parts)
{
    return parts.join(QLatin1Char('/'));
}

/// Notes values below one path.
class Entries {
public:
    explicit Entries(QVector<QPair<QString, QString>> &entries) : m_entries(entries) {}

    void begin(const QStringList &thing)
    {
        m_at = join(thing) + '/';
        add(QString(), QString());
    }
    void add(const QString &path, const QString &value)
    {
        m_entries.push_back({m_at + path, value});
    }
    void add(const QString &path, bool value) { add(path, QString::number(value)); }
    template <class List>
    void add(const QString &path, const List &list)
    {
        for (const qxDocumentText &each : list)
            add(path + '/' + each.text, each.more);
    }

private:
    QVector<QPair<QString, QString>> &m_entries;
    QString m_at;
};

void addClipping(Entries &entries, const qxAnalyzerVariant &clipping)
{
    QMap<QString, QString> texts;
    for (const qxClippingField &each : qxClippingField::all()) {
        const QString name =
            each.isReal ? each.attribute.chopped(1) : each.attribute; // one field of three
        texts[name] += each.text(clipping) + ' ';
    }
    for (auto each = texts.cbegin(); each != texts.cend(); ++each)
        entries.add("clipping/" + each.key(), each.value());
}

void addSet(Entries &entries, const qxDocument &document, const qxDocumentSet &set)
{
    entries.begin({"set", set.name});
    entries.add("group", set.group < 0 ? QString() : document.groups[std::size_t(set.group)].name);
    entries.add("comment", set.comment);
    entries.add("view", set.defaultViewpoint);
    entries.add("hotkey", set.hotkey.text);
    entries.add("sequential", set.isSequential);
    entries.add("script", set.script.text);
    entries.add("preview", QString::fromLatin1(set.preview));
    for (const qxDocumentReference &each : set.references)
        entries.add(each.kind->word + '/' + each.variant, each.state);
    for (std::size_t i = 0; i < qxNameLists; ++i)
        entries.add(QString::number(i), set.names[i]);
    for (std::size_t i = 0; i < qxInclusions; ++i)
        entries.add("include/" + QString::number(i), set.inclusions[i]);
    entries.add("snapshot", set.snapshots);
    entries.add("value", set.values);
    addClipping(entries, set.clipping);
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

QVector<QPair<QString, QString>> inOrder(const qxDocument &document)
{
    QVector<QPair<QString, QString>> all;
    Entries entries(all);
    for (const qxDocumentGroup &each : document.groups) {
        entries.begin({"group", each.name});
        entries.add("comment", each.comment);
        entries.add("visible", each.isVisible);
    }
    for (const qxDocumentSet &each : document.sets)
        addSet(entries, document, each);
    for (const qxDocumentVariant &each : document.variants) {
        entries.begin({"variant", each.kind->word, each.name});
        entries.add("base", each.base);
        entries.add("default", each.standard.text);
        for (const qxDocumentOption &option : each.options)
            entries.add("state/" + option.name, option.hotkey.text);
    }
    return all;
}

PlainDocument plain(const qxDocument &document)
{
    PlainDocument plain;
    for (const auto &each : inOrder(document))
        plain.insert(each.first, each.second);
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
