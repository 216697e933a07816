#include "Files/Gltf/Common/qxGltfNames.h"

std::string qxGltfNames::unique(const std::string &base)
{
    if (m_taken.insert(base).second)
        return base;
    int &number = m_next.emplace(base, 2).first->second;
    std::string name;
    do {
        name = base + " " + std::to_string(number++);
    } while (!m_taken.insert(name).second);
    return name;
}

std::vector<std::string> qxGltfShownNames(const qxJson &list)
{
    std::vector<std::string> names;
    qxGltfNames taken;
    for (const qxJson &entry : list) {
        const qxJson &name = qxGltfMember(entry, "name");
        names.push_back(name.is_string() ? name.get<std::string>() : std::string());
        taken.take(names.back());
    }
    std::unordered_set<std::string> seen;
    for (std::string &name : names) {
        if (!name.empty() && !seen.insert(name).second)
            name = taken.unique(name);
    }
    return names;
}
