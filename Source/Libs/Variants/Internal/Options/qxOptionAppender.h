#pragma once

#include "qxVariant.h"

#include <QSet>

/// Appends many options to a variant, each name once, in linear time. Meanwhile nobody else changes
/// the options.
class qxOptionAppender {
public:
    explicit qxOptionAppender(qxVariant &variant) : m_variant(variant) {}

    /// As qxVariant::add.
    void add(bool action, const QString &name, const QString &shortcut);

private:
    qxVariant &m_variant;
    /// The names of the options; empty while they are few.
    QSet<QString> m_names;
};
