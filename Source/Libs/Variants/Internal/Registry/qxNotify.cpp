#include "Internal/Registry/qxNotify.h"

#include "qxNameLookUp.h"
#include "Internal/Registry/qxText.h"
#include "Internal/Scene/qxNodesChange.h"
#include "qxVariant.h"

#include "qxController.h"
#include "qxMessage.h"
#include "qxModuleBase.h"

namespace {

/// Views follow a notification at once, or when the host is idle.
constexpr int AtOnce = 1;
constexpr int WhenIdle = 0;

void call(const char *name, int flag)
{
    const qxUnchangedNames::Pause listeners;
    qxController::call(name, flag);
}

void call(const char *name, qxMessage &message, int flag)
{
    const qxUnchangedNames::Pause listeners;
    qxController::call(name, message, flag);
}

template <class Value>
void set(qxMessage &message, const char *key, Value &&value)
{
    message.set(key, boost::any(std::forward<Value>(value)), true);
}

template <class Value>
void callWith(const char *name, const char *key, Value &&value, int flag = AtOnce)
{
    qxMessage message;
    set(message, key, std::forward<Value>(value));
    call(name, message, flag);
}

void callWithObject(const char *name, void *object, int flag = AtOnce)
{
    callWith(name, "variant", object, flag);
}

void callTransformVariantChanged(int flag)
{
    call("transformVariantChanged", flag);
}

void callWithChange(const char *name, qxMessage &message, qxNodesChange &&change)
{
    set(message, "visible", std::move(change.visible));
    set(message, "invisible", std::move(change.invisible));
    set(message, "parent", std::move(change.parent));
    set(message, "path", std::move(change.path));
    call(name, message, AtOnce);
}

} // namespace

namespace qxNotify {

void nodeVariantAdded(qxVariant *variant)
{
    callWithObject("nodeVariantAdded", variant);
}

void materialVariantAdded(qxVariant *variant)
{
    callWithObject("materialVariantAdded", variant);
}

void lightVariantAdded(qxVariant *variant)
{
    callWithObject("lightVariantAdded", variant);
}

void overlayVariantAdded(qxVariant *variant)
{
    callWithObject("overlayVariantAdded", variant);
}

void transformVariantAdded(qxVariant *variant)
{
    callWithObject("transformVariantAdded", variant, WhenIdle);
}

void nodeVariantRemoved()
{
    call("nodeVariantRemoved", AtOnce);
}

void materialVariantRemoved()
{
    call("materialVariantRemoved", AtOnce);
}

void lightVariantRemoved()
{
    call("lightVariantRemoved", AtOnce);
}

void overlayVariantRemoved()
{
    call("overlayVariantRemoved", AtOnce);
}

void transformVariantRemoved()
{
    call("transformVariantRemoved", WhenIdle);
}

void nodeVariantChanged()
{
    call("nodeVariantChanged", AtOnce);
}

void materialVariantChanged()
{
    call("materialVariantChanged", AtOnce);
}

void lightVariantChanged()
{
    call("lightVariantChanged", AtOnce);
}

void overlayVariantChanged()
{
    call("overlayVariantChanged", AtOnce);
}

void transformVariantChanged()
{
    callTransformVariantChanged(WhenIdle);
}

void transformVariantChangedByDocument()
{
    callTransformVariantChanged(AtOnce);
}

void variantSetAdded(qxVariantSet *set)
{
    callWithObject("variantSetAdded", set);
}

void variantSetRemoved(qxVariantSet *set)
{
    callWithObject("variantSetRemoved", set);
}

void variantSetChanged()
{
    call("variantSetChanged", AtOnce);
}

void variantGroupAdded(qxVariantGroup *group)
{
    callWithObject("variantGroupAdded", group);
}

void variantGroupRemoved(qxVariantGroup *group)
{
    callWithObject("variantGroupRemoved", group);
}

void variantGroupChanged()
{
    call("variantGroupChanged", AtOnce);
}

void variantsSetSelected(const QString &setName)
{
    callWith("variantsSetSelected", "variantSetName", qxText::toUtf8(setName));
}

void variantSetSelected()
{
    call("variantSetSelected", AtOnce);
}

void variantSetSelected(qxVariantSet *set)
{
    callWith("variantSetSelected", "variantSet", static_cast<void *>(set));
}

void animationStart(const QString &animation)
{
    callWith("animationStart", "animation-name", qxText::toUtf8(animation));
}

void selectNodeVariants(const std::vector<QString> &names)
{
    callWith("selectNodeVariants", "variant", names);
}

void selectMaterialVariants(const std::vector<QString> &names)
{
    callWith("selectMaterialVariants", "variant", names);
}

void selectLightVariants(const std::vector<QString> &names)
{
    callWith("selectLightVariants", "variant", names);
}

void selectOverlayVariants(const std::vector<QString> &names)
{
    callWith("selectOverlayVariants", "variant", names);
}

void selectTransformVariants(const std::vector<QString> &names)
{
    callWith("selectTransformVariants", "variant", names);
}

void nodeVariantSelected(qxVariant *variant)
{
    callWithObject("nodeVariantSelected", variant);
}

void materialVariantSelected(qxVariant *variant)
{
    callWithObject("materialVariantSelected", variant);
}

void lightVariantSelected(qxVariant *variant)
{
    callWithObject("lightVariantSelected", variant);
}

void overlayVariantSelected(qxVariant *variant)
{
    callWithObject("overlayVariantSelected", variant);
}

qxMessage changeBy(const std::string &variantName)
{
    qxMessage message;
    set(message, "variantName", variantName);
    return message;
}

void setHidden(qxMessage &message)
{
    set(message, "visible", false);
}

void variantsNodesChanged(qxMessage &message, qxNodesChange &&change)
{
    callWithChange("variantsNodesChanged", message, std::move(change));
}

void variantsOverlaysChanged(qxMessage &message, qxNodesChange &&change)
{
    callWithChange("variantsOverlaysChanged", message, std::move(change));
}

void variantsLightsChanged(qxMessage &message, std::vector<std::string> &&enabled,
                           std::vector<std::string> &&disabled)
{
    set(message, "enabled", std::move(enabled));
    set(message, "disabled", std::move(disabled));
    // Listeners expect the fields of a node's change, but a light has nothing to say in them.
    set(message, "parent", std::string());
    set(message, "path", std::string());
    call("variantsLightsChanged", message, AtOnce);
}

void variantsMaterialChanged(const std::string &variantName, const std::string &materialName,
                             const std::string &materialBaseName)
{
    qxMessage message = changeBy(variantName);
    set(message, "materialName", materialName);
    set(message, "materialBaseName", materialBaseName);
    call("variantsMaterialChanged", message, AtOnce);
}

void updateMaterials()
{
    call("updateMaterials", AtOnce);
}

QString uniqueMaterialName(const QString &wanted)
{
    qxMessage message;
    set(message, "Switch", qxText::toUtf8(wanted));
    call("MaterialGetUniqueName", message, AtOnce);
    const auto *reply = message.get<std::string>("newname");
    return reply ? qxText::fromUtf8(*reply) : QString();
}

void sceneMaterialsChanged()
{
    const qxUnchangedNames::Pause listeners;
    qxMessage message(qxModuleBase::MaterialsChanged);
    qxModuleBase::sendMessage(message, false);
}

void activateOverlays(const QString &state, const QString &overlayName)
{
    qxMessage message;
    set(message, "variantState", qxText::toUtf8(state));
    set(message, "name", qxText::toUtf8(overlayName));
    call("activateOverlays", message, AtOnce);
}

} // namespace qxNotify
