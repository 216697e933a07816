#include "qxVariantSet.h"
#include "qxVariantSetPtr.h"
#include "qxVariants.h"

#include "Cameras/qxMainView.h"
#include "HostFixture.h"
#include "Script/qxScriptRunner.h"
#include "qxMaterialPtr.h"
#include "qxPythonInit.h"
#include "qxScript.h"
#include "qxTestPaths.h"

#include <QDir>
#include <QFile>

#include <boost/make_shared.hpp>
#include <boost/python.hpp>
#include <boost/python/stl_iterator.hpp>

namespace python = boost::python;

typedef std::vector<std::string> Texts;

/// A file of Python tests in a host of its own.
class PythonTest : public HostFixture, public testing::WithParamInterface<std::string> {
public:
    PythonTest() { current = this; }

    void clear()
    {
        host.clearScene();
        notifications.clear();
    }

    /// What was announced since the last call.
    Texts takeHeard()
    {
        const Texts names = notifications.names();
        notifications.clear();
        return names;
    }

    /// The outcome of a test in Python: the traceback of a failure.
    void report(const std::string &name, const std::string &failure)
    {
        ++m_reported;
        std::printf("    %s %s\n", failure.empty() ? "ok    " : "FAILED", name.c_str());
        if (!failure.empty())
            ADD_FAILURE() << name << "\n" << failure;
    }

    using HostFixture::scene;
    /// The running test.
    inline static PythonTest *current = nullptr;

protected:
    /// Runs the file as a script would be run, with the same global names.
    static void run(const std::string &name)
    {
        const std::string fileName = QX_PYTHON_TESTS "/" + name;
        QFile file(QString::fromStdString(fileName));
        EXPECT_TRUE(file.open(QFile::ReadOnly)) << fileName;
        EXPECT_TRUE(qxScriptRunner::run(file.readAll().toStdString(), fileName)) << fileName;
    }

    int m_reported = 0;
};

static Texts textsOf(const python::object &list)
{
    return Texts(python::stl_input_iterator<std::string>(list),
                 python::stl_input_iterator<std::string>());
}

static qxVariantSet *setOf(const std::string &name)
{
    return qxVariants::findVariantSet(QString::fromStdString(name));
}

/// What the set refers to, as "variant=state", nodes before materials before lights.
static Texts statesOf(const std::string &name)
{
    Texts states;
    const qxVariantSet *const set = setOf(name);
    for (const qxStateList *list :
         {&set->nodeVariants, &set->materialVariants, &set->lightVariants})
        for (const qxVariantState &each : *list)
            states.push_back((each.variant + "=" + each.state).toStdString());
    return states;
}

static PythonTest &test()
{
    return *PythonTest::current;
}

/// The module by which the tests reach scene and registry, beside the bindings of every script.
static void defineStage(bool destroy)
{
    if (destroy)
        return;
    const python::object module(python::handle<>(python::borrowed(PyImport_AddModule("stage"))));
    const python::scope scope(module);
    python::def(
        "clear", +[] { test().clear(); });
    python::def(
        "report",
        +[](const std::string &name, const std::string &failure) { test().report(name, failure); });
    python::def(
        "heard", +[] { return test().takeHeard(); });
    python::def(
        "addSwitch", +[](const std::string &name, const python::object &children) -> qxNodePtr {
            return test().scene.addSwitch(name, textsOf(children)).node();
        });
    python::def(
        "addSwitchMaterial",
        +[](const std::string &name, const python::object &materials) -> qxMaterialPtr {
            return test().scene.addSwitchMaterial(name, textsOf(materials)).material();
        });
    python::def(
        "addLight",
        +[](const std::string &name) -> qxNodePtr { return test().scene.addLight(name).node(); });
    python::def(
        "addViewpoint",
        +[](const std::string &name, float x) { return test().scene.addViewpoint(name, x); });
    python::def(
        "viewpoint", +[] { return qxMainView::the().camera.name; });
    python::def(
        "choiceOf", +[](const qxNodePtr &node) { return TestNode(node).choice(); });
    python::def(
        "createSet", +[](const std::string &name) -> qxVariantSetPtr {
            return qxVariants::createVariantSet(QString::fromStdString(name), true, nullptr);
        });
    python::def(
        "findSet",
        +[](const std::string &name) { return boost::make_shared<qxVariantSetPtr>(setOf(name)); });
    python::def(
        "nameOf",
        +[](const boost::shared_ptr<qxVariantSetPtr> &handle) { return handle->getName(); });
    python::def(
        "addTargetNodeName", +[](const std::string &set, const std::string &node) {
            setOf(set)->addTargetNodeName(QString::fromStdString(node));
        });
    python::def("statesOf", statesOf);
    qxScript::run("import stage");
}

const qxPythonInit registered(&defineStage);

static Texts testFiles()
{
    Texts names;
    for (const QString &name : QDir(QX_PYTHON_TESTS).entryList({"test_*.py"}, QDir::Files))
        names.push_back(name.toStdString());
    return names;
}

TEST_P(PythonTest, Passes)
{
    run(GetParam());
    run("run_tests.py");
    EXPECT_GT(m_reported, 0);
}

INSTANTIATE_TEST_SUITE_P(
    File, PythonTest, testing::ValuesIn(testFiles()),
    [](const testing::TestParamInfo<std::string> &file) {
        return QFileInfo(QString::fromStdString(file.param)).baseName().toStdString();
    });
