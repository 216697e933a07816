#pragma once

#include "qxDocument.h"
#include "qxFindCache.h"
#include "qxForecast.h"

#include <QHash>
#include <QSet>

#include <memory>

/// One variant of a document beside what the scene has for it, with notes on who uses it.
class qxLintVariant {
public:
    /// What a state makes of one aspect of one object.
    struct Change {
        qxForecast::Key key;
        bool isPut; ///< it ends at `value` from wherever it was; false for toggles and steps
        osg::Int64 value;
    };
    /// What a state does to the variant's objects.
    struct Reach {
        bool isTaken = false; ///< by one object at least
        std::vector<Change> changes; ///< one for each aspect
    };

    /// Looks up its objects; `survey` must outlive this.
    qxLintVariant(const qxDocumentVariant &variant, qxStateSurvey &survey);

    const qxDocumentVariant &element() const { return m_element; }
    bool hasOption(const QString &name) const { return m_options.contains(name); }
    bool hasObjects() const { return !m_objects.empty(); }
    /// Whether one object at least is of the right sort.
    bool hasFittingObject() const { return m_hasFittingObject; }
    /// Worked out once for each state; valid as long as the variant.
    const Reach &reach(const QString &state);

    /// Notes that a set, or a hotkey, selects the state.
    void use(const QString &state);
    bool isUsed() const { return !m_used.isEmpty(); }
    /// Whether the state is used, be it by stepping to it.
    bool isUsed(const QString &state) const;

private:
    const qxDocumentVariant &m_element;
    qxStateSurvey &m_survey;
    const std::vector<qxSceneObject> m_objects;
    bool m_hasFittingObject = false;
    QSet<QString> m_options;
    QHash<QString, Reach> m_reaches;
    QSet<QString> m_used;
    bool m_isStepped = false;
};

/// The variants of a document by kind and name.
class qxLintVariants {
public:
    explicit qxLintVariants(const qxDocument &tree);

    /// Of several variants of one name the last, as the reader leaves it; null for none.
    qxLintVariant *find(const qxVariantKind *kind, const QString &name) const;
    /// All of them in the order of the document, those that are replaced included.
    const std::vector<std::unique_ptr<qxLintVariant>> &all() const { return m_all; }

private:
    const qxFindCache m_cache{true};
    qxStateSurvey m_survey;
    std::vector<std::unique_ptr<qxLintVariant>> m_all;
    QHash<const qxVariantKind *, QHash<QString, qxLintVariant *>> m_byName;
};
