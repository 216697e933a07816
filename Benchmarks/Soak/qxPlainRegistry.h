#pragma once

#include "qxVariantKinds.h"

#include <QMap>
#include <QPair>
#include <QStringList>

#include <array>
#include <tuple>
#include <vector>

/// The kinds that the model knows, by their numbers.
enum { qxPlainKinds = 5 };
inline const qxVariantKind &qxPlainKind(int kind)
{
    return *qxVariantKinds::all()[std::size_t(kind)];
}

/// A variant as plain data. Options are names with their shortcuts behind a tab.
struct qxPlainVariant {
    QString name;
    QString base; ///< the name of what it drives
    QString standard;
    QStringList options;

    auto fields() const { return std::tie(name, base, standard, options); }
    bool operator==(const qxPlainVariant &other) const { return fields() == other.fields(); }
};

/// A set as plain data, with references by the kind of the variant.
struct qxPlainSet {
    typedef QPair<QString, QString> Reference; ///< variant and state

    QString name;
    QString comment;
    QString hotkey;
    std::array<std::vector<Reference>, qxPlainKinds> references;
    QStringList viewpoints;
    QStringList animations;
    QMap<QString, QString> values;

    auto fields() const
    {
        return std::tie(name, comment, hotkey, references, viewpoints, animations, values);
    }
    bool operator==(const qxPlainSet &other) const { return fields() == other.fields(); }
};

/// A group as plain data.
struct qxPlainGroup {
    QString name;
    QString comment;
    bool visible = true;
    QStringList sets;

    auto fields() const { return std::tie(name, comment, visible, sets); }
    bool operator==(const qxPlainGroup &other) const { return fields() == other.fields(); }
};

/// The expected contents of the registry: a model without look-ups, notifications and pointers.
struct qxPlainRegistry {
    std::array<std::vector<qxPlainVariant>, qxPlainKinds> variants;
    std::vector<qxPlainSet> sets;
    std::vector<qxPlainGroup> groups;

    /// The present contents of the registry.
    static qxPlainRegistry ofModule();

    auto fields() const { return std::tie(variants, sets, groups); }
    bool operator==(const qxPlainRegistry &other) const { return fields() == other.fields(); }
    /// The first line in which the two differ; empty if they are equal.
    QString difference(const qxPlainRegistry &actual) const;

    /// Groups with their sets, then the other sets: in that order a document holds them.
    void orderAsDocument();
};

/// The first one of that name, or the end.
template <class List>
auto qxPlainFind(List &list, const QString &name)
{
    auto found = list.begin();
    while (found != list.end() && (name.isEmpty() || found->name != name))
        ++found;
    return found;
}
