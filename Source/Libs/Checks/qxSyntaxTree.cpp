#include "qxSyntaxTree.h"

bool qxSyntaxTreeSet::isEmpty() const
{
    return references.empty() && of(qxNameList::Viewpoints).empty()
        && of(qxNameList::Animations).empty() && of(qxNameList::Geometries).empty()
        && script.text.isEmpty() && clipState == 0;
}
