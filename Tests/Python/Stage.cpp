#include "Stage.h"

#include "qxVariantSet.h"
#include "qxVariantSetPtr.h"
#include "qxVariants.h"

#include "Cameras/qxMainView.h"
#include "Core/qxHost.h"
#include "NotificationLog.h"
#include "TestScene.h"
#include "qxMaterialPtr.h"
#include "qxPythonInit.h"
#include "qxScenegraph.h"
#include "qxScript.h"

#include <boost/make_shared.hpp>
#include <boost/python.hpp>
#include <boost/python/stl_iterator.hpp>

namespace python = boost::python;

Stage *Stage::current = nullptr;

namespace {

typedef std::vector<std::string> Texts;

Texts textsOf(const python::object &list)
{
    return Texts(python::stl_input_iterator<std::string>(list),
                 python::stl_input_iterator<std::string>());
}

void clear()
{
    Stage::current->host->clearScene();
    Stage::current->notifications->clear();
}

void report(const std::string &name, const std::string &failure)
{
    Stage::current->report(name, failure);
}

Texts heard()
{
    const Texts names = Stage::current->notifications->names();
    Stage::current->notifications->clear();
    return names;
}

qxNodePtr addSwitch(const std::string &name, const python::object &children)
{
    return TestScene().addSwitch(name, textsOf(children)).node();
}

qxMaterialPtr addSwitchMaterial(const std::string &name, const python::object &materials)
{
    return TestScene().addSwitchMaterial(name, textsOf(materials)).material();
}

qxNodePtr addLight(const std::string &name)
{
    return TestScene().addLight(name).node();
}

int choiceOf(const qxNodePtr &node)
{
    return TestNode(node).choice();
}

int addViewpoint(const std::string &name, float x)
{
    return TestScene().addViewpoint(name, x);
}

/// The name of the viewpoint that the camera was put to last.
std::string viewpoint()
{
    return qxMainView::the().camera.name;
}

/// A new set of that name, or a null handle when it is taken.
qxVariantSetPtr createSet(const std::string &name)
{
    return qxVariants::createVariantSet(QString::fromStdString(name), true, nullptr);
}

/// The set of that name, held by a shared pointer.
boost::shared_ptr<qxVariantSetPtr> findSet(const std::string &name)
{
    return boost::make_shared<qxVariantSetPtr>(
        qxVariants::findVariantSet(QString::fromStdString(name)));
}

/// The name of the handle's set, from a handle that a script gave as a shared pointer.
std::string nameOf(const boost::shared_ptr<qxVariantSetPtr> &handle)
{
    return handle->getName();
}

void addTargetNodeName(const std::string &set, const std::string &node)
{
    qxVariants::findVariantSet(QString::fromStdString(set))
        ->addTargetNodeName(QString::fromStdString(node));
}

/// What the set refers to, as "variant=state", nodes before materials before lights.
Texts statesOf(const std::string &name)
{
    Texts states;
    const qxVariantSet *const set = qxVariants::findVariantSet(QString::fromStdString(name));
    for (const qxStateList *list :
         {&set->nodeVariants, &set->materialVariants, &set->lightVariants})
        for (const qxVariantState &each : *list)
            states.push_back((each.variant + "=" + each.state).toStdString());
    return states;
}

} // namespace

BOOST_PYTHON_MODULE(stage)
{
    python::def("clear", clear);
    python::def("report", report);
    python::def("heard", heard);
    python::def("addSwitch", addSwitch);
    python::def("addSwitchMaterial", addSwitchMaterial);
    python::def("addLight", addLight);
    python::def("addViewpoint", addViewpoint);
    python::def("viewpoint", viewpoint);
    python::def("choiceOf", choiceOf);
    python::def("createSet", createSet);
    python::def("findSet", findSet);
    python::def("nameOf", nameOf);
    python::def("addTargetNodeName", addTargetNodeName);
    python::def("statesOf", statesOf);
}

namespace {

void pythonInit(bool destroy)
{
    if (destroy)
        return;
#if PY_MAJOR_VERSION >= 3
    const python::object made{python::handle<>(PyInit_stage())};
    python::import("sys").attr("modules")["stage"] = made;
#else
    initstage();
#endif
    qxScript::run("import stage");
}

const qxPythonInit registered(&pythonInit);

} // namespace
