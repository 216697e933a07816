#include "qxAnalyzerVariant.h"

#include "qxConnector.h"
#include "qxScript.h"

#include <locale>
#include <sstream>

namespace {

void writeColor(std::ostream &script, const osg::Color3f &color)
{
    script << "Vec3f(" << color.red() << ", " << color.green() << ", " << color.blue();
}

void writePlane(std::ostream &script, const qxAnalyzerVariant &clip)
{
    const osg::Pnt3f &position = clip.clipPlanePosition;
    const osg::Vec3f &normal = clip.clipPlaneNormal;
    script << "setClippingPlane(Pnt3f(" << position[0] << ", " << position[1] << ", " << position[2]
           << "),Vec3f(" << normal[0] << ", " << normal[1] << ", " << normal[2] << "),"
           << clip.clipPlaneInvert << ")\n";
}

void writeDisplay(std::ostream &script, const qxAnalyzerVariant &clip)
{
    script << "setClippingPlaneVisualization(" << clip.clipPlaneShow << ", ";
    writeColor(script, clip.clipPlaneColor);
    script << "))\nsetClippingGridVisualization(" << clip.clipGridShow << ", ";
    writeColor(script, clip.clipGridColor);
    script << "))\nsetClippingContourVisualization(" << clip.clipContourShow << ", ";
    writeColor(script, clip.clipContourColor);
    script << "), " << clip.clipContourWidth << ")\n"
           << "setClippingHideScene(" << clip.clipPlaneHideScene << ")\n"
           << "enableClippingPlane(true)\n";
}

} // namespace

void qxAnalyzerVariant::execute()
{
    const std::string text = script();
    if (!text.empty())
        qxScript::executeNUS(text.c_str(), qxConnector::the()->syncVariants());
}

std::string qxAnalyzerVariant::script() const
{
    if (clipState == Disable)
        return "enableClippingPlane(false)\n";
    if (clipState != Enable && clipState != SetPlane)
        return {};

    std::ostringstream script;
    script.imbue(std::locale::classic()); // a decimal comma would be another argument
    script << std::boolalpha;
    writePlane(script, *this);
    if (clipState == Enable)
        writeDisplay(script, *this);
    return script.str();
}
