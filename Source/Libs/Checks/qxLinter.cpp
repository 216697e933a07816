#include "qxLinter.h"

#include "qxLintParts.h"

void qxLintContext::add(qxCode code, const QString &message, const QString &owner,
                        const QString &tag, const qxMark &mark)
{
    add(code, message, QStringLiteral("%1/%2[%3]").arg(owner, tag).arg(mark.ordinal), mark);
}

void qxLintContext::add(qxCode code, const QString &message, const QString &path,
                        const qxMark &mark)
{
    findings.add({code, message, path, mark.line, mark.column});
}

qxFindings qxLinter::lint(const QByteArray &document, const Compile &compile)
{
    qxFindingList findings;
    const qxSyntaxTree outline = qxSyntaxTree::of(document, findings);
    if (!outline.isWhole)
        return {findings.last()};
    qxLintContext context(outline);
    context.findings = findings;
    qxLintParts::lintSets(context, compile);
    qxLintParts::lintHotkeys(context);
    qxLintParts::lintGroups(context);
    qxLintParts::lintVariants(context);
    return context.findings.inOrder();
}
