// The interpreter of scripts, and what they may call: Python, embedded by Boost.Python.
#include "Services/services.h"
#include "qxLog.h"
#include "qxMaterialPtr.h"
#include "qxMaterials.h"
#include "qxNames.h"
#include "qxNodeWalk.h"
#include "qxPythonInit.h"
#include "qxScript.h"

#include <boost/python.hpp>
#include <boost/python/suite/indexing/vector_indexing_suite.hpp>

#include <iomanip>
#include <map>
#include <sstream>

namespace {

namespace py = boost::python;

int depth = 0;
/// Scripts nested too deep: each that runs gets an exception when it goes on.
bool isEnding = false;

/// In the order of registration.
typedef std::map<int, qxPythonInit::Callback> Modules;
Modules &modules() { return *single<Modules>(); }

/// The clipping plane is only kept and told: the pictures of this host do not show it. Errors of
/// scripts become texts, and exit() ends a script alone.
const char *const Prelude = R"(
import sys, traceback
sys.stdout.reconfigure(line_buffering=True)
true, false = True, False

_clipping = dict(On=False, HideScene=False,
    PlanePosition=Pnt3f(0, 0, 0), PlaneNormal=Vec3f(0, 1, 0), PlaneInvertDirection=False,
    ShowPlane=True, PlaneColor=Vec3f(1, 1, 1), ShowGrid=True, GridColor=Vec3f(1, 1, 1),
    ShowContour=True, ContourColor=Vec3f(1, 1, 1), ContourWidth=1)
def _setter(*keys):
    return lambda *values: _clipping.update(zip(keys, values))
for _key in _clipping:
    globals()['getClipping' + _key] = lambda key=_key: _clipping[key]
enableClippingPlane = _setter('On')
setClippingHideScene = _setter('HideScene')
setClippingPlane = _setter('PlanePosition', 'PlaneNormal', 'PlaneInvertDirection')
setClippingPlaneVisualization = _setter('ShowPlane', 'PlaneColor')
setClippingGridVisualization = _setter('ShowGrid', 'GridColor')
setClippingContourVisualization = _setter('ShowContour', 'ContourColor', 'ContourWidth')

def _attempt(text, has_value):
    try:
        if has_value:
            return str(eval(text, globals())), ''
        exec(text, globals())
        return '', ''
    except BaseException as error:
        return '', '' if type(error) is SystemExit else traceback.format_exc()
)";

/// Runs the text, or returns the value of it.
std::string attempt(const char *text, bool hasValue)
{
    if (!text || !Py_IsInitialized() || isEnding)
        return std::string();
    if (depth == 32) {
        qxLog::error("Scripts nest more than %d deep. They end.", depth);
        isEnding = true;
        PyThreadState_SetAsyncExc(PyThread_get_thread_ident(), PyExc_RuntimeError);
        return std::string();
    }
    ++depth;
    const py::object result = py::import("__main__").attr("_attempt")(py::str(text), hasValue);
    --depth;
    const std::string error = py::extract<std::string>(result[1]);
    if (!error.empty() && !isEnding)
        qxLog::error("%s", error.c_str());
    isEnding = isEnding && depth > 0;
    if (isEnding)
        PyThreadState_SetAsyncExc(PyThread_get_thread_ident(), PyExc_RuntimeError);
    return py::extract<std::string>(result[0]);
}

/// As precise as a float is, for points and vectors.
std::string textOf(const osg::Pnt3f &point)
{
    std::ostringstream text;
    text << std::setprecision(7) << point[0] << ", " << point[1] << ", " << point[2];
    return text.str();
}

qxNodePtr findNodePath(const std::string &path)
{
    osg::NodePtr found;
    qxWalkNodes(qxScenegraph::getRoot(), [&](const osg::NodePtr &node) {
        if (qxNames::pathOf(node) == path)
            found = node;
        return found == osg::NullFC;
    });
    return found;
}

void setActive(qxNodePtr node, bool active)
{
    if (node == osg::NullFC)
        return qxLog::warning("There is no node to show or hide.");
    beginEditCP(node, osg::Node::TravMaskFieldMask);
    node->setActive(active);
    endEditCP(node, osg::Node::TravMaskFieldMask);
}

void setIgnoreMaterialGroup(const std::string &path, bool ignore)
{
    qxMaterials::setIgnoreMaterialGroup(findNodePath(path), ignore);
}

void tellModules(bool destroy)
{
    for (const auto &[id, callback] : Modules(modules())) {
        try {
            callback(destroy);
        } catch (const py::error_already_set &) {
            PyErr_Print();
        }
    }
}

} // namespace

void startScripts()
{
    typedef std::vector<std::string> Names;
    Py_InitializeEx(0);
    const py::object main = py::import("__main__");
    const py::scope scope(main);
    py::class_<qxNodePtr>("qxNodePtr").def("setActive", setActive);
    py::class_<qxMaterialPtr>("qxMaterialPtr");
    py::class_<osg::Pnt3f>("Pnt3f", py::init<float, float, float>()).def("__str__", textOf);
    py::class_<osg::Vec3f, py::bases<osg::Pnt3f>>("Vec3f", py::init<float, float, float>());
    py::class_<Names>("Names").def(py::vector_indexing_suite<Names>());
    py::def("findNodePath", findNodePath);
    py::def("setIgnoreMaterialGroup", setIgnoreMaterialGroup);
    py::exec(Prelude, main.attr("__dict__"));
    tellModules(false);
}

// Boost.Python does not allow to end the interpreter itself.
void endScripts() { tellModules(true); }

qxPythonInit::qxPythonInit(Callback callback)
{
    static int last = 0;
    m_id = ++last;
    modules()[m_id] = callback;
    if (Py_IsInitialized())
        callback(false);
}
qxPythonInit::~qxPythonInit() { modules().erase(m_id); }

// There is no undo stack and no other session: all texts are treated alike.
void qxScript::run(const char *script) { attempt(script, false); }
void qxScript::executeNUS(const char *script, bool) { attempt(script, false); }
std::string qxScript::executeNUSR(const char *expression) { return attempt(expression, true); }
