#include "qxKeysPage.h"

#include "qxKeyList.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTextDocument>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

/// Calls `take` with each title, with an empty key, and each line below it, if it is shown.
template <class Take>
void visitShown(const QTreeWidget &list, const Take &take)
{
    for (int place = 0; place < list.topLevelItemCount(); ++place) {
        const QTreeWidgetItem &section = *list.topLevelItem(place);
        if (section.isHidden())
            continue;
        take(section.text(0), QString());
        for (int row = 0; row < section.childCount(); ++row) {
            const QTreeWidgetItem &line = *section.child(row);
            if (!line.isHidden())
                take(line.text(0), line.text(1));
        }
    }
}

} // namespace

qxKeysPage::qxKeysPage(const QMainWindow &window, QWidget *parent)
    : QDialog(parent), m_search(new QLineEdit), m_list(new QTreeWidget)
{
    setObjectName(QStringLiteral("keysPage"));
    setWindowTitle(tr("Keys and mouse"));
    m_search->setClearButtonEnabled(true);
    m_search->setPlaceholderText(tr("Search for what is done, or for a key"));
    m_search->setAccessibleName(m_search->placeholderText());
    connect(m_search, &QLineEdit::textChanged, this, &qxKeysPage::search);
    m_list->setHeaderLabels({tr("What it does"), tr("Keys, mouse")});
    m_list->setAccessibleName(windowTitle());
    m_list->setUniformRowHeights(true);
    m_list->setRootIsDecorated(false);
    m_list->setItemsExpandable(false);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    fill(window);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton *const copyButton = buttons->addButton(tr("&Copy"), QDialogButtonBox::ActionRole);
    QPushButton *const printButton =
        buttons->addButton(tr("&Print..."), QDialogButtonBox::ActionRole);
    for (QPushButton *button : {copyButton, printButton})
        button->setAutoDefault(false);
    connect(copyButton, &QPushButton::clicked, this, &qxKeysPage::copy);
    connect(printButton, &QPushButton::clicked, this, &qxKeysPage::print);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_search);
    layout->addWidget(m_list, 1);
    layout->addWidget(buttons);
    resize(90 * fontMetrics().averageCharWidth(), 30 * fontMetrics().height());
    m_search->setFocus();
}

void qxKeysPage::fill(const QMainWindow &window)
{
    QFont bold = font();
    bold.setBold(true);
    const qxKeyList keys(window);
    for (const qxKeyList::Section &section : keys.sections()) {
        auto *const top = new QTreeWidgetItem(m_list, {section.title});
        top->setFont(0, bold);
        top->setFirstColumnSpanned(true);
        for (const qxKeyList::Entry &entry : section.entries)
            new QTreeWidgetItem(top, {entry.effect, entry.keys});
    }
    m_list->expandAll();
}

/// Every word has to be in the line, in its title or in its keys.
void qxKeysPage::search(const QString &text)
{
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (int place = 0; place < m_list->topLevelItemCount(); ++place) {
        QTreeWidgetItem &section = *m_list->topLevelItem(place);
        bool isAnyShown = false;
        for (int row = 0; row < section.childCount(); ++row) {
            QTreeWidgetItem &line = *section.child(row);
            const QString all =
                QStringList{section.text(0), line.text(0), line.text(1)}.join(QLatin1Char(' '));
            bool isFound = true;
            for (const QString &word : words)
                isFound &= all.contains(word, Qt::CaseInsensitive);
            line.setHidden(!isFound);
            isAnyShown |= isFound;
        }
        section.setHidden(!isAnyShown);
    }
}

QString qxKeysPage::html() const
{
    QString rows;
    visitShown(*m_list, [&rows](const QString &effect, const QString &keys) {
        const QString text = effect.toHtmlEscaped();
        rows += keys.isEmpty()
            ? QStringLiteral("<tr><th colspan=\"2\" align=\"left\">%1</th></tr>").arg(text)
            : QStringLiteral("<tr><td>%1</td><td>%2</td></tr>").arg(text, keys.toHtmlEscaped());
    });
    return QStringLiteral("<h2>%1</h2><table cellspacing=\"4\">%2</table>")
        .arg(windowTitle().toHtmlEscaped(), rows);
}

void qxKeysPage::copy() const
{
    QString lines;
    visitShown(*m_list, [&lines](const QString &effect, const QString &keys) {
        lines += keys.isEmpty() ? '\n' + effect + '\n' : effect + '\t' + keys + '\n';
    });
    auto *const copied = new QMimeData;
    copied->setText(lines.trimmed() + '\n');
    copied->setHtml(html());
    QGuiApplication::clipboard()->setMimeData(copied);
}

void qxKeysPage::print()
{
    QPrinter printer;
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    QTextDocument page;
    page.setHtml(html());
    page.print(&printer);
}
