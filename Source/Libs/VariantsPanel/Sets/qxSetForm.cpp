#include "qxSetForm.h"

#include "qxVariantGroup.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "Entries/qxSetContents.h"
#include "Undo/qxSetEdits.h"
#include "qxKeyText.h"
#include "qxPanelEvents.h"
#include "qxSceneLookup.h"
#include "qxSetHotkeys.h"
#include "qxTakenKeys.h"
#include "qxValuesTable.h"

#include <QComboBox>
#include <QEvent>
#include <QFontDatabase>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QToolButton>

#include <algorithm>

namespace {

/// Shows the text unless another one is being typed.
void showText(QPlainTextEdit *field, const QString &text)
{
    // With the same text the cursor stays where it is.
    if (!field->document()->isModified() && field->toPlainText() != text)
        field->setPlainText(text);
}

/// The name that the object has now; `name` when it is gone.
template <typename Objects>
QString nameOf(const void *object, const Objects &objects, const QString &name)
{
    const auto found = std::find_if(objects.begin(), objects.end(), [object](const auto *each) {
        return static_cast<const void *>(each) == object;
    });
    return found == objects.end() ? name : QString((*found)->name);
}

QLabel *makeNote(const QString &name)
{
    auto *const note = new QLabel;
    note->setObjectName(name);
    note->setWordWrap(true);
    note->setTextFormat(Qt::PlainText);
    note->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return note;
}

void showText(QLabel *note, const QString &text)
{
    note->setText(text);
    note->setVisible(!text.isEmpty());
}

} // namespace

qxSetForm::qxSetForm(qxPanelEvents *events, qxSetEdits *edits, qxTakenKeys *taken)
    : m_edits(edits), m_taken(taken), m_holds(new qxSetContents(events, edits))
{
    buildFields();
    connect(events, &qxPanelEvents::setsChanged, this, &qxSetForm::refresh);
    connect(taken, &qxTakenKeys::changed, this, &qxSetForm::refresh);
    connect(m_hotkey, &QKeySequenceEdit::editingFinished, this, &qxSetForm::takeHotkey);
    connect(m_viewpoint, QOverload<int>::of(&QComboBox::activated), this,
            &qxSetForm::takeViewpoint);
    connect(m_values, &qxValuesTable::edited, this, &qxSetForm::takeValues);
    m_comment->installEventFilter(this);
    m_hotkey->installEventFilter(this);
    m_script->installEventFilter(this);
    retranslate();
}

void qxSetForm::buildFields()
{
    m_comment = new QPlainTextEdit;
    m_comment->setTabChangesFocus(true);
    m_comment->setMaximumHeight(3 * fontMetrics().height());
    m_viewpoint = new QComboBox;
    // Long names must not make the form wider than its dock.
    m_viewpoint->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_viewpoint->setMinimumContentsLength(8);
    m_script = new QPlainTextEdit;
    m_script->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_script->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_script->setTabChangesFocus(true);
    m_values = new qxValuesTable;
    m_valuesNote = makeNote(QStringLiteral("valuesNote"));
    m_keyNote = makeNote(QStringLiteral("keyNote"));
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
    layout->addRow(m_holds);
    const auto addRow = [&](const char *text, QWidget *field) {
        auto *const label = new QLabel;
        label->setContentsMargins(0, 0, 2, 0); // An underlined letter takes more than is measured.
        label->setBuddy(field->focusProxy() ? field->focusProxy() : field);
        layout->addRow(label, field);
        m_labels.append({label, text});
    };
    addRow(QT_TR_NOOP("&Comment"), m_comment);
    addRow(QT_TR_NOOP("&Key"), buildHotkeyLine());
    layout->addRow(m_keyNote);
    addRow(QT_TR_NOOP("View&point"), m_viewpoint);
    addRow(QT_TR_NOOP("Sc&ript"), m_script);
    addRow(QT_TR_NOOP("Va&lues"), m_values);
    layout->addRow(m_valuesNote);
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
    for (const auto &label : m_labels) {
        if (QWidget *const field = label.first->buddy())
            field->setAccessibleName(label.first->text().remove(QLatin1Char('&')));
    }
    m_noHotkey->setText(tr("Clear"));
    m_hotkey->setKeySequence(m_hotkey->keySequence()); // It names its keys anew.
    m_values->setHorizontalHeaderLabels({tr("Key", "of a value"), tr("Value")});
    refresh();
}

void qxSetForm::showSet(const QString &name)
{
    showTarget(name, QString());
}

void qxSetForm::showGroup(const QString &name)
{
    showTarget(QString(), name);
}

