#include "Internal/Registry/qxScriptModule.h"
#include "qxVariantSetPtr.h"

#include "qxPythonInit.h"

#include <boost/python.hpp>

using boost::python::arg;

template <>
const boost::python::converter::registration &boost::python::converter::detail::registered_base<
    qxVariantSetPtr const volatile &>::converters = stayingRegistration(typeid(qxVariantSetPtr));

// A list, not a procedure.
BOOST_PYTHON_MODULE(qxVariantSetPtr)
{
    const boost::python::docstring_options onlyOwnTexts(true, false, false);
    typedef qxVariantSetPtr Ptr;

    boost::python::class_<Ptr>("qxVariantSetPtr",
                               "The qxVariantSetPtr is a wrapper class for qxVariantSet.\n")
        .def("setName", &Ptr::setName, arg("name"),
             "Sets a Name.\n\n"
             "@param name: The Name.\n\n"
             "@type name: string")
        .def("getName", &Ptr::getName,
             "Gets the Name.\n\n"
             "@return: The Name.\n\n"
             "@rtype: string")
        .def("setHotkeyString", &Ptr::setHotkeyString, arg("key"),
             "Sets a Key.\n\n"
             "@param key: The Key.\n\n"
             "@type key: string")
        .def("setHotkey", static_cast<void (Ptr::*)(int)>(&Ptr::setHotkey), arg("key"),
             "Sets a Key.\n\n"
             "@param key: The Key.\n\n"
             "@type key: string")
        .def("setHotkey", static_cast<void (Ptr::*)(int, int)>(&Ptr::setHotkey),
             (arg("key"), arg("modifier")),
             "Sets a Key.\n\n"
             "@param key: The Key.\n\n"
             "@type key: integer (unsigned)\n\n"
             "@param modifier: The modifier.\n\n"
             "@type modifier: integer (unsigned)")
        .def("getHotkey", &Ptr::getHotkey,
             "Gets the Key.\n\n"
             "@return: The Key.\n\n"
             "@rtype: string")
        .def("addGeometry", &Ptr::addGeometry, (arg("node"), arg("state")),
             "Adds a geometry variant.\n\n"
             "@param node: The geometry switch.\n\n"
             "@type node: qxNodePtr\n\n"
             "@param state: The node state.\n\n"
             "@type state: string")
        .def("addMaterial", &Ptr::addMaterial, (arg("material"), arg("state")),
             "Adds a material variant.\n\n"
             "@param node: The material switch.\n\n"
             "@type node: qxMaterialPtr\n\n"
             "@param state: The material state.\n\n"
             "@type state: string")
        .def("addLight", &Ptr::addLight, (arg("light"), arg("state")),
             "Adds a light variant.\n\n"
             "@param node: The light switch.\n\n"
             "@type node: qxNodePtr\n\n"
             "@param state: The light state.\n\n"
             "@type state: string")
        .def("setClippingState", &Ptr::setClippingState, arg("state"),
             "Sets the clipping state.\n\n"
             "@param state: The clippping state (0=no change, 1=enable clipping, "
             "2=disable clipping, 3=set clipping plane values but keep the rest)).\n\n"
             "@type state: string")
        .def("addClippingPlane", &Ptr::addClippingPlane,
             (arg("position"), arg("normal"), arg("invertDirection"), arg("hideScene"),
              arg("showClippingPlane"), arg("showGrid"), arg("showContour")),
             "Adds a Clipping Plane.\n\n"
             "@param position: The position.\n\n"
             "@type position: bool"
             "@param normal: The normal.\n\n"
             "@type normal: bool"
             "@param invertDirection: Toggle invert direction.\n\n"
             "@type invertDirection: bool"
             "@param hideScene: Toggle hide scene.\n\n"
             "@type hideScene: bool"
             "@param showClippingPlane: Toggle show clipping plane.\n\n"
             "@type showClippingPlane: bool"
             "@param showGrid: Toggle show grid.\n\n"
             "@type showGrid: bool"
             "@param showContour: Toggle show contour.\n\n"
             "@type showContour: bool")
        .def("addCurrentClippingPlane", &Ptr::addCurrentClippingPlane,
             "Adds current Clipping Plane.")
        .def("addView", &Ptr::addViewpoint, arg("viewpoint"),
             "Adds a viewpoint.\n\n"
             "@param viewpoint: The viewpoint.\n\n"
             "@type viewpoint: string")
        .def("addScript", &Ptr::addScript, arg("script"),
             "Adds a script.\n\n"
             "@param script: The script.\n\n"
             "@type script: string")
        .def("getScript", &Ptr::getScript,
             "Gets the script.\n\n"
             "@return: The script.\n\n"
             "@rtype: string")
        .def("getTargetNodeNames", &Ptr::getTargetNodeNames,
             "Gets the names of the target nodes.\n\n"
             "@return: The names.\n\n"
             "@rtype: vector of string")
        .def("setValue", &Ptr::setValue, (arg("key"), arg("value")),
             "Adds a key/value pair to the variant set.\n"
             "Keys are unique. Setting another value for the same key overwrites the previous "
             "value.\n\n"
             "@param key: The key.\n\n"
             "@type key: string\n\n"
             "@param value: The value.\n\n"
             "@type value: string\n\n")
        .def("getValue", &Ptr::getValue, arg("key"),
             "Gets the value stored for the given key.\n\n"
             "@param key: The key for which the value should be returned.\n\n"
             "@type key: string\n\n"
             "@return: The value. Empty string if the variant set does not contain the given "
             "key.\n\n"
             "@rtype: string");
    boost::python::register_ptr_to_python<boost::shared_ptr<Ptr>>();
}

namespace {
namespace setPtrModule {

void pythonInit(bool destroy)
{
#if PY_MAJOR_VERSION >= 3
    static qxScriptModule module("qxVariantSetPtr", &PyInit_qxVariantSetPtr);
#else
    static qxScriptModule module("qxVariantSetPtr", &initqxVariantSetPtr);
#endif
    module.pythonInit(destroy);
}

const qxPythonInit registered(&pythonInit);

} // namespace setPtrModule
} // namespace
