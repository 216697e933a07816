#include "Publish/qxPublishedLight.h"

#include "Light/qxRadianceWriter.h"
#include "Pictures/qxScenePicture.h"
#include "Publish/qxPublishedStates.h"
#include "Render/qxSceneLighting.h"
#include "qxScenegraph.h"

#include <QColor>
#include <QJsonArray>

namespace {

/// Of pictures that only light the scene.
const int _widthOfLight = 256;

qxLightPicture pictureOf(const qxEnvironmentLight &light, int width)
{
    qxLightPicture picture(width, width / 2);
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const osg::Vec2f place((float(x) + 0.5f) / float(picture.width),
                                   (float(y) + 0.5f) / float(picture.height));
            picture.at(x, y) = light.light(qxLightPicture::directionOf(place));
        }
    }
    return picture;
}

QString colour(const osg::Color3f &colour)
{
    return QColor::fromRgbF(double(colour[0]), double(colour[1]), double(colour[2])).name();
}

QJsonArray vector(const osg::Vec3f &vector)
{
    return {double(vector[0]), double(vector[1]), double(vector[2])};
}

/// The lightings of a page, each once.
struct Lightings {
    int add(const qxSceneLighting &lighting, int widest)
    {
        const QByteArray picture =
            qxWriteRadiance(pictureOf(lighting.sky, lighting.showsSky ? widest : _widthOfLight));
        const QJsonObject object{{QStringLiteral("seen"), lighting.showsSky},
                                 {QStringLiteral("backdrop"),
                                  QJsonArray{colour(lighting.top), colour(lighting.bottom)}}};
        for (int known = 0; known < pictures.size(); ++known) {
            if (pictures[known] == picture && objects[known].toObject() == object)
                return known;
        }
        pictures += picture;
        objects += object;
        return pictures.size() - 1;
    }

    QList<QByteArray> pictures;
    QJsonArray objects;
};

qxSceneLighting present()
{
    return qxScenePicture::lighting(qxPictureSettings());
}

} // namespace

qxPublishedLight::qxPublishedLight(const qxPublishedStates &states, int widest)
{
    const qxSceneLighting start = present();
    Lightings lightings;
    QJsonValue choice = lightings.add(start, widest);
    const qxSceneObject environment(qxScenegraph::environmentGeometrySwitch());
    const int slot =
        environment.node == osg::NullFC ? -1 : states.slotOf(environment, qxAspect::Choice);
    if (slot >= 0) {
        const osg::Int64 before = qxStateRules::valueOf(environment, qxAspect::Choice);
        QJsonObject table;
        for (const osg::Int64 value : states.valuesOf(environment, qxAspect::Choice)) {
            qxStateRules::setValue(environment, qxAspect::Choice, value);
            table[QString::number(value)] = lightings.add(present(), widest);
        }
        qxStateRules::setValue(environment, qxAspect::Choice, before);
        choice = QJsonObject{{QStringLiteral("slot"), slot}, {QStringLiteral("lightings"), table}};
    }
    pictures = lightings.pictures;
    const qxBox &box = start.bounds;
    members = {
        {QStringLiteral("lightings"), lightings.objects},
        {QStringLiteral("lighting"), choice},
        {QStringLiteral("lightFactor"), double(start.lightFactor)},
        {QStringLiteral("exposure"), double(qxViewSettings::the().exposure)},
        {QStringLiteral("box"),
         QJsonObject{{QStringLiteral("min"), vector(box.isEmpty() ? -box.lower : box.lower)},
                     {QStringLiteral("max"), vector(box.isEmpty() ? -box.upper : box.upper)}}}};
    if (start.hasGround)
        members[QStringLiteral("ground")] =
            QJsonObject{{QStringLiteral("height"), double(box.lower[1])},
                        {QStringLiteral("centre"), vector(box.centre())},
                        {QStringLiteral("radius"), double(box.radius())}};
}
