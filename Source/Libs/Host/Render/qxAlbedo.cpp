#include "Render/qxAlbedo.h"

#include "Render/qxMicrofacets.h"

#include <array>

namespace {

const std::size_t _cosines = 32;
const std::size_t _roughnesses = 32;
const std::size_t _sheenSteps = 16;
const float _softest = 0.07f; ///< roughness of fibres; lower ones exceed the numbers' range

typedef qxAlbedo::Split Split;

struct Row {
    std::array<Split, _cosines> at;
    Split mean;
};

/// Places of a number in a table of values at even distances from 0 to 1.
struct TablePlace {
    TablePlace(float number, std::size_t count)
    {
        const float place = std::clamp(number, 0.0f, 1.0f) * float(count - 1);
        first = std::min(std::size_t(place), count - 2);
        share = place - float(first);
    }

    std::size_t first;
    float share;
};

Split mixedSplit(const Split &a, const Split &b, float share)
{
    return {qxMixed(a.ofNormal, b.ofNormal, share), qxMixed(a.ofEdge, b.ofEdge, share)};
}

float numberOf(std::size_t step, std::size_t count)
{
    return float(step) / float(count - 1);
}

/// Evenly spread numbers from 0 to 1, the second ones independent of the first (Hammersley).
osg::Vec2f evenPlace(std::size_t index, std::size_t count)
{
    float second = 0.0f;
    float step = 0.5f;
    for (std::size_t rest = index; rest > 0; rest /= 2, step *= 0.5f)
        second += step * float(rest % 2);
    return osg::Vec2f((float(index) + 0.5f) / float(count), second);
}

/// The mean over mirrors that the eye sees, as Karis 2013, "Real Shading in Unreal Engine 4",
/// splits it.
Split reflectedShare(float cosine, float alpha)
{
    const std::size_t count = 256;
    const qxMicrofacets mirrors(alpha, alpha);
    const float z = std::max(cosine, 1e-3f);
    const osg::Vec3f eye(std::sqrt(1.0f - z * z), 0, z);
    Split sum = {0.0f, 0.0f};
    for (std::size_t i = 0; i < count; ++i) {
        const osg::Vec3f mirror = mirrors.seenMirror(eye, evenPlace(i, count));
        const osg::Vec3f light = qxMirrored(-eye, mirror);
        if (light[2] <= 0.0f)
            continue;
        const float weight =
            mirrors.visibility(light, eye) * 4.0f * light[2] * eye[2] / mirrors.unmasked(eye);
        const float edge = std::pow(1.0f - std::clamp(eye.dot(mirror), 0.0f, 1.0f), 5.0f);
        sum.ofNormal += weight * (1.0f - edge) / float(count);
        sum.ofEdge += weight * edge / float(count);
    }
    return sum;
}

const std::array<Row, _roughnesses> &mirrorTable()
{
    static const std::array<Row, _roughnesses> table = [] {
        std::array<Row, _roughnesses> rows;
        for (std::size_t r = 0; r < _roughnesses; ++r) {
            const float roughness = std::max(numberOf(r, _roughnesses), 0.03f);
            Row &row = rows[r];
            for (std::size_t c = 0; c < _cosines; ++c)
                row.at[c] = reflectedShare(numberOf(c, _cosines), roughness * roughness);
            row.mean = {0.0f, 0.0f};
            for (std::size_t c = 0; c + 1 < _cosines; ++c) {
                const float middle = (float(c) + 0.5f) / float(_cosines - 1);
                const Split there = mixedSplit(row.at[c], row.at[c + 1], 0.5f);
                const float weight = 2.0f * middle / float(_cosines - 1);
                row.mean.ofNormal += there.ofNormal * weight;
                row.mean.ofEdge += there.ofEdge * weight;
            }
        }
        return rows;
    }();
    return table;
}

/// A fit of how fibres hide each other (KHR_materials_sheen, "Sheen visibility").
float hiding(float cosine, float alpha)
{
    const float share = (1.0f - alpha) * (1.0f - alpha);
    const float a = qxMixed(21.5473f, 25.3245f, share);
    const float b = qxMixed(3.82987f, 3.32435f, share);
    const float c = qxMixed(0.19823f, 0.16801f, share);
    const float d = qxMixed(-1.97760f, -1.27393f, share);
    const float e = qxMixed(-4.32054f, -4.85967f, share);
    const auto fit = [&](float x) { return a / (1.0f + b * std::pow(x, c)) + d * x + e; };
    return cosine < 0.5f ? std::exp(fit(cosine)) : std::exp(2.0f * fit(0.5f) - fit(1.0f - cosine));
}

float sheenShare(float cosine, float roughness)
{
    const std::size_t high = 32;
    const std::size_t around = 16;
    const float z = std::max(cosine, 1e-2f);
    const osg::Vec3f eye(std::sqrt(1.0f - z * z), 0, z);
    float sum = 0.0f;
    for (std::size_t i = 0; i < high; ++i) {
        const float height = (float(i) + 0.5f) / float(high);
        const float radius = std::sqrt(1.0f - height * height);
        for (std::size_t k = 0; k < around; ++k) {
            const float angle = qxPi * (float(k) + 0.5f) / float(around);
            const osg::Vec3f light(radius * std::cos(angle), radius * std::sin(angle), height);
            const float half = qxUnit(light + eye)[2];
            sum += qxAlbedo::sheen(height, z, half, roughness) * height;
        }
    }
    return std::min(1.0f, sum * 2.0f * qxPi / float(high * around));
}

typedef std::array<std::array<float, _sheenSteps>, _sheenSteps> SheenTable;

const SheenTable &sheenTable()
{
    static const SheenTable table = [] {
        SheenTable values;
        for (std::size_t r = 0; r < _sheenSteps; ++r) {
            for (std::size_t c = 0; c < _sheenSteps; ++c)
                values[r][c] = sheenShare(numberOf(c, _sheenSteps), numberOf(r, _sheenSteps));
        }
        return values;
    }();
    return table;
}

} // namespace

