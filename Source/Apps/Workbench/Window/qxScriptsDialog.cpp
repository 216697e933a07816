#include "qxScriptsDialog.h"

#include "Core/qxVisibleText.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

const int shownLength = 100000; ///< characters; more are hard to read, and to lay out

QString wordFor(qxTrustStore::Decision decision)
{
    switch (decision) {
    case qxTrustStore::Trusted:
        return qxScriptsDialog::tr("trusted");
    case qxTrustStore::Never:
        return qxScriptsDialog::tr("never run");
    default:
        return qxScriptsDialog::tr("not run");
    }
}

} // namespace

qxScriptsDialog::qxScriptsDialog(const QString &file, const QList<qxFileScripts::Script> &scripts,
                                 QWidget *parent)
    : QDialog(parent), m_scripts(scripts)
{
    setObjectName(QStringLiteral("scriptsDialog"));
    setWindowTitle(tr("Scripts of \"%1\"").arg(file));
    auto *const layout = new QVBoxLayout(this);
    auto *const question = new QLabel(
        tr("This file brings along scripts, which run when their sets are selected. A script can "
           "do all that you can: read, change and delete your files. Trust these only if you know "
           "where they come from. Until then the sets are selected without them."));
    question->setTextFormat(Qt::PlainText);
    question->setWordWrap(true);
    layout->addWidget(question);
    layout->addWidget(buildScripts(), 1);
    auto *const buttons = new QDialogButtonBox;
    // Only one is shown at a time.
    const int count = scripts.size();
    addButton(buttons, count > 1 ? tr("&Trust All %n", nullptr, count) : tr("&Trust"),
              qxTrustStore::Trusted);
    addButton(buttons, tr("N&ever"), qxTrustStore::Never);
    QPushButton *const later = buttons->addButton(tr("&Not Now"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    later->setDefault(true); // Only a button that is in its dialog can be that.
    later->setFocus();
    resize(60 * fontMetrics().averageCharWidth() * 2, 28 * fontMetrics().height());
}

void qxScriptsDialog::addButton(QDialogButtonBox *buttons, const QString &text,
                                qxTrustStore::Decision decision)
{
    QPushButton *const button = buttons->addButton(text, QDialogButtonBox::ActionRole);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, decision] {
        m_decision = decision;
        accept();
    });
}

QWidget *qxScriptsDialog::buildScripts()
{
    m_sets = new QTreeWidget;
    m_sets->setHeaderLabels({tr("Set"), tr("Its Script")});
    m_sets->setRootIsDecorated(false);
    m_sets->setUniformRowHeights(true);
    for (const qxFileScripts::Script &script : m_scripts)
        new QTreeWidgetItem(m_sets, {qxVisibleText::code(script.set), wordFor(script.decision)});
    m_sets->header()->setStretchLastSection(false);
    m_sets->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_sets->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_sets->setAccessibleName(tr("Sets with scripts"));
    m_text = new QPlainTextEdit;
    m_text->setAccessibleName(tr("Script"));
    m_text->setReadOnly(true);
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_text->setWordWrapMode(QTextOption::WrapAnywhere); // Nothing hides beyond the right edge.
    connect(m_sets, &QTreeWidget::currentItemChanged, this, &qxScriptsDialog::showScript);
    m_sets->setCurrentItem(m_sets->topLevelItem(0));
    auto *const splitter = new QSplitter;
    splitter->addWidget(m_sets);
    splitter->addWidget(m_text);
    splitter->setStretchFactor(0, 2);
    splitter->setStretchFactor(1, 3);
    splitter->setChildrenCollapsible(false);
    return splitter;
}

void qxScriptsDialog::showScript()
{
    const int row = m_sets->indexOfTopLevelItem(m_sets->currentItem());
    const QString text = row < 0 ? QString() : m_scripts[row].text;
    QString shown = qxVisibleText::code(text.left(shownLength));
    const int more = text.size() - shownLength;
    if (more > 0)
        shown += QLatin1String("\n\n")
            + tr("... and %n more characters, which are not shown here", nullptr, more);
    m_text->setPlainText(shown);
}
