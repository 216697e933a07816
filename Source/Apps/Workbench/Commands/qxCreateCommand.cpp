#include "qxVariant.h"
#include "qxVariantCreator.h"
#include "qxVariantKinds.h"
#include "qxVariants.h"

#include "Report/qxOutput.h"
#include "Session/qxSession.h"
#include "qxCommand.h"
#include "qxCreators.h"
#include "qxOverlays.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGGraphOpFactory.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>
#include <QSet>

namespace {

/// Runs the operation of that name over the tree below `root`.
void runOperation(const char *name, const osg::NodePtr &root)
{
    const std::unique_ptr<osg::GraphOp> operation(osg::GraphOpFactory::the().create(name));
    // The walk of the base class would announce nothing.
    dynamic_cast<qxVariantCreator &>(*operation).traverse(root);
}

/// Plain materials are left alone: a variant would put a switch material in their place.
void createMaterials()
{
    std::vector<osg::MaterialPtr> materials;
    qxScenegraph::getMaterialPool()->get(materials);
    for (const osg::MaterialPtr &material : materials) {
        if (osg::SwitchMaterialPtr::dcast(material) != osg::NullFC)
            qxVariants::createMaterialVariant(material, false);
    }
}

struct Kind {
    const char *word;
    void (*create)();
};

const Kind creatorKinds[] = {
    {"nodes", [] { runOperation("qxNodeVariantCreator", qxScenegraph::getRoot()); }},
    {"lights", [] { runOperation("qxLightVariantCreator", qxScenegraph::getRoot()); }},
    {"overlays", [] { runOperation("qxOverlayVariantCreator", qxOverlays::getPoolRoot()); }},
    {"transforms", [] { runOperation("qxTransformVariantCreator", qxScenegraph::getRoot()); }},
    {"materials", createMaterials}};

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
    const qxCreators creators;
    for (const Kind &kind : creatorKinds) {
        if (words.contains(QLatin1String(kind.word)))
            kind.create();
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
