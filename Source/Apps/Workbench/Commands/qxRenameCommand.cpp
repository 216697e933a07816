#include "Report/qxOutput.h"
#include "Session/qxEditedDocument.h"
#include "qxCommand.h"
#include "qxDocumentRename.h"
#include "qxLights.h"
#include "qxSceneRename.h"
#include "qxSuggestions.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <iterator>

namespace {

/// What users call the things that can be renamed.
struct ThingWord {
    const char *word;
    qxRenameRequest::Thing thing;
};

constexpr ThingWord thingWords[] = {
    {"group", qxRenameRequest::Group},
    {"set", qxRenameRequest::Set},
    {"option", qxRenameRequest::Option},
    {"node", qxRenameRequest::Node},
    {"light", qxRenameRequest::Node},
    {"overlay", qxRenameRequest::Overlay},
    {"material", qxRenameRequest::Material},
    {"viewpoint", qxRenameRequest::Viewpoint},
    {"transform-state", qxRenameRequest::TransformState},
};

QStringList allThings()
{
    QStringList words;
    for (const ThingWord &each : thingWords)
        words += QLatin1String(each.word);
    for (const qxVariantKind *kind : qxVariantKinds::all())
        words += kind->word + QLatin1String("-variant");
    for (const qxVariantKind *kind : qxVariantKinds::all())
        words += kind->word + QLatin1String("-option");
    return words;
}

/// Takes the kind of thing from its word; false for an unknown one.
bool takeThing(const QString &word, qxRenameRequest &request)
{
    const auto found =
        std::find_if(std::begin(thingWords), std::end(thingWords),
                     [&word](const ThingWord &each) { return word == QLatin1String(each.word); });
    if (found != std::end(thingWords)) {
        request.thing = found->thing;
        return true;
    }
    const int dash = word.indexOf(QLatin1Char('-'));
    request.kind = qxVariantKinds::by(&qxVariantKind::word, word.left(dash));
    const QString rest = word.mid(dash + 1);
    request.thing =
        rest == QLatin1String("option") ? qxRenameRequest::Option : qxRenameRequest::Variant;
    return dash > 0 && request.kind
        && (request.thing == qxRenameRequest::Option || rest == QLatin1String("variant"));
}

/// Finds the one variant with the option that the request leaves open. Says why when there is not
/// exactly one.
bool findOwner(const qxDocument &document, qxRenameRequest &request)
{
    QStringList owners;
    QStringList options;
    const qxRenameRequest wanted = request;
    for (const qxDocumentVariant &each : document.variants) {
        if ((wanted.kind && each.kind != wanted.kind)
            || (!wanted.owner.isEmpty() && each.name != wanted.owner))
            continue;
        for (const qxDocumentOption &option : each.options) {
            options += option.name;
            if (option.name != wanted.before)
                continue;
            owners += QStringLiteral("the %1 variant \"%2\"").arg(each.kind->word, each.name);
            request.kind = each.kind;
            request.owner = each.name;
        }
    }
    options.removeDuplicates();
    if (owners.isEmpty())
        qxOutput::error(QStringLiteral("no option is called \"%1\"").arg(wanted.before)
                        + qxSuggestions::question(wanted.before, options));
    else if (owners.size() > 1)
        qxOutput::error(QStringLiteral("\"%1\" is an option of %2; say which with --of VARIANT, "
                                       "and the kind as in node-option")
                            .arg(wanted.before, owners.join(QLatin1String(", "))));
    return owners.size() == 1;
}

/// Whether a light of the scene has that name.
bool isLight(const QString &name)
{
    const std::vector<qxSceneObject> nodes = qxStateRules::light.objects(name);
    return std::any_of(nodes.begin(), nodes.end(),
                       [](const qxSceneObject &each) { return qxLights::isLight(each.node); });
}

QJsonArray notesOf(const std::vector<qxRenameNote> &notes, bool isChange)
{
    QJsonArray array;
    for (const qxRenameNote &each : notes) {
        QJsonObject object{
            {QStringLiteral("place"), each.place},
            {isChange ? QStringLiteral("before") : QStringLiteral("text"), each.before}};
        if (isChange)
            object[QStringLiteral("after")] = each.after;
        array += object;
    }
    return array;
}

/// One rename by the command line.
class RenameRun {
public:
    explicit RenameRun(const QCommandLineParser &parser)
        : m_parser(parser), m_edited(parser.isSet(QStringLiteral("trace"))),
          m_word(parser.positionalArguments()[1])
    {
        m_request.before = parser.positionalArguments()[2];
        m_request.after = parser.positionalArguments()[3];
        m_request.owner = parser.value(QStringLiteral("of"));
    }

    int run();

private:
    bool isDry() const { return m_parser.isSet(QStringLiteral("dry-run")); }
    bool isAllowed(const qxRenameRequest &request, const qxRenameScope &scope,
                   const QString &sceneFlaw) const;
    void print(const qxRenameImpact &impact, int objects) const;

