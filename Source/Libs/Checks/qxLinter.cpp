#include "qxLinter.h"

#include "qxDocumentXml.h"
#include "qxLintParts.h"

namespace {

qxCode codeOf(qxDocumentFlaw::Sort flaw)
{
    switch (flaw) {
    case qxDocumentFlaw::Unreadable:
        return qxCode::UnreadableDocument;
    case qxDocumentFlaw::NoName:
        return qxCode::ElementWithoutName;
    case qxDocumentFlaw::Unknown:
        return qxCode::UnknownElement;
    case qxDocumentFlaw::NoWord:
        return qxCode::WordNeitherTrueNorFalse;
    case qxDocumentFlaw::NoNumber:
        return qxCode::UnreadableNumber;
    case qxDocumentFlaw::NoPicture:
        return qxCode::PreviewWithoutPicture;
    case qxDocumentFlaw::NoKey:
        return qxCode::ValueWithoutName;
    case qxDocumentFlaw::Forbidden:
        break;
    }
    return qxCode::ForbiddenCharacter;
}

} // namespace

qxFindings qxLinter::lint(const QByteArray &document, const Compile &compile)
{
    qxFindingList findings;
    const qxDocument tree = qxDocumentXml::read(document, [&findings](const qxDocumentFlaw &flaw) {
        findings.add({codeOf(flaw.sort),
                      flaw.message,
                      flaw.path,
                      flaw.location.line,
                      flaw.location.column,
                      0,
                      {}});
    });
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
