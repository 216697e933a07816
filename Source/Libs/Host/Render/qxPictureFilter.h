#pragma once

#include <OpenSG/OSGVector.h>

#include <array>
#include <vector>

/// Removes the noise of a picture made of a few random samples per pixel. In several passes, each
/// with neighbours twice as far away, a pixel becomes the average of those around it that have a
/// similar surface and do not differ by more than the noise: the filter of Dammertz et al.,
/// "Edge-Avoiding A-Trous Wavelet Transform for fast Global Illumination Filtering", 2010, guided
/// by the variance, as in Schied et al., "Spatiotemporal Variance-Guided Filtering", 2017.
class qxPictureFilter {
public:
    qxPictureFilter(int width, int height);

    /// What tells surfaces apart, in units in which 1 is a difference.
    typedef std::array<float, 6> Surface;
    /// Of its own colour and its normal, which is null for none.
    static Surface surfaceOf(const osg::Vec3f &colour, const osg::Vec3f &normal);
    struct Pixel {
        osg::Vec3f light; ///< average of the samples
        float variance = 0; ///< of the average without the colour, mean of the channels
        osg::Vec3f colour; ///< own one of the surface
        Surface surface; ///< average of the samples
        float mixture = 0; ///< variance of the single samples' surfaces, sum of the numbers
    };
    /// What light that a surface of this colour reflects is divided by to be without the colour.
    static osg::Vec3f divisor(const osg::Vec3f &colour);
    /// Threads may set different pixels at once.
    void set(int x, int y, const Pixel &pixel);

    /// \name When all pixels are set: for each pass prepare(), then all bands of rows, in any order
    /// and in parallel; light() is the result. @{
    static const int passes = 5;
    void prepare();
    int bandCount() const;
    int firstRow(int band) const;
    void filterBand(int pass, int band);
    osg::Vec3f light(int x, int y) const;
    /// @}

private:
    typedef std::vector<float> Plane; ///< a number for each pixel
    struct Row;

    std::size_t place(int x, int y) const
    {
        return std::size_t(y) * std::size_t(m_width) + std::size_t(x);
    }
    Plane blurred(const Plane &plane) const;
    void addNeighbours(int across, int up, float share, Row &row) const;

    int m_width;
    int m_height;
    std::array<Plane, 3> m_colour;
    std::array<Plane, 3> m_light; ///< without the colour
    std::array<Plane, 3> m_look; ///< roots of the light, which differences look like
    Plane m_variance;
    Plane m_noise; ///< variance of the look, smooth
    std::array<Plane, 6> m_surface;
    Plane m_alike; ///< what differences of surfaces are multiplied with
    std::array<Plane, 3> m_nextLight; ///< of the pass
    Plane m_nextVariance;
};
