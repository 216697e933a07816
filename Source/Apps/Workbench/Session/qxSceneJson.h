#pragma once

#include <OpenSG/OSGMatrix.h>

#include <QJsonArray>
#include <QJsonObject>

struct qxClipping;
struct qxUberCamera;

/// Parts of the scene as JSON, as Source/Web/published.ts has them. Numbers have no more digits
/// than it takes to read them back.
namespace qxSceneJson {

double number(float value);
/// Sixteen numbers, column by column.
QJsonArray matrix(const osg::Matrix &matrix);
QJsonArray vector(const osg::Vec3f &vector);
/// The field of view in degrees.
QJsonObject camera(const qxUberCamera &camera);
QJsonObject clipping(const qxClipping &clipping);

} // namespace qxSceneJson