    const QCommandLineParser &m_parser;
    qxEditedDocument m_edited;
    const QString m_word;
    qxRenameRequest m_request;
};

bool RenameRun::isAllowed(const qxRenameRequest &request, const qxRenameScope &scope,
                          const QString &sceneFlaw) const
{
    const qxDocument &document = m_edited.document;
    const bool isMissingLight =
        m_word == QLatin1String("light") && m_edited.isScene() && !isLight(request.before);
    if (isMissingLight || !qxDocumentRename::isKnown(document, request, scope)) {
        QStringList names = scope.names + qxDocumentRename::namesOf(document, request);
        names.removeDuplicates();
        qxOutput::error(QStringLiteral("no %1 is called \"%2\"").arg(m_word, request.before)
                        + qxSuggestions::question(request.before, names));
        return false;
    }
    const QString own = qxDocumentRename::flawOf(document, request, scope);
    const QString flaw = own.isEmpty() ? sceneFlaw : own;
    if (!flaw.isEmpty())
        qxOutput::error(
            QStringLiteral("%1 \"%2\" cannot be renamed: %3").arg(m_word, request.before, flaw));
    return flaw.isEmpty();
}

void RenameRun::print(const qxRenameImpact &impact, int objects) const
{
    if (m_parser.isSet(QStringLiteral("json")))
        return qxOutput::json(
            QJsonObject{{QStringLiteral("kind"), m_word},
                        {QStringLiteral("before"), m_request.before},
                        {QStringLiteral("after"), m_request.after},
                        {QStringLiteral("objects"), objects},
                        {QStringLiteral("changed"), notesOf(impact.changed, true)},
                        {QStringLiteral("left"), notesOf(impact.left, false)}});
    QString counts = QStringLiteral("places: %1").arg(impact.changed.size());
    if (objects > 0)
        counts = QStringLiteral("in the scene: %1, %2").arg(objects).arg(counts);
    qxOutput::line(QStringLiteral("%1 \"%2\" -> \"%3\" (%4)")
                       .arg(m_word, m_request.before, m_request.after, counts));
    QList<QStringList> rows;
    for (const qxRenameNote &each : impact.changed)
        rows += {QLatin1String("  ") + each.place,
                 QStringLiteral("%1 -> %2").arg(each.before, each.after)};
    qxOutput::table(rows);
    if (impact.left.empty())
        return;
    qxOutput::line(QStringLiteral("not changed, look here:"));
    rows.clear();
    for (const qxRenameNote &each : impact.left)
        rows += {QLatin1String("  ") + each.place, each.before};
    qxOutput::table(rows);
}

int RenameRun::run()
{
    const bool isSaved = m_parser.isSet(QStringLiteral("save"));
    if (!takeThing(m_word, m_request))
        return qxCommands::fail(QStringLiteral("nothing is of the kind \"%1\"").arg(m_word)
                                    + qxSuggestions::question(m_word, allThings()),
                                WrongUse);
    if (isSaved == isDry())
        return qxCommands::fail(QStringLiteral("rename needs either --save OUT or --dry-run"),
                                WrongUse);
    if (!m_edited.open(m_parser.positionalArguments().first()) || !m_edited.maySave(m_parser))
        return WorkFailed;
    if (m_request.thing == qxRenameRequest::Option && !findOwner(m_edited.document, m_request))
        return WorkFailed;
    if (!m_edited.isScene()) {
        if (!isAllowed(m_request, {}, QString()))
            return WorkFailed;
        print(qxDocumentRename::apply(m_edited.document, m_request), 0);
        return m_edited.saveIfAsked(m_parser);
    }
    const qxSceneRename scene(m_request, m_edited.document);
    const qxRenameScope scope = scene.scope();
    if (!isAllowed(scene.request(), scope, scene.flaw()))
        return WorkFailed;
    const qxRenameImpact impact =
        qxDocumentRename::apply(m_edited.document, scene.request(), scope);
    print(impact, scene.count());
    if (isDry())
        return Success;
    scene.apply();
    return m_edited.saveIfAsked(m_parser, impact.renames);
}

QList<QCommandLineOption> renameOptions()
{
    return {{QStringLiteral("of"),
             QStringLiteral("The variant that has the option, or the node that has the transform "
                            "state."),
             QStringLiteral("OWNER")},
            {QStringLiteral("dry-run"),
             QStringLiteral("Tells what would change, and changes nothing.")},
            qxEditedDocument::saveOption(),
            qxCommands::jsonOption(),
            qxCommands::traceOption()};
}

int runRename(const QCommandLineParser &parser)
{
    return RenameRun(parser).run();
}

} // namespace

const qxCommand qxCommands::rename = {
    "rename",
    "FILE KIND OLD NEW",
    "Renames something of a scene or its variants, and every place that names it.",
    4,
    4,
    renameOptions,
    runRename,
    "FILE may be a variants document without a scene, too. KIND is group, set, option, node, "
    "light, "
    "overlay, material, viewpoint or transform-state; node-variant, material-variant, "
    "light-variant, overlay-variant or transform-variant; and node-option and its like where "
    "several kinds of variants have the option."};
