#include "qxVariantKinds.h"
#include "qxVariantReader.h"
#include "qxVariants.h"

#include "qxLintParts.h"

namespace {

QString introduce(const qxDocumentVariant &variant)
{
    return QStringLiteral("%1 variant \"%2\"").arg(variant.kind->word, variant.name);
}

qxLintSpot spotOf(const qxDocumentVariant &variant, const qxDocumentOption &option)
{
    return qxLintSpot::of(variant).within(
        QStringLiteral("State"), option.location,
        {qxFindingPlace::Option, QString(), variant.kind, variant.name, option.name});
}

/// The findings of one variant.
class VariantLint {
public:
    VariantLint(qxLintContext &context, const qxLintVariant &variant)
        : m_context(context), m_variant(variant), m_element(*variant.element)
    {
    }

    void run();

private:
    void lintObjects();
    void lintOption(const qxDocumentOption &option);
    void lintUse();
    void add(qxCode code, const QString &what, const QString &detail = QString());
    void add(qxCode code, const qxDocumentOption &option, const QString &what,
             const QString &detail = QString());

    qxLintContext &m_context;
    const qxLintVariant &m_variant;
    const qxDocumentVariant &m_element;
};

void VariantLint::add(qxCode code, const QString &what, const QString &detail)
{
    m_context.add(code, qxLintSpot::of(m_element), introduce(m_element) + what, detail);
}

void VariantLint::add(qxCode code, const qxDocumentOption &option, const QString &what,
                      const QString &detail)
{
    m_context.add(code, spotOf(m_element, option), introduce(m_element) + what, detail);
}

void VariantLint::run()
{
    lintObjects();
    QSet<QString> known;
    for (const qxDocumentOption &option : m_element.options) {
        if (known.contains(option.name))
            add(qxCode::OptionTwice, option,
                QStringLiteral(": a second option \"%1\", which is dropped").arg(option.name));
        else
            lintOption(option);
        known.insert(option.name);
    }
    const QString &standard = m_element.standard.text;
    if (!standard.isEmpty() && !m_variant.hasOption(standard)) {
        const qxLintSpot variant = qxLintSpot::of(m_element);
        m_context.add(
            qxCode::DefaultIsNoOption,
            variant.within(QStringLiteral("Default"), m_element.standard.location, variant.place),
            introduce(m_element)
                + QStringLiteral(": the default state \"%1\" is none of its options").arg(standard),
            standard);
    }
    if (m_element.options.empty())
        add(qxCode::NoOptions, QStringLiteral(" has no options"));
    lintUse();
}

void VariantLint::lintObjects()
{
    const QString &base = m_element.base;
    if (!m_variant.base->hasObjects)
        add(qxCode::NoSceneObject, QStringLiteral(": the scene has no \"%1\"").arg(base), base);
    else if (!m_variant.base->hasFittingObject)
        add(qxCode::WrongSceneObject,
            QStringLiteral(": \"%1\" in the scene is of another sort").arg(base), base);
    if (m_context.scene.isNested(*m_element.kind, base))
        add(qxCode::NestedSceneObjects,
            QStringLiteral(": one \"%1\" in the scene stands within another, and both are hidden "
                           "when one is")
                .arg(base),
            base);
}

void VariantLint::lintOption(const qxDocumentOption &option)
{
    if (option.name.isEmpty())
        add(qxCode::OptionWithoutName, option, QStringLiteral(": an option without a name"));
    else if (m_variant.base->hasFittingObject
             && !m_context.scene.reach(*m_variant.base, option.name).isTaken)
        add(qxCode::OptionUnknownToScene, option,
            QStringLiteral(": \"%1\" in the scene does not take the state \"%2\"")
                .arg(m_element.base, option.name),
            m_element.base);
}

/// Sets use options, and so do hotkeys.
void VariantLint::lintUse()
{
    QSet<QString> byKey;
    bool isStepped = m_variant.use->isStepped();
    for (const qxDocumentOption &option : m_element.options) {
        if (option.hotkey.text.isEmpty())
            continue;
        byKey.insert(option.name);
        isStepped = isStepped || qxSwitchStepping::stepOf(option.name);
    }
    if (!m_variant.use->isUsed() && byKey.isEmpty()) {
        if (!m_element.options.empty())
            add(qxCode::UnusedVariant, QStringLiteral(": no set and no hotkey uses it"));
        return;
    }
    for (const qxDocumentOption &option : m_element.options) {
        const bool isAction = option.name.startsWith(QLatin1Char('!'));
        const bool isDefault = option.name == m_element.standard.text;
        const bool isUsed =
            isStepped || m_variant.use->isUsed(option.name) || byKey.contains(option.name);
        if (!isAction && !isDefault && !option.name.isEmpty() && !isUsed)
            add(qxCode::UnusedOption, option,
                QStringLiteral(": no set and no hotkey leads to \"%1\"").arg(option.name));
    }
}

/// Hotkeys as the reader and the application take them.
class Hotkeys {
public:
    explicit Hotkeys(qxLintContext &context) : m_context(context) {}

