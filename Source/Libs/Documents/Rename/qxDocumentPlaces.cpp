#include "Rename/qxDocumentPlaces.h"

#include "qxStateRules.h"

#include <cstdio>

namespace {

/// The words for the lists of names, and what stands in them.
struct ListNames {
    qxNameList list;
    const char *word;
    qxNamed named;
};

constexpr ListNames listNames[] = {
    {qxNameList::Viewpoints, "viewpoint", qxNamed::Viewpoint},
    {qxNameList::Animations, "animation", qxNamed::Animation},
    {qxNameList::Geometries, "geometry", qxNamed::Node},
    {qxNameList::Targets, "target node", qxNamed::Node},
};

/// Goes over one document.
class Walk {
public:
    explicit Walk(const qxDocumentPlaces::Visit &visit) : m_visit(visit) {}

    void visit(qxDocumentVariant &variant);
    void visit(qxDocumentSet &set);

private:
    void name(const qxDocumentPlace &place, QString &name) { m_visit(place, name); }

    const qxDocumentPlaces::Visit &m_visit;
};

void Walk::visit(qxDocumentVariant &variant)
{
    const qxVariantKind *const kind = variant.kind;
    // What the variant is called while its own name is changed does not matter to its states.
    const QString owner = variant.name;
    name({qxNamed::Variant, "name", nullptr, &variant, kind, QString(), true}, variant.name);
    name({qxDocumentPlaces::objectOf(*kind), "scene object", nullptr, &variant}, variant.base);
    if (!variant.standard.text.isEmpty())
        name({qxNamed::State, "default state", nullptr, &variant, kind, owner},
             variant.standard.text);
    for (qxDocumentOption &option : variant.options)
        name({qxNamed::State, "option", nullptr, &variant, kind, owner, true}, option.name);
}

void Walk::visit(qxDocumentSet &set)
{
    name({qxNamed::Set, "name", &set, nullptr, nullptr, QString(), true}, set.name);
    if (!set.defaultViewpoint.isEmpty())
        name({qxNamed::Viewpoint, "default viewpoint", &set}, set.defaultViewpoint);
    for (qxDocumentReference &each : set.references) {
        const QString owner = each.variant;
        name({qxNamed::Variant, "entry", &set, nullptr, each.kind}, each.variant);
        if (!each.state.isEmpty())
            name({qxNamed::State, "entry", &set, nullptr, each.kind, owner}, each.state);
    }
    for (const ListNames &list : listNames) {
        for (qxDocumentText &each : set.of(list.list))
            name({list.named, list.word, &set}, each.text);
    }
    for (qxDocumentText &each : set.snapshots) {
        name({qxNamed::Path, "snapshot", &set}, each.text);
        name({qxNamed::Material, "snapshot", &set}, each.more);
    }
}

/// Whether a transform switch has states of such names: they are made of numbers.
bool isTransformName(const QString &state)
{
    unsigned place = 0;
    return std::sscanf(state.toUtf8().constData(), "Transform %u", &place) == 1
        && state == qxStateRules::transformName(place);
}

} // namespace

QString qxDocumentPlace::text() const
{
    if (variant)
        return QStringLiteral("%1 variant \"%2\", %3")
            .arg(variant->kind->word, variant->name, QLatin1String(word));
    if (!set)
        return QLatin1String(word);
    const QString start = QStringLiteral("set \"%1\", %2").arg(set->name, QLatin1String(word));
    if (!kind)
        return start;
    return named == qxNamed::State
        ? QStringLiteral("%1 of %2 variant \"%3\"").arg(start, kind->word, owner)
        : QStringLiteral("%1 of a %2 variant").arg(start, kind->word);
}

void qxDocumentPlaces::visit(qxDocument &document, const Visit &visit)
{
    Walk walk(visit);
    for (qxDocumentGroup &each : document.groups)
        visit({qxNamed::Group, "name of a group", nullptr, nullptr, nullptr, QString(), true},
              each.name);
    for (qxDocumentSet &each : document.sets)
        walk.visit(each);
    for (qxDocumentVariant &each : document.variants)
        walk.visit(each);
}

qxNamed qxDocumentPlaces::objectOf(const qxVariantKind &kind)
{
    if (&kind == &qxVariantKinds::material)
        return qxNamed::Material;
    return &kind == &qxVariantKinds::overlay ? qxNamed::Overlay : qxNamed::Node;
}

std::optional<qxNamed> qxDocumentPlaces::stateOf(const qxVariantKind &kind, const QString &state)
{
    const bool hasNames = &kind == &qxVariantKinds::node || &kind == &qxVariantKinds::material
        || &kind == &qxVariantKinds::overlay;
    if (!hasNames || state.startsWith(QLatin1Char('!')))
        return std::nullopt;
    if (&kind == &qxVariantKinds::node && isTransformName(state))
        return std::nullopt;
    return objectOf(kind);
}
