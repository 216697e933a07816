#include "qxVariantKinds.h"

#include "Internal/Materials/qxSwitchMaterialRepair.h"
#include "Internal/Registry/qxDeferredDeletion.h"
#include "Internal/Registry/qxNotify.h"
#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantLists.h"
#include "qxVariantReferences.h"

#include "qxStateRules.h"

#include <algorithm>
#include <numeric>
#include <string_view>

namespace {

/// The registry's operations on the variants in `list`, the same for every kind.
template <class Variant, auto &list>
struct Registered {
    static void visit(const qxVariantKind::Visit &each)
    {
        for (Variant *variant : list)
            each(*variant);
    }

    static std::size_t count() { return list.size(); }

    static qxVariant *find(const QString &name) { return list.find(name); }

    static qxVariant *adopt(std::unique_ptr<qxVariant> variant, bool notify)
    {
        const qxDeferredDeletion deferred;
        auto *const added = static_cast<Variant *>(variant.release());
        list.append(added);
        if (notify)
            qxNotify::variantAdded(Variant::notifications, added);
        return list.contains(added) ? added : nullptr;
    }

    static qxVariant *create(const QString &name, bool notify)
    {
        if (Variant *known = list.find(name))
            return known;
        auto variant = std::make_unique<Variant>();
        variant->name = name;
        return adopt(std::move(variant), notify);
    }

    static bool remove(const QString &name)
    {
        if (name.isEmpty())
            return false;
        if (Variant *variant = list.find(name)) {
            list.take(variant);
            qxDeferredDeletion::bury(variant);
        }
        qxNotify::variantRemoved(Variant::notifications);
        return true;
    }

    static void clear()
    {
        for (Variant *variant : list.takeAll())
            qxDeferredDeletion::bury(variant);
        qxNotify::variantsChanged(Variant::notifications);
    }

    static bool arrange(const std::vector<qxVariant *> &order)
    {
        std::vector<Variant *> typed;
        for (qxVariant *variant : order)
            typed.push_back(static_cast<Variant *>(variant));
        return list.arrange(typed);
    }
};

/// What the document and people call a kind.
struct KindNames {
    std::string_view word;
    const char *title;
    std::string_view tag;
    std::string_view referenceTag;
};

/// Not by QLatin1String's own strlen, which clang's fuzzing build cannot compute when it compiles.
constexpr QLatin1String latin1(std::string_view text)
{
    return QLatin1String(text.data(), int(text.size()));
}

template <class Variant, auto &list>
constexpr qxVariantKind row(const KindNames &names, qxStateList qxVariantReferences::*states,
                            QString Variant::*sceneName, const qxStateRule &rule)
{
    typedef Registered<Variant, list> Variants;
    return {latin1(names.word),
            names.title,
            latin1(names.tag),
            latin1(names.referenceTag),
            Variant::notifications,
            states,
            static_cast<QString qxVariant::*>(sceneName),
            rule,
            typeid(Variant),
            Variants::visit,
            Variants::count,
            Variants::find,
            Variants::create,
            Variants::adopt,
            Variants::remove,
            Variants::clear,
            Variants::arrange};
}

constexpr qxVariantKind materialRow()
{
    auto kind = row<qxMaterialVariant, qxVariantLists::_materialVariants>(
        {QT_TRANSLATE_NOOP("qxVariants", "material"), QT_TRANSLATE_NOOP("qxVariants", "Materials"),
         "MaterialVariant", "MaterialVariantRef"},
        &qxVariantReferences::materialVariants, &qxMaterialVariant::switchMaterialName,
        qxStateRules::material);
    kind.complete = [](const qxVariant &variant) {
        qxSwitchMaterialRepair::ensureSwitchMaterial(
            static_cast<const qxMaterialVariant &>(variant));
    };
    return kind;
}

/// An overlay variant always drives something.
qxVariant *createOverlay(const QString &name, bool notify)
{
    if (name.isEmpty())
        return nullptr;
    if (qxVariant *known = qxVariantKinds::overlay.find(name))
        return known;
    auto variant = std::make_unique<qxOverlayVariant>();
    variant->name = name;
    variant->overlayName = name;
    return qxVariantKinds::overlay.adopt(std::move(variant), notify);
}

constexpr qxVariantKind overlayRow()
{
    auto kind = row<qxOverlayVariant, qxVariantLists::_overlayVariants>(
        {QT_TRANSLATE_NOOP("qxVariants", "overlay"), QT_TRANSLATE_NOOP("qxVariants", "Overlays"),
         "OverlayVariant", "OverlayRef"},
        &qxVariantReferences::overlayVariants, &qxOverlayVariant::overlayName,
        qxStateRules::overlay);
    kind.create = createOverlay;
    kind.hasDefaults = false;
    return kind;
}

constexpr qxVariantKind transformRow()
{
    auto kind = row<qxTransformVariant, qxVariantLists::_transformVariants>(
        {QT_TRANSLATE_NOOP("qxVariants", "transform"),
         QT_TRANSLATE_NOOP("qxVariants", "Transforms"), "TransformVariant", "TransformRef"},
        &qxVariantReferences::transformVariants, &qxTransformVariant::nodeName,
        qxStateRules::transform);
    kind.makesUsed = false;
    return kind;
}

} // namespace

