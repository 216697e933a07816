#include "qxSetHotkeys.h"

#include "qxVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxStateWords.h"
#include "qxTakenKeys.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QKeySequenceEdit>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <algorithm>

namespace {

/// Whether what is typed goes into the focused widget.
bool isTyping()
{
    const QWidget *const focus = QApplication::focusWidget();
    return qobject_cast<const QLineEdit *>(focus) || qobject_cast<const QPlainTextEdit *>(focus)
        || qobject_cast<const QTextEdit *>(focus) || qobject_cast<const QKeySequenceEdit *>(focus)
        || qobject_cast<const QAbstractSpinBox *>(focus);
}

struct Combination {
    int key;
    Qt::KeyboardModifiers modifiers;
};

/// Whether the key operates the focused widget, which people without a mouse depend on.
bool isOperating(const Combination &pressed)
{
    static const int keys[] = {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter,   Qt::Key_Up,
                               Qt::Key_Down,  Qt::Key_Left,   Qt::Key_Right,   Qt::Key_PageUp,
                               Qt::Key_Home,  Qt::Key_End,    Qt::Key_PageDown};
    const Qt::KeyboardModifiers others = pressed.modifiers & ~Qt::ShiftModifier; // that one extends
    const QWidget *const focus = QApplication::focusWidget();
    const bool isOperated = qobject_cast<const QAbstractItemView *>(focus)
        || qobject_cast<const QAbstractButton *>(focus) || qobject_cast<const QComboBox *>(focus);
    return isOperated && !others
        && std::find(std::begin(keys), std::end(keys), pressed.key) != std::end(keys);
}

/// The first set with that key; there may be thousands, but a key is not pressed that often.
const qxVariantSet *setWith(const Combination &pressed)
{
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        if (set->key > 0 && set->key == pressed.key && set->modifiers == pressed.modifiers)
            return set;
    }
    return nullptr;
}

struct Option {
    const qxVariantKind *kind = nullptr; ///< null for none
    QString variant;
    QString name;

    bool is(const qxVariantKind &otherKind, const QString &otherVariant,
            const QString &otherName) const
    {
        return kind == &otherKind && variant == otherVariant && name == otherName;
    }
};

/// The first options with that key, at most so many.
std::vector<Option> optionsWith(const Combination &pressed, std::size_t most)
{
    std::vector<Option> found;
    qxVariantKinds::visit([&](const qxVariantKind &kind, const qxVariant &variant) {
        for (const qxVariantOption &option : variant.options) {
            if (found.size() < most && option.key > 0 && option.key == pressed.key
                && option.modifiers == pressed.modifiers)
                found.push_back({&kind, variant.name, option.name});
        }
    });
    return found;
}

Option optionWith(const Combination &pressed)
{
    const std::vector<Option> found = optionsWith(pressed, 1);
    return found.empty() ? Option() : found.front();
}

} // namespace

qxSetHotkeys::qxSetHotkeys(qxTakenKeys *taken, QWidget *place)
    : QObject(place), m_taken(taken), m_place(place)
{
    qApp->installEventFilter(this);
}

/// Shortcuts have had their turn when a key arrives here.
bool qxSetHotkeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    if (!watched->isWidgetType()
        || qxTakenKeys::windowOf(*static_cast<QWidget *>(watched))
            != qxTakenKeys::windowOf(*m_place))
        return false;
    const auto *const key = static_cast<QKeyEvent *>(event);
    const Combination pressedKey{key->key(), key->modifiers() & ~Qt::KeypadModifier};
    if (isTyping() || isOperating(pressedKey))
        return false;
    const qxVariantSet *const set = setWith(pressedKey);
    const Option option = set ? Option() : optionWith(pressedKey);
    if (!set && !option.kind)
        return false;
    m_taken->look();
    if (!m_taken->ownerOf(pressedKey.key | int(pressedKey.modifiers)).isEmpty())
        return false;
    event->accept();
    if (key->isAutoRepeat())
        return true;
    if (set)
        Q_EMIT pressed(set->name);
    else
        Q_EMIT optionPressed(*option.kind, option.variant, option.name);
    return true;
}

QString qxSetHotkeys::flawOf(const qxVariantSet &set, const qxTakenKeys &taken)
{
    const QString owner = set.key > 0 ? taken.ownerOf(set.key | int(set.modifiers)) : QString();
    return owner.isEmpty()
        ? QString()
        : tr("The key is taken by \"%1\" and does not select this set.").arg(owner);
}

QString qxSetHotkeys::conflictOf(const qxVariantSet &set, const qxTakenKeys &taken)
{
    if (set.key <= 0)
        return QString();
    const QString flaw = flawOf(set, taken);
    if (!flaw.isEmpty())
        return flaw;
    QStringList lines;
    const Combination own{set.key, set.modifiers};
    for (const qxVariantSet *other : qxVariants::_variantSets) {
        if (other->name == set.name || other->key != set.key || other->modifiers != set.modifiers)
            continue;
        const bool isFirst = setWith(own)->name == set.name;
        lines << (isFirst ? tr("\"%1\" has this key, too; this set comes first.")
                          : tr("\"%1\" has this key, too, and comes first."))
                     .arg(other->name);
        break;
    }
    const Option option = optionWith(own);
    if (option.kind)
        lines << tr("The option \"%1\" of \"%2\" has this key, too; this set comes first.")
                     .arg(qxStateWords::shown(*option.kind, option.kind->find(option.variant),
                                              option.name),
                          option.variant);
    return lines.join('\n');
}

QString qxSetHotkeys::conflictOf(const qxVariantKind &kind, const QString &variant,
                                 const qxVariantOption &option, const qxTakenKeys &taken)
{
    if (option.key <= 0)
        return QString();
    const Combination own{option.key, option.modifiers};
    const QString owner = taken.ownerOf(own.key | int(own.modifiers));
    if (!owner.isEmpty())
        return tr("The key is taken by \"%1\" and does not select this option.").arg(owner);
    QStringList lines;
    if (const qxVariantSet *const set = setWith(own))
        lines << tr("The set \"%1\" has this key, too, and comes first.").arg(set->name);
    const std::vector<Option> options = optionsWith(own, 2);
    const bool isFirst = options.empty() || options.front().is(kind, variant, option.name);
    if (options.size() > 1 || !isFirst) {
        const Option &other = options[isFirst ? 1 : 0];
        lines << (isFirst
                      ? tr("The option \"%1\" of \"%2\" has this key, too; this one comes first.")
                      : tr("The option \"%1\" of \"%2\" has this key, too, and comes first."))
                     .arg(other.name, other.variant);
    }
    return lines.join('\n');
}
