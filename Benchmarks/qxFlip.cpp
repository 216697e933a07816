#include "qxFlip.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

typedef std::array<float, 3> Colour;
typedef std::vector<float> Kernel; ///< weights from -radius to radius

const float _perDegree = 67.0206f; ///< pixels
const float _pi = 3.14159265f;

/// A picture of numbers.
struct Plane {
    Plane(int w, int h) : width(w), height(h), values(std::size_t(w) * std::size_t(h)) {}
    /// Beyond the edges the outermost pixels go on.
    float at(int x, int y) const
    {
        const int row = std::clamp(y, 0, height - 1);
        return values[std::size_t(row) * std::size_t(width)
                      + std::size_t(std::clamp(x, 0, width - 1))];
    }

    int width;
    int height;
    std::vector<float> values;
};

static Plane filtered(const Plane &plane, const Kernel &across, const Kernel &up)
{
    const auto along = [](const Plane &from, const Kernel &kernel, int stepX, int stepY) {
        Plane result(from.width, from.height);
        const int radius = int(kernel.size()) / 2;
        std::size_t i = 0;
        for (int y = 0; y < from.height; ++y) {
            for (int x = 0; x < from.width; ++x, ++i) {
                for (int k = -radius; k <= radius; ++k)
                    result.values[i] +=
                        kernel[std::size_t(k + radius)] * from.at(x + k * stepX, y + k * stepY);
            }
        }
        return result;
    };
    return along(along(plane, across, 1, 0), up, 0, 1);
}

static float linear(int byte)
{
    const float shown = float(byte) / 255.0f;
    return shown <= 0.04045f ? shown / 12.92f : std::pow((shown + 0.055f) / 1.055f, 2.4f);
}

static Colour times(const float (&m)[3][3], const Colour &c)
{
    Colour result;
    for (std::size_t i = 0; i < 3; ++i)
        result[i] = m[i][0] * c[0] + m[i][1] * c[1] + m[i][2] * c[2];
    return result;
}

/// Linear sRGB in CIE XYZ, in shares of white.
static Colour xyzOf(const Colour &rgb)
{
    const float m[3][3] = {{0.4124564f, 0.3575761f, 0.1804375f},
                           {0.2126729f, 0.7151522f, 0.0721750f},
                           {0.0193339f, 0.1191920f, 0.9503041f}};
    const Colour xyz = times(m, rgb);
    const Colour white = times(m, {1, 1, 1});
    return {xyz[0] / white[0], xyz[1] / white[1], xyz[2] / white[2]};
}

static Colour rgbOf(const Colour &xyz)
{
    const float m[3][3] = {{3.2404542f, -1.5371385f, -0.4985314f},
                           {-0.9692660f, 1.8760108f, 0.0415560f},
                           {0.0556434f, -0.2040259f, 1.0572252f}};
    return times(m, {xyz[0] * 0.9504700f, xyz[1] * 1.0000001f, xyz[2] * 1.0888300f});
}

/// Opponent colours in which the eye's sensitivity is filtered: YCxCz.
static Colour opponentOf(const Colour &rgb)
{
    const Colour c = xyzOf(rgb);
    return {116.0f * c[1] - 16.0f, 500.0f * (c[0] - c[1]), 200.0f * (c[1] - c[2])};
}

static Colour fromOpponent(const Colour &c)
{
    const float y = (c[0] + 16.0f) / 116.0f;
    return rgbOf({y + c[1] / 500.0f, y, y - c[2] / 200.0f});
}

/// CIE L*a*b*, dark colours less colourful (Hunt effect).
static Colour perceived(const Colour &rgb)
{
    const auto bent = [](float t) {
        const float d = 6.0f / 29.0f;
        return t > d * d * d ? std::cbrt(t) : t / (3.0f * d * d) + 4.0f / 29.0f;
    };
    const Colour xyz = xyzOf(rgb);
    const float y = bent(xyz[1]);
    const float light = 116.0f * y - 16.0f;
    return {light, 5.0f * light * (bent(xyz[0]) - y), 2.0f * light * (y - bent(xyz[2]))};
}

static float distance(const Colour &a, const Colour &b)
{
    return std::pow(std::fabs(a[0] - b[0]) + std::hypot(a[1] - b[1], a[2] - b[2]), 0.7f);
}

/// From 0 to 1; most of the range is for small differences.
static float colourError(const Colour &a, const Colour &b)
{
    static const float most = distance(perceived({0, 1, 0}), perceived({0, 0, 1}));
    const float bend = 0.4f * most;
    const float error = distance(a, b);
    return error < bend ? 0.95f * error / bend : 0.95f + 0.05f * (error - bend) / (most - bend);
}

template <class Function>
static Kernel kernelOf(int radius, const Function &function)
{
    Kernel result;
    for (int i = -radius; i <= radius; ++i)
        result.push_back(function(float(i)));
    return result;
}

