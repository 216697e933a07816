#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxChangeReport.h"
#include "qxCommand.h"
#include "qxOutput.h"
#include "qxSession.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>

namespace {

QList<QCommandLineOption> options()
{
    return {{QStringLiteral("keep-camera"), QStringLiteral("Stays where the camera is.")},
            qxCommands::saveOption(),
            qxCommands::jsonOption(),
            qxCommands::traceOption()};
}

/// All sets by name, or an empty list after saying which are unknown.
QList<qxVariantSet *> findSets(const QStringList &names)
{
    QList<qxVariantSet *> sets;
    for (const QString &name : names) {
        qxVariantSet *set = qxVariants::findVariantSet(name);
        if (!set) {
            qxOutput::error(QStringLiteral("no variant set is called \"%1\"").arg(name));
            return {};
        }
        sets += set;
    }
    return sets;
}

template <class Found>
void addMissing(QStringList &missing, const char *kind, const qxStateList &states, Found found)
{
    for (const qxVariantState &state : states) {
        if (!found(state.variant))
            missing +=
                QStringLiteral("no %1 variant \"%2\"").arg(QLatin1String(kind), state.variant);
    }
}

/// What the set refers to although the registry does not have it.
QStringList missingVariants(const qxVariantSet &set)
{
    QStringList missing;
    addMissing(missing, "node", set.nodeVariants, qxVariants::findNodeVariant);
    addMissing(missing, "material", set.materialVariants, qxVariants::findMaterialVariant);
    addMissing(missing, "transform", set.transformVariants, qxVariants::findTransformVariant);
    addMissing(missing, "light", set.lightVariants, qxVariants::findLightVariant);
    addMissing(missing, "overlay", set.overlayVariants, qxVariants::findOverlayVariant);
    return missing;
}

int run(const QCommandLineParser &parser)
{
    const QStringList arguments = parser.positionalArguments();
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.open(arguments.first()))
        return WorkFailed;
    // Looked up before the first selection: nothing is half done because of a misspelt name.
    const QList<qxVariantSet *> sets = findSets(arguments.mid(1));
    if (sets.isEmpty())
        return WorkFailed;

    const bool json = parser.isSet(QStringLiteral("json"));
    QJsonArray reports;
    for (const qxVariantSet *set : sets) {
        const QString name = set->name;
        const QStringList missing = missingVariants(*set);
        qxChangeReport report;
        qxVariants::selectVariantSet(name.toUtf8().constData(),
                                     parser.isSet(QStringLiteral("keep-camera")));
        report.finish(name, missing);
        if (json)
            reports += report.toJson();
        else
            report.print();
    }
    if (json)
        qxOutput::json(reports);
    return session.saveIfAsked(parser.value(QStringLiteral("save"))) ? Success : WorkFailed;
}

} // namespace

const qxCommand qxCommands::select = {
    "select", "FILE SET...", "Selects variant sets one after the other.", 2, -1, options, run};