void qxSetForm::showTarget(const QString &set, const QString &group)
{
    followRename();
    if (set != m_set || group != m_group) {
        takeTexts();
        if (m_isValuesTableOpen)
            setValues(m_values->pairs());
        m_isValuesTableOpen = false;
    }
    m_set = set;
    m_group = group;
    for (const auto &label : m_labels) {
        if (label.first->buddy() == m_comment) // all that a group has
            continue;
        label.first->setVisible(group.isEmpty());
        label.first->buddy()->setVisible(group.isEmpty());
    }
    m_noHotkey->setVisible(group.isEmpty());
    m_holds->setVisible(group.isEmpty());
    refresh();
}

void qxSetForm::setProblems(const qxProblems *problems)
{
    m_holds->setProblems(problems);
}

/// What is being typed belongs to the same set when that has another name now.
void qxSetForm::followRename()
{
    if (!m_set.isEmpty() && !qxVariants::findVariantSet(m_set))
        m_set = nameOf(m_object, qxVariants::_variantSets, m_set);
    if (!m_group.isEmpty() && !qxVariants::findVariantGroup(m_group))
        m_group = nameOf(m_object, qxVariants::_variantGroups, m_group);
}

void qxSetForm::refresh()
{
    followRename();
    const qxVariantGroup *const group = qxVariants::findVariantGroup(m_group);
    const qxVariantSet *const set = qxVariants::findVariantSet(m_set);
    m_object = group ? static_cast<const void *>(group) : set;
    const qxVariantSet nothing;
    setEnabled(set || group);
    showContents(set ? *set : nothing);
    if (group)
        showText(m_comment, group->comment);
}

void qxSetForm::showContents(const qxVariantSet &set)
{
    if (m_group.isEmpty())
        showText(m_comment, set.comment);
    showText(m_script, set.script);
    if (!isKeyTyped()) {
        m_shownKey = QKeySequence(set.hotkey, QKeySequence::NativeText);
        if (m_hotkey->keySequence() != m_shownKey) // It would take a half-typed one away.
            m_hotkey->setKeySequence(m_shownKey);
    }
    showText(m_keyNote, qxSetHotkeys::conflictOf(set, *m_taken));
    m_holds->showSet(set.name);
    showViewpoints(set.defaultViewpoint);
    if (!m_isValuesTableOpen) {
        m_values->setPairs(set.values);
        showText(m_valuesNote, QString());
    }
}

void qxSetForm::showViewpoints(const QString &chosen)
{
    const QSignalBlocker quiet(m_viewpoint);
    m_viewpoint->clear();
    m_viewpoint->addItem(tr("(none)"), QString());
    for (const QString &name : qxSceneLookup::viewpointNames())
        m_viewpoint->addItem(name, name);
    if (m_viewpoint->findData(chosen) < 0)
        m_viewpoint->addItem(tr("%1 (missing)").arg(chosen), chosen);
    m_viewpoint->setCurrentIndex(m_viewpoint->findData(chosen));
}

bool qxSetForm::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut)
        takeTexts();
    return QWidget::eventFilter(watched, event);
}

/// Whether the field holds a key that the set has not got yet: the field waits for more of it.
bool qxSetForm::isKeyTyped() const
{
    return m_hotkey->keySequence() != m_shownKey;
}

void qxSetForm::takeTexts()
{
    followRename();
    if (isKeyTyped())
        takeHotkey();
    if (m_group.isEmpty())
        takeText(m_comment, tr("Comment"), &qxVariantSet::comment);
    else
        takeGroupComment();
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

void qxSetForm::takeGroupComment()
{
    if (!m_comment->document()->isModified())
        return;
    m_comment->document()->setModified(false);
    m_edits->commentGroup(m_group, m_comment->toPlainText());
}

void qxSetForm::takeHotkey()
{
    m_shownKey = m_hotkey->keySequence();
    const QString key = qxKeyText::held(m_shownKey);
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
    // Of two values with one key one would be lost: nothing is taken until they differ.
    const QString key = m_values->doubleKey();
    m_isValuesTableOpen = !key.isEmpty();
    if (m_isValuesTableOpen)
        return showText(m_valuesNote,
                        tr("\"%1\" is there twice. The values are taken as soon as the "
                           "keys differ.")
                            .arg(key));
    setValues(m_values->pairs());
    showText(m_valuesNote, QString());
}

void qxSetForm::setValues(const QMap<QString, QString> &values)
{
    edit(
        tr("Values"), [&](const qxVariantSet &set) { return set.values == values; },
        [&](qxVariantSet &set) { set.values = values; });
}

void qxSetForm::edit(const QString &what, const std::function<bool(const qxVariantSet &)> &isSame,
                     const std::function<void(qxVariantSet &)> &change)
{
    const qxVariantSet *const set = qxVariants::findVariantSet(m_set);
    if (set && !isSame(*set))
        m_edits->editSet(m_set, tr("%1 of \"%2\"").arg(what, m_set), change, what);
}
