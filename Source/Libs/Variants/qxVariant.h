#pragma once

#include <QString>

#include <vector>

/// States that every kind of variant knows as actions; each begins with "!".
extern const QString variantEnable; ///< "!Enable"
extern const QString variantDisable; ///< "!Disable"
extern const QString variantToggle; ///< "!Toggle"
extern const QString variantNext; ///< "!Next"
extern const QString variantNextLoop; ///< "!Next (Loop)"
extern const QString variantPrevious; ///< "!Previous"
extern const QString variantPreviousLoop; ///< "!Previous (Loop)"
extern const QString variantAll; ///< "!All"
extern const QString variantNone; ///< "!None"

/// One state that a variant can be put in.
struct qxVariantOption {
    QString name; ///< the state; an action's begins with "!"
    QString shortcut; ///< key sequence in the host's native text format; empty for none
    int key = 0; ///< key code of the shortcut's first combination, without modifiers
    Qt::KeyboardModifiers modifiers; ///< of that combination
    bool isAction = false; ///< an action such as "!Next" rather than a state

    /// An option with key and modifiers read from the shortcut, which may be empty.
    static qxVariantOption make(bool action, const QString &name, const QString &shortcut);
    /// Recomputes `key` and `modifiers`; to be called after `shortcut` was changed in place.
    void updateShortcut();
};

/// What the scene shows of a variant, as people see it.
struct qxShownState {
    QString current; ///< see qxVariant::onCurrent
    QString place; ///< of a transform switch, such as "Transform 2"; empty for anything else
    bool isHidden = false; ///< be it a switch, hidden as a whole

    /// The state, and the place of a transform switch, hidden or not.
    const QString &state() const { return place.isEmpty() ? current : place; }
    /// The same, but "!Disable" for a transform switch that is hidden.
    const QString &visibleState() const { return isHidden ? current : state(); }
    /// Whether people see it in that state.
    bool is(const QString &wanted) const;
};

/// A named part of the scene together with the states it can be put in.
///
/// Names are compared exactly. Kinds keep the name of their scene object and look it up each time.
class qxVariant {
public:
    /// To be unique among the variants of the kind: the first one is found. Whoever renames one
    /// calls qxNameLookUp::noteRename; references to the old name stay.
    QString name;
    QString defaultState; ///< an option's name or an action; may be empty, or no option
    std::vector<qxVariantOption> options; ///< in the order in which they were added

    virtual ~qxVariant();
    /// Makes `state`, an option's name or an action, current in the scene, and announces what
    /// changed. The options do not matter: what counts is what the scene has now. This one does
    /// nothing.
    virtual void onSelect(const QString &state);
    /// The state that the scene shows now; empty when it shows none.
    virtual QString onCurrent() const;
    /// The same as people see it, with what hides the part as a whole.
    virtual qxShownState shown() const;

    /// Appends an option that is not an action. A name that is there already keeps its option. The
    /// time grows with the number of options. Announces nothing.
    void add(const QString &optionName, const QString &shortcut);
    /// The same for an option that is an action if `action` says so.
    void add(bool action, const QString &optionName, const QString &shortcut);
    /// Removes the first option of that name, if any.
    void remove(const QString &optionName);
    /// The first option of that name, or null; an empty name finds nothing. The pointer is valid
    /// until the options change.
    qxVariantOption *find(const QString &optionName);
    /// Whether there is an option of that name and it is an action.
    bool isAction(const QString &optionName);

protected:
    ///@{
    /// For the classes of the kinds. A copy drives the same part of the scene and is not
    /// registered.
    qxVariant() = default;
    qxVariant(const qxVariant &) = default;
    qxVariant &operator=(const qxVariant &) = default;
    ///@}
};
