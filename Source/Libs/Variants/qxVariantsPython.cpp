#include "Internal/Registry/qxScriptModule.h"
#include "qxVariants.h"

#include "qxPythonInit.h"

#include <boost/python.hpp>

using boost::python::arg;
using boost::python::def;

namespace {

void selectWithViewpoint(const char *name)
{
    qxVariants::selectVariantSet(name, false);
}

void selectVariantSet(const char *name, bool excludeViewpoint)
{
    qxVariants::selectVariantSet(name, excludeViewpoint);
}

} // namespace

// A list, not a procedure.
BOOST_PYTHON_MODULE(qxVariants)
{
    const boost::python::docstring_options onlyOwnTexts(true, false, false);
    boost::python::scope().attr("__doc__") =
        "Contains functions to capture and activate variant sets. \n";

    def("createAndCaptureVariantSet", &qxVariants::createAndCaptureVariantSet,
        (arg("variantName"), arg("groupName")),
        "Captures variants to variant set.\n\n"
        "@param name: The name of the variant set.\n\n"
        "@type name: string"
        "@param name: Name of the variant set group.\n\n"
        "@type name: string");
    def("activateCapturedVariantSet", &qxVariants::activateCapturedVariantSet, arg("name"),
        "Activates a captured variant set. The variant set will activate all states of its "
        "defined node and material variants.\n\n"
        "@param name: The name of the captured variant set.\n\n"
        "@type name: string");
    def("selectVariantSet", &selectWithViewpoint, arg("name"),
        "Activates a variant set. The variant set will activate all states of its defined node "
        "and material variants.\n\n"
        "@param name: The name of the variant set.\n\n"
        "@type name: string");
    def("selectVariantSet", &selectVariantSet, (arg("name"), arg("excludeViewpoint")),
        "Activates a variant set. The variant set will activate all states of its defined node "
        "and material variants.\n\n"
        "@param name: The name of the variant set.\n\n"
        "@type name: string\n\n"
        "@param excludeViewpoint: exclude viewpoint from this variant set.\n\n"
        "@type excludeViewpoint: bool");
}

namespace {
namespace variantsModule {

void pythonInit(bool destroy)
{
#if PY_MAJOR_VERSION >= 3
    static qxScriptModule module("qxVariants", &PyInit_qxVariants);
#else
    static qxScriptModule module("qxVariants", &initqxVariants);
#endif
    module.pythonInit(destroy);
}

const qxPythonInit registered(&pythonInit);

} // namespace variantsModule
} // namespace
