#include "qxSetContents.h"

#include "qxVariantKinds.h"
#include "qxVariantSet.h"

namespace {

QString arrow(const QString &left, const QString &right)
{
    return QStringLiteral("%1 \u2192 %2").arg(left, right);
}

QStringList lines(const qxStateList &states)
{
    QStringList all;
    for (const qxVariantState &state : states)
        all += arrow(state.variant, state.state);
    return all;
}

QStringList lines(const QMap<QString, QString> &pairs)
{
    QStringList all;
    for (auto pair = pairs.begin(); pair != pairs.end(); ++pair)
        all += arrow(pair.key(), pair.value());
    return all;
}

QStringList lines(const QString &text)
{
    return text.isEmpty() ? QStringList() : text.split(QLatin1Char('\n'));
}

QString numbers(double x, double y, double z)
{
    return QStringLiteral("(%1, %2, %3)").arg(x).arg(y).arg(z);
}

QStringList planeLines(const qxAnalyzerVariant &plane)
{
    const osg::Pnt3f &at = plane.clipPlanePosition;
    const osg::Vec3f &normal = plane.clipPlaneNormal;
    QStringList all{QStringLiteral("position %1").arg(numbers(at[0], at[1], at[2])),
                    QStringLiteral("normal %1").arg(numbers(normal[0], normal[1], normal[2]))};
    if (plane.clipPlaneInvert)
        all += QStringLiteral("inverted");
    if (plane.clipPlaneHideScene)
        all += QStringLiteral("hides the scene");
    return all;
}

QStringList clippingLines(const qxAnalyzerVariant &clipping)
{
    switch (clipping.clipState) {
    case qxAnalyzerVariant::Enable:
        return {QStringLiteral("switched on")};
    case qxAnalyzerVariant::Disable:
        return {QStringLiteral("switched off")};
    case qxAnalyzerVariant::SetPlane:
        return planeLines(clipping);
    default:
        return {};
    }
}

QStringList animationLines(const qxVariantSet &set)
{
    QStringList all = set.animations.list();
    if (set.sequentialAnimation && !all.isEmpty())
        all += QStringLiteral("(one per selection, in turn)");
    return all;
}

/// Such as "Node variants".
QString titleOf(const qxVariantKind &kind)
{
    const QString word = kind.word;
    return word.left(1).toUpper() + word.mid(1) + QStringLiteral(" variants");
}

} // namespace

// A list, not a procedure.
QList<qxSetFact> qxSetContents::of(const qxVariantSet &set)
{
    QList<qxSetFact> all;
    for (const qxVariantKind *kind : qxVariantKinds::all())
        all += {titleOf(*kind), lines(set.*kind->states)};
    all += QList<qxSetFact>{
        {QStringLiteral("Viewpoints"), set.viewpoints.list()},
        {QStringLiteral("Default viewpoint"), lines(set.defaultViewpoint)},
        {QStringLiteral("Animations"), animationLines(set)},
        {QStringLiteral("Clipping plane"), clippingLines(set.analyzer)},
        {QStringLiteral("Geometries"), set.geometries.list()},
        {QStringLiteral("Target nodes"), set.targetNodeNames.list()},
        {QStringLiteral("Material snapshots"), lines(set.materialSnapshots)},
        {QStringLiteral("Values"), lines(set.values)},
        {QStringLiteral("Script"), lines(set.script), true},
    };
    QList<qxSetFact> present;
    for (const qxSetFact &fact : all) {
        if (!fact.lines.isEmpty())
            present += fact;
    }
    return present;
}
