#include "Light/qxLightSampler.h"

namespace {

const int _mostCells = 1024; ///< cells in a row

float luminance(const osg::Vec3f &light)
{
    return light.dot(osg::Vec3f(0.2126f, 0.7152f, 0.0722f));
}

/// The mean of the interpolated light over each pixel. It is positive wherever the light is, so
/// beside a bright pixel, too. Without any light all are the same.
std::vector<float> weightsOf(const qxLightPicture &picture)
{
    const float tent[] = {0.125f, 0.75f, 0.125f};
    std::vector<float> result;
    result.reserve(picture.light.size());
    float most = 0.0f;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            float sum = 0.0f;
            for (int j = -1; j <= 1; ++j) {
                const int row = std::clamp(y + j, 0, picture.height - 1);
                for (int i = -1; i <= 1; ++i) {
                    const int column = (x + i + picture.width) % picture.width;
                    sum += tent[i + 1] * tent[j + 1] * luminance(picture.at(column, row));
                }
            }
            result.push_back(sum);
            most = std::max(most, sum);
        }
    }
    if (!(most > 0.0f))
        std::fill(result.begin(), result.end(), 1.0f);
    return result;
}

/// The part that a number falls into; turns the number into the place in there, from 0 to 1.
int partOf(const float *sums, int count, float &random)
{
    const int part = int(std::upper_bound(sums, sums + count - 1, random) - sums);
    const float before = part > 0 ? sums[part - 1] : 0.0f;
    const float share = sums[part] - before;
    random = share > 0.0f ? std::clamp((random - before) / share, 0.0f, 1.0f) : 0.5f;
    return part;
}

/// From shares to sums that end with 1; equal ones if there are none.
double accumulate(float *shares, int count)
{
    double sum = 0.0;
    for (int i = 0; i < count; ++i)
        sum += double(shares[i]);
    double so = 0.0;
    for (int i = 0; i < count; ++i) {
        so += sum > 0.0 ? double(shares[i]) / sum : 1.0 / count;
        shares[i] = float(so);
    }
    return sum;
}

} // namespace

qxLightSampler::qxLightSampler(const qxLightPicture &picture)
{
    if (picture.width > _mostCells) {
        *this = qxLightSampler(picture.halved());
        return;
    }
    m_width = picture.width;
    m_height = picture.height;
    m_density = weightsOf(picture);
    m_columns = m_density;
    double all = 0.0;
    for (int y = 0; y < m_height; ++y) {
        const double sum = accumulate(&m_columns[cell(0, y)], m_width);
        m_rows.push_back(float(sum * double(picture.solidAngle(y))));
        all += sum * double(picture.solidAngle(y));
    }
    accumulate(m_rows.data(), m_height);
    for (float &density : m_density)
        density = float(double(density) / all);
}

qxLightSampler::Sample qxLightSampler::sample(const osg::Vec2f &random) const
{
    osg::Vec2f inside = random;
    const int y = partOf(m_rows.data(), m_height, inside[1]);
    const int x = partOf(&m_columns[cell(0, y)], m_width, inside[0]);
    // Even over the solid angle of the cell: over the cosine, not over the height.
    const float above = std::cos(float(y) / float(m_height) * qxPi);
    const float below = std::cos(float(y + 1) / float(m_height) * qxPi);
    const float down = std::acos(std::clamp(qxMixed(above, below, inside[1]), -1.0f, 1.0f)) / qxPi;
    return {osg::Vec2f((float(x) + inside[0]) / float(m_width), down), m_density[cell(x, y)]};
}

float qxLightSampler::density(const osg::Vec2f &place) const
{
    const int x = std::clamp(int(place[0] * float(m_width)), 0, m_width - 1);
    const int y = std::clamp(int(place[1] * float(m_height)), 0, m_height - 1);
    return m_density[cell(x, y)];
}
