#include "Render/qxThinFilm.h"

namespace {

float atNormal(float inside, float outside)
{
    const float share = (inside - outside) / (inside + outside);
    return share * share;
}

float schlick(float normal, float cosine)
{
    return normal + (1.0f - normal) * std::pow(1.0f - cosine, 5.0f);
}

/// One bell of the eye's sensitivity to wavelengths, in Fourier space.
struct Bell {
    float height;
    float place;
    float variance;

    float at(float phase, float shift) const
    {
        return height * std::sqrt(2.0f * qxPi * variance) * std::cos(place * phase + shift)
            * std::exp(-phase * phase * variance);
    }
};

// The fits of the paper, section 4, divided by the eye's whole sensitivity.
const float _whole = 1.0685e-7f;
const Bell _bells[] = {{5.4856e-13f / _whole, 1.6810e6f, 4.3278e9f},
                       {4.4201e-13f / _whole, 1.7953e6f, 9.3046e9f},
                       {5.2481e-13f / _whole, 2.2084e6f, 6.6121e9f}};
const Bell _secondRed = {9.7470e-14f / _whole, 2.2399e6f, 4.5282e9f};

/// Light of a difference of ways in nanometres and shifts of phase, as the eye sees it.
osg::Vec3f seen(float difference, const osg::Vec3f &shift)
{
    const float phase = 2.0f * qxPi * difference * 1e-9f;
    const float x = _bells[0].at(phase, shift[0]) + _secondRed.at(phase, shift[0]);
    const float y = _bells[1].at(phase, shift[1]);
    const float z = _bells[2].at(phase, shift[2]);
    // From the CIE's standard observer to the primaries of sRGB.
    return osg::Vec3f(3.2404542f * x - 1.5371385f * y - 0.4985314f * z,
                      -0.9692660f * x + 1.8760108f * y + 0.0415560f * z,
                      0.0556434f * x - 0.2040259f * y + 1.0572252f * z);
}

} // namespace

osg::Vec3f qxThinFilm(float cosine, float ior, float thickness, const osg::Vec3f &base)
{
    // Without thickness there is no film: its index becomes that of air.
    const float ramp = std::clamp(thickness / 0.03f, 0.0f, 1.0f);
    const float index = qxMixed(1.0f, ior, ramp * ramp * (3.0f - 2.0f * ramp));
    const float square = 1.0f - (1.0f - cosine * cosine) / (index * index);
    if (square < 0.0f)
        return osg::Vec3f(1, 1, 1);
    const float inside = std::sqrt(square); // cosine in the film
    const float first = schlick(atNormal(index, 1.0f), cosine);
    const float through = 1.0f - first;
    osg::Vec3f second, shift, mean, ring;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        const float root = std::sqrt(std::clamp(base[i] + 0.0001f, 0.0f, 0.9999f));
        const float baseIor = (1.0f + root) / (1.0f - root);
        second[i] = schlick(atNormal(baseIor, index), inside);
        shift[i] = (index < 1.0f ? 0.0f : qxPi) + (baseIor < index ? qxPi : 0.0f);
        ring[i] = std::clamp(first * second[i], 1e-5f, 0.9999f);
        mean[i] = through * through * second[i] / (1.0f - ring[i]);
    }
    osg::Vec3f result = mean + osg::Vec3f(first, first, first);
    osg::Vec3f order = mean - osg::Vec3f(through, through, through);
    const float difference = 2.0f * index * thickness * inside;
    for (int i = 1; i <= 2; ++i) {
        for (osg::UInt32 k = 0; k < 3; ++k)
            order[k] *= std::sqrt(ring[k]);
        result += qxProduct(order, seen(float(i) * difference, shift * float(i))) * 2.0f;
    }
    for (osg::UInt32 i = 0; i < 3; ++i)
        result[i] = std::clamp(result[i], 0.0f, 1.0f);
    return result;
}
