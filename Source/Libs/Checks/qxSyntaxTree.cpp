#include "qxSyntaxTree.h"

#include <algorithm>

namespace {

struct KindNames {
    const char *word;
    const char *tag;
    const char *refTag;
};

const KindNames kindNames[qxVariantKinds] = {
    {"node", "NodeVariant", "NodeVariantRef"},
    {"material", "MaterialVariant", "MaterialVariantRef"},
    {"transform", "TransformVariant", "TransformRef"},
    {"light", "LightVariant", "LightVariantRef"},
    {"overlay", "OverlayVariant", "OverlayRef"},
};

template <class Lists>
bool areEmpty(const Lists &lists)
{
    return std::all_of(lists.begin(), lists.end(), [](const auto &list) { return list.empty(); });
}

} // namespace

QString qxVariantKindNames::word(qxVariantKind kind)
{
    return QString::fromLatin1(kindNames[int(kind)].word);
}

QString qxVariantKindNames::tag(qxVariantKind kind)
{
    return QString::fromLatin1(kindNames[int(kind)].tag);
}

QString qxVariantKindNames::refTag(qxVariantKind kind)
{
    return QString::fromLatin1(kindNames[int(kind)].refTag);
}

bool qxSyntaxTreeSet::isEmpty() const
{
    return areEmpty(references) && of(qxNameList::Viewpoints).empty()
        && of(qxNameList::Animations).empty() && of(qxNameList::Geometries).empty()
        && script.text.isEmpty() && clipState == 0;
}
