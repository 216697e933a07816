#include "Commands/qxAmbiguousNodes.h"

#include "qxVariantCaptureChecker.h"
#include "qxVariants.h"

#include "Report/qxOutput.h"
#include "qxNames.h"

#include <cstdio>
#include <unistd.h>

using qxNames::nameOf;

namespace {

const int listed = 20; ///< before a question

/// Whether somebody sits there who reads a question and can answer it.
bool isTerminal()
{
    return isatty(STDIN_FILENO) && isatty(STDERR_FILENO);
}

} // namespace

qxAmbiguousNodes::qxAmbiguousNodes()
{
    qxVariantCaptureChecker checker;
    checker.findAmbiguousNodes();
    m_nodes = checker.getAmbiguousNodes();
}

QStringList qxAmbiguousNodes::row(int index) const
{
    const osg::NodePtr &node = m_nodes[std::size_t(index)];
    return {nameOf(node), qxText::fromUtf8(qxNames::pathOf(node))};
}

void qxAmbiguousNodes::list() const
{
    qxOutput::error(QStringLiteral("some nodes have the same name or node path:"));
    for (int i = 0; i < qMin(count(), listed); ++i)
        qxOutput::note(QStringLiteral("  ") + row(i)[1]);
    if (count() > listed)
        qxOutput::note(
            QStringLiteral("and %1 more; workbench check lists them").arg(count() - listed));
}

bool qxAmbiguousNodes::mayRename()
{
    list();
    if (qxVariants::containsAmbiguousVSets(m_nodes))
        qxOutput::note(QStringLiteral("Renaming them might break existing variant sets."));
    if (!isTerminal())
        return false;
    std::fprintf(stderr, "Rename them? [y/N] ");
    char answer[16] = "";
    return std::fgets(answer, sizeof(answer), stdin) && (*answer == 'y' || *answer == 'Y');
}

void qxAmbiguousNodes::rename()
{
    for (const osg::NodePtr &node : m_nodes) {
        const QString path = qxText::fromUtf8(qxNames::pathOf(node));
        qxNodeUtils::setName(node, qxNodeUtils::getName(node), true, qxScenegraph::getRoot());
        qxOutput::note(QStringLiteral("renamed %1 to \"%2\"").arg(path, nameOf(node)));
    }
}
