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

/// How much there is to look at: in the text, in each set, in all beside one another, and in each
/// variant. That is the order in which things are found.
std::vector<int> weightsOf(const qxDocument &document)
{
    const auto size = [](const auto &list) { return int(list.size()); };
    std::vector<int> weights = {1};
    for (const qxDocumentSet &set : document.sets) {
        weights.push_back(1 + size(set.references) + size(set.snapshots));
        for (const auto &list : set.names)
            weights.back() += size(list);
    }
    weights.push_back(1 + size(document.sets) + size(document.variants));
    for (const qxDocumentVariant &variant : document.variants)
        weights.push_back(1 + size(variant.options));
    return weights;
}

void compareAll(qxLintContext &context, const qxDocument &document)
{
    std::vector<qxLintedSet> sets;
    for (const qxDocumentSet &set : document.sets)
        sets.push_back({&set, qxLintParts::digestOf(set)});
    qxLintParts::compareSets(context, sets);
    qxLintParts::compareHotkeys(context, sets);
    qxLintParts::lintGroups(context, document.groups);
    qxLintParts::compareVariants(context);
}

/// What the sets of other shares use is used, too.
void lintShare(qxLintContext &context, const qxDocument &document, const qxShare::Parts &parts)
{
    std::size_t part = 1;
    for (const qxDocumentSet &set : document.sets)
        (parts.contain(part++) ? qxLintParts::lintSet : qxLintParts::noteUses)(context, set);
    if (parts.contain(part++))
        compareAll(context, document);
    for (const qxLintVariant &variant : context.variants.all()) {
        if (parts.contain(part++))
            qxLintParts::lintVariant(context, variant);
    }
}

/// Nothing else counts then.
qxFindingList only(const qxFinding &finding)
{
    qxFindingList list;
    list.add(finding);
    return list;
}

qxFindingList findingsOf(const QByteArray &document, const qxLinter::Compile &compile,
                         const qxShare &share)
{
    qxLintContext context(compile, false);
    const qxDocument tree = qxDocumentXml::read(document, [&context](const qxDocumentFlaw &flaw) {
        context.add(codeOf(flaw.sort), {{}, flaw.path, flaw.location}, flaw.message);
    });
    const qxShare::Parts parts = share.of(weightsOf(tree));
    if (!parts.contain(0))
        context.findings = qxFindingList();
    else if (!tree.isWhole)
        context.findings = only(context.findings.last());
    if (!tree.isWhole)
        return context.findings;
    context.variants.set(tree.variants);
    lintShare(context, tree, parts);
    return context.findings;
}

} // namespace

qxFindings qxLinter::lint(const QByteArray &document, const Compile &compile)
{
    return findingsOf(document, compile, qxShare()).inOrder();
}

qxFindings qxLinter::lint(const QByteArray &document, const Compile &compile, const qxShare &share)
{
    return findingsOf(document, compile, share).asFound();
}

qxFindings qxLinter::merge(const std::vector<qxFindings> &shares)
{
    qxFindingList all;
    for (const qxFindings &share : shares) {
        for (const qxFinding &finding : share)
            all.add(finding);
    }
    return all.inOrder();
}
