#include "Internal/Registry/qxNotify.h"

#include "Internal/Scene/qxNodesChange.h"
#include "qxVariant.h"
#include "qxVariantKind.h"

#include "qxController.h"
#include "qxMessage.h"
#include "qxModuleBase.h"
#include "qxNameLookUp.h"
#include "qxText.h"

namespace {

/// Views follow a notification at once.
constexpr int AtOnce = 1;

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

void variantAdded(const qxVariantNotifications &names, qxVariant *variant)
{
    callWithObject(names.added, variant, names.flag);
}

void variantRemoved(const qxVariantNotifications &names)
{
    call(names.removed, names.flag);
}

void variantsChanged(const qxVariantNotifications &names)
{
    call(names.changed, names.flag);
}

void variantsChangedByDocument(const qxVariantNotifications &names)
{
    call(names.changed, AtOnce);
}

void variantSelected(const qxVariantNotifications &names, qxVariant *variant)
{
    callWithObject(names.selected, variant);
}

void highlightVariants(const qxVariantNotifications &names, const std::vector<QString> &variants)
{
    callWith(names.highlight, "variant", variants);
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
