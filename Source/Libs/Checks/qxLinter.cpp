#include "qxLinter.h"

#include "qxLintParts.h"

void qxLintContext::add(qxCode code, const QString &message, const QString &owner,
                        const QString &tag, const qxSourceLocation &location)
{
    add(code, message, QStringLiteral("%1/%2[%3]").arg(owner, tag).arg(location.ordinal), location);
}

void qxLintContext::add(qxCode code, const QString &message, const QString &path,
                        const qxSourceLocation &location)
{
    findings.add({code, message, path, location.line, location.column});
}

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
