#include "Files/Gltf/Export/qxGltfTidy.h"

#include "Files/Gltf/Common/qxGltfExtras.h"
#include "Files/Gltf/Read/qxGltfExtensions.h"
#include "qxText.h"

#include <algorithm>
#include <set>

namespace {

/// Those that stand for themselves: they refer to nothing else in the file.
bool isExported(const QString &extension)
{
    return extension == "KHR_materials_dispersion"
        || qxGltfUnderstoodExtensions().contains(extension);
}

bool isOurs(const std::string &key)
{
    return key.size() > 2 && key[0] == 'q' && key[1] == 'x' && key[2] >= 'A' && key[2] <= 'Z';
}

void collectExtensions(const qxJson &value, std::set<std::string> &names)
{
    if (!value.is_structured())
        return;
    for (const auto &[key, member] : value.items()) {
        if (value.is_object() && key == "extras")
            continue;
        if (value.is_object() && key == "extensions") {
            for (const auto &extension : member.items())
                names.insert(extension.key());
        }
        collectExtensions(member, names);
    }
}

} // namespace

qxJson qxGltfTidy::extras(const qxJson &object) const
{
    const qxJson &all = qxGltfMember(object, "extras");
    if (m_extent == qxExportOptions::Everything || !all.is_object())
        return m_extent == qxExportOptions::Everything ? qxJson() : all;
    if (all.contains(qxGltfKeys::otherExtras))
        return all[qxGltfKeys::otherExtras];
    qxJson others = qxJson::object();
    for (const auto &[key, value] : all.items()) {
        if (!isOurs(key))
            others[key] = value;
    }
    return others.empty() ? qxJson() : others;
}

void qxGltfTidy::leaveOut(const QString &name)
{
    if (!isExported(name))
        m_result.losses += {"extension", name, true, "the program does not show it either"};
}

void qxGltfTidy::clean(qxJson &object)
{
    if (object.is_object()) {
        const qxJson kept = extras(object);
        object.erase("extras");
        if (!kept.is_null())
            object["extras"] = kept;
        std::vector<std::string> unknown;
        for (const auto &extension : qxGltfMember(object, "extensions").items()) {
            if (!isExported(qxText::fromUtf8(extension.key())))
                unknown.push_back(extension.key());
        }
        for (const std::string &extension : unknown)
            qxGltfEraseExtension(object, extension.c_str());
    }
    if (!object.is_structured())
        return;
    for (auto member = object.begin(); member != object.end(); ++member) {
        if (!object.is_object() || member.key() != "extras")
            clean(*member);
    }
}

void qxGltfDescribe(qxJson &object, const qxJson &from, const qxGltfTidy &tidy)
{
    const qxJson &name = qxGltfMember(from, "name");
    if (name.is_string())
        object["name"] = name;
    const qxJson extras = tidy.extras(from);
    if (!extras.is_null())
        object["extras"] = extras;
}

void qxGltfListExtensions(qxJson &json, const std::vector<std::string> &required)
{
    std::set<std::string> names(required.begin(), required.end());
    collectExtensions(json, names);
    for (const char *list : {"extensionsUsed", "extensionsRequired"}) {
        qxJson all = qxJson::array();
        for (const std::string &name : names) {
            const bool isListed = list == std::string("extensionsUsed")
                || std::count(required.begin(), required.end(), name) > 0;
            if (isListed)
                all.push_back(name);
        }
        if (!all.empty())
            json[list] = all;
    }
}
