#include "qxVariantKinds.h"
#include "qxVariants.h"

#include "Report/qxOutput.h"
#include "Session/qxSession.h"
#include "qxAnimManager.h"
#include "qxSceneLookup.h"
#include "qxShowCommand.h"
#include "qxText.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

/// One fact about the scene: its key in JSON, its words for people, its value.
struct Fact {
    const char *key;
    const char *words;
    QJsonValue value;
};

QJsonArray clipNames()
{
    QJsonArray names;
    for (const std::string &name : qxAnimManager::the()->clips())
        names += qxText::fromUtf8(name);
    return names;
}

// A list, not a procedure.
QList<Fact> facts(const qxSceneFileInfo &info)
{
    return {
        {"version", "glTF version", info.version},
        {"generator", "made by", info.generator},
        {"scenes", "scenes", info.scenes},
        {"nodes", "nodes", info.nodes},
        {"meshes", "meshes", info.meshes},
        {"triangles", "triangles", double(info.triangles)},
        {"materials", "materials", info.materials},
        {"textures", "textures", info.textures},
        {"viewpoints", "viewpoints", QJsonArray::fromStringList(qxSceneLookup::viewpointNames())},
        {"animations", "animations", clipNames()},
        {"extensionsUsed", "extensions", QJsonArray::fromStringList(info.extensionsUsed)},
        {"extensionsNotUnderstood", "of these kept, not shown",
         QJsonArray::fromStringList(info.extensionsNotUnderstood)},
        {"extensionsMissing", "required, but not shown",
         QJsonArray::fromStringList(info.extensionsMissing)},
        {"groups", "variant groups", int(qxVariants::_variantGroups.size())},
        {"sets", "variant sets", int(qxVariants::_variantSets.size())},
        {"variants", "variants", int(qxVariantKinds::count())},
    };
}

QString wordsFor(const QJsonValue &value)
{
    if (!value.isArray())
        return value.toVariant().toString();
    QStringList names;
    for (const QJsonValue &name : value.toArray())
        names += name.toString().isEmpty() ? QStringLiteral("(unnamed)") : name.toString();
    return names.isEmpty() ? QStringLiteral("none") : names.join(QLatin1String(", "));
}

void printInfoJson(const qxSession &session)
{
    QJsonObject object;
    for (const Fact &fact : facts(session.file().info()))
        object.insert(QLatin1String(fact.key), fact.value);
    qxOutput::json(object);
}

void printInfoTable(const qxSession &session)
{
    QList<QStringList> rows;
    for (const Fact &fact : facts(session.file().info())) {
        const QString words = wordsFor(fact.value);
        if (!words.isEmpty())
            rows += QStringList{QLatin1String(fact.words), words};
    }
    qxOutput::table(rows);
}

int runInfo(const QCommandLineParser &parser)
{
    return qxShowCommand::run(parser, printInfoJson, printInfoTable);
}

} // namespace

const qxCommand qxCommands::info = {
    "info", "FILE", "Shows what a scene file holds.", 1, 1, qxShowCommand::options, runInfo};
