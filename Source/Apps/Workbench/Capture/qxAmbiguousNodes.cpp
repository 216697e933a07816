#include "Capture/qxAmbiguousNodes.h"

#include "qxVariantCaptureChecker.h"
#include "qxVariants.h"

#include "qxNodePath.h"
#include "qxNodeUtils.h"
#include "qxOutput.h"
#include "qxScenegraph.h"

#include <cstdio>
#include <unistd.h>

namespace {

/// Whether somebody sits there who reads a question and can answer it.
bool isTerminal()
{
    return isatty(STDIN_FILENO) && isatty(STDERR_FILENO);
}

QString nameOf(const osg::NodePtr &node)
{
    return QString::fromStdString(qxNodeUtils::getName(node));
}

} // namespace

qxAmbiguousNodes::qxAmbiguousNodes()
{
    qxVariantCaptureChecker checker;
    checker.findAmbiguousNodes();
    m_nodes = checker.getAmbiguousNodes();
}

QList<QStringList> qxAmbiguousNodes::rows() const
{
    QList<QStringList> rows;
    for (const osg::NodePtr &node : m_nodes)
        rows += QStringList{nameOf(node), qxNodePath(node)};
    return rows;
}

void qxAmbiguousNodes::list() const
{
    qxOutput::error(QStringLiteral("some nodes have the same name or node path:"));
    for (const QStringList &row : rows())
        qxOutput::note(QStringLiteral("  ") + row[1]);
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
        const QString path = qxNodePath(node);
        qxNodeUtils::setName(node, qxNodeUtils::getName(node), true, qxScenegraph::getRoot());
        qxOutput::note(QStringLiteral("renamed %1 to \"%2\"").arg(path, nameOf(node)));
    }
}
