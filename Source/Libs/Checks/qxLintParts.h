#pragma once

#include "qxLintVariants.h"
#include "qxLinter.h"

/// What the parts of one look over a document share.
class qxLintContext {
public:
    explicit qxLintContext(const qxOutline &document) : outline(document), variants(document, scene)
    {
    }

    /// A finding at an element that is a child of the one at `owner`.
    void add(qxCode code, const QString &message, const QString &owner, const QString &tag,
             const qxMark &mark);
    /// A finding at the element at `path` itself.
    void add(qxCode code, const QString &message, const QString &path, const qxMark &mark);

    const qxOutline &outline;
    const qxSceneIndex scene;
    const qxLintVariants variants;
    qxFindings findings;
};

/// The parts of it, each over the whole document.
namespace qxLintParts {

/// Sets: their references, names, snapshots and scripts, and how they compare with one another.
void lintSets(qxLintContext &context, const qxLinter::Compile &compile);
/// Groups and variants by themselves. What sets use must have been noted before.
void lintGroups(qxLintContext &context);
void lintVariants(qxLintContext &context);
/// Hotkeys of sets and of options; those of options count as use of the option.
void lintHotkeys(qxLintContext &context);

} // namespace qxLintParts
