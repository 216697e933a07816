#pragma once

#include "Render/qxPainter.h"

#include <atomic>
#include <memory>

/// Pictures for a camera that moves: a part of the pixels is drawn anew in each, the others come
/// from the pictures before, moved to where the camera sees them now. The oldest are drawn first,
/// so that every pixel gets its turn.
///
/// After Walter, Drettakis, Parker, "Interactive Rendering using the Render Cache" (1999): points
/// of surfaces keep their places in the world and are projected again; those that show through gaps
/// of nearer surfaces are dropped, and gaps are drawn first. What is neither known nor drawn comes
/// from points of the same surface around it, as in Kopf, Cohen, Lischinski, Uyttendaele, "Joint
/// Bilateral Upsampling" (2007). By how much light has changed where pixels are drawn it changes
/// around them.
class qxReprojection {
public:
    /// The next picture comes without those before it.
    void forget();
    /// The same unless they showed the scene in this revision (qxRenderScene).
    void forgetOthers(std::uint64_t revision);
    /// The next picture, which may have another size; about so many of its pixels are drawn anew,
    /// all when there are no more. Empty when `progress` ends it: then everything is forgotten.
    qxPicture paint(qxPainter &painter, const qxPictureSettings &settings, int drawn,
                    const qxPicture::Progress &progress = {});
    /// How many pixels were drawn anew for the last one.
    int drawn() const { return m_drawn; }
    ///@{
    /// Seconds that drawing them has taken, and all else.
    double drawTime() const { return m_drawTime; }
    double otherTime() const { return m_otherTime; }
    ///@}

private:
    static constexpr int _byte = 256; ///< the parts of a byte that light is kept in
    static bool isNearer(float depth, float other) { return depth < other * 0.98f; }
    /// Whether points of these depths are of one surface.
    static bool isSame(float depth, float other)
    {
        return !isNearer(depth, other) && !isNearer(other, depth);
    }
    /// What a pixel sees.
    struct Point {
        void setLight(const osg::Vec4f &colour)
        {
            for (osg::UInt32 i = 0; i < 4; ++i)
                rgba[i] = std::uint16_t(int(colour[i] * 255.0f + 0.5f) * _byte);
        }

        enum Kind : std::uint8_t {
            None,
            Surface, ///< `place` is in the world
            Front, ///< the same, in front of all surfaces: an overlay
            Far ///< `place` is a direction
        };
        osg::Vec3f place;
        float depth = 0; ///< from the plane of the eye, for comparisons
        std::uint16_t rgba[4] = {0, 0, 0, 0}; ///< in parts of a byte
        Kind kind = None;
        std::uint8_t age = 0; ///< pictures since it was drawn
    };
    /// What was drawn in a square of pixels.
    struct Block {
        const Point *point = nullptr; ///< the first that was drawn
        int x = 0;
        int y = 0;
        float change[4] = {0, 0, 0, 0}; ///< of its light since the picture before
    };
    class Eye;
    class Mixture;
    class Corners;
    typedef std::vector<std::atomic<std::uint64_t>> Nearest;

    void begin(const qxPictureSettings &settings);
    void plan(int drawn);
    void project(const Eye &eye, int chunk);
    void gather(int y);
    float depthAt(std::size_t place) const;
    bool isEdge(int x, int y, std::size_t place, float depth) const;
    bool isOutlier(std::size_t place, float depth) const;
    void drawRow(qxPainter &painter, int row);
    int drawBlock(qxPainter &painter, Block &block, int left, int low);
    int urgency(int x, int y, int cell) const;
    void drawPixel(qxPainter &painter, int x, int y, Block &block);
    void finish(const qxPainter &painter, int y, std::uint8_t *rgba);
    void showPixel(int x, int y, std::uint8_t *rgba) const;
    void moderate(int x, int y, Point &point) const;
    Point interpolated(int x, int y) const;
    bool mixBeside(std::size_t place, Point &point) const;
    const Block &blockAt(int across, int up) const;
    std::size_t placeOf(int x, int y) const
    {
        return std::size_t(y) * std::size_t(m_width) + std::size_t(x);
    }

    int m_width = 0;
    int m_height = 0;
    int m_number = 0; ///< of pictures so far
    std::uint64_t m_revision = 0; ///< of the scene that the points are of
    std::vector<Point> m_points; ///< by pixel, of the last picture; empty without one
    std::vector<Point> m_next; ///< of the one that is being made
    std::vector<float> m_shadows; ///< on the ground (qxPainter); empty until they are known
    std::unique_ptr<Nearest> m_nearest; ///< by pixel: depth, age and number of the nearest point
    std::vector<Block> m_blocks;
    int m_across = 0; ///< blocks in a row
    int m_rows = 0; ///< of blocks
    int m_blockWidth = 1; ///< in pixels, as the height
    int m_perBlock = 1; ///< pixels to draw in each
    float m_perGap = 0; ///< further ones for each pixel of which nothing is known
    std::vector<int> m_order; ///< of the pixels in a block, when nothing else decides
    std::atomic<int> m_gaps{0};
    std::atomic<int> m_count{0};
    int m_drawn = 0;
    double m_drawTime = 0;
    double m_otherTime = 0;
};
