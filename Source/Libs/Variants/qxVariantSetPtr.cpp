#include "qxVariantSetPtr.h"

#include "Internal/Registry/qxDeferredDeletion.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxScript.h"
#include "qxText.h"

#include <cstdio>
#include <locale>
#include <sstream>

namespace {

/// What stands before the key in a hotkey's text of the old form.
const char *prefixOf(int modifier)
{
    switch (unsigned(modifier)) {
    case Qt::ShiftModifier:
        return "Shift ";
    case Qt::ControlModifier:
        return "Ctrl ";
    case Qt::ShiftModifier | Qt::ControlModifier:
        return "Shift-Ctrl ";
    case Qt::AltModifier:
        return "Alt ";
    case Qt::ShiftModifier | Qt::AltModifier:
        return "Shift-Alt ";
    case Qt::AltModifier | Qt::ControlModifier:
        return "Alt-Ctrl ";
    default:
        return " ";
    }
}

bool isDigitOrCapital(int key)
{
    return (key >= '0' && key <= '9') || (key >= 'A' && key <= 'Z');
}

/// An expression with three numbers, and where they belong.
struct VectorSetting {
    const char *expression;
    void (qxVariantSet::*set[3])(double);
};

const VectorSetting vectorSettings[] = {
    {"getClippingPlanePosition()",
     {&qxVariantSet::setClippingPlanePositionX, &qxVariantSet::setClippingPlanePositionY,
      &qxVariantSet::setClippingPlanePositionZ}},
    {"getClippingPlaneNormal()",
     {&qxVariantSet::setClippingPlaneNormalX, &qxVariantSet::setClippingPlaneNormalY,
      &qxVariantSet::setClippingPlaneNormalZ}},
    {"getClippingPlaneColor()",
     {&qxVariantSet::setClippingPlaneColorR, &qxVariantSet::setClippingPlaneColorG,
      &qxVariantSet::setClippingPlaneColorB}},
    {"getClippingGridColor()",
     {&qxVariantSet::setClippingGridColorR, &qxVariantSet::setClippingGridColorG,
      &qxVariantSet::setClippingGridColorB}},
    {"getClippingContourColor()",
     {&qxVariantSet::setClippingContourColorR, &qxVariantSet::setClippingContourColorG,
      &qxVariantSet::setClippingContourColorB}},
};

/// An expression that is true or false, and where it belongs.
struct FlagSetting {
    const char *expression;
    void (qxVariantSet::*set)(bool);
};

const FlagSetting flagSettings[] = {
    {"getClippingPlaneInvertDirection()", &qxVariantSet::setClippingInvert},
    {"getClippingHideScene()", &qxVariantSet::setClippingHideScene},
    {"getClippingShowPlane()", &qxVariantSet::setClippingShowPlane},
    {"getClippingShowGrid()", &qxVariantSet::setClippingShowGrid},
    {"getClippingShowContour()", &qxVariantSet::setClippingShowContour},
};

void copyVector(qxVariantSet &set, const VectorSetting &setting)
{
    std::istringstream answer(qxScript::executeNUSR(setting.expression));
    answer.imbue(std::locale::classic()); // a decimal point, whatever the user's locale has
    float numbers[3] = {0, 0, 0};
    std::string separator;
    answer >> numbers[0] >> separator >> numbers[1] >> separator >> numbers[2];
    for (int i = 0; i < 3; ++i)
        (set.*setting.set[i])(double(numbers[i]));
}

void copyContourWidth(qxVariantSet &set)
{
    const std::string answer = qxScript::executeNUSR("getClippingContourWidth()");
    int width = 0;
    std::sscanf(answer.c_str(), "%i", &width);
    set.setClippingContourWidth(width);
}

} // namespace

qxVariantSetPtr::qxVariantSetPtr() = default;

qxVariantSetPtr::qxVariantSetPtr(qxVariantSet *set) : m_set(set) {}

void qxVariantSetPtr::setName(const char *name)
{
    if (!m_set)
        return;
    m_set->name = QString::fromUtf8(name);
    qxNameLookUp::noteRename(); // Another set may have the name.
}

