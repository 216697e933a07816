#include "Rename/qxDocumentRename.h"

#include "Rename/qxDocumentPlaces.h"
#include "Rename/qxScriptLiterals.h"
#include "qxDocumentIndex.h"

#include <QSet>

#include <algorithm>
#include <map>

namespace {

const QLatin1Char Separator('/');

/// The path in which the steps that make up `before` make up `after`.
QString pathAfter(const QString &path, const QString &before, const QString &after)
{
    const QStringList steps = path.split(Separator);
    const QStringList wanted = before.split(Separator);
    QStringList renamed;
    for (int at = 0; at < steps.size();) {
        if (steps.mid(at, wanted.size()) == wanted) {
            renamed += after;
            at += wanted.size();
        } else {
            renamed += steps[at++];
        }
    }
    return renamed.join(Separator);
}

/// The request beside what a place of the document means.
class Matcher {
public:
    Matcher(const qxDocument &document, const qxRenameRequest &request, const qxRenameScope &scope)
        : m_document(document), m_index(document), m_request(request), m_scope(scope)
    {
    }

    /// Whether a name in that place is of the sort that is renamed, whatever it is.
    bool isSort(const qxDocumentPlace &place, const QString &name) const;
    /// Whether it is the name of the thing.
    bool isThing(const qxDocumentPlace &place, const QString &name) const
    {
        return name == m_request.before && isSort(place, name)
            && (place.named != qxNamed::State || isState(place.kind, place.owner));
    }
    /// Whether the old name, as a state of that variant, means the thing.
    bool isState(const qxVariantKind *kind, const QString &variant) const;
    /// The scene object that the variant with the option drives.
    QString base() const
    {
        const int at = m_index.variant(m_request.kind, m_request.owner);
        return at < 0 ? QString() : m_document.variants[std::size_t(at)].base;
    }
    /// All that the path becomes.
    QStringList pathsAfter(const QString &path) const;

private:
    const qxDocument &m_document;
    const qxDocumentIndex m_index;
    const qxRenameRequest &m_request;
    const qxRenameScope &m_scope;
};

std::optional<qxNamed> namedBy(qxRenameRequest::Thing thing)
{
    switch (thing) {
    case qxRenameRequest::Group:
        return qxNamed::Group;
    case qxRenameRequest::Set:
        return qxNamed::Set;
    case qxRenameRequest::Variant:
        return qxNamed::Variant;
    case qxRenameRequest::Node:
        return qxNamed::Node;
    case qxRenameRequest::Overlay:
        return qxNamed::Overlay;
    case qxRenameRequest::Material:
        return qxNamed::Material;
    case qxRenameRequest::Viewpoint:
        return qxNamed::Viewpoint;
    case qxRenameRequest::Option:
    case qxRenameRequest::TransformState:
        break;
    }
    return std::nullopt;
}

bool Matcher::isSort(const qxDocumentPlace &place, const QString &name) const
{
    if (place.named == qxNamed::State) {
        if (m_request.thing == qxRenameRequest::Option)
            return place.kind == m_request.kind && place.owner == m_request.owner;
        if (m_request.thing == qxRenameRequest::TransformState) {
            const int at = m_index.variant(place.kind, place.owner);
            const bool isOwner = m_request.owner.isEmpty()
                || (at >= 0 && m_document.variants[std::size_t(at)].base == m_request.owner);
            return place.kind == &qxVariantKinds::transform && isOwner
                && !name.startsWith(QLatin1Char('!'));
        }
        const auto named = qxDocumentPlaces::stateOf(*place.kind, name);
        return named && named == namedBy(m_request.thing);
    }
    const bool isKind = place.named != qxNamed::Variant || place.kind == m_request.kind;
    return namedBy(m_request.thing) == place.named && isKind;
}

bool Matcher::isState(const qxVariantKind *kind, const QString &variant) const
{
    const int at = m_index.variant(kind, variant);
    return !m_scope.isStateOf || at < 0 || m_scope.isStateOf(m_document.variants[std::size_t(at)]);
}

QStringList Matcher::pathsAfter(const QString &path) const
{
    if (m_request.thing != qxRenameRequest::Node)
        return {path};
    const QStringList known = m_scope.pathsAfter ? m_scope.pathsAfter(path) : QStringList();
    return known.isEmpty()
        ? QStringList(m_scope.isPartial ? path : pathAfter(path, m_request.before, m_request.after))
        : known;
}

/// Renames one document and notes what it does.
class Rename {
public:
    Rename(qxDocument &document, const qxRenameRequest &request, const qxRenameScope &scope)
        : m_document(document), m_before(document), m_request(request), m_scope(scope),
          m_matcher(m_before, request, scope)
    {
    }

