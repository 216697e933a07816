#include "Compare/qxSceneDiff.h"

#include <QCryptographicHash>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>
#include <iterator>

namespace {

/// A sort of things with names, and where the file lists them.
struct Section {
    const char *what;
    const char *list;
};

const Section sections[] = {
    {"scene", "scenes"},         {"node", "nodes"},     {"mesh", "meshes"},
    {"material", "materials"},   {"camera", "cameras"}, {"skin", "skins"},
    {"animation", "animations"}, {"image", "images"},   {"light", "lights"}};

/// Members of these names hold numbers of things, or lists of such numbers.
const Section references[] = {{"scene", "scenes"},      {"node", "nodes"},
                              {"nodes", "nodes"},       {"children", "nodes"},
                              {"joints", "nodes"},      {"skeleton", "nodes"},
                              {"mesh", "meshes"},       {"material", "materials"},
                              {"camera", "cameras"},    {"skin", "skins"},
                              {"source", "images"},     {"light", "lights"},
                              {"indices", "accessors"}, {"input", "accessors"},
                              {"output", "accessors"},  {"inverseBindMatrices", "accessors"}};

const char *const unimportant[] = {"bufferView", "byteOffset"};
/// Members of the file that are compared elsewhere, or that do not count.
const char *const apart[] = {"asset",      "extensionsUsed", "extensionsRequired", "accessors",
                             "buffers",    "bufferViews",    "textures",           "samplers",
                             "extensions", "extras"};

template <std::size_t count>
bool isOneOf(const char *const (&names)[count], const QString &name)
{
    return std::any_of(std::begin(names), std::end(names),
                       [&](const char *each) { return name == QLatin1String(each); });
}

/// Stands for the text, and is short: many may refer to one thing.
QString shortened(const QByteArray &text)
{
    return text.size() <= 64
        ? QString::fromUtf8(text)
        : QString::fromLatin1(QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex());
}

/// The JSON of a scene with names instead of numbers. What has no name is named by what it is.
class NamedScene {
public:
    explicit NamedScene(const QJsonObject &json) : m_json(json)
    {
        for (const Section &each : sections) {
            for (const QJsonValue thing : list(each.list))
                m_names[QLatin1String(each.list)] += shortened(nameOf(thing).toUtf8());
        }
        for (const char *each : {"accessors", "samplers", "textures"}) {
            for (const QJsonValue thing : list(each))
                m_names[QLatin1String(each)] += shortened(meaning(each, thing));
        }
    }

    static QString nameOf(const QJsonValue &thing)
    {
        const QString name = thing[QLatin1String("name")].toString();
        return name.isEmpty() ? thing[QLatin1String("uri")].toString().left(100) : name;
    }

    QJsonArray list(const char *name) const
    {
        const QLatin1String word(name);
        if (word != QLatin1String("lights"))
            return m_json[word].toArray();
        return m_json[QLatin1String("extensions")][QLatin1String("KHR_lights_punctual")][word]
            .toArray();
    }

    /// What an element of a list of the file is, wherever that stands which it refers to.
    QByteArray meaning(const char *list, const QJsonValue &value) const
    {
        return QJsonDocument(QJsonObject{{QString(), named(QLatin1String(list), value)}})
            .toJson(QJsonDocument::Compact);
    }

private:
    QJsonValue named(const QString &name, const QJsonValue &value) const;
    /// The name of the thing of that number; any other value as it is.
    QJsonValue thing(const char *list, const QJsonValue &number) const
    {
        return number.isDouble() ? m_names[QLatin1String(list)].value(number.toInt(-1)) : number;
    }
    QJsonObject accessors(QJsonObject numbers) const
    {
        for (auto each = numbers.begin(); each != numbers.end(); ++each)
            *each = thing("accessors", *each);
        return numbers;
    }
    QJsonObject part(QJsonObject part) const;

