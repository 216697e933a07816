#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <cstdint>
#include <vector>

class qxRenderCamera;
class qxRenderClipping;
class qxRenderGroup;

/// Where a picture has certain nodes, whatever stands in front of them.
struct qxNodeMask {
    /// A pixel of the nodes beside one that shows none of them. The border of the picture is none.
    struct Rim {
        int x; ///< from the left of the mask
        int y; ///< from its lowest row
        bool isSeen; ///< nothing else stands in front
    };

    /// Whether the picture shows none of the nodes.
    bool isEmpty() const { return covered.empty(); }
    /// Whether the nodes are at that pixel of the mask, which must exist.
    bool covers(int x, int y) const
    {
        return covered[std::size_t(y) * std::size_t(width) + std::size_t(x)] != 0;
    }

    int left = 0; ///< of the picture's pixels, counted from its lower left corner
    int bottom = 0; ///< the same
    int width = 0; ///< in pixels
    int height = 0; ///< in pixels
    std::vector<std::uint8_t> covered; ///< 1 where the nodes are, lowest row first
    std::vector<Rim> rim; ///< all pixels at the edge of what is covered
};

/// The mask of the instances of these nodes, whose ids are sorted, for a picture of that size. It
/// has every pixel that their surfaces touch; those that a texture cuts out count as a whole.
qxNodeMask qxMaskOf(const std::vector<osg::UInt32> &nodes, const qxRenderGroup &group,
                    const qxRenderCamera &camera, const qxRenderClipping &clipping);
