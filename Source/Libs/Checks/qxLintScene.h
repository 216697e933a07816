#pragma once

#include "qxVariantKind.h"

#include "qxFindCache.h"
#include "qxForecast.h"
#include "qxSceneLookup.h"

#include <QHash>

#include <array>
#include <map>
#include <optional>

/// The objects that variants of one kind drive by one name.
struct qxLintBase {
    /// What a state makes of one aspect of one object.
    struct Change {
        qxForecast::Key key;
        bool isPut; ///< it ends at `value` from wherever it was; false for toggles and steps
        osg::Int64 value;
    };
    /// What a state does to the objects.
    struct Reach {
        bool isTaken = false; ///< by one object at least
        std::vector<Change> changes; ///< one for each aspect
    };

    const qxVariantKind *kind; ///< never null
    QString name;
    bool hasObjects = false;
    bool hasFittingObject = false; ///< one at least is of the right sort
    QHash<QString, Reach> reaches; ///< by states, as far as they were asked for
    std::optional<std::vector<qxSceneObject>> objects; ///< until the next rest
};

/// What checks ask of the scene: what names lead to, and what states would do.
///
/// Between two rests the scene must not change. One that remembers keeps its answers for longer, so
/// that nobody goes over the scene again to answer what was asked before.
class qxLintScene {
public:
    /// What a name may lead to.
    enum Sort { Viewpoint, Animation, Node, Path, Material, SortCount };

    explicit qxLintScene(bool remembers) : m_remembers(remembers) {}

    /// Stays where it is as long as the answers do.
    qxLintBase &base(const qxVariantKind &kind, const QString &name);
    /// What the state does to the objects of the base.
    const qxLintBase::Reach &reach(qxLintBase &base, const QString &state);
    /// Whether one of the objects of that name stands within another.
    bool isNested(const qxVariantKind &kind, const QString &name);
    bool has(Sort sort, const QString &name);
    /// The visibility of the first node of the name; none without a node.
    std::optional<qxForecast::Key> visibilityOf(const QString &name);

    /// Lets go of the scene, which may change from here on.
    void rest();
    /// Asks all questions again. False when one has another answer now; then all are forgotten.
    bool isStillSo();

private:
    typedef std::pair<const qxVariantKind *, QString> Name;
    typedef std::optional<qxForecast::Key> Visibility;
    /// What serves all questions between two rests.
    struct Look {
        const qxFindCache cache{true};
        const qxSceneLookup scene;
        qxStateSurvey survey;
    };

    Look &look();
    const std::vector<qxSceneObject> &objectsOf(qxLintBase &base);
    void lookUp(qxLintBase &base);
    qxLintBase::Reach work(qxLintBase &base, const QString &state);
    bool ask(Sort sort, const QString &name);
    bool askWhetherNested(const Name &name);
    Visibility askForVisibility(const QString &name);
    bool isStillSo(const qxLintBase &base);
    void forget();

    const bool m_remembers;
    std::optional<Look> m_look;
    std::map<Name, qxLintBase> m_bases;
    std::vector<qxLintBase *> m_inHand; ///< those with objects
    std::array<QHash<QString, bool>, SortCount> m_answers;
    QHash<Name, bool> m_nested;
    QHash<QString, Visibility> m_visibilities;
};