    const QJsonObject m_json;
    QHash<QString, QStringList> m_names; ///< by lists
};

QJsonValue NamedScene::named(const QString &name, const QJsonValue &value) const
{
    if (value.isDouble()) {
        for (const Section &each : references) {
            if (name == QLatin1String(each.what))
                return thing(each.list, value);
        }
        return value;
    }
    if (value.isArray()) {
        QJsonArray result;
        for (const QJsonValue each : value.toArray())
            result += named(name, each);
        return result;
    }
    if (!value.isObject())
        return value;
    QJsonObject object = value.toObject();
    if (name.endsWith(QLatin1String("Texture")))
        object[QLatin1String("index")] = thing("textures", object[QLatin1String("index")]);
    else if (name == QLatin1String("textures"))
        object[QLatin1String("sampler")] = thing("samplers", object[QLatin1String("sampler")]);
    else if (name == QLatin1String("primitives"))
        object = part(object);
    QJsonObject result;
    for (auto each = object.constBegin(); each != object.constEnd(); ++each) {
        if (!isOneOf(unimportant, each.key()))
            result[each.key()] = named(each.key(), *each);
    }
    return result;
}

/// A part of a mesh with its data described instead of counted.
QJsonObject NamedScene::part(QJsonObject part) const
{
    const QLatin1String attributes("attributes"), targets("targets");
    part[attributes] = accessors(part[attributes].toObject());
    QJsonArray described;
    for (const QJsonValue each : part[targets].toArray())
        described += accessors(each.toObject());
    part[targets] = described;
    return part;
}

/// The meanings of things, sorted, by names.
typedef QHash<QString, QList<QByteArray>> Meanings;

Meanings meaningsOf(const NamedScene &scene, const Section &section, QStringList &names)
{
    Meanings meanings;
    for (const QJsonValue each : scene.list(section.list)) {
        const QString name = NamedScene::nameOf(each);
        if (!meanings.contains(name))
            names += name;
        meanings[name] += scene.meaning(section.list, each);
    }
    for (QList<QByteArray> &each : meanings)
        std::sort(each.begin(), each.end());
    return meanings;
}

/// Of one name: what one has and the other has not.
QList<QByteArray> missing(const QList<QByteArray> &from, const QList<QByteArray> &in)
{
    QList<QByteArray> result;
    std::set_difference(in.begin(), in.end(), from.begin(), from.end(), std::back_inserter(result));
    return result;
}

void add(QVector<qxSceneDifference> &result, const char *what, qxDifferenceSort sort,
         const QStringList &names)
{
    if (!names.isEmpty())
        result.push_back({QLatin1String(what), sort, names});
}

void compare(const NamedScene &before, const NamedScene &after, const Section &section,
             QVector<qxSceneDifference> &result)
{
    QStringList names, oldNames, added, removed, changed;
    const Meanings now = meaningsOf(after, section, names);
    const Meanings old = meaningsOf(before, section, oldNames);
    for (const QString &name : oldNames) {
        if (!now.contains(name))
            names += name;
    }
    for (const QString &name : names) {
        const int gone = missing(now[name], old[name]).size();
        const int come = missing(old[name], now[name]).size();
        for (int i = 0; i < std::max(gone, come); ++i)
            (i < std::min(gone, come) ? changed : come > gone ? added : removed) += name;
    }
    add(result, section.what, qxDifferenceSort::Added, added);
    add(result, section.what, qxDifferenceSort::Removed, removed);
    add(result, section.what, qxDifferenceSort::Changed, changed);
}

/// Members of objects that differ, but for those that `isApart`.
template <class IsApart>
void compareMembers(const char *what, const QJsonObject &before, const QJsonObject &after,
                    const IsApart &isApart, QVector<qxSceneDifference> &result)
{
    QStringList names = after.keys(), added, removed, changed;
    for (const QString &name : before.keys()) {
        if (!after.contains(name))
            names += name;
    }
    for (const QString &name : names) {
        if (isApart(name) || before[name] == after[name])
            continue;
        (!before.contains(name) ? added : !after.contains(name) ? removed : changed) += name;
    }
    add(result, what, qxDifferenceSort::Added, added);
    add(result, what, qxDifferenceSort::Removed, removed);
    add(result, what, qxDifferenceSort::Changed, changed);
}

/// The names of things of a list.
QSet<QString> namesOf(const QJsonArray &list)
{
    QSet<QString> names;
    for (const QJsonValue thing : list)
        names += NamedScene::nameOf(thing);
    return names;
}

/// Gives things of `before` that only got another name the one that they have now. Lights, which
/// are listed elsewhere, are left alone.
void rename(QJsonObject &before, const QJsonObject &after, const Section &section,
            QVector<qxSceneDifference> &result)
{
    const QLatin1String list(section.list), name("name");
    const QJsonArray old = before[list].toArray(), now = after[list].toArray();
    const QSet<QString> oldNames = namesOf(old), newNames = namesOf(now);
    qxSceneDifference difference{QLatin1String(section.what), qxDifferenceSort::Renamed, {}};
    QJsonArray renamed;
    for (int i = 0; i < old.size(); ++i) {
        QJsonObject thing = old[i].toObject();
        const QString was = thing[name].toString();
        const QString is = now[i][name].toString();
        thing[name] = is;
        const bool isRenamed = !was.isEmpty() && !is.isEmpty() && !newNames.contains(was)
            && !oldNames.contains(is) && thing == now[i].toObject();
        renamed += isRenamed ? QJsonValue(thing) : old[i];
        if (isRenamed) {
            difference.names += is;
            difference.oldNames += was;
        }
    }
    if (difference.names.isEmpty())
        return;
    before[list] = renamed;
    result += difference;
}

bool isListed(const QString &name)
{
    return isOneOf(apart, name)
        || std::any_of(std::begin(sections), std::end(sections),
                       [&](const Section &each) { return name == QLatin1String(each.list); });
}

} // namespace

QVector<qxSceneDifference> qxSceneDiff::of(const QJsonObject &before, const QJsonObject &after)
{
    QVector<qxSceneDifference> result;
    if (before == after)
        return result;
    QJsonObject sameNames = before;
    for (const Section &each : sections)
        rename(sameNames, after, each, result);
    const NamedScene old(sameNames), now(after);
    for (const Section &each : sections)
        compare(old, now, each, result);
    const QLatin1String extensions("extensions"), extras("extras");
    compareMembers(
        "extension", before[extensions].toObject(), after[extensions].toObject(),
        [](const QString &name) { return name == QLatin1String("KHR_lights_punctual"); }, result);
    compareMembers(
        "extra", before[extras].toObject(), after[extras].toObject(),
        [](const QString &) { return false; }, result);
    compareMembers("member", before, after, isListed, result);
    return result;
}
