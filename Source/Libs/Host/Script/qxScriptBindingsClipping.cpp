#include "Scene/qxClipping.h"
#include "Script/qxClippingCommands.h"
#include "Script/qxPython.h"
#include "Script/qxScriptBindings.h"

namespace python = boost::python;

namespace {

/// A getter of a value that is kept as scripts know it.
template <auto Member>
auto get()
{
    return qxClipping::the().*Member;
}

} // namespace

// A list, not a procedure.
void qxScriptBindings::defineClipping()
{
    using namespace qxClippingCommands;
    using python::args;
    using python::def;

    def("setClippingPlane", &setClippingPlane, args("position", "normal", "invertDirection"));
    def("setClippingPlaneVisualization", &setClippingPlaneVisualization, args("show", "color"));
    def("setClippingGridVisualization", &setClippingGridVisualization, args("show", "color"));
    def("setClippingContourVisualization", &setClippingContourVisualization,
        args("show", "color", "width"));
    def("setClippingHideScene", &setClippingHideScene, args("hide"));
    def("enableClippingPlane", &enableClippingPlane, args("enable"));

    def("isClippingPlaneEnabled", &get<&qxClipping::enabled>);
    def("getClippingPlanePosition", &get<&qxClipping::position>);
    def("getClippingPlaneNormal", &get<&qxClipping::normal>);
    def("getClippingPlaneInvertDirection", &get<&qxClipping::invert>);
    def("getClippingHideScene", &get<&qxClipping::hideScene>);
    def("getClippingShowPlane", &get<&qxClipping::showPlane>);
    def("getClippingPlaneColor", &getClippingPlaneColor);
    def("getClippingShowGrid", &get<&qxClipping::showGrid>);
    def("getClippingGridColor", &getClippingGridColor);
    def("getClippingShowContour", &get<&qxClipping::showContour>);
    def("getClippingContourColor", &getClippingContourColor);
    def("getClippingContourWidth", &get<&qxClipping::contourWidth>);
}
