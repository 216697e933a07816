#pragma once

#include "qxStateRules.h"

#include <QHash>

#include <unordered_map>

/// Asks the rules what states do, one object and state at a time, and does nothing of it. Each
/// answer is about the scene as it is. The names of what there is to choose from are looked at once
/// for each object: while this lives, the scene must not change.
class qxStateSurvey : public qxEffectTarget {
public:
    /// In the order in which they would happen.
    typedef std::vector<qxEffect> Effects;

    /// One effect at least; valid until the next question. Nothing recurses.
    const Effects &ask(const qxStateRule &rule, const qxSceneObject &object, const QString &state);
    /// Whether the state says by name where the object ends. Toggles do not, and to this question
    /// steps are nothing but names.
    bool isNamed(const qxStateRule &rule, const qxSceneObject &object, const QString &state);

    /// As the base class has it, but in the same time however many there are to choose from.
    int placeOf(const qxSceneObject &object, qxAspect aspect, const std::string &name) override;
    /// Keeps the effect for the answer.
    void take(const qxEffect &effect) override;

protected:
    Effects m_effects; ///< the answer so far

private:
    typedef std::unordered_map<std::string, int> Places;

    QHash<quint64, Places> m_places;
};

/// What a state is to do to an object.
struct qxForeseen {
    qxEffect effect; ///< by which the object takes the state; when it does not, why
    osg::Int64 before; ///< the value just before its turn
};

/// Foresees what states do one after the other, without doing it: each goes on from where those
/// before it end. The scene must not change meanwhile.
class qxForecast : public qxStateSurvey {
public:
    /// Names one aspect of one thing in the scene. Clones share their core, and so its choice.
    typedef quint64 Key;
    /// The same for all objects that share what the aspect belongs to.
    static Key keyOf(const qxSceneObject &object, qxAspect aspect);

    /// Foresees the state in one more object of the request.
    qxForeseen foresee(const qxStateRule &rule, const qxSceneObject &object,
                       qxStateRequest &request);
    /// Foresees that something else shows the node.
    void show(const osg::NodePtr &node);

    /// After all that was foreseen.
    osg::Int64 value(const qxSceneObject &object, qxAspect aspect) const override;
    /// Remembers what the effect leaves behind.
    void take(const qxEffect &effect) override;

private:
    QHash<Key, osg::Int64> m_values;
    std::optional<qxForeseen> m_foreseen; ///< of the present object
};
