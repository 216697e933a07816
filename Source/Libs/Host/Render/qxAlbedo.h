#pragma once

#include "Render/qxRenderMath.h"

/// How much light microfacets of one roughness reflect in all, whatever direction it comes from.
/// Looked up in tables that are computed at the first use.
class qxAlbedo {
public:
    /// From 0 to 1.
    explicit qxAlbedo(float roughness);

    /// By Fresnel's term of Schlick: what is reflected at right angles counts `ofNormal`, what is
    /// reflected at grazing ones counts `ofEdge`.
    struct Split {
        float all() const { return ofNormal + ofEdge; }

        float ofNormal;
        float ofEdge;
    };
    /// Towards a direction with that cosine to the normal.
    Split at(float cosine) const;
    /// The mean over all directions, weighted by their cosine.
    Split mean() const;

    /// The same for the fibres of KHR_materials_sheen in white.
    static float ofSheen(float cosine, float roughness);
    /// Their distribution ("Charlie") times visibility; cosines of light, eye and half vector.
    static float sheen(float light, float eye, float half, float roughness);

private:
    std::size_t m_row; ///< of the table, and the share of the next one
    float m_share;
};
