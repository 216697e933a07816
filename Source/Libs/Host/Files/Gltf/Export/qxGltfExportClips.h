#pragma once

#include "Animation/qxAnimationClip.h"
#include "Files/Gltf/Export/qxGltfBin.h"
#include "Files/qxExport.h"

#include <functional>
#include <map>

class qxGltfExportChoice;
struct qxGltfOrigin;

/// Writes the clips of the scene into an export, as far as they move nodes that are there.
class qxGltfExportClips {
public:
    /// Adds to the lists of `json`, which has its nodes, and to `bin`.
    qxGltfExportClips(qxJson &json, qxGltfBin &bin, const qxGltfExportChoice &choice,
                      const qxGltfOrigin &origin)
        : m_json(json), m_bin(bin), m_choice(choice), m_origin(origin)
    {
    }

    /// One that moves nothing is left out and told in `result`, unless all have to keep their
    /// places.
    void write(qxExportOptions::Extent extent, qxExport &result);

private:
    qxJson animation(const qxAnimationClip &clip);
    int targetOf(unsigned int node, bool isMoved) const;
    int accessorOf(const qxAnimationCurve::Numbers &shared, int components,
                   const std::function<std::vector<float>()> &numbers);

    qxJson &m_json;
    qxGltfBin &m_bin;
    const qxGltfExportChoice &m_choice;
    const qxGltfOrigin &m_origin;
    std::map<std::pair<const void *, int>, int> m_accessors; ///< by numbers and components
};
