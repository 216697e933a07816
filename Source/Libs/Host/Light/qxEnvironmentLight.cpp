#include "Light/qxEnvironmentLight.h"

#include "Light/qxLightFilter.h"
#include "Light/qxLightSampler.h"
#include "Light/qxStudio.h"
#include "Render/qxDigest.h"

#include <mutex>
#include <optional>

namespace {

const int _widest = 4096; ///< pixels of a picture that is kept

osg::Vec3f usable(const osg::Vec3f &light)
{
    const float most = 1e6f;
    osg::Vec3f result;
    for (osg::UInt32 i = 0; i < 3; ++i)
        result[i] = light[i] > 0.0f && std::isfinite(light[i]) ? std::min(light[i], most) : 0.0f;
    return result;
}

qxLightPicture usable(qxLightPicture picture)
{
    if (picture.isEmpty())
        picture = qxLightPicture(1, 1);
    for (osg::Vec3f &light : picture.light)
        light = usable(light);
    while (picture.width > _widest)
        picture = picture.halved();
    return picture;
}

/// The picture, then smaller and smaller ones down to a size that shows broad light only.
std::vector<qxLightPicture> levelsOf(const qxLightPicture &picture)
{
    std::vector<qxLightPicture> result;
    for (const qxLightPicture *last = &picture; last->height > 4; last = &result.back())
        result.push_back(last->halved());
    return result;
}

qxEnvironmentLight::Key keyOf(const qxLightPicture &picture)
{
    const float narrow = 0.8f; // cosine
    osg::Vec3f mean;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x)
            mean += picture.at(x, y) * (picture.solidAngle(y) * 0.25f / qxPi);
    }
    const auto directionAt = [&picture](int x, int y) {
        return qxLightPicture::directionOf(osg::Vec2f((float(x) + 0.5f) / float(picture.width),
                                                      (float(y) + 0.5f) / float(picture.height)));
    };
    const auto above = [&mean](const osg::Vec3f &light) { return qxNotNegative(light - mean); };
    float most = 0.0f;
    osg::Vec3f brightest(0, 1, 0);
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const float weight = qxPeak(above(picture.at(x, y)));
            if (weight > most) {
                most = weight;
                brightest = directionAt(x, y);
            }
        }
    }
    osg::Vec3f light;
    osg::Vec3f centre;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const osg::Vec3f direction = directionAt(x, y);
            if (direction.dot(brightest) < narrow)
                continue;
            const osg::Vec3f part = above(picture.at(x, y)) * picture.solidAngle(y);
            light += part * (1.0f / qxPi);
            centre += direction * qxPeak(part);
        }
    }
    return {qxUnit(centre), light};
}

} // namespace

/// What is computed once; what takes long, when it is first asked for.
struct qxEnvironmentLight::Map {
    explicit Map(qxLightPicture all) : picture(usable(std::move(all))) {}

    /// What surfaces show.
    struct Filtered {
        explicit Filtered(const qxLightPicture &picture)
        {
            const std::vector<qxLightPicture> smaller = levelsOf(picture);
            const qxLightFilter filter(picture, smaller);
            rough = filter.mirrored();
            scattered = filter.scattered();
            const qxLightPicture *broad = &picture;
            for (const qxLightPicture &level : smaller)
                broad = level.width >= 64 ? &level : broad;
            key = keyOf(*broad);
        }

        std::vector<qxLightPicture> rough; ///< at equal steps of roughness, the last for 1
        qxLightPicture scattered;
        Key key;
    };
    const Filtered &filtered() const
    {
        std::call_once(m_isFiltered, [this] { m_filtered.emplace(picture); });
        return *m_filtered;
    }
    const qxLightSampler &sampler() const
    {
        std::call_once(m_isSampled, [this] { m_sampler.emplace(picture); });
        return *m_sampler;
    }

    const QByteArray &digest() const
    {
        std::call_once(m_isDigested, [this] {
            qxDigest digest;
            digest.add(picture.width, picture.height);
            digest.addAll(picture.light);
            m_digest = digest.result();
        });
        return m_digest;
    }

    const qxLightPicture picture;

private:
    mutable std::once_flag m_isFiltered;
    mutable std::optional<Filtered> m_filtered;
    mutable std::once_flag m_isSampled;
    mutable std::optional<qxLightSampler> m_sampler;
    mutable std::once_flag m_isDigested;
    mutable QByteArray m_digest;
};

qxEnvironmentLight qxEnvironmentLight::studio()
{
    static const qxEnvironmentLight light(qxStudio::picture());
    return light;
}

qxEnvironmentLight::qxEnvironmentLight(qxLightPicture picture)
    : m_map(std::make_shared<const Map>(std::move(picture)))
{
}

qxEnvironmentLight qxEnvironmentLight::scaled(float factor) const
{
    qxEnvironmentLight result = *this;
    result.m_factor *= factor;
    return result;
}

qxEnvironmentLight qxEnvironmentLight::turned(float degrees) const
{
    const float angle = std::fmod(degrees, 360.0f) * (qxPi / 180.0f);
    const float cosine = std::cos(angle);
    const float sine = std::sin(angle);
    qxEnvironmentLight result = *this;
    result.m_cosine = m_cosine * cosine - m_sine * sine;
    result.m_sine = m_sine * cosine + m_cosine * sine;
    return result;
}

osg::Vec3f qxEnvironmentLight::inPicture(const osg::Vec3f &d) const
{
    return osg::Vec3f(m_cosine * d[0] - m_sine * d[2], d[1], m_sine * d[0] + m_cosine * d[2]);
}

osg::Vec3f qxEnvironmentLight::inScene(const osg::Vec3f &d) const
{
    return osg::Vec3f(m_cosine * d[0] + m_sine * d[2], d[1], m_cosine * d[2] - m_sine * d[0]);
}

osg::Vec3f qxEnvironmentLight::light(const osg::Vec3f &direction) const
{
    return m_map->picture.at(qxLightPicture::placeOf(inPicture(direction))) * m_factor;
}

osg::Vec3f qxEnvironmentLight::mirrored(const osg::Vec3f &direction, float roughness) const
{
    const osg::Vec2f place = qxLightPicture::placeOf(inPicture(direction));
    const std::vector<qxLightPicture> &rough = m_map->filtered().rough;
    const float level = std::clamp(roughness, 0.0f, 1.0f) * float(rough.size());
    const std::size_t below = std::min(std::size_t(level), rough.size() - 1);
    const qxLightPicture &sharper = below > 0 ? rough[below - 1] : m_map->picture;
    return qxMixed(sharper.at(place), rough[below].at(place), level - float(below)) * m_factor;
}

osg::Vec3f qxEnvironmentLight::scattered(const osg::Vec3f &normal) const
{
    return m_map->filtered().scattered.at(qxLightPicture::placeOf(inPicture(normal))) * m_factor;
}

qxEnvironmentLight::Sample qxEnvironmentLight::sample(const osg::Vec2f &place) const
{
    const qxLightSampler::Sample found = m_map->sampler().sample(place);
    return {inScene(qxLightPicture::directionOf(found.place)),
            m_map->picture.at(found.place) * m_factor, found.density};
}

float qxEnvironmentLight::density(const osg::Vec3f &direction) const
{
    return m_map->sampler().density(qxLightPicture::placeOf(inPicture(direction)));
}

void qxEnvironmentLight::addTo(qxDigest &digest) const
{
    digest.add(m_map->digest(), m_factor, m_cosine, m_sine);
}

qxEnvironmentLight::Key qxEnvironmentLight::key() const
{
    return {inScene(m_map->filtered().key.direction), m_map->filtered().key.light * m_factor};
}
