#include "qxVariantForm.h"

#include "qxVariantKind.h"

#include "Sets/qxSetHotkeys.h"
#include "Sets/qxTakenKeys.h"
#include "Undo/qxVariantEdits.h"
#include "qxKeyText.h"
#include "qxPanelEvents.h"
#include "qxStateWords.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QSignalBlocker>
#include <QToolButton>

qxVariantForm::qxVariantForm(QUndoStack *steps, qxPanelEvents *events, const qxTakenKeys *taken)
    : m_steps(*steps), m_taken(taken), m_default(new QComboBox), m_key(new QKeySequenceEdit),
      m_noKey(new QToolButton), m_keyNote(new QLabel), m_action(new QCheckBox)
{
    m_default->setObjectName(QStringLiteral("default"));
    // Long names must not make the form wider than its dock.
    m_default->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_default->setMinimumContentsLength(8);
    m_keyNote->setObjectName(QStringLiteral("optionKeyNote"));
    m_keyNote->setWordWrap(true);
    m_keyNote->setTextFormat(Qt::PlainText);
    m_key->installEventFilter(this);
    layFieldsOut();
    connect(m_default, QOverload<int>::of(&QComboBox::activated), this,
            &qxVariantForm::takeDefault);
    connect(m_key, &QKeySequenceEdit::editingFinished, this, &qxVariantForm::takeKey);
    connect(m_noKey, &QToolButton::clicked, this, [this] {
        m_key->clear();
        takeKey();
    });
    connect(m_action, &QCheckBox::clicked, this, &qxVariantForm::takeAction);
    connect(events, &qxPanelEvents::setsChanged, this, &qxVariantForm::refresh);
    connect(taken, &qxTakenKeys::changed, this, &qxVariantForm::refresh);
    retranslate();
}

void qxVariantForm::layFieldsOut()
{
    auto *const layout = new QFormLayout(this);
    const auto addRow = [&](const char *text, QWidget *field, QWidget *row) {
        auto *const label = new QLabel;
        label->setContentsMargins(0, 0, 2, 0); // An underlined letter takes more than is measured.
        label->setBuddy(field);
        layout->addRow(label, row);
        m_labels.append({label, text});
    };
    addRow(QT_TR_NOOP("&Default"), m_default, m_default);
    auto *const keyLine = new QWidget;
    auto *const keyLayout = new QHBoxLayout(keyLine);
    keyLayout->setContentsMargins(0, 0, 0, 0);
    keyLayout->addWidget(m_key, 1);
    keyLayout->addWidget(m_noKey);
    addRow(QT_TR_NOOP("Option ke&y"), m_key, keyLine);
    layout->addRow(m_keyNote);
    layout->addRow(m_action);
}

void qxVariantForm::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void qxVariantForm::retranslate()
{
    for (const auto &label : m_labels)
        label.first->setText(tr(label.second));
    m_key->setAccessibleName(tr("Key of the option"));
    m_noKey->setText(tr("Clear"));
    m_noKey->setAccessibleName(tr("Clear the key of the option"));
    m_action->setText(tr("The option is an ac&tion"));
    m_action->setToolTip(tr("It does something to what is shown, such as \"next\"."));
    m_key->setKeySequence(m_key->keySequence()); // It names its keys anew.
    refresh();
}

void qxVariantForm::showOption(const qxVariantName &variant, const QString &option)
{
    if (variant.kind != m_variant.kind || variant.name != m_variant.name || option != m_option) {
        if (m_key->keySequence() != m_shownKey) // typed, but not taken yet
            takeKey();
    }
    m_variant = variant;
    m_option = option;
    refresh();
}

void qxVariantForm::goToKey()
{
    m_key->setFocus(Qt::ShortcutFocusReason);
}

void qxVariantForm::refresh()
{
    qxVariant *const variant = m_variant.kind ? m_variant.kind->find(m_variant.name) : nullptr;
    const qxVariantOption *const option = variant ? variant->find(m_option) : nullptr;
    m_default->setEnabled(variant);
    m_key->setEnabled(option);
    m_noKey->setEnabled(option && !option->shortcut.isEmpty());
    m_action->setEnabled(option);
    m_action->setChecked(option && option->isAction);
    showKey(option ? option->shortcut : QString());
    const QString note = option
        ? qxSetHotkeys::conflictOf(*m_variant.kind, m_variant.name, *option, *m_taken)
        : QString();
    m_keyNote->setText(note);
    m_keyNote->setVisible(!note.isEmpty());
    showDefaults(variant);
}

/// A list that stays as it is is left alone: it may be open.
void qxVariantForm::showDefaults(const qxVariant *variant)
{
    QList<QPair<QString, QString>> choices; // texts and states
    QStringList states;
    const auto offer = [&](const QString &text, const QString &state) {
        choices.append({text, state});
        states << state;
    };
    if (variant) {
        offer(tr("(none)"), QString());
        for (const QString &state : qxStateWords::choicesOf(*m_variant.kind, *variant))
            offer(qxStateWords::shown(*m_variant.kind, variant, state), state);
        if (!states.contains(variant->defaultState))
            offer(tr("%1 (no option)")
                      .arg(qxStateWords::shown(*m_variant.kind, variant, variant->defaultState)),
                  variant->defaultState);
    }
    const QSignalBlocker quiet(m_default);
    if (choices != m_choices) {
        m_choices = choices;
        m_default->clear();
        for (const auto &[text, state] : choices) {
            m_default->addItem(text, state);
            m_default->setItemData(m_default->count() - 1,
                                   qxStateWords::toolTip(*m_variant.kind, variant, state),
                                   Qt::ToolTipRole);
        }
    }
    m_default->setCurrentIndex(variant ? states.indexOf(variant->defaultState) : -1);
}

/// The field may wait for more of a key that is being typed.
void qxVariantForm::showKey(const QString &shortcut)
{
    const QKeySequence key(shortcut, QKeySequence::NativeText);
    if (m_key->keySequence() != m_shownKey && key == m_shownKey)
        return;
    m_shownKey = key;
    if (m_key->keySequence() != key)
        m_key->setKeySequence(key);
}

bool qxVariantForm::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut && m_key->keySequence() != m_shownKey)
        takeKey();
    return QWidget::eventFilter(watched, event);
}

void qxVariantForm::takeDefault()
{
    const QString state = m_default->currentData().toString();
    qxVariantEdits::edit(m_steps, m_variant, tr("Default state of \"%1\"").arg(m_variant.name),
                         [&](qxVariant &variant) { variant.defaultState = state; });
}

void qxVariantForm::takeKey()
{
    m_shownKey = m_key->keySequence();
    const QString key = qxKeyText::held(m_shownKey);
    if (m_option.isEmpty())
        return;
    qxVariantEdits::edit(m_steps, m_variant, tr("Key of \"%1\"").arg(m_option),
                         [&](qxVariant &variant) {
                             if (qxVariantOption *const option = variant.find(m_option)) {
                                 option->shortcut = key;
                                 option->updateShortcut();
                             }
                         });
}

void qxVariantForm::takeAction(bool isAction)
{
    const QString text = isAction ? tr("\"%1\" is an action") : tr("\"%1\" is no action");
    qxVariantEdits::edit(m_steps, m_variant, text.arg(m_option), [&](qxVariant &variant) {
        if (qxVariantOption *const option = variant.find(m_option))
            option->isAction = isAction;
    });
}