/// A picture in the planes that are compared.
struct Seen {
    explicit Seen(const QImage &image);

    std::array<Plane, 3> opponent;
};

Seen::Seen(const QImage &image)
    : opponent({Plane(image.width(), image.height()), Plane(image.width(), image.height()),
                Plane(image.width(), image.height())})
{
    std::size_t at = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x, ++at) {
            const QRgb pixel = image.pixel(x, y);
            const Colour colour =
                opponentOf({linear(qRed(pixel)), linear(qGreen(pixel)), linear(qBlue(pixel))});
            for (std::size_t i = 0; i < 3; ++i)
                opponent[i].values[at] = colour[i];
        }
    }
}

/// Blurred as the eye does not see finer changes of one of the opponent colours.
static Plane blurred(const Plane &plane, std::size_t channel)
{
    struct Part {
        float amount;
        float width;
    };
    const Part parts[3][2] = {
        {{1, 0.0047f}, {0, 1e-5f}}, {{1, 0.0053f}, {0, 1e-5f}}, {{34.1f, 0.04f}, {13.5f, 0.025f}}};
    const int radius = int(std::ceil(3.0f * std::sqrt(0.04f / (2.0f * _pi * _pi)) * _perDegree));
    Plane result(plane.width, plane.height);
    float sum = 0.0f;
    for (const Part &part : parts[channel]) {
        if (!(part.amount > 0.0f))
            continue;
        const Kernel kernel = kernelOf(radius, [&part](float x) {
            const float degrees = x / _perDegree;
            return std::exp(-_pi * _pi * degrees * degrees / part.width);
        });
        const float factor = part.amount * std::sqrt(_pi / part.width);
        const Plane one = filtered(plane, kernel, kernel);
        for (std::size_t i = 0; i < one.values.size(); ++i)
            result.values[i] += factor * one.values[i];
        float line = 0.0f;
        for (const float weight : kernel)
            line += weight;
        sum += factor * line * line;
    }
    for (float &value : result.values)
        value /= sum;
    return result;
}

/// How strong edges (first derivative) or points (second one) are.
static Plane features(const Plane &light, bool isPoints)
{
    const float width = 0.5f * 0.082f * _perDegree;
    const int radius = int(std::ceil(3.0f * width));
    const auto bell = [width](float x) { return std::exp(-x * x / (2.0f * width * width)); };
    Kernel blur = kernelOf(radius, bell);
    Kernel change = kernelOf(radius, [&](float x) {
        return bell(x) * (isPoints ? x * x / (width * width) - 1.0f : -x);
    });
    float sum = 0.0f, above = 0.0f, below = 0.0f;
    for (std::size_t i = 0; i < blur.size(); ++i) {
        sum += blur[i];
        (change[i] > 0.0f ? above : below) += std::fabs(change[i]);
    }
    for (std::size_t i = 0; i < blur.size(); ++i) {
        blur[i] /= sum;
        change[i] /= change[i] > 0.0f ? above : below;
    }
    Plane result = filtered(light, change, blur);
    const Plane up = filtered(light, blur, change);
    for (std::size_t i = 0; i < up.values.size(); ++i)
        result.values[i] = std::hypot(result.values[i], up.values[i]);
    return result;
}

float qxMeanFlip(const QImage &reference, const QImage &test)
{
    const QImage images[] = {reference, test};
    std::vector<Colour> colours[2];
    std::vector<Plane> edges;
    std::vector<Plane> points;
    for (std::size_t k = 0; k < 2; ++k) {
        const Seen seen(images[k]);
        std::vector<Plane> blur;
        for (std::size_t i = 0; i < 3; ++i)
            blur.push_back(blurred(seen.opponent[i], i));
        for (std::size_t at = 0; at < blur[0].values.size(); ++at) {
            Colour rgb = fromOpponent({blur[0].values[at], blur[1].values[at], blur[2].values[at]});
            for (float &value : rgb)
                value = std::clamp(value, 0.0f, 1.0f);
            colours[k].push_back(perceived(rgb));
        }
        Plane light = seen.opponent[0];
        for (float &value : light.values)
            value = (value + 16.0f) / 116.0f;
        edges.push_back(features(light, false));
        points.push_back(features(light, true));
    }
    double sum = 0.0;
    for (std::size_t i = 0; i < colours[0].size(); ++i) {
        const float edge = std::fabs(edges[0].values[i] - edges[1].values[i]);
        const float point = std::fabs(points[0].values[i] - points[1].values[i]);
        const float feature = std::sqrt(std::max(edge, point) / std::sqrt(2.0f));
        sum += std::pow(colourError(colours[0][i], colours[1][i]), 1.0f - feature);
    }
    return float(sum / double(colours[0].size()));
}
