#include "Files/Gltf/Common/qxGltfMerge.h"

#include "Files/Gltf/Read/qxGltfCheck.h"
#include "qxText.h"

#include <algorithm>
#include <optional>
#include <set>

namespace {

/// The three versions of a value; null for what is not there.
struct Versions {
    const qxJson *base;
    const qxJson *ours;
    const qxJson *theirs;

    /// Whether all that are there are of that sort, and ours and theirs are there.
    template <class Is>
    bool are(const Is &is) const
    {
        return ours && theirs && is(*ours) && is(*theirs) && (!base || is(*base));
    }
};

const qxJson *memberOrNull(const qxJson *object, const std::string &key)
{
    if (!object || !object->is_object())
        return nullptr;
    const auto found = object->find(key);
    return found == object->end() ? nullptr : &*found;
}

bool isSameJson(const qxJson *one, const qxJson *other)
{
    return one && other ? *one == *other : one == other;
}

bool isObjectList(const qxJson &json)
{
    return json.is_array() && std::all_of(json.begin(), json.end(), [](const qxJson &each) {
               return each.is_object();
           });
}

bool isTextList(const qxJson &json)
{
    return json.is_array() && std::all_of(json.begin(), json.end(), [](const qxJson &each) {
               return each.is_string();
           });
}

std::string nameOfEntry(const qxJson &entry)
{
    const qxJson &name = qxGltfMember(entry, "name");
    return name.is_string() ? name.get<std::string>() : std::string();
}

/// Whether the entries of base may have other numbers now: there are fewer, a name stands
/// elsewhere, or something was inserted in front of the end.
bool isRenumbered(const qxJson &base, const qxJson &now)
{
    if (now.size() < base.size())
        return true;
    std::set<std::string> names;
    for (const qxJson &each : now)
        names.insert(nameOfEntry(each));
    for (std::size_t i = 0; i < base.size(); ++i) {
        const std::string name = nameOfEntry(base[i]);
        const bool isElsewhere = name != nameOfEntry(now[i]) && names.count(name) > 0;
        const bool isUnsure = now.size() > base.size() && name.empty() && base[i] != now[i];
        if (isElsewhere || isUnsure)
            return true;
    }
    return false;
}

/// The same for all lists that are not within lists.
bool renumbers(const qxJson &base, const qxJson &now)
{
    for (const auto &[key, value] : base.items()) {
        const qxJson *const later = memberOrNull(&now, key);
        if (value.is_object() && later && later->is_object() && renumbers(value, *later))
            return true;
        if (isObjectList(value) && !value.empty()
            && (!later || !isObjectList(*later) || isRenumbered(value, *later)))
            return true;
    }
    return false;
}

bool hasSameData(const qxGltfDocument &one, const qxGltfDocument &other)
{
    for (const char *key : {"buffers", "bufferViews", "accessors"}) {
        if (qxGltfMember(one.json, key) != qxGltfMember(other.json, key))
            return false;
    }
    return one.bin == other.bin && one.moreChunks == other.moreChunks;
}

bool isSameScene(const qxGltfDocument &one, const qxGltfDocument &other)
{
    return one.json == other.json && hasSameData(one, other);
}

QString textOfJson(const qxJson *json)
{
    return json ? qxText::fromUtf8(json->dump(-1, ' ', false, qxJson::error_handler_t::replace))
                : QString();
}

class JsonMerge {
public:
    explicit JsonMerge(bool prefersTheirs) : m_prefersTheirs(prefersTheirs) {}

    /// What is there in the end, if anything.
    std::optional<qxJson> merged(const Versions &versions, const QString &place)
    {
        const auto &[base, ours, theirs] = versions;
        if (isSameJson(ours, theirs) || isSameJson(theirs, base))
            return copy(ours);
        if (isSameJson(ours, base))
            return copy(theirs);
        if (versions.are([](const qxJson &each) { return each.is_object(); }))
            return objects(versions, place);
        if (place.startsWith("extensions") && versions.are(isTextList))
            return textSets(versions);
        if (base && versions.are(isObjectList) && ours->size() >= base->size()
            && theirs->size() >= base->size()
            && std::min(ours->size(), theirs->size()) == base->size())
            return lists(versions, place);
        conflicts.push_back(
            {place, QString(), textOfJson(base), textOfJson(ours), textOfJson(theirs)});
        return copy(m_prefersTheirs ? theirs : ours);
    }

