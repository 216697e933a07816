#include "Script/qxPython.h"
#include "Script/qxScriptBindings.h"
#include "Script/qxScriptScene.h"

namespace python = boost::python;

namespace {

template <class Handle>
std::string representation(const Handle &handle)
{
    return handle.isNull() ? "<null>" : "<" + qxScriptScene::nameOf(handle) + ">";
}

/// What a handle is, whatever its object.
template <class Handle>
python::class_<Handle> defineHandle(const char *name, const char *description)
{
    typedef std::string (*NameOf)(const Handle &);
    return python::class_<Handle>(name, description)
        .def("getName", NameOf(&qxScriptScene::nameOf), "The name, empty for a null handle.")
        .def("isNull", &Handle::isNull, "Whether there is no object, or not any more.")
        .def(
            "__bool__", +[](const Handle &handle) { return !handle.isNull(); })
        .def(
            "__nonzero__", +[](const Handle &handle) { return !handle.isNull(); })
        .def(
            "__eq__", +[](const Handle &a, const Handle &b) { return a.id() == b.id(); })
        .def(
            "__ne__", +[](const Handle &a, const Handle &b) { return a.id() != b.id(); })
        .def("__hash__", &Handle::id)
        .def("__repr__", &representation<Handle>);
}

/// The pointers that other libraries' functions take and give are these handles in scripts.
template <class Pointer>
struct HandleOf {
    static PyObject *convert(const Pointer &pointer)
    {
        const python::object handle{qxScriptHandle<Pointer>(pointer, std::string())};
        return python::incref(handle.ptr());
    }
};

template <class Pointer>
void convertPointer()
{
    python::implicitly_convertible<qxScriptHandle<Pointer>, Pointer>();
    python::to_python_converter<Pointer, HandleOf<Pointer>>();
}

} // namespace

void qxScriptBindings::defineHandles()
{
    defineHandle<qxScriptNode>("qxNodePtr", "A node of the scene, or none.")
        .def("isActive", &qxScriptScene::isActive, "Whether the node is shown.")
        .def("setActive", &qxScriptScene::setActive, python::arg("active"),
             "Shows the node, or hides it with all below it.");
    defineHandle<qxScriptMaterial>("qxMaterialPtr", "A material of the scene, or none.");
    convertPointer<qxNodePtr>();
    convertPointer<qxMaterialPtr>();

    python::def("findNode", &qxScriptScene::findNode, python::arg("name"),
                "The first node of that name.");
    python::def("findNodePath", &qxScriptScene::findNodePath, python::arg("path"),
                "The first node of that path: the names from below the root, joined by \"/\".");
    python::def("findMaterial", &qxScriptScene::findMaterial, python::arg("name"),
                "The first material of that name.");
    python::def("setIgnoreMaterialGroup", &qxScriptScene::setIgnoreMaterialGroup,
                python::args("path", "ignore"),
                "Whether what is below the material group of that path ignores its material.");
}
