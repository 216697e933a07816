#include "Rename/qxRegistryRename.h"

#include "Registry/qxRegistryEdit.h"
#include "qxLights.h"
#include "qxRegistryDocument.h"
#include "qxStateRules.h"
#include "qxSuggestions.h"

#include <algorithm>
#include <iterator>

namespace {
namespace renameWords {

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

/// Whether a light of the scene has that name.
bool isLight(const QString &name)
{
    const std::vector<qxSceneObject> nodes = qxStateRules::light.objects(name);
    return std::any_of(nodes.begin(), nodes.end(),
                       [](const qxSceneObject &each) { return qxLights::isLight(each.node); });
}

} // namespace renameWords
} // namespace

QStringList qxRenameWords::all()
{
    QStringList words;
    for (const auto &each : renameWords::thingWords)
        words += QLatin1String(each.word);
    for (const qxVariantKind *kind : qxVariantKinds::all())
        words += kind->word + QLatin1String("-variant");
    for (const qxVariantKind *kind : qxVariantKinds::all())
        words += kind->word + QLatin1String("-option");
    return words;
}

bool qxRenameWords::take(const QString &word, qxRenameRequest &request)
{
    using namespace renameWords;
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
    const bool isOption = rest == QLatin1String("option");
    request.thing = isOption ? qxRenameRequest::Option : qxRenameRequest::Variant;
    return dash > 0 && request.kind && (isOption || rest == QLatin1String("variant"));
}

QString qxRenameWords::completeOwner(const qxDocument &document, qxRenameRequest &request)
{
    if (request.thing != qxRenameRequest::Option)
        return QString();
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
        return QStringLiteral("no option is called \"%1\"").arg(wanted.before)
            + qxSuggestions::question(wanted.before, options);
    return owners.size() == 1
        ? QString()
        : QStringLiteral("\"%1\" is an option of %2; say which with --of VARIANT, and the kind as "
                         "in node-option")
              .arg(wanted.before, owners.join(QLatin1String(", ")));
}

QString qxRenameWords::refusal(const qxDocument &document, const qxRenameRequest &request,
                               const qxRenameScope &scope, const QString &word)
{
    if (!qxDocumentRename::isKnown(document, request, scope)) {
        QStringList names = scope.names + qxDocumentRename::namesOf(document, request);
        names.removeDuplicates();
        return QStringLiteral("no %1 is called \"%2\"").arg(word, request.before)
            + qxSuggestions::question(request.before, names);
    }
    const QString flaw = qxDocumentRename::flawOf(document, request, scope);
    return flaw.isEmpty()
        ? QString()
        : QStringLiteral("%1 \"%2\" cannot be renamed: %3").arg(word, request.before, flaw);
}

qxRegistryRename::Outcome qxRegistryRename::apply(const QString &word, qxRenameRequest request,
                                                  bool isDry)
{
    Outcome outcome;
    qxDocument document = qxRegistryDocument::current();
    document.settle();
    outcome.refusal = qxRenameWords::completeOwner(document, request);
    if (!outcome.refusal.isEmpty())
        return outcome;
    const auto scene = std::make_shared<const qxSceneRename>(request, document);
    const qxRenameScope scope = scene->scope();
    const bool isNoLight = word == QLatin1String("light") && !renameWords::isLight(request.before);
    outcome.refusal = isNoLight ? QStringLiteral("no light is called \"%1\"").arg(request.before)
                                : qxRenameWords::refusal(document, scene->request(), scope, word);
    if (outcome.refusal.isEmpty())
        outcome.refusal = scene->flaw();
    if (!outcome.refusal.isEmpty())
        return outcome;
    outcome.impact = qxDocumentRename::apply(document, scene->request(), scope);
    outcome.scene = scene;
    if (isDry)
        return outcome;
    scene->apply();
    qxRegistryEdit::apply(document, outcome.impact.renames);
    return outcome;
}
