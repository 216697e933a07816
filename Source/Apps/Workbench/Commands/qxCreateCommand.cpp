#include "qxVariant.h"
#include "qxVariantKinds.h"

#include "Registry/qxVariantSources.h"
#include "Report/qxOutput.h"
#include "Session/qxSession.h"
#include "qxCommand.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>
#include <QSet>

namespace {

struct Kind {
    const char *word;
    const qxVariantKind *kind;
};

const Kind creatorKinds[] = {{"nodes", &qxVariantKinds::node},
                             {"lights", &qxVariantKinds::light},
                             {"overlays", &qxVariantKinds::overlay},
                             {"transforms", &qxVariantKinds::transform},
                             {"materials", &qxVariantKinds::material}};

QStringList allWords()
{
    QStringList words;
    for (const Kind &kind : creatorKinds)
        words += QLatin1String(kind.word);
    return words;
}

QList<QCommandLineOption> createOptions()
{
    return {{QStringLiteral("kinds"),
             QStringLiteral("What to create variants for; only nodes when not given. Overlays are "
                            "the switches among the overlays, materials the switch materials."),
             allWords().join(QLatin1Char(',')), QStringLiteral("nodes")},
            qxCommands::saveOption(),
            qxCommands::jsonOption(),
            qxCommands::traceOption()};
}

void print(const QList<qxVariant *> &created, bool json)
{
    QJsonArray array;
    QList<QStringList> rows;
    for (const qxVariant *variant : created) {
        const QString kind = qxVariantKinds::of(*variant).word;
        QStringList states;
        for (const qxVariantOption &option : variant->options)
            states += option.name;
        array += QJsonObject{{QStringLiteral("kind"), kind},
                             {QStringLiteral("name"), variant->name},
                             {QStringLiteral("default"), variant->defaultState},
                             {QStringLiteral("states"), QJsonArray::fromStringList(states)}};
        rows += QStringList{kind, variant->name, states.join(QLatin1String(", "))};
    }
    if (json)
        return qxOutput::json(array);
    if (rows.isEmpty())
        rows += QStringList{QStringLiteral("no new variants")};
    qxOutput::table(rows);
}

/// Creates the variants that are asked for and answers those that were not there before.
QList<qxVariant *> create(const QStringList &words)
{
    QSet<const qxVariant *> known;
    qxVariantKinds::visit(
        [&](const qxVariantKind &, const qxVariant &variant) { known += &variant; });
    for (const Kind &kind : creatorKinds) {
        if (words.contains(QLatin1String(kind.word)))
            qxVariantSources::createAll(*kind.kind);
    }
    QList<qxVariant *> created;
    qxVariantKinds::visit([&](const qxVariantKind &, qxVariant &variant) {
        if (!known.contains(&variant))
            created += &variant;
    });
    return created;
}

int runCreate(const QCommandLineParser &parser)
{
    const QStringList words = parser.value(QStringLiteral("kinds")).split(QLatin1Char(','));
    for (const QString &word : words) {
        if (allWords().contains(word))
            continue;
        return qxCommands::fail(QStringLiteral("unknown kind \"%1\"; there are %2")
                                    .arg(word, allWords().join(QLatin1String(", "))),
                                WrongUse);
    }
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.open(parser.positionalArguments().first()))
        return WorkFailed;
    print(create(words), parser.isSet(QStringLiteral("json")));
    return qxCommands::saveIfAsked(session, parser);
}

} // namespace

const qxCommand qxCommands::create = {
    "create",      "FILE",   "Creates variants for what can vary in a scene.", 1, 1,
    createOptions, runCreate};
