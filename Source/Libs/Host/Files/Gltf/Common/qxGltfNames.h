#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

/// Makes names unique as qxNodeUtils::getUniqueName does, in constant time.
class qxGltfNames {
public:
    /// Marks the name as taken.
    void take(const std::string &name) { m_taken.insert(name); }
    /// `base`, with a number if it is taken. The result is taken from now on.
    std::string unique(const std::string &base);

private:
    std::unordered_set<std::string> m_taken;
    std::unordered_map<std::string, int> m_next; ///< the smallest number that may be free, by base
};

/// The unique names of the entries of a list, empty for those without. Of several with one name the
/// first keeps it.
std::vector<std::string> qxGltfShownNames(const qxJson &list);
