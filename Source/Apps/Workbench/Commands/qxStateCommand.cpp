#include "qxVariant.h"
#include "qxVariantKinds.h"

#include "Report/qxOutput.h"
#include "qxFindCache.h"
#include "qxShowCommand.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

QJsonObject object(const qxVariantKind &kind, const qxVariant &variant, const qxShownState &shown)
{
    QJsonArray states;
    for (const qxVariantOption &option : variant.options)
        states += QJsonObject{{QStringLiteral("name"), option.name},
                              {QStringLiteral("shortcut"), option.shortcut},
                              {QStringLiteral("action"), option.isAction}};
    return {{QStringLiteral("kind"), kind.word},
            {QStringLiteral("name"), variant.name},
            {QStringLiteral("current"), shown.state()},
            {QStringLiteral("hidden"), shown.isHidden},
            {QStringLiteral("default"), variant.defaultState},
            {QStringLiteral("states"), states}};
}

void printStateJson(const qxSession &)
{
    const qxFindCache cache(true);
    QJsonArray array;
    qxVariantKinds::visit([&](const qxVariantKind &kind, const qxVariant &variant) {
        array += object(kind, variant, variant.shown());
    });
    qxOutput::json(array);
}

QString wordsFor(const qxShownState &shown)
{
    if (shown.state().isEmpty())
        return QStringLiteral("-");
    return shown.isHidden && shown.state() != variantDisable
        ? shown.state() + QLatin1String(" (hidden)")
        : shown.state();
}

void printStateTable(const qxSession &)
{
    const qxFindCache cache(true);
    QList<QStringList> rows;
    qxVariantKinds::visit([&](const qxVariantKind &kind, const qxVariant &variant) {
        rows += QStringList{kind.word, variant.name, wordsFor(variant.shown())};
    });
    if (rows.isEmpty())
        rows += QStringList{QStringLiteral("no variants")};
    qxOutput::table(rows);
}

int runState(const QCommandLineParser &parser)
{
    return qxShowCommand::run(parser, printStateJson, printStateTable);
}

} // namespace

const qxCommand qxCommands::state = {
    "state", "FILE", "Shows every variant with the state the scene is in.",
    1,       1,      qxShowCommand::options,
    runState};
