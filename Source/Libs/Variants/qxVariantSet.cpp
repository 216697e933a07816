#include "qxVariantSet.h"

#include "qxVariantGroup.h"
#include "qxVariantKinds.h"
#include "qxVariantReader.h"
#include "qxVariants.h"

qxVariantSet::qxVariantSet() = default;

qxVariantSet::qxVariantSet(const QString &setName) : name(setName) {}

qxVariantSet::~qxVariantSet()
{
    if (group)
        group->remove(this);
}

void qxVariantSet::addGeometry(const QString &nodeName)
{
    geometries.add(nodeName);
}

void qxVariantSet::removeGeometry(const QString &nodeName)
{
    geometries.remove(nodeName);
}

void qxVariantSet::addViewpoint(const QString &viewpoint)
{
    viewpoints.add(viewpoint);
}

void qxVariantSet::removeViewpoint(const QString &viewpoint)
{
    viewpoints.remove(viewpoint);
}

void qxVariantSet::addAnimation(const QString &animation)
{
    animations.add(animation);
}

void qxVariantSet::removeAnimation(const QString &animation)
{
    animations.remove(animation);
}

void qxVariantSet::addTargetNodeName(const QString &nodeName)
{
    targetNodeNames.add(nodeName);
}

void qxVariantSet::addMaterialSnapshot(const QString &nodePath, const QString &materialName)
{
    materialSnapshots.insert(nodePath, materialName);
}

void qxVariantSet::appendToScript(const QString &line)
{
    if (!script.isEmpty())
        script += QLatin1Char('\n');
    script += line;
}

void qxVariantSet::setInclInfo(bool nodes, bool mats, bool lights, bool env, bool view)
{
    inclNodes = nodes;
    inclMats = mats;
    inclLights = lights;
    inclEnv = env;
    inclView = view;
}

void qxVariantSet::getInclInfo(bool &nodes, bool &mats, bool &lights, bool &env, bool &view) const
{
    nodes = inclNodes;
    mats = inclMats;
    lights = inclLights;
    env = inclEnv;
    view = inclView;
}

void qxVariantSet::updateShortcut()
{
    qxVariants::mapHotkey(hotkey, key, modifiers);
    // Names of keys may have blanks, so a text that names a key is not taken for one of the old
    // form.
    if (key == 0)
        qxVariants::mapHotkey(qxVariantReader::convertOldHotkey(hotkey), key, modifiers);
}

void qxVariantSet::setPreview(QByteArray bytes)
{
    preview = bytes;
}

QByteArray qxVariantSet::getPreview() const
{
    return preview;
}

void qxVariantSet::clear()
{
    for (const qxVariantKind *kind : qxVariantKinds::all())
        (this->*kind->states).clear();
    viewpoints.clear();
    values.clear();
    animations.clear();
    animationIndex = 0;
    sequentialAnimation = false;
    hotkey.clear();
    comment.clear();
    script.clear();
    defaultViewpoint.clear();
    key = -1;
    targetNodeNames.clear();
    materialSnapshots.clear();
}
