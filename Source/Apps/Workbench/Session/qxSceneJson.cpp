#include "qxSceneJson.h"

#include "Files/Gltf/Common/qxGltfJson.h"
#include "Scene/qxClipping.h"
#include "qxUberCameraPool.h"

#include <QColor>

#include <cmath>

namespace {

QString colour(const osg::Color3f &parts)
{
    const auto byte = [](float part) { return qBound(0, qRound(part * 255.0f), 255); };
    return QColor(byte(parts.red()), byte(parts.green()), byte(parts.blue())).name();
}

} // namespace

double qxSceneJson::number(float value)
{
    return qxGltfNumber(value).get<double>();
}

QJsonArray qxSceneJson::matrix(const osg::Matrix &matrix)
{
    QJsonArray numbers;
    for (int i = 0; i < 16; ++i)
        numbers += number(matrix.getValues()[i]);
    return numbers;
}

QJsonArray qxSceneJson::vector(const osg::Vec3f &vector)
{
    return {number(vector[0]), number(vector[1]), number(vector[2])};
}

QJsonObject qxSceneJson::camera(const qxUberCamera &camera)
{
    const float degrees = camera.fieldOfView * float(180 / M_PI);
    return {{QStringLiteral("matrix"), matrix(camera.toWorld)},
            {QStringLiteral("fieldOfView"), number(degrees)},
            {QStringLiteral("height"), number(camera.height)},
            {QStringLiteral("near"), number(camera.nearPlane)},
            {QStringLiteral("far"), number(camera.farPlane)}};
}

QJsonObject qxSceneJson::clipping(const qxClipping &clipping)
{
    QJsonObject json{{QStringLiteral("enabled"), clipping.enabled},
                     {QStringLiteral("position"), vector(clipping.position.subZero())},
                     {QStringLiteral("normal"), vector(clipping.normal)},
                     {QStringLiteral("invert"), clipping.invert},
                     {QStringLiteral("hideScene"), clipping.hideScene},
                     {QStringLiteral("contourWidth"), clipping.contourWidth}};
    if (clipping.showPlane)
        json[QStringLiteral("plane")] = colour(clipping.planeColor);
    if (clipping.showGrid)
        json[QStringLiteral("grid")] = colour(clipping.gridColor);
    if (clipping.showContour)
        json[QStringLiteral("contour")] = colour(clipping.contourColor);
    return json;
}
