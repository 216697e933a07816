#include "qxSyntaxTree.h"

#include "qxSyntaxTreeReader.h"

bool qxSyntaxTreeSet::isEmpty() const
{
    return references.empty() && of(qxNameList::Viewpoints).empty()
        && of(qxNameList::Animations).empty() && of(qxNameList::Geometries).empty()
        && script.text.isEmpty() && clipState == 0;
}

qxSyntaxTree qxSyntaxTree::of(const QByteArray &document, qxFindingList &findings)
{
    qxSyntaxTree tree;
    qxSyntaxTreeReader(document, tree, findings).read();
    return tree;
}
