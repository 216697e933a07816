#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"
#include "Files/Gltf/Export/qxGltfBin.h"
#include "Files/Gltf/Export/qxGltfCompressPicture.h"
#include "Files/Gltf/Export/qxGltfTidy.h"

#include <map>
#include <optional>

struct qxGltfModel;

/// Copies materials into an export with all that they refer to: textures, samplers and pictures,
/// which become part of its BIN chunk.
class qxGltfExportMaterials {
public:
    /// Adds to the lists of `json` and to `bin`, and tells what is lost in `result`.
    qxGltfExportMaterials(qxGltfModel &model, qxJson &json, qxGltfBin &bin,
                          const qxExportOptions &options, qxExport &result)
        : m_model(model), m_json(json), m_bin(bin), m_options(options), m_result(result),
          m_tidy(options.extent, result)
    {
        if (options.compress)
            findUses();
    }

    /// The material in the export that is at this place of the file; -1 stays -1. It is copied when
    /// it is asked for first.
    int material(int index);
    /// A material that looks like none, for whoever has to name one. It is added when it is asked
    /// for first.
    int plainMaterial();
    /// Gives the copy of a material of the file that name; nothing when there is no copy.
    void rename(int index, const std::string &name);
    /// Whether a texture has no other picture than one in WebP.
    bool needsWebp() const { return m_needsWebp; }

private:
    void findUses();
    void findUses(const qxJson &object, bool usesAlpha);
    QByteArray written(const QByteArray &bytes, const std::string &key) const;
    void takeTextures(qxJson &object);
    std::optional<int> texture(int index);
    std::optional<int> image(int index);
    int sampler(int index);

    qxGltfModel &m_model;
    qxJson &m_json;
    qxGltfBin &m_bin;
    const qxExportOptions &m_options;
    qxExport &m_result;
    qxGltfTidy m_tidy;
    int m_plain = -1;
    bool m_needsWebp = false;
    std::map<int, int> m_materials;
    std::map<int, std::optional<int>> m_textures;
    std::map<std::string, std::optional<int>> m_images; ///< by where their data are
    std::map<int, int> m_samplers;
    std::map<std::string, qxGltfPictureContent>
        m_uses; ///< of pictures, as m_images; for compression
};
