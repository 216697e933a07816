#include "qxScriptPause.h"

#include "qxPythonInit.h"

#include <boost/python.hpp>

#include <frameobject.h>

namespace {

const unsigned int linesBetween = 200;

bool (*currentLook)() = nullptr;

int trace(PyObject *, PyFrameObject *, int what, PyObject *)
{
    static unsigned int lines = 0;
    if (what != PyTrace_LINE || ++lines % linesBetween != 0 || !currentLook || currentLook())
        return 0;
    PyErr_SetNone(PyExc_KeyboardInterrupt);
    return -1;
}

void pythonInit(bool destroy)
{
    if (!destroy && currentLook)
        PyEval_SetTrace(trace, nullptr);
}

const qxPythonInit init(pythonInit);

} // namespace

void qxScriptPause::setLook(bool (*look)())
{
    currentLook = look;
}
