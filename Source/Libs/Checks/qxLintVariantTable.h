#pragma once

#include "qxDocument.h"
#include "qxLintScene.h"

#include <QHash>
#include <QSet>

#include <memory>
#include <unordered_map>

/// How often the states of one variant are used by sets.
class qxLintUse {
public:
    /// One more set uses the state, or one less.
    void add(const QString &state, int more);
    bool isUsed() const { return !m_counts.isEmpty(); }
    bool isUsed(const QString &state) const { return m_counts.contains(state); }
    /// Whether a state is used that steps to others.
    bool isStepped() const { return m_steps > 0; }
    /// Whether other states are used than when this was last asked.
    bool takeChange() { return std::exchange(m_isChanged, false); }

private:
    QHash<QString, int> m_counts;
    int m_steps = 0;
    bool m_isChanged = false;
};

/// A variant beside what the scene has for it.
struct qxLintVariant {
    bool hasOption(const QString &name) const { return options.contains(name); }

    const qxDocumentVariant *element; ///< never null, as the others
    qxLintBase *base;
    qxLintUse *use;
    QSet<QString> options;
};

/// The variants that checks look at, by kind and name.
class qxLintVariantTable {
public:
    explicit qxLintVariantTable(qxLintScene &scene) : m_scene(scene) {}

    /// Looks at these variants, which must outlive that. Uses of variants are known by name, and
    /// stay.
    void set(const std::vector<qxDocumentVariant> &variants);
    /// Of several variants of one name the last, as the reader leaves it; null for none.
    const qxLintVariant *find(const qxVariantKind *kind, const QString &name) const;
    /// All of them in the order of the document, those that are replaced included.
    const std::vector<qxLintVariant> &all() const { return m_all; }
    /// Whether there is such a variant or not.
    qxLintUse &use(const qxVariantKind *kind, const QString &name);

private:
    typedef std::unordered_map<QString, qxLintUse> Uses; ///< they stay where they are in memory

    qxLintScene &m_scene;
    std::vector<qxLintVariant> m_all;
    QHash<const qxVariantKind *, QHash<QString, int>> m_byName;
    std::unordered_map<const qxVariantKind *, Uses> m_uses;
    qxLintUse m_unused; ///< of those that are replaced
};