// A list, not a procedure.
namespace qxVariantKinds {

constexpr qxVariantKind node = row<qxNodeVariant, qxVariantLists::_nodeVariants>(
    {QT_TRANSLATE_NOOP("qxVariants", "node"), QT_TRANSLATE_NOOP("qxVariants", "Nodes"),
     "NodeVariant", "NodeVariantRef"},
    &qxVariantReferences::nodeVariants, &qxNodeVariant::nodeName, qxStateRules::node);

constexpr qxVariantKind material = materialRow();

constexpr qxVariantKind light = row<qxLightVariant, qxVariantLists::_lightVariants>(
    {QT_TRANSLATE_NOOP("qxVariants", "light"), QT_TRANSLATE_NOOP("qxVariants", "Lights"),
     "LightVariant", "LightVariantRef"},
    &qxVariantReferences::lightVariants, &qxLightVariant::lightName, qxStateRules::light);

constexpr qxVariantKind overlay = overlayRow();

constexpr qxVariantKind transform = transformRow();

const List &all()
{
    static const List kinds{&node, &material, &light, &overlay, &transform};
    return kinds;
}

const Order &selectionOrder()
{
    static const Order order({&node, &material, &transform, &light});
    return order;
}

const Order &referenceOrder()
{
    static const Order order({&node, &transform, &material, &light});
    return order;
}

const Order &optimizingOrder()
{
    static const Order order({&node, &material, &light});
    return order;
}

const Order &readingOrder()
{
    static const Order order({&light, &node, &material});
    return order;
}

Order::Order(const List &firstKinds) : first(firstKinds)
{
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        if (std::find(first.begin(), first.end(), kind) == first.end())
            rest.push_back(kind);
    }
}

List Order::all() const
{
    List kinds = first;
    kinds.insert(kinds.end(), rest.begin(), rest.end());
    return kinds;
}

const qxVariantKind *by(QLatin1String qxVariantKind::*name, const QString &text)
{
    const auto found = std::find_if(all().begin(), all().end(),
                                    [&](const qxVariantKind *kind) { return kind->*name == text; });
    return found == all().end() ? nullptr : *found;
}

const qxVariantKind &of(const qxVariant &variant)
{
    const auto found = std::find_if(all().begin(), all().end(), [&](const qxVariantKind *kind) {
        return kind->type == typeid(variant);
    });
    return **found;
}

std::size_t count()
{
    return std::accumulate(
        all().begin(), all().end(), std::size_t(0),
        [](std::size_t sum, const qxVariantKind *kind) { return sum + kind->count(); });
}

void visit(const std::function<void(const qxVariantKind &kind, qxVariant &variant)> &each)
{
    for (const qxVariantKind *kind : all())
        kind->visit([&](qxVariant &variant) { each(*kind, variant); });
}

} // namespace qxVariantKinds