qxAlbedo::qxAlbedo(float roughness)
{
    const TablePlace place(roughness, _roughnesses);
    m_row = place.first;
    m_share = place.share;
}

qxAlbedo::Split qxAlbedo::at(float cosine) const
{
    const TablePlace place(cosine, _cosines);
    const auto inRow = [&place](const Row &row) {
        return mixedSplit(row.at[place.first], row.at[place.first + 1], place.share);
    };
    const std::array<Row, _roughnesses> &table = mirrorTable();
    return mixedSplit(inRow(table[m_row]), inRow(table[m_row + 1]), m_share);
}

qxAlbedo::Split qxAlbedo::mean() const
{
    const std::array<Row, _roughnesses> &table = mirrorTable();
    return mixedSplit(table[m_row].mean, table[m_row + 1].mean, m_share);
}

float qxAlbedo::ofSheen(float cosine, float roughness)
{
    const TablePlace across(cosine, _sheenSteps);
    const TablePlace down(roughness, _sheenSteps);
    const SheenTable &table = sheenTable();
    const auto inRow = [&](std::size_t row) {
        return qxMixed(table[row][across.first], table[row][across.first + 1], across.share);
    };
    return qxMixed(inRow(down.first), inRow(down.first + 1), down.share);
}

float qxAlbedo::sheen(float light, float eye, float half, float roughness)
{
    const float soft = std::max(roughness, _softest);
    const float alpha = soft * soft;
    const float sine = std::sqrt(std::max(0.0f, 1.0f - half * half));
    const float distribution = (2.0f + 1.0f / alpha) * std::pow(sine, 1.0f / alpha) / (2.0f * qxPi);
    const float shown = 1.0f + hiding(light, alpha) + hiding(eye, alpha);
    return distribution / (shown * 4.0f * std::max(light * eye, 1e-5f));
}
