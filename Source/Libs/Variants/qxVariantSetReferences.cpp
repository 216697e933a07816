#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantSet.h"

#include "qxText.h"

#include <algorithm>

namespace {

/// Refers to the variant by its name; an empty state stands for its default state.
void addTo(qxStateList &list, const qxVariant *variant, const QString &state)
{
    if (variant)
        list.add(variant->name, state.isEmpty() ? variant->defaultState : state);
}

/// Compares the UTF-8 texts byte by byte.
bool contains(const qxStateList &list, const std::string &variantName)
{
    return std::any_of(list.begin(), list.end(), [&](const qxVariantState &each) {
        return qxText::toUtf8(each.variant) == variantName;
    });
}

} // namespace

void qxVariantSet::add(qxNodeVariant *variant, const QString &state)
{
    addTo(nodeVariants, variant, state);
}

void qxVariantSet::add(qxMaterialVariant *variant, const QString &state)
{
    addTo(materialVariants, variant, state);
}

void qxVariantSet::add(qxLightVariant *variant, const QString &state)
{
    addTo(lightVariants, variant, state);
}

void qxVariantSet::add(qxOverlayVariant *variant, const QString &state)
{
    addTo(overlayVariants, variant, state);
}

void qxVariantSet::add(qxTransformVariant *variant, const QString &state)
{
    addTo(transformVariants, variant, state);
}

void qxVariantSet::addNodeVariant(const QString &variantName, const QString &state)
{
    nodeVariants.add(variantName, state);
}

void qxVariantSet::addMaterialVariant(const QString &variantName, const QString &state)
{
    materialVariants.add(variantName, state);
}

void qxVariantSet::addLightVariant(const QString &variantName, const QString &state)
{
    lightVariants.add(variantName, state);
}

void qxVariantSet::addOverlayVariant(const QString &variantName, const QString &state)
{
    overlayVariants.add(variantName, state);
}

void qxVariantSet::addTransformVariant(const QString &variantName, const QString &state)
{
    transformVariants.add(variantName, state);
}

qxVariantState *qxVariantSet::findNodeVariant(const QString &variantName)
{
    return nodeVariants.find(variantName);
}

qxVariantState *qxVariantSet::findMaterialVariant(const QString &variantName)
{
    return materialVariants.find(variantName);
}

qxVariantState *qxVariantSet::findLightVariant(const QString &variantName)
{
    return lightVariants.find(variantName);
}

qxVariantState *qxVariantSet::findOverlayVariant(const QString &variantName)
{
    return overlayVariants.find(variantName);
}

qxVariantState *qxVariantSet::findTransformVariant(const QString &variantName)
{
    return transformVariants.find(variantName);
}

void qxVariantSet::removeNodeVariant(const QString &variantName)
{
    nodeVariants.remove(variantName);
}

void qxVariantSet::removeMaterialVariant(const QString &variantName)
{
    materialVariants.remove(variantName);
}

void qxVariantSet::removeLightVariant(const QString &variantName)
{
    lightVariants.remove(variantName);
}

void qxVariantSet::removeOverlayVariant(const QString &variantName)
{
    overlayVariants.remove(variantName);
}

void qxVariantSet::removeTransformVariant(const QString &variantName)
{
    transformVariants.remove(variantName);
}

bool qxVariantSet::containsNodeVariant(std::string variantName)
{
    return contains(nodeVariants, variantName);
}

bool qxVariantSet::containsMaterialVariant(std::string variantName)
{
    return contains(materialVariants, variantName);
}

bool qxVariantSet::containsLightVariant(std::string variantName)
{
    return contains(lightVariants, variantName);
}

bool qxVariantSet::containsOverlayVariant(std::string variantName)
{
    return contains(overlayVariants, variantName);
}

bool qxVariantSet::containsTransformVariant(const std::string &variantName)
{
    return findTransformVariant(qxText::fromUtf8(variantName)) != nullptr;
}
