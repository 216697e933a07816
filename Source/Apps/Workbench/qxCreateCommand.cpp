#include "qxNodeVariant.h"
#include "qxNodeVariantCreator.h"
#include "qxVariants.h"

#include "qxCommand.h"
#include "qxOutput.h"
#include "qxScenegraph.h"
#include "qxSession.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>

namespace {

QList<QCommandLineOption> options()
{
    return {qxCommands::saveOption(), qxCommands::jsonOption(), qxCommands::traceOption()};
}

void print(size_t first, bool json)
{
    QJsonArray array;
    QList<QStringList> rows;
    for (size_t i = first; i < qxVariants::_nodeVariants.size(); ++i) {
        const qxNodeVariant *variant = qxVariants::_nodeVariants[i];
        QStringList states;
        for (const qxVariantOption &option : variant->options)
            states += option.name;
        array += QJsonObject{{QStringLiteral("kind"), QStringLiteral("node")},
                             {QStringLiteral("name"), variant->name},
                             {QStringLiteral("default"), variant->defaultState},
                             {QStringLiteral("states"), QJsonArray::fromStringList(states)}};
        rows +=
            QStringList{QStringLiteral("node"), variant->name, states.join(QLatin1String(", "))};
    }
    if (json)
        return qxOutput::json(array);
    if (rows.isEmpty())
        rows += QStringList{QStringLiteral("no new variants")};
    qxOutput::table(rows);
}

int run(const QCommandLineParser &parser)
{
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.open(parser.positionalArguments().first()))
        return WorkFailed;
    const size_t first = qxVariants::_nodeVariants.size();
    qxNodeVariantCreator().traverse(qxScenegraph::getRoot());
    print(first, parser.isSet(QStringLiteral("json")));
    return session.saveIfAsked(parser.value(QStringLiteral("save"))) ? Success : WorkFailed;
}

} // namespace

const qxCommand qxCommands::create = {
    "create", "FILE", "Creates node variants for the switch nodes of a scene.", 1, 1, options, run};
