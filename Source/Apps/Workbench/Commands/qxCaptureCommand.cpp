#include "qxVariantGroup.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Commands/qxAmbiguousNodes.h"
#include "Report/qxOutput.h"
#include "Session/qxPreviewStamp.h"
#include "Session/qxSession.h"
#include "Session/qxSetPreviews.h"
#include "qxCameraService.h"
#include "qxCommand.h"
#include "qxNames.h"
#include "qxScenegraph.h"
#include "qxUberCameraPool.h"
#include "qxUnknownName.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>

namespace {

const char *const captureWords[] = {"nodes",       "materials", "lights",
                                    "environment", "viewpoint", "transforms"};

QList<QCommandLineOption> captureOptions()
{
    QList<QCommandLineOption> options{
        {QStringLiteral("group"),
         QStringLiteral("Puts the set into this group, which is made when there is none."),
         QStringLiteral("GROUP"), QStringLiteral("New Group 1")},
        {QStringLiteral("root"),
         QStringLiteral("Captures what is at and below this node; may be given several times. The "
                        "whole scene when not given."),
         QStringLiteral("NODE")},
        {QStringLiteral("view"),
         QStringLiteral("Looks from this viewpoint; from the first one when not given."),
         QStringLiteral("VIEWPOINT")},
        {QStringLiteral("rename"),
         QStringLiteral("Renames nodes that cannot be told apart, without asking.")}};
    for (const char *word : captureWords)
        options += {QLatin1String(word),
                    QStringLiteral("Captures this kind, and no kind that is "
                                   "not named; all when none is.")};
    return options << qxCommands::saveOption() << qxCommands::jsonOption()
                   << qxCommands::traceOption();
}

/// Whether a kind is to be captured.
class Kinds {
public:
    explicit Kinds(const QCommandLineParser &parser) : m_parser(parser)
    {
        for (const char *word : captureWords)
            m_isAnyNamed = m_isAnyNamed || parser.isSet(QLatin1String(word));
    }
    bool has(const char *word) const
    {
        return !m_isAnyNamed || m_parser.isSet(QLatin1String(word));
    }

private:
    const QCommandLineParser &m_parser;
    bool m_isAnyNamed = false;
};

/// The nodes to capture; none after saying which one is unknown.
std::vector<qxNodePtr> rootsFor(const QStringList &names)
{
    if (names.isEmpty())
        return {qxScenegraph::getRootNode()};
    std::vector<qxNodePtr> roots;
    for (const QString &name : names) {
        roots.push_back(qxNames::findNode(name));
        if (roots.back() != osg::NullFC)
            continue;
        qxOutput::error(qxUnknownName::node(name));
        return {};
    }
    return roots;
}

/// Moves to the viewpoint; false after saying that it is unknown.
bool look(const QString &viewpoint)
{
    const auto camera = qxKernelServiceFactory::the()->getService<qxCameraService>();
    const int id = viewpoint.isEmpty() ? 0 : camera->findViewpoint(qxText::toUtf8(viewpoint));
    camera->moveToViewpoint(id, 0, 0, 0); // a scene may have no viewpoint at all
    if (id < 0)
        qxOutput::error(qxUnknownName::viewpoint(viewpoint));
    return id >= 0;
}

/// Whether every node can be told apart, if need be after renaming.
bool settleNames(bool rename)
{
    qxAmbiguousNodes nodes;
    if (nodes.isEmpty())
        return true;
    if (!rename && !nodes.mayRename()) {
        qxOutput::error(QStringLiteral("nothing was captured; --rename gives them new names"));
        return false;
    }
    nodes.rename();
    return true;
}

qxVariantSet *createSet(const QString &name, const QString &groupName)
{
    qxVariantGroup *const group = qxVariants::findOrCreateVariantGroup(groupName);
    return qxVariants::createVariantSet(qxVariants::getUniqueVariantSetName(name), true, group);
}

/// One line of the report: a key of JSON, words for people, and what the set holds of it.
struct Row {
    const char *key;
    const char *words;
    QStringList entries;
};

QStringList textsOf(const qxStateList &states)
{
    QStringList texts;
    for (const qxVariantState &state : states)
        texts += state.variant + QLatin1String(": ") + state.state;
    return texts;
}

QList<Row> rowsOf(const qxVariantSet &set)
{
    return {{"nodes", "node states", textsOf(set.nodeVariants)},
            {"materials", "material states", textsOf(set.materialVariants)},
            {"lights", "light states", textsOf(set.lightVariants)},
            {"transforms", "transform states", textsOf(set.transformVariants)},
            {"snapshots", "materials of nodes", set.materialSnapshots.keys()},
            {"script", "script lines",
             set.script.isEmpty() ? QStringList() : set.script.split(QLatin1Char('\n'))},
            {"viewpoints", "viewpoints", set.viewpoints.list()}};
}

void print(const qxVariantSet &set, bool json)
{
    QJsonObject object{{QStringLiteral("set"), set.name},
                       {QStringLiteral("group"), set.group->name}};
    QList<QStringList> table{{set.name, QStringLiteral("in ") + set.group->name}};
    for (const Row &row : rowsOf(set)) {
        object.insert(QLatin1String(row.key), QJsonArray::fromStringList(row.entries));
        if (!row.entries.isEmpty())
            table += {QLatin1String("  ") + QLatin1String(row.words),
                      QString::number(row.entries.size())};
    }
    if (json)
        qxOutput::json(object);
    else
        qxOutput::table(table);
}

int runCapture(const QCommandLineParser &parser)
{
    const QStringList arguments = parser.positionalArguments();
    qxSession session(parser.isSet(QStringLiteral("trace")));
    if (!session.open(arguments[0]))
        return WorkFailed;
    if (arguments[1].trimmed().isEmpty())
        return qxCommands::fail(QStringLiteral("a variant set needs a name"));
    if (parser.value(QStringLiteral("group")).trimmed().isEmpty())
        return qxCommands::fail(QStringLiteral("a group needs a name"));
    const std::vector<qxNodePtr> roots = rootsFor(parser.values(QStringLiteral("root")));
    if (roots.empty() || !look(parser.value(QStringLiteral("view")))
        || !settleNames(parser.isSet(QStringLiteral("rename"))))
        return WorkFailed;

    const Kinds kinds(parser);
    qxVariantSet *const set = createSet(arguments[1], parser.value(QStringLiteral("group")));
    qxVariants::captureVariantsFromRootNodes(
        set, roots, kinds.has("nodes"), kinds.has("materials"), kinds.has("lights"),
        kinds.has("environment"), kinds.has("viewpoint"), kinds.has("transforms"), true, true);
    const QByteArray fingerprint = qxSetPreviews::previewFingerprint();
    set->setPreview(
        qxPreviewStamp::stamped(qxVariants::createPreviewImage(false, true), fingerprint));
    print(*set, parser.isSet(QStringLiteral("json")));
    return qxCommands::saveIfAsked(session, parser);
}

} // namespace

const qxCommand qxCommands::capture = {
    "capture",      "FILE NAME", "Makes a variant set of what the scene looks like now.", 2, 2,
    captureOptions, runCapture};
