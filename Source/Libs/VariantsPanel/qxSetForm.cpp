#include "qxSetForm.h"

#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxKeyText.h"
#include "qxPanelEvents.h"
#include "qxSetEdits.h"
#include "qxUberCameraPool.h"

#include <QComboBox>
#include <QEvent>
#include <QFontDatabase>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QToolButton>

namespace {

QStringList statesOf(const qxStateList &states)
{
    QStringList lines;
    for (const qxVariantState &entry : states)
        lines << entry.variant + QStringLiteral(": ") + entry.state;
    return lines;
}

/// The states of the set in the order in which a user thinks of them.
QString summary(const qxVariantSet &set)
{
    QStringList lines = statesOf(set.nodeVariants);
    lines += statesOf(set.materialVariants) + statesOf(set.lightVariants)
        + statesOf(set.overlayVariants) + statesOf(set.transformVariants);
    return lines.join('\n');
}

QMap<QString, QString> valuesIn(const QTableWidget &table)
{
    QMap<QString, QString> values;
    for (int row = 0; row < table.rowCount(); ++row) {
        const QTableWidgetItem *const key = table.item(row, 0);
        const QTableWidgetItem *const value = table.item(row, 1);
        if (key && !key->text().isEmpty())
            values.insert(key->text(), value ? value->text() : QString());
    }
    return values;
}

void setTextIfOther(QPlainTextEdit *field, const QString &text)
{
    if (field->toPlainText() != text) // The cursor stays where it is otherwise.
        field->setPlainText(text);
}

} // namespace

qxSetForm::qxSetForm(qxPanelEvents *events, qxSetEdits *edits, QWidget *parent)
    : QWidget(parent), m_edits(edits)
{
    buildFields();
    connect(events, &qxPanelEvents::setsChanged, this, &qxSetForm::refresh);
    connect(m_hotkey, &QKeySequenceEdit::editingFinished, this, &qxSetForm::takeHotkey);
    connect(m_viewpoint, QOverload<int>::of(&QComboBox::activated), this,
            &qxSetForm::takeViewpoint);
    connect(m_values, &QTableWidget::itemChanged, this, &qxSetForm::takeValues);
    m_comment->installEventFilter(this);
    m_script->installEventFilter(this);
    retranslate();
}

void qxSetForm::buildFields()
{
    m_contents = new QLabel;
    m_contents->setWordWrap(true);
    m_contents->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_contents->setWordWrap(true);
    m_contents->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_comment = new QPlainTextEdit;
    m_comment->setTabChangesFocus(true);
    m_comment->setMaximumHeight(4 * fontMetrics().height());
    m_viewpoint = new QComboBox;
    // Long names must not make the form wider than its dock.
    m_viewpoint->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_viewpoint->setMinimumContentsLength(8);
    m_script = new QPlainTextEdit;
    m_script->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_script->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_script->setTabChangesFocus(true);
    m_values = new QTableWidget(0, 2);
    m_values->horizontalHeader()->setStretchLastSection(true);
    m_values->setTabKeyNavigation(false); // The arrows do, and Tab leaves.
    m_values->verticalHeader()->hide();
    m_values->setMaximumHeight(6 * fontMetrics().height());
    layFieldsOut();
}

QWidget *qxSetForm::buildHotkeyLine()
{
    m_hotkey = new QKeySequenceEdit;
    m_noHotkey = new QToolButton;
    connect(m_noHotkey, &QToolButton::clicked, this, [this] {
        m_hotkey->clear();
        takeHotkey();
    });
    auto *const line = new QWidget;
    line->setFocusProxy(m_hotkey);
    auto *const layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_hotkey, 1);
    layout->addWidget(m_noHotkey);
    return line;
}

void qxSetForm::layFieldsOut()
{
    auto *const layout = new QFormLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    const auto addRow = [&](const char *text, QWidget *field) {
        auto *const label = new QLabel;
        label->setContentsMargins(0, 0, 2, 0); // An underlined letter takes more than is measured.
        label->setBuddy(field->focusProxy() ? field->focusProxy() : field);
        layout->addRow(label, field);
        m_labels.append({label, text});
    };
    addRow(QT_TR_NOOP("&Comment"), m_comment);
    addRow(QT_TR_NOOP("&Key"), buildHotkeyLine());
    addRow(QT_TR_NOOP("View&point"), m_viewpoint);
    addRow(QT_TR_NOOP("Sc&ript"), m_script);
    addRow(QT_TR_NOOP("Va&lues"), m_values);
    addRow(QT_TR_NOOP("States"), m_contents);
}

