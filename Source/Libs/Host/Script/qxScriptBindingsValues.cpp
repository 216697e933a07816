#include "Script/qxPython.h"
#include "Script/qxScriptBindings.h"

#include <OpenSG/OSGVector.h>

#include <charconv>
#include <vector>

namespace python = boost::python;

namespace {

/// The shortest number that reads back as the same float, whatever the locale.
std::string numberText(float number)
{
    char text[32];
    return std::string(text, std::to_chars(text, text + sizeof(text), number).ptr);
}

template <class Values>
std::string text(const Values &values)
{
    return numberText(values[0]) + ", " + numberText(values[1]) + ", " + numberText(values[2]);
}

template <class Values>
float get(const Values &values, int index)
{
    if (index < -3 || index > 2) {
        PyErr_SetString(PyExc_IndexError, "the index must be 0, 1 or 2");
        python::throw_error_already_set();
    }
    return values[osg::UInt32(index < 0 ? index + 3 : index)];
}

template <class Values>
float x(const Values &values)
{
    return values[0];
}

template <class Values>
float y(const Values &values)
{
    return values[1];
}

template <class Values>
float z(const Values &values)
{
    return values[2];
}

template <class Values>
int length(const Values &)
{
    return 3;
}

/// Three numbers; `Name` gives the form that scripts write.
template <class Values>
void defineTriple(const char *name, const char *description)
{
    python::class_<Values>(name, description, python::init<>())
        .def(python::init<float, float, float>())
        .def("x", &x<Values>)
        .def("y", &y<Values>)
        .def("z", &z<Values>)
        .def("__getitem__", &get<Values>)
        .def("__len__", &length<Values>)
        .def("__str__", &text<Values>)
        .def(
            "__repr__",
            +[](const Values &values) {
                const char *const type = std::is_same<Values, osg::Pnt3f>() ? "Pnt3f(" : "Vec3f(";
                return type + text(values) + ")";
            })
        .def(python::self == python::self)
        .def(python::self != python::self);
}

/// Texts from C++ become a list of Python's texts.
struct TextList {
    static PyObject *convert(const std::vector<std::string> &texts)
    {
        python::list list;
        for (const std::string &text : texts)
            list.append(text);
        return python::incref(list.ptr());
    }
};

} // namespace

void qxScriptBindings::defineValues()
{
    python::scope().attr("true") = true;
    python::scope().attr("false") = false;
    defineTriple<osg::Pnt3f>("Pnt3f", "A point: three numbers.");
    defineTriple<osg::Vec3f>("Vec3f", "A vector or a colour: three numbers.");
    python::to_python_converter<std::vector<std::string>, TextList>();
}
