#include "qxVariantReader.h"
#include "qxVariants.h"

#include "qxLintParts.h"

namespace {

QString introduce(const qxDocumentVariant &variant)
{
    return QStringLiteral("%1 variant \"%2\"").arg(variant.kind->word, variant.name);
}

qxFindingPlace placeOf(const qxDocumentVariant &variant, const qxDocumentOption &option)
{
    return {qxFindingPlace::Option, QString(), variant.kind, variant.name, option.name};
}

/// The findings of one variant.
class VariantLint {
public:
    VariantLint(qxLintContext &context, qxLintVariant &variant)
        : m_context(context), m_variant(variant), m_element(variant.element())
    {
    }

    void run();

private:
    void lintObjects();
    void lintOption(const qxDocumentOption &option);
    void lintUse();
    void add(qxCode code, const QString &what);
    void add(qxCode code, const qxDocumentOption &option, const QString &what);

    qxLintContext &m_context;
    qxLintVariant &m_variant;
    const qxDocumentVariant &m_element;
};

void VariantLint::add(qxCode code, const QString &what)
{
    m_context.add(code, qxLintContext::placeOf(m_element), introduce(m_element) + what,
                  m_element.path, m_element.location);
}

void VariantLint::add(qxCode code, const qxDocumentOption &option, const QString &what)
{
    m_context.add(code, placeOf(m_element, option), introduce(m_element) + what, m_element.path,
                  QStringLiteral("State"), option.location);
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
    if (!standard.isEmpty() && !m_variant.hasOption(standard))
        m_context.add(
            qxCode::DefaultIsNoOption, qxLintContext::placeOf(m_element),
            introduce(m_element)
                + QStringLiteral(": the default state \"%1\" is none of its options").arg(standard),
            m_element.path, QStringLiteral("Default"), m_element.standard.location);
    if (m_element.options.empty())
        add(qxCode::NoOptions, QStringLiteral(" has no options"));
    lintUse();
}

void VariantLint::lintObjects()
{
    if (!m_variant.hasObjects())
        add(qxCode::NoSceneObject, QStringLiteral(": the scene has no \"%1\"").arg(m_element.base));
    else if (!m_variant.hasFittingObject())
        add(qxCode::WrongSceneObject,
            QStringLiteral(": \"%1\" in the scene is of another sort").arg(m_element.base));
    const qxSceneLookup &scene = m_context.scene;
    if ((m_element.kind == &qxVariantKinds::node && scene.hasNestedNodes(m_element.base))
        || (m_element.kind == &qxVariantKinds::overlay && scene.hasNestedOverlays(m_element.base)))
        add(qxCode::NestedSceneObjects,
            QStringLiteral(": one \"%1\" in the scene stands within another, and both are hidden "
                           "when one is")
                .arg(m_element.base));
}

void VariantLint::lintOption(const qxDocumentOption &option)
{
    if (option.name.isEmpty())
        add(qxCode::OptionWithoutName, option, QStringLiteral(": an option without a name"));
    else if (m_variant.hasFittingObject() && !m_variant.reach(option.name).isTaken)
        add(qxCode::OptionUnknownToScene, option,
            QStringLiteral(": \"%1\" in the scene does not take the state \"%2\"")
                .arg(m_element.base, option.name));
}

void VariantLint::lintUse()
{
    if (m_variant.isUsed()) {
        for (const qxDocumentOption &option : m_element.options) {
            const bool isAction = option.name.startsWith(QLatin1Char('!'));
            const bool isDefault = option.name == m_element.standard.text;
            if (!isAction && !isDefault && !option.name.isEmpty() && !m_variant.isUsed(option.name))
                add(qxCode::UnusedOption, option,
                    QStringLiteral(": no set and no hotkey leads to \"%1\"").arg(option.name));
        }
    } else if (!m_element.options.empty()) {
        add(qxCode::UnusedVariant, QStringLiteral(": no set and no hotkey uses it"));
    }
}

/// Hotkeys as the reader and the application take them.
class Hotkeys {
public:
    explicit Hotkeys(qxLintContext &context) : m_context(context) {}

    /// Notes a hotkey of `owner`; `path` leads to its element.
    void note(const qxDocumentText &hotkey, const qxFindingPlace &place, const QString &owner,
              const QString &path);

private:
    qxLintContext &m_context;
    QHash<int, QString> m_owners; ///< by key and modifiers
};

void Hotkeys::note(const qxDocumentText &hotkey, const qxFindingPlace &place, const QString &owner,
                   const QString &path)
{
    const QString text = qxVariantReader::convertOldHotkey(hotkey.text);
    if (text.isEmpty())
        return;
    int key = 0;
    Qt::KeyboardModifiers modifiers;
    qxVariants::mapHotkey(text, key, modifiers);
    const QString tag = QStringLiteral("Hotkey");
    const qxSourceLocation location{hotkey.location.line, hotkey.location.column, 1};
    if (key == 0 || key == Qt::Key_unknown)
        return m_context.add(
            qxCode::UnreadableHotkey, place,
            QStringLiteral("%1: the hotkey \"%2\" names no key").arg(owner, hotkey.text), path, tag,
            location);
    QString &other = m_owners[key | int(modifiers)];
    if (other.isEmpty())
        other = owner;
    else
        m_context.add(qxCode::HotkeyTwice, place,
                      QStringLiteral("%1: the hotkey \"%2\" is that of %3 as well")
                          .arg(owner, hotkey.text, other),
                      path, tag, location);
}

} // namespace

void qxLintParts::lintGroups(qxLintContext &context)
{
    context.addTwins(qxCode::GroupTwice, QStringLiteral("group"), context.tree.groups);
    for (const qxDocumentGroup &group : context.tree.groups) {
        if (group.sets == 0)
            context.add(qxCode::EmptyGroup, qxLintContext::placeOf(group),
                        QStringLiteral("group \"%1\" has no sets").arg(group.name), group.path,
                        group.location);
    }
}

void qxLintParts::lintVariants(qxLintContext &context)
{
    QHash<const qxVariantKind *, QHash<QString, int>> lines;
    for (const auto &variant : context.variants.all()) {
        const qxDocumentVariant &element = variant->element();
        const int line = lines[element.kind].value(element.name, 0);
        if (line > 0)
            context.add(qxCode::VariantTwice, qxLintContext::placeOf(element),
                        QStringLiteral("%1 replaces the options of the one of line %2")
                            .arg(introduce(element))
                            .arg(line),
                        element.path, element.location);
        lines[element.kind].insert(element.name, element.location.line);
        VariantLint(context, *variant).run();
    }
}

void qxLintParts::lintHotkeys(qxLintContext &context)
{
    Hotkeys hotkeys(context);
    for (const qxDocumentSet &set : context.tree.sets)
        hotkeys.note(set.hotkey, qxLintContext::placeOf(set),
                     QStringLiteral("set \"%1\"").arg(set.name), set.path);
    for (const auto &variant : context.variants.all()) {
        const qxDocumentVariant &element = variant->element();
        for (const qxDocumentOption &option : element.options) {
            if (option.hotkey.text.isEmpty())
                continue;
            variant->use(option.name);
            hotkeys.note(
                option.hotkey, placeOf(element, option),
                QStringLiteral("%1, option \"%2\"").arg(introduce(element), option.name),
                QStringLiteral("%1/State[%2]").arg(element.path).arg(option.location.ordinal));
        }
    }
}
