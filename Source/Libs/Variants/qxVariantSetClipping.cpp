#include "qxVariantSet.h"

const qxAnalyzerVariant &qxVariantSet::getAnalyzerVariant() const
{
    return analyzer;
}

void qxVariantSet::setAnalyzerVariant(const qxAnalyzerVariant &settings)
{
    analyzer = settings;
}

void qxVariantSet::executeAnalyzer()
{
    analyzer.execute();
}

void qxVariantSet::setClippingState(int state)
{
    analyzer.clipState = state;
}

void qxVariantSet::setClippingPlanePositionX(double x)
{
    analyzer.clipPlanePosition[0] = float(x);
}

void qxVariantSet::setClippingPlanePositionY(double y)
{
    analyzer.clipPlanePosition[1] = float(y);
}

void qxVariantSet::setClippingPlanePositionZ(double z)
{
    analyzer.clipPlanePosition[2] = float(z);
}

void qxVariantSet::setClippingPlaneNormalX(double x)
{
    analyzer.clipPlaneNormal[0] = float(x);
}

void qxVariantSet::setClippingPlaneNormalY(double y)
{
    analyzer.clipPlaneNormal[1] = float(y);
}

void qxVariantSet::setClippingPlaneNormalZ(double z)
{
    analyzer.clipPlaneNormal[2] = float(z);
}

void qxVariantSet::setClippingInvert(bool invert)
{
    analyzer.clipPlaneInvert = invert;
}

void qxVariantSet::setClippingHideScene(bool hide)
{
    analyzer.clipPlaneHideScene = hide;
}

void qxVariantSet::setClippingShowPlane(bool show)
{
    analyzer.clipPlaneShow = show;
}

void qxVariantSet::setClippingPlaneColorR(double red)
{
    analyzer.clipPlaneColor[0] = float(red);
}

void qxVariantSet::setClippingPlaneColorG(double green)
{
    analyzer.clipPlaneColor[1] = float(green);
}

void qxVariantSet::setClippingPlaneColorB(double blue)
{
    analyzer.clipPlaneColor[2] = float(blue);
}

void qxVariantSet::setClippingShowGrid(bool show)
{
    analyzer.clipGridShow = show;
}

void qxVariantSet::setClippingGridColorR(double red)
{
    analyzer.clipGridColor[0] = float(red);
}

void qxVariantSet::setClippingGridColorG(double green)
{
    analyzer.clipGridColor[1] = float(green);
}

void qxVariantSet::setClippingGridColorB(double blue)
{
    analyzer.clipGridColor[2] = float(blue);
}

void qxVariantSet::setClippingShowContour(bool show)
{
    analyzer.clipContourShow = show;
}

void qxVariantSet::setClippingContourColorR(double red)
{
    analyzer.clipContourColor[0] = float(red);
}

void qxVariantSet::setClippingContourColorG(double green)
{
    analyzer.clipContourColor[1] = float(green);
}

void qxVariantSet::setClippingContourColorB(double blue)
{
    analyzer.clipContourColor[2] = float(blue);
}

void qxVariantSet::setClippingContourWidth(int width)
{
    analyzer.clipContourWidth = width;
}

int qxVariantSet::getClippingState() const
{
    return analyzer.clipState;
}

osg::Pnt3f qxVariantSet::getClippingPlanePosition() const
{
    return analyzer.clipPlanePosition;
}

osg::Vec3f qxVariantSet::getClippingPlaneNormal() const
{
    return analyzer.clipPlaneNormal;
}

bool qxVariantSet::getClippingInvert() const
{
    return analyzer.clipPlaneInvert;
}

bool qxVariantSet::getClippingHideScene() const
{
    return analyzer.clipPlaneHideScene;
}

bool qxVariantSet::getClippingShowPlane() const
{
    return analyzer.clipPlaneShow;
}

osg::Color3f qxVariantSet::getClippingPlaneColor() const
{
    return analyzer.clipPlaneColor;
}

bool qxVariantSet::getClippingShowGrid() const
{
    return analyzer.clipGridShow;
}

osg::Color3f qxVariantSet::getClippingGridColor() const
{
    return analyzer.clipGridColor;
}

bool qxVariantSet::getClippingShowContour() const
{
    return analyzer.clipContourShow;
}

osg::Color3f qxVariantSet::getClippingContourColor() const
{
    return analyzer.clipContourColor;
}

int qxVariantSet::getClippingContourWidth() const
{
    return analyzer.clipContourWidth;
}
