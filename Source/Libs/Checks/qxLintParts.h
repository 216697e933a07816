#pragma once

#include "qxFinding.h"
#include "qxLintReach.h"
#include "qxSceneLookup.h"

#include <functional>

/// What the parts of one look over a document share.
class qxLintContext {
public:
    explicit qxLintContext(const qxDocument &document) : tree(document), variants(document) {}

    /// A finding at an element that is a child of the one at `owner`.
    void add(qxCode code, const qxFindingPlace &place, const QString &message, const QString &owner,
             const QString &tag, const qxSourceLocation &location);
    /// A finding at the element at `path` itself.
    void add(qxCode code, const qxFindingPlace &place, const QString &message, const QString &path,
             const qxSourceLocation &location);
    /// A finding at every one of these sets or groups whose name stands before; `kind` says which.
    template <class List>
    void addTwins(qxCode code, const QString &kind, const List &all);
    ///@{
    /// Where findings of it belong to.
    static qxFindingPlace placeOf(const qxDocumentGroup &group);
    static qxFindingPlace placeOf(const qxDocumentSet &set);
    static qxFindingPlace placeOf(const qxDocumentVariant &variant);
    ///@}

    const qxDocument &tree;
    const qxSceneLookup scene;
    const qxLintVariants variants;
    qxFindingList findings;
};

template <class List>
void qxLintContext::addTwins(qxCode code, const QString &kind, const List &all)
{
    QHash<QString, int> lines;
    for (const auto &each : all) {
        const auto known = lines.constFind(each.name);
        if (known != lines.constEnd())
            add(code, placeOf(each),
                QStringLiteral("%1 \"%2\" replaces the one of line %3")
                    .arg(kind, each.name)
                    .arg(*known),
                each.path, each.location);
        lines[each.name] = each.location.line;
    }
}

/// The parts of it, each over the whole document.
namespace qxLintParts {

/// Sets: their references, names, snapshots and scripts, and how they compare with one another.
void lintSets(qxLintContext &context, const std::function<QString(const QString &script)> &compile);
/// Groups and variants by themselves. What sets use must have been noted before.
void lintGroups(qxLintContext &context);
void lintVariants(qxLintContext &context);
/// Hotkeys of sets and of options; those of options count as use of the option.
void lintHotkeys(qxLintContext &context);

} // namespace qxLintParts
