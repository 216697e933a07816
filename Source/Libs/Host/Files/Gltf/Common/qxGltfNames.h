#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

/// Makes names distinguishable as qxNodeUtils::getUniqueName does, at the same cost however many
/// there are.
class qxGltfNames {
public:
    /// The name belongs to somebody.
    void take(const std::string &name) { m_taken.insert(name); }
    /// `base` when nobody has it, else with a number behind it. It belongs to somebody from now on.
    std::string unique(const std::string &base);

private:
    std::unordered_set<std::string> m_taken;
    std::unordered_map<std::string, int> m_next; ///< the smallest number that may be free, by base
};

/// The names under which the entries of a list are shown, empty for those without. Of several with
/// one name the first keeps it, and the others get names that nobody has.
std::vector<std::string> qxGltfShownNames(const qxJson &list);
