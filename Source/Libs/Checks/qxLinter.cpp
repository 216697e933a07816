#include "qxLinter.h"

#include "qxLintParts.h"

qxFindings qxLinter::lint(const QByteArray &document, const Compile &compile)
{
    qxFindingList findings;
    const qxSyntaxTree tree = qxSyntaxTree::of(document, findings);
    if (!tree.isWhole)
        return {findings.last()};
    qxLintContext context(tree);
    context.findings = findings;
    qxLintParts::lintSets(context, compile);
    qxLintParts::lintHotkeys(context);
    qxLintParts::lintGroups(context);
    qxLintParts::lintVariants(context);
    return context.findings.inOrder();
}
