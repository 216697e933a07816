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
    qxLintContext context(compile, false);
    const qxDocument tree = qxDocumentXml::read(document, [&context](const qxDocumentFlaw &flaw) {
        context.add(codeOf(flaw.sort), {{}, flaw.path, flaw.location}, flaw.message);
    });
    if (!tree.isWhole)
        return {context.findings.last()};
    context.variants.set(tree.variants);
    std::vector<qxLintedSet> sets;
    for (const qxDocumentSet &set : tree.sets) {
        qxLintParts::lintSet(context, set);
        sets.push_back({&set, qxLintParts::digestOf(set)});
    }
    qxLintParts::compareSets(context, sets);
    qxLintParts::compareHotkeys(context, sets);
    qxLintParts::lintGroups(context, tree.groups);
    qxLintParts::compareVariants(context);
    for (const qxLintVariant &variant : context.variants.all())
        qxLintParts::lintVariant(context, variant);
    return context.findings.inOrder();
}