    qxRenameImpact run();

private:
    void renameNames();
    void renamePaths(qxDocumentSet &set);
    void renameInScript(qxDocumentSet &set);
    /// What the text becomes; nothing when it does not name the thing.
    std::optional<QString> renamed(const qxScriptLiteral &text) const;
    bool isStateInScript(const qxVariantKind &kind, const qxScriptLiteral &text) const;
    bool isLeft(const qxScriptLiteral &text) const;
    void noteNamesakes();

    qxDocument &m_document;
    const qxDocument m_before; ///< what look-ups go by while names change
    const qxRenameRequest &m_request;
    const qxRenameScope &m_scope;
    const Matcher m_matcher;
    qxRenameImpact m_impact;
};

void Rename::renameNames()
{
    qxDocumentPlaces::visit(m_document, [this](const qxDocumentPlace &place, QString &name) {
        if (!m_matcher.isThing(place, name))
            return;
        m_impact.changed.push_back({place.text(), name, m_request.after});
        name = m_request.after;
    });
    switch (m_request.thing) {
    case qxRenameRequest::Group:
        return m_impact.renames.push_back(
            {qxRename::Group, nullptr, m_request.before, m_request.after});
    case qxRenameRequest::Set:
        return m_impact.renames.push_back(
            {qxRename::Set, nullptr, m_request.before, m_request.after});
    case qxRenameRequest::Variant:
        return m_impact.renames.push_back(
            {qxRename::Variant, m_request.kind, m_request.before, m_request.after});
    default:
        return;
    }
}

/// The snapshots of a set are in the order of their paths, and a path has one.
void Rename::renamePaths(qxDocumentSet &set)
{
    std::map<QString, qxDocumentText> renamed;
    bool isChanged = false;
    for (const qxDocumentText &each : set.snapshots) {
        for (const QString &path : m_matcher.pathsAfter(each.text)) {
            if (path != each.text) {
                isChanged = true;
                m_impact.changed.push_back(
                    {QStringLiteral("set \"%1\", snapshot").arg(set.name), each.text, path});
            }
            qxDocumentText moved = each;
            moved.text = path;
            renamed[path] = moved;
        }
    }
    if (!isChanged)
        return;
    set.snapshots.clear();
    for (auto &each : renamed)
        set.snapshots.push_back(std::move(each.second));
}

/// Whether the state that a script gives a scene object is the thing.
bool Rename::isStateInScript(const qxVariantKind &kind, const qxScriptLiteral &text) const
{
    if (m_request.thing == qxRenameRequest::Option)
        return m_request.kind == &kind && text.of == m_matcher.base();
    if (namedBy(m_request.thing) != qxDocumentPlaces::stateOf(kind, text.text))
        return false;
    // The variant that a script gets for an object is called like it.
    return m_matcher.isState(&kind, text.of);
}

std::optional<QString> Rename::renamed(const qxScriptLiteral &text) const
{
    if (text.named == qxScriptNamed::Path) {
        const QStringList paths = m_matcher.pathsAfter(text.text);
        return paths.size() == 1 && paths.front() != text.text
            ? std::optional<QString>(paths.front())
            : std::nullopt;
    }
    const auto isNamed = [&] {
        const qxRenameRequest::Thing thing = m_request.thing;
        switch (text.named) {
        case qxScriptNamed::Set:
            return thing == qxRenameRequest::Set;
        case qxScriptNamed::Group:
            return thing == qxRenameRequest::Group;
        case qxScriptNamed::Variant:
            return thing == qxRenameRequest::Variant && text.of == m_request.kind->word;
        case qxScriptNamed::Node:
            return thing == qxRenameRequest::Node && !m_scope.isPartial;
        case qxScriptNamed::Material:
            return thing == qxRenameRequest::Material && !m_scope.isPartial;
        case qxScriptNamed::Viewpoint:
            return thing == qxRenameRequest::Viewpoint;
        case qxScriptNamed::NodeState:
            return isStateInScript(qxVariantKinds::node, text);
        case qxScriptNamed::MaterialState:
            return isStateInScript(qxVariantKinds::material, text);
        default:
            return false;
        }
    };
    if (text.text != m_request.before || !isNamed())
        return std::nullopt;
    return m_request.after;
}

/// Whether the text may mean the thing, though nobody can tell.
bool Rename::isLeft(const qxScriptLiteral &text) const
{
    if (!qxScriptLiterals::mentions(text.text, m_request.before))
        return false;
    const bool isClear = text.named != qxScriptNamed::Nothing && text.named != qxScriptNamed::Path;
    // addGeometry and its like find the variant that is called like the object.
    const bool isObject = m_request.thing == qxRenameRequest::Variant
        && (text.named == qxScriptNamed::Node || text.named == qxScriptNamed::Material);
    return !isClear || isObject || m_scope.isPartial;
}

void Rename::renameInScript(qxDocumentSet &set)
{
    QString script;
    int copied = 0;
    const QString &source = set.script.text;
    for (const qxScriptLiteral &text : qxScriptLiterals::of(source)) {
        const QString place =
            QStringLiteral("set \"%1\", script, line %2").arg(set.name).arg(text.line);
        const std::optional<QString> name = renamed(text);
        if (name) {
            script += source.midRef(copied, text.begin - copied);
            script += qxScriptLiterals::quoted(source.mid(text.begin, text.length), *name);
            copied = text.begin + text.length;
            m_impact.changed.push_back({place, text.text, *name});
        } else if (isLeft(text)) {
            const QString line = source.section(QLatin1Char('\n'), text.line - 1, text.line - 1);
            if (m_impact.left.empty() || m_impact.left.back().place != place)
                m_impact.left.push_back({place, line.trimmed(), line.trimmed()});
        }
    }
    if (copied > 0)
        set.script.text = script + source.midRef(copied);
}

/// Variants that are called like their scene object keep their name.
void Rename::noteNamesakes()
{
    for (const qxDocumentVariant &each : m_before.variants) {
        const bool isObject = namedBy(m_request.thing) == qxDocumentPlaces::objectOf(*each.kind);
        if (isObject && each.base == m_request.before && each.name == m_request.before)
            m_impact.left.push_back(
                {QStringLiteral("%1 variant \"%2\", name").arg(each.kind->word, each.name),
                 each.name, each.name});
    }
}

qxRenameImpact Rename::run()
{
    renameNames();
    for (qxDocumentSet &set : m_document.sets) {
        renamePaths(set);
        renameInScript(set);
    }
    noteNamesakes();
    return std::move(m_impact);
}

/// Why no thing of the sort can have that name.
QString flawOfName(const qxRenameRequest &request)
{
    const bool isOfScene =
        request.thing >= qxRenameRequest::Option && request.thing != qxRenameRequest::Viewpoint;
    if (request.after.isEmpty())
        return QStringLiteral("the new name is empty");
    if (request.before == request.after)
        return QStringLiteral("it is called so already");
    if (isOfScene && request.before.startsWith(QLatin1Char('!'))
        && request.thing == qxRenameRequest::Option)
        return QStringLiteral("\"%1\" is an action, and has this name in every variant")
            .arg(request.before);
    if (request.thing == qxRenameRequest::Option && request.kind == &qxVariantKinds::node
        && !qxDocumentPlaces::stateOf(*request.kind, request.before))
        return QStringLiteral("\"%1\" is the number of a transform").arg(request.before);
    if (isOfScene && request.after.startsWith(QLatin1Char('!')))
        return QStringLiteral("a name that begins with \"!\" would be taken for an action");
    if (request.thing == qxRenameRequest::Node && request.after.contains(Separator))
        return QStringLiteral("\"/\" in the name of a node would look like a step of a path");
    return QString();
}

/// Whether a path has these steps.
bool hasSteps(const QString &path, const QString &steps)
{
    const QString framed = Separator + path + Separator;
    return framed.contains(Separator + steps + Separator);
}

} // namespace