    QVector<qxSceneConflict> conflicts;

private:
    static std::optional<qxJson> copy(const qxJson *json)
    {
        return json ? std::optional<qxJson>(*json) : std::nullopt;
    }

    qxJson objects(const Versions &versions, const QString &place)
    {
        qxJson result = qxJson::object();
        const auto add = [&](const std::string &key) {
            const QString name = qxText::fromUtf8(key);
            auto value = merged({memberOrNull(versions.base, key), memberOrNull(versions.ours, key),
                                 memberOrNull(versions.theirs, key)},
                                place.isEmpty() ? name : place + '/' + name);
            if (value)
                result[key] = std::move(*value);
        };
        for (const auto &[key, value] : versions.ours->items())
            add(key);
        for (const auto &[key, value] : versions.theirs->items()) {
            if (!versions.ours->contains(key))
                add(key);
        }
        return result;
    }

    /// Extensions that are used or required, in the order of ours.
    static qxJson textSets(const Versions &versions)
    {
        const auto has = [](const qxJson *list, const qxJson &text) {
            return list && std::find(list->begin(), list->end(), text) != list->end();
        };
        qxJson result = qxJson::array();
        for (const qxJson &text : *versions.ours) {
            if (has(versions.theirs, text) || !has(versions.base, text))
                result.push_back(text);
        }
        for (const qxJson &text : *versions.theirs) {
            if (!has(versions.ours, text) && !has(versions.base, text))
                result.push_back(text);
        }
        return result;
    }

    qxJson lists(const Versions &versions, const QString &place)
    {
        const std::size_t common = versions.base->size();
        const bool isOursLonger = versions.ours->size() > common;
        const qxJson &longer = isOursLonger ? *versions.ours : *versions.theirs;
        qxJson result = qxJson::array();
        for (std::size_t i = 0; i < common; ++i) {
            const qxJson &entry = (*versions.ours)[i];
            const QString name = qxText::fromUtf8(nameOfEntry(entry));
            const QString label = name.isEmpty() ? QString() : QString(" \"%1\"").arg(name);
            result.push_back(*merged({&(*versions.base)[i], &entry, &(*versions.theirs)[i]},
                                     QString("%1[%2]%3").arg(place).arg(i).arg(label)));
        }
        for (std::size_t i = common; i < longer.size(); ++i)
            result.push_back(longer[i]);
        return result;
    }

    bool m_prefersTheirs;
};

/// Why the sides do not go together at all; empty when they may.
QString flawOfSides(const qxGltfDocument *base, const qxGltfDocument &ours,
                    const qxGltfDocument &theirs)
{
    if (!base)
        return qxFileText::tr("both sides added the file");
    if (renumbers(base->json, ours.json))
        return qxFileText::tr("ours has removed, inserted or reordered entries of a list, and "
                              "theirs has changed something");
    if (renumbers(base->json, theirs.json))
        return qxFileText::tr("theirs has removed, inserted or reordered entries of a list, and "
                              "ours has changed something");
    if (!hasSameData(*base, ours) && !hasSameData(*base, theirs) && !hasSameData(ours, theirs))
        return qxFileText::tr("both sides have changed the data of buffers or accessors");
    return QString();
}

} // namespace

qxGltfMerge qxGltfMerge::of(const qxGltfDocument *base, const qxGltfDocument &ours,
                            const qxGltfDocument &theirs, bool prefersTheirs)
{
    if (isSameScene(ours, theirs) || (base && isSameScene(theirs, *base)))
        return {ours.json, false, {}};
    if (base && isSameScene(ours, *base))
        return {theirs.json, true, {}};
    QString flaw = flawOfSides(base, ours, theirs);
    if (flaw.isEmpty()) {
        JsonMerge merge(prefersTheirs);
        qxGltfMerge result{*merge.merged({&base->json, &ours.json, &theirs.json}, QString()),
                           hasSameData(*base, ours), merge.conflicts};
        try {
            qxGltfCheck(result.json);
            return result;
        } catch (const qxGltfError &error) {
            flaw = qxFileText::tr("together they are no scene: %1").arg(error.reason());
        }
    }
    const qxGltfDocument &taken = prefersTheirs ? theirs : ours;
    return {taken.json, prefersTheirs, {{QString(), flaw, QString(), QString(), QString()}}};
}
