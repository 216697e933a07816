#include "qxAmbiguityDialog.h"

#include "qxVariantCaptureChecker.h"
#include "qxVariants.h"

#include "Undo/qxSceneUndo.h"
#include "qxLog.h"
#include "qxNames.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

constexpr int rowsShown = 8; ///< at once, when there are so many

QString pathOf(const osg::NodePtr &node)
{
    return qxText::fromUtf8(qxNames::pathOf(node));
}

} // namespace

qxAmbiguityDialog::qxAmbiguityDialog(const QList<Renaming> &renamings, bool isReferredTo,
                                     QWidget *parent)
    : QDialog(parent)
{
    // What the module says when it asks itself.
    setWindowTitle(QCoreApplication::translate("qxVariants", "Ambiguous node names detected"));
    QString text =
        QCoreApplication::translate("qxVariants",
                                    "Some nodes have the same name and/or node path. In order to "
                                    "continue, the names of those nodes will be changed.\n ")
            .trimmed();
    if (isReferredTo)
        text += '\n'
            + QCoreApplication::translate("qxVariants",
                                          "\nWarning: Renaming might break existing variant "
                                          "sets!\n")
                  .trimmed();
    auto *const question = new QLabel(text);
    question->setWordWrap(true);
    auto *const buttons = new QDialogButtonBox;
    buttons
        ->addButton(QCoreApplication::translate("qxVariants", "Rename"),
                    QDialogButtonBox::AcceptRole)
        ->setDefault(true);
    buttons->addButton(QCoreApplication::translate("qxVariants", "Cancel"),
                       QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(question);
    layout->addWidget(tableOf(renamings), 1);
    layout->addWidget(buttons);
    const int width = fontMetrics().averageCharWidth();
    const int rows = qMin(renamings.size(), rowsShown) + 6;
    resize(90 * width, fontMetrics().height() * 2 * rows);
}

QTableWidget *qxAmbiguityDialog::tableOf(const QList<Renaming> &renamings)
{
    auto *const table = new QTableWidget(renamings.size(), 3);
    table->setAccessibleName(tr("Nodes and their new names"));
    table->setHorizontalHeaderLabels({tr("Name"), tr("New Name"), tr("Path")});
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setTabKeyNavigation(false);
    table->verticalHeader()->hide();
    for (int row = 0; row < renamings.size(); ++row) {
        const Renaming &each = renamings[row];
        int column = 0;
        for (const QString &text : {each.name, each.newName, each.path}) {
            auto *const item = new QTableWidgetItem(text);
            item->setToolTip(text.toHtmlEscaped());
            table->setItem(row, column++, item);
        }
    }
    table->resizeColumnsToContents();
    table->horizontalHeader()->setStretchLastSection(true);
    return table;
}

bool qxAmbiguityDialog::settleNames(QWidget *parent)
{
    qxVariantCaptureChecker checker;
    checker.findAmbiguousNodes();
    std::vector<osg::NodePtr> nodes = checker.getAmbiguousNodes();
    if (nodes.empty())
        return true;
    QList<Renaming> renamings;
    for (const osg::NodePtr &node : nodes)
        renamings.append({qxNames::nameOf(node), QString(), pathOf(node)});
    const bool isReferredTo = qxVariants::containsAmbiguousVSets(nodes);
    // Only the host knows which names are free: it gives them, and takes them back.
    qxSceneUndo names;
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        qxNodeUtils::setName(nodes[i], qxNodeUtils::getName(nodes[i]), true,
                             qxScenegraph::getRoot());
        renamings[int(i)].newName = qxNames::nameOf(nodes[i]);
    }
    names.finish();
    names.undo();
    if (qxAmbiguityDialog(renamings, isReferredTo, parent).exec() != QDialog::Accepted)
        return false;
    names.redo();
    for (const Renaming &each : renamings)
        qxLog::info("renamed %s to \"%s\"", qxText::toUtf8(each.path).c_str(),
                    qxText::toUtf8(each.newName).c_str());
    return true;
}