QStringList qxDocumentRename::namesOf(const qxDocument &document, const qxRenameRequest &request)
{
    const qxRenameScope none;
    const Matcher matcher(document, request, none);
    QStringList names;
    QSet<QString> known;
    qxDocument copy = document;
    qxDocumentPlaces::visit(copy, [&](const qxDocumentPlace &place, QString &name) {
        if (!matcher.isSort(place, name) || name.isEmpty() || known.contains(name))
            return;
        known.insert(name);
        names += name;
    });
    return names;
}

bool qxDocumentRename::isKnown(const qxDocument &document, const qxRenameRequest &request,
                               const qxRenameScope &scope)
{
    return scope.names.contains(request.before)
        || namesOf(document, request).contains(request.before);
}

QString qxDocumentRename::flawOf(const qxDocument &document, const qxRenameRequest &request,
                                 const qxRenameScope &scope)
{
    const QString flaw = flawOfName(request);
    if (!flaw.isEmpty())
        return flaw;
    if (scope.names.contains(request.after))
        return QStringLiteral("the scene has something called \"%1\" already").arg(request.after);
    const Matcher matcher(document, request, scope);
    QString found;
    qxDocument copy = document;
    qxDocumentPlaces::visit(copy, [&](const qxDocumentPlace &place, QString &name) {
        const bool isStep = request.thing == qxRenameRequest::Node && place.named == qxNamed::Path
            && hasSteps(name, request.after);
        if (!found.isEmpty())
            return;
        if (isStep || (name == request.after && matcher.isSort(place, name)))
            found = QStringLiteral("\"%1\" is taken: %2").arg(request.after, place.text());
        else if (scope.isPartial && place.named != qxNamed::State && matcher.isThing(place, name))
            found = QStringLiteral("others in the scene are called \"%1\" as well, and %2 means "
                                   "them all; rename all of them")
                        .arg(request.before, place.text());
    });
    return found;
}

qxRenameImpact qxDocumentRename::apply(qxDocument &document, const qxRenameRequest &request,
                                       const qxRenameScope &scope)
{
    return Rename(document, request, scope).run();
}