    /// Notes a hotkey of the thing at `spot`, which reports call `owner`.
    void note(const qxDocumentText &hotkey, const qxLintSpot &spot, const QString &owner);

private:
    struct Owner {
        QString introduced;
        qxFindingPlace place;
    };

    int keyOf(const QString &text);

    qxLintContext &m_context;
    QHash<int, Owner> m_owners; ///< by key and modifiers
};

int Hotkeys::keyOf(const QString &text)
{
    const auto known = m_context.keys.constFind(text);
    if (known != m_context.keys.constEnd())
        return *known;
    int key = 0;
    Qt::KeyboardModifiers modifiers;
    qxVariants::mapHotkey(qxVariantReader::convertOldHotkey(text), key, modifiers);
    const bool isKey = key != 0 && key != Qt::Key_unknown;
    return *m_context.keys.insert(text, isKey ? key | int(modifiers) : 0);
}

void Hotkeys::note(const qxDocumentText &hotkey, const qxLintSpot &spot, const QString &owner)
{
    if (qxVariantReader::convertOldHotkey(hotkey.text).isEmpty())
        return;
    const int key = keyOf(hotkey.text);
    const qxSourceLocation location{hotkey.location.line, hotkey.location.column, 1};
    const qxLintSpot here = spot.within(QStringLiteral("Hotkey"), location, spot.place);
    if (key == 0)
        return m_context.add(
            qxCode::UnreadableHotkey, here,
            QStringLiteral("%1: the hotkey \"%2\" names no key").arg(owner, hotkey.text),
            hotkey.text);
    Owner &other = m_owners[key];
    if (other.introduced.isEmpty())
        other = {owner, spot.place};
    else
        m_context.add(qxCode::HotkeyTwice, here,
                      QStringLiteral("%1: the hotkey \"%2\" is that of %3 as well")
                          .arg(owner, hotkey.text, other.introduced),
                      other.place.sort == qxFindingPlace::Set ? other.place.set : other.place.name);
}

} // namespace

void qxLintParts::lintGroups(qxLintContext &context, const std::vector<qxDocumentGroup> &groups)
{
    qxTwinLint twins(context, qxCode::GroupTwice);
    for (const qxDocumentGroup &group : groups)
        twins.note(
            group.name, group.location.line, [&] { return qxLintSpot::of(group); },
            [&] { return QStringLiteral("group \"%1\" replaces").arg(group.name); });
    for (const qxDocumentGroup &group : groups) {
        if (group.sets == 0)
            context.add(qxCode::EmptyGroup, qxLintSpot::of(group),
                        QStringLiteral("group \"%1\" has no sets").arg(group.name));
    }
}

void qxLintParts::compareVariants(qxLintContext &context)
{
    qxTwinLint twins(context, qxCode::VariantTwice);
    for (const qxLintVariant &each : context.variants.all())
        twins.note(
            each.element->kind->word + each.element->name, each.element->location.line,
            [&] { return qxLintSpot::of(*each.element); },
            [&] { return introduce(*each.element) + QStringLiteral(" replaces the options of"); });
}

void qxLintParts::lintVariant(qxLintContext &context, const qxLintVariant &variant)
{
    VariantLint(context, variant).run();
}

void qxLintParts::compareHotkeys(qxLintContext &context, const std::vector<qxLintedSet> &sets)
{
    Hotkeys hotkeys(context);
    for (const qxLintedSet &each : sets) {
        if (!each.set->hotkey.text.isEmpty())
            hotkeys.note(each.set->hotkey, qxLintSpot::of(*each.set),
                         QStringLiteral("set \"%1\"").arg(each.set->name));
    }
    for (const qxLintVariant &variant : context.variants.all()) {
        for (const qxDocumentOption &option : variant.element->options) {
            if (!option.hotkey.text.isEmpty())
                hotkeys.note(option.hotkey, spotOf(*variant.element, option),
                             QStringLiteral("%1, option \"%2\"")
                                 .arg(introduce(*variant.element), option.name));
        }
    }
}
