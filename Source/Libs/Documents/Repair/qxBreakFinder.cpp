#include "Repair/qxBreakFinder.h"

#include <algorithm>

const qxVariantKind *qxBreakFinder::needOf(const qxDocumentPlace &place)
{
    const bool isBase = place.variant && !place.kind;
    const bool needsMore = isBase && place.variant->kind != &qxVariantKinds::node
        && place.variant->kind != &qxVariantKinds::overlay;
    return needsMore ? place.variant->kind : nullptr;
}

/// Whether one object at least is of the right sort.
bool qxBreakFinder::hasObject(const qxVariantKind &kind, const QString &base)
{
    const QString key = kind.word + QLatin1Char(' ') + base;
    const auto known = m_known.constFind(key);
    if (known != m_known.constEnd())
        return *known;
    const std::vector<qxSceneObject> objects = kind.rule.objects(base);
    const bool fits = std::any_of(objects.begin(), objects.end(), [&](const qxSceneObject &each) {
        return !m_survey.ask(kind.rule, each, QString()).front().isMisfit();
    });
    m_known.insert(key, fits);
    return fits;
}

bool qxBreakFinder::takes(const qxDocumentVariant &variant, const QString &state)
{
    const std::vector<qxSceneObject> objects = variant.kind->rule.objects(variant.base);
    return std::any_of(objects.begin(), objects.end(), [&](const qxSceneObject &each) {
        const qxStateSurvey::Effects &effects = m_survey.ask(variant.kind->rule, each, state);
        return std::any_of(effects.begin(), effects.end(),
                           [](const qxEffect &effect) { return effect.isTaken(); });
    });
}

bool qxBreakFinder::isNoOption(const qxDocumentPlace &place, const QString &name) const
{
    if (!place.isDefault())
        return false;
    const auto &options =
        m_document.variants[std::size_t(m_index.variant(place.kind, place.owner))].options;
    return std::none_of(options.begin(), options.end(),
                        [&name](const qxDocumentOption &each) { return each.name == name; });
}

bool qxBreakFinder::works(const qxDocumentPlace &place, const QString &name)
{
    switch (place.named) {
    case qxNamed::Group:
    case qxNamed::Set:
        return true;
    case qxNamed::Variant:
        return place.isOwn || m_index.variant(place.kind, name) >= 0;
    case qxNamed::State: {
        const int at = m_index.variant(place.kind, place.owner);
        if (at < 0)
            return true;
        const qxDocumentVariant &variant = m_document.variants[std::size_t(at)];
        return !hasObject(*variant.kind, variant.base) || takes(variant, name);
    }
    case qxNamed::Path:
        return m_scene.hasPath(name);
    case qxNamed::Viewpoint:
        return m_scene.hasViewpoint(name);
    case qxNamed::Animation:
        return m_scene.hasClip(name);
    case qxNamed::Node:
        return needOf(place) ? hasObject(*place.variant->kind, name) : m_scene.hasNode(name);
    case qxNamed::Material:
        return needOf(place) ? hasObject(*place.variant->kind, name) : m_scene.hasMaterial(name);
    case qxNamed::Overlay:
        return !m_scene.overlays(name).empty();
    }
    return true;
}