void qxSetForm::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void qxSetForm::retranslate()
{
    for (const auto &label : m_labels)
        label.first->setText(tr(label.second));
    m_noHotkey->setText(tr("Clear"));
    m_values->setHorizontalHeaderLabels({tr("Key", "of a value"), tr("Value")});
    refresh();
}

void qxSetForm::showSet(const QString &name)
{
    takeTexts();
    m_set = name;
    refresh();
}

void qxSetForm::refresh()
{
    const qxVariantSet *const set = qxVariants::findVariantSet(m_set);
    const qxVariantSet nothing;
    setEnabled(set);
    showContents(set ? *set : nothing);
}

void qxSetForm::showContents(const qxVariantSet &set)
{
    if (!m_comment->hasFocus())
        setTextIfOther(m_comment, set.comment);
    if (!m_script->hasFocus())
        setTextIfOther(m_script, set.script);
    if (!m_hotkey->hasFocus())
        m_hotkey->setKeySequence(QKeySequence(set.hotkey, QKeySequence::NativeText));
    m_contents->setText(summary(set));
    showViewpoints(set.defaultViewpoint);
    showValues(set);
}

void qxSetForm::showViewpoints(const QString &chosen)
{
    const QSignalBlocker quiet(m_viewpoint);
    m_viewpoint->clear();
    m_viewpoint->addItem(tr("(none)"), QString());
    const qxUberCameraPool &pool = *qxUberCameraPool::the();
    for (int id = 0; id < pool.count(); ++id) {
        const QString name = QString::fromStdString(qxUberCameraUtils::getName(pool.get(id)));
        m_viewpoint->addItem(name, name);
    }
    if (m_viewpoint->findData(chosen) < 0)
        m_viewpoint->addItem(tr("%1 (missing)").arg(chosen), chosen);
    m_viewpoint->setCurrentIndex(m_viewpoint->findData(chosen));
}

void qxSetForm::showValues(const qxVariantSet &set)
{
    if (m_values->rowCount() == set.values.size() + 1 && valuesIn(*m_values) == set.values)
        return;
    const QSignalBlocker quiet(m_values);
    m_values->setRowCount(0);
    m_values->setRowCount(set.values.size() + 1); // The last, empty row takes a new value.
    int row = 0;
    for (auto value = set.values.begin(); value != set.values.end(); ++value, ++row) {
        m_values->setItem(row, 0, new QTableWidgetItem(value.key()));
        m_values->setItem(row, 1, new QTableWidgetItem(value.value()));
    }
}

bool qxSetForm::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut)
        takeTexts();
    return QWidget::eventFilter(watched, event);
}

void qxSetForm::takeTexts()
{
    takeText(m_comment, tr("Comment"), &qxVariantSet::comment);
    takeText(m_script, tr("Script"), &qxVariantSet::script);
}

void qxSetForm::takeText(QPlainTextEdit *field, const QString &what, QString qxVariantSet::*text)
{
    if (!field->document()->isModified()) // What the set got meanwhile is newer.
        return;
    field->document()->setModified(false);
    const QString typed = field->toPlainText();
    edit(
        what, [&](const qxVariantSet &set) { return set.*text == typed; },
        [&](qxVariantSet &set) { set.*text = typed; });
}

void qxSetForm::takeHotkey()
{
    const QString key = qxKeyText::held(m_hotkey->keySequence());
    edit(
        tr("Key"), [&](const qxVariantSet &set) { return set.hotkey == key; },
        [&](qxVariantSet &set) {
            set.hotkey = key;
            set.updateShortcut();
        });
}

void qxSetForm::takeViewpoint()
{
    const QString viewpoint = m_viewpoint->currentData().toString();
    edit(
        tr("Viewpoint"), [&](const qxVariantSet &set) { return set.defaultViewpoint == viewpoint; },
        [&](qxVariantSet &set) { set.defaultViewpoint = viewpoint; });
}

void qxSetForm::takeValues()
{
    const QMap<QString, QString> values = valuesIn(*m_values);
    edit(
        tr("Values"), [&](const qxVariantSet &set) { return set.values == values; },
        [&](qxVariantSet &set) { set.values = values; });
}

void qxSetForm::edit(const QString &what, const std::function<bool(const qxVariantSet &)> &isSame,
                     const std::function<void(qxVariantSet &)> &change)
{
    const qxVariantSet *const set = qxVariants::findVariantSet(m_set);
    if (set && !isSame(*set))
        m_edits->editSet(m_set, tr("%1 of \"%2\"").arg(what, m_set), change);
}