std::string qxVariantSetPtr::getName() const
{
    return m_set ? qxText::toUtf8(m_set->name) : std::string();
}

void qxVariantSetPtr::setHotkeyString(const char *key)
{
    if (!m_set)
        return;
    m_set->hotkey = QString::fromUtf8(key);
    m_set->updateShortcut();
}

void qxVariantSetPtr::setHotkey(int key)
{
    setHotkey(key, 0);
}

void qxVariantSetPtr::setHotkey(int key, int modifier)
{
    if (!m_set || !isDigitOrCapital(key))
        return;
    m_set->hotkey = QLatin1String(prefixOf(modifier)) + QLatin1Char(char(key));
    m_set->updateShortcut();
}

std::string qxVariantSetPtr::getHotkey() const
{
    return m_set ? qxText::toUtf8(m_set->hotkey) : std::string();
}

void qxVariantSetPtr::addGeometry(qxNodePtr node, const char *state)
{
    if (!m_set || node == osg::NullFC)
        return;
    const qxDeferredDeletion deferred;
    m_set->add(qxVariants::createNodeVariant(node, true), QString::fromUtf8(state));
}

void qxVariantSetPtr::addMaterial(qxMaterialPtr material, const char *state)
{
    if (!m_set || material == osg::NullFC)
        return;
    const qxDeferredDeletion deferred;
    m_set->add(qxVariants::createMaterialVariant(material, true), QString::fromUtf8(state));
}

void qxVariantSetPtr::addLight(qxNodePtr node, const char *state)
{
    if (!m_set || node == osg::NullFC)
        return;
    const qxDeferredDeletion deferred;
    m_set->add(qxVariants::createLightVariant(node, true), QString::fromUtf8(state));
}

void qxVariantSetPtr::addViewpoint(const char *name)
{
    if (m_set)
        m_set->addViewpoint(QString::fromUtf8(name));
}

void qxVariantSetPtr::addScript(const char *script)
{
    if (m_set)
        m_set->script = QString::fromUtf8(script);
}

std::string qxVariantSetPtr::getScript() const
{
    return m_set ? qxText::toUtf8(m_set->script) : std::string();
}

void qxVariantSetPtr::setClippingState(int state)
{
    if (m_set)
        m_set->setClippingState(state);
}

void qxVariantSetPtr::addClippingPlane(const osg::Pnt3f &position, const osg::Vec3f &normal,
                                       bool invertDirection, bool hideScene, bool showClippingPlane,
                                       bool showGrid, bool showContour)
{
    if (!m_set)
        return;
    m_set->analyzer.clipPlanePosition = position;
    m_set->analyzer.clipPlaneNormal = normal;
    m_set->setClippingInvert(invertDirection);
    m_set->setClippingHideScene(hideScene);
    m_set->setClippingShowPlane(showClippingPlane);
    m_set->setClippingShowGrid(showGrid);
    m_set->setClippingShowContour(showContour);
}

void qxVariantSetPtr::addCurrentClippingPlane()
{
    if (!m_set)
        return;
    const qxDeferredDeletion deferred;
    for (const VectorSetting &setting : vectorSettings)
        copyVector(*m_set, setting);
    copyContourWidth(*m_set);
    for (const FlagSetting &setting : flagSettings)
        (m_set->*setting.set)(qxScript::executeNUSR(setting.expression) == "True");
}

std::vector<std::string> qxVariantSetPtr::getTargetNodeNames() const
{
    std::vector<std::string> names;
    if (!m_set)
        return names;
    for (const QString &name : m_set->targetNodeNames)
        names.push_back(qxText::toUtf8(name));
    return names;
}

void qxVariantSetPtr::setValue(const char *key, const char *value)
{
    if (m_set)
        m_set->values.insert(QString::fromUtf8(key), QString::fromUtf8(value));
}

std::string qxVariantSetPtr::getValue(const char *key) const
{
    return m_set ? qxText::toUtf8(m_set->values.value(QString::fromUtf8(key))) : std::string();
}
