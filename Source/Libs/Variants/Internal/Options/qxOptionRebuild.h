#pragma once

#include "Internal/Options/qxOptionAppender.h"

#include <QHash>

/// Builds the options of a variant anew while keeping what users set on the old ones.
class qxOptionRebuild {
public:
    /// Takes the options out of `variant`, which must outlive this; its default state stays.
    explicit qxOptionRebuild(qxVariant &variant);

    /// Adds an option with shortcut and action flag of the old one of that name; a plain one when
    /// there was none.
    void add(const QString &name);
    /// Adds an option as an action with the old one's shortcut; a plain one when there was none.
    void addAction(const QString &name);
    /// The same for the four stepping actions.
    void addSteps();
    /// Sets the default state from before, if it is still one of the options and no action. Says
    /// whether it was.
    bool restoreDefault();

private:
    qxVariant &m_variant;
    qxOptionAppender m_options;
    const QString m_defaultState;
    QHash<QString, qxVariantOption> m_old;
};
