#pragma once

#include "Render/qxTracer.h"
#include "Render/qxViewSettings.h"

/// An invisible ground below the scene that only darkens what is seen there: shadows of lamps, and
/// less light from the surroundings where the scene is near. It ends softly around the scene.
///
/// Its shadows are computed once for a grid of places, so that they are without noise.
class qxShadowGround {
public:
    /// Whether the scene itself has a floor: of 32 places just inside of its edge, on an ellipse,
    /// at least three in four show, from straight above, a surface in the lowest tenth of the
    /// scene.
    static bool isFloor(const qxRenderGroup &shown);
    /// Whether a picture with that setting shows a ground below these parts of a scene.
    static bool isWanted(qxViewSettings::Ground setting, const qxRenderGroup &shown);

    /// What casts the shadows, and what lights the ground.
    struct Scene {
        const qxTracer &tracer;
        const qxBox &bounds;
        const qxRenderLights &lights;
        const qxEnvironmentLight &sky;
    };
    /// Fine grids show by which soft boxes shadows are cast, others only what is near.
    qxShadowGround(const Scene &scene, bool isFine);

    /// To be called for each row of the grid, in any order and in parallel, before anything else.
    void fillRow(int row);
    int rowCount() const { return m_rows; }
    ///@{
    /// Instead of calling it: what another ground of the same scene and settings has computed.
    const std::vector<float> &shadows() const { return m_hidden; }
    void setShadows(const std::vector<float> &shadows) { m_hidden = shadows; }
    ///@}
    /// Where the ray meets it; infinite when it does not.
    float distanceAlong(const qxRay &ray) const;
    /// The share of the light behind the ground that is left at the end of the ray.
    float through(const qxRay &ray) const;

private:
    struct Direction {
        osg::Vec3f direction;
        float weight; ///< of its light on the ground
    };
    void chooseDirections(bool isFine);
    float hiddenAt(const osg::Vec3f &place) const;

    const Scene m_scene;
    std::vector<Direction> m_directions;
    float m_left; ///< corner of the grid
    float m_back;
    float m_step; ///< between its places
    int m_columns;
    int m_rows;
    std::vector<float> m_hidden; ///< shares of light
};
