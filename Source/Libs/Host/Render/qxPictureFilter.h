#pragma once

#include <OpenSG/OSGVector.h>

#include <array>
#include <vector>

/// Removes the noise of a picture made of a few random samples per pixel. A pixel becomes the
/// average of those around it that have a similar surface and do not differ by more than the noise.
class qxPictureFilter {
public:
    qxPictureFilter(int width, int height);

    struct Pixel {
        osg::Vec3f light; ///< average of the samples
        float variance = 0; ///< of the average of look(), mean of the channels
        osg::Vec3f colour; ///< own one of the surface
        osg::Vec3f normal; ///< of the surface; null for none
    };
    /// The light as it comes to a surface, without the surface's colour.
    static osg::Vec3f withoutColour(const osg::Vec3f &light, const osg::Vec3f &colour);
    /// Its root, which differences look like.
    static osg::Vec3f look(const osg::Vec3f &light);
    /// Threads may set different pixels at once.
    void set(int x, int y, const Pixel &pixel);

    /// \name When all pixels are set: prepare(), then all bands of rows, in any order and in
    /// parallel; light() is the result. @{
    void prepare();
    int bandCount() const;
    int firstRow(int band) const;
    void filterBand(int band);
    osg::Vec3f light(int x, int y) const { return m_result[place(x, y)]; }
    /// @}

private:
    typedef std::vector<float> Plane; ///< a number for each pixel
    struct Band;

    std::size_t place(int x, int y) const
    {
        return std::size_t(y) * std::size_t(m_width) + std::size_t(x);
    }
    void addNeighbours(int across, int up, Band &band) const;
    void compare(int across, int up, int y, float *differences) const;
    void addRow(int across, int up, int y, Band &band) const;

    int m_width;
    int m_height;
    std::vector<osg::Vec3f> m_colour;
    std::array<Plane, 3> m_light; ///< without the colour
    std::array<Plane, 3> m_look; ///< its roots
    Plane m_variance;
    std::array<Plane, 6> m_surface; ///< colour and normal, in units in which 1 is a difference
    std::vector<osg::Vec3f> m_result;
};
