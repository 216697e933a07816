#include "Internal/Document/qxSetElements.h"

#include "Internal/Document/qxDocumentNames.h"
#include "Internal/Document/qxDocumentText.h"
#include "Internal/Options/qxHotkey.h"
#include "Internal/Registry/qxDeferredDeletion.h"
#include "Internal/Registry/qxSetRegistry.h"
#include "qxVariantGroup.h"
#include "qxVariantKinds.h"
#include "qxVariantLists.h"
#include "qxVariantSet.h"

#include "qxPreviewPicture.h"

#include <QGuiApplication>
#include <QHash>
#include <QPixmap>

#include <cstdio>

namespace {

namespace names = qxDocumentNames;
namespace text = qxDocumentText;

/// Base64 texts below this length are printed.
constexpr int ShortPreview = 80;

/// What an element does to the set it stands in.
typedef void (*SetAction)(const QDomElement &, qxVariantSet &);

template <void (qxVariantSet::*add)(const QString &)>
void readName(const QDomElement &element, qxVariantSet &set)
{
    (set.*add)(text::attribute(element, names::ref));
}

void readHotkey(const QDomElement &element, qxVariantSet &set)
{
    set.hotkey = qxHotkey::convertOld(element.text());
    set.updateShortcut();
}

void readSequentialAnimation(const QDomElement &element, qxVariantSet &set)
{
    set.sequentialAnimation = element.text() == names::trueWord;
}

void readScript(const QDomElement &element, qxVariantSet &set)
{
    set.script = element.text();
}

void readTargetName(const QDomElement &element, qxVariantSet &set)
{
    set.addTargetNodeName(text::attribute(element, names::name));
}

void readMaterialSnapshot(const QDomElement &element, qxVariantSet &set)
{
    set.addMaterialSnapshot(text::attribute(element, names::nodePath),
                            text::attribute(element, names::materialName));
}

void readValue(const QDomElement &element, qxVariantSet &set)
{
    if (element.hasAttribute(names::name))
        set.values.insert(text::attribute(element, names::name), element.text());
}

void readInclInfo(const QDomElement &element, qxVariantSet &set)
{
    set.setInclInfo(text::flag(element, names::inclNodes), text::flag(element, names::inclMats),
                    text::flag(element, names::inclLights), text::flag(element, names::inclEnv),
                    text::flag(element, names::inclView));
}

void readAnalyzer(const QDomElement &element, qxVariantSet &set)
{
    set.setClippingState(text::integer(element, names::clipState));
    set.setClippingPlanePositionX(text::real(element, names::clipPlanePositionX));
    set.setClippingPlanePositionY(text::real(element, names::clipPlanePositionY));
    set.setClippingPlanePositionZ(text::real(element, names::clipPlanePositionZ));
    set.setClippingPlaneNormalX(text::real(element, names::clipPlaneNormalX));
    set.setClippingPlaneNormalY(text::real(element, names::clipPlaneNormalY));
    set.setClippingPlaneNormalZ(text::real(element, names::clipPlaneNormalZ));
    set.setClippingInvert(text::flag(element, names::clipPlaneInvert));
    set.setClippingHideScene(text::flag(element, names::clipPlaneHideScene));
    set.setClippingShowPlane(text::flag(element, names::clipPlaneShow));
    set.setClippingPlaneColorR(text::real(element, names::clipPlaneColorR));
    set.setClippingPlaneColorG(text::real(element, names::clipPlaneColorG));
    set.setClippingPlaneColorB(text::real(element, names::clipPlaneColorB));
    set.setClippingShowGrid(text::flag(element, names::clipGridShow));
    set.setClippingGridColorR(text::real(element, names::clipGridColorR));
    set.setClippingGridColorG(text::real(element, names::clipGridColorG));
    set.setClippingGridColorB(text::real(element, names::clipGridColorB));
    set.setClippingShowContour(text::flag(element, names::clipContourShow));
    set.setClippingContourColorR(text::real(element, names::clipContourColorR));
    set.setClippingContourColorG(text::real(element, names::clipContourColorG));
    set.setClippingContourColorB(text::real(element, names::clipContourColorB));
    set.setClippingContourWidth(text::integer(element, names::clipContourWidth));
}

/// Loads the picture once, so that a picture that cannot be shown is noticed while loading.
void tryPreview(const QByteArray &bytes)
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance())
        && qxPreviewPicture::isDecodable(bytes))
        QPixmap().loadFromData(bytes);
}

void readPreview(const QDomElement &element, qxVariantSet &set)
{
    const QDomNode content = element.firstChild();
    if (!content.isCDATASection())
        return;
    const QByteArray base64 = content.nodeValue().toLatin1();
    if (base64.size() < ShortPreview)
        std::printf("\t%s\n", base64.constData());
    set.setPreview(QByteArray::fromBase64(base64));
    tryPreview(set.preview);
}

const QHash<QString, SetAction> &setActions()
{
    static const QHash<QString, SetAction> actions{
        {names::Hotkey, readHotkey},
        {names::SequentialAnimation, readSequentialAnimation},
        {names::ViewpointRef, readName<&qxVariantSet::addViewpoint>},
        {names::AnimationRef, readName<&qxVariantSet::addAnimation>},
        {names::GeometryRef, readName<&qxVariantSet::addGeometry>},
        {names::TargetName, readTargetName},
        {names::MaterialSnapshot, readMaterialSnapshot},
        {names::Value, readValue},
        {names::Script, readScript},
        {names::InclInfo, readInclInfo},
        {names::Analyzer, readAnalyzer},
        {names::Preview, readPreview},
    };
    return actions;
}

/// A new set for an element of that name, or null.
qxVariantSet *createSet(const QString &name, bool replace)
{
    if (name.isEmpty())
        return nullptr;
    if (replace)
        qxSetRegistry::removeSet(name);
    const QString free = replace ? name : qxSetRegistry::uniqueSetName(name);
    return qxSetRegistry::createSet(free, false, nullptr);
}

} // namespace

qxVariantSet *qxSetElements::readSet(const QDomElement &element, bool replace)
{
    qxVariantSet *const set = createSet(text::attribute(element, names::name), replace);
    if (!set)
        return nullptr;
    text::apply(element, names::comment, set->comment);
    text::apply(element, names::script, set->script);
    text::apply(element, names::defaultViewpoint, set->defaultViewpoint);
    text::forEachChild(element, [set](const QDomElement &child) {
        if (const SetAction action = setActions().value(child.tagName()))
            action(child, *set);
        else if (const auto *kind =
                     qxVariantKinds::by(&qxVariantKind::referenceTag, child.tagName()))
            (set->*kind->states)
                .add(text::attribute(child, names::ref), text::attribute(child, names::state));
    });
    return set;
}

qxVariantGroup *qxSetElements::readGroup(const QDomElement &element)
{
    const QString name = text::attribute(element, names::name);
    const qxDeferredDeletion deferred;
    qxSetRegistry::removeGroup(name);
    qxVariantGroup *const group = qxSetRegistry::createGroup(name, false, true);
    if (!group)
        return nullptr;
    text::apply(element, names::comment, group->comment);
    if (element.hasAttribute(names::visible))
        group->visible = element.attribute(names::visible) == names::trueWord;
    for (auto child = element.firstChildElement(names::VariantSet); !child.isNull();
         child = child.nextSiblingElement(names::VariantSet)) {
        qxVariantSet *const set = readSet(child, true);
        if (!qxVariantLists::_variantGroups.contains(group)) // the replaced set was announced
            return nullptr;
        if (set)
            group->append(set);
    }
    return group;
}
