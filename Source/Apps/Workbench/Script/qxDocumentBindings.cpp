#include "qxPythonInit.h"

#include <boost/python.hpp>

namespace python = boost::python;

namespace {
namespace documentBindings {

void pythonInit(bool destroy)
{
    if (destroy)
        return;
    const python::docstring_options onlyOwnTexts(true, false, false);
    const python::scope names(python::import("__main__"));
}

const qxPythonInit init(pythonInit);

} // namespace documentBindings
} // namespace
