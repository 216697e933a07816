#pragma once

#include "qxClippings.h"
#include "qxSelectionEffects.h"
#include "qxShownTargets.h"

#include <QJsonObject>

class qxVariant;
class qxVariantSet;
struct qxVariantKind;

/// What selecting sets, and states of variants by themselves, does, as steps of published.ts.
/// All of them are added; then close() finds what they can lead to; then they are asked for.
class qxPublishedSteps {
public:
    explicit qxPublishedSteps(qxSlots &slots);
    qxPublishedSteps(const qxPublishedSteps &) = delete;

    void add(const qxVariantSet &set);
    void add(const qxVariantKind &kind, const qxVariant &variant, const QString &state);

    /// Afterwards the slots are finished. The scene and its clipping are other ones.
    void close();

    ///@{
    /// After close, for what was added: the members step and, where there is one, now.
    QJsonObject of(const qxVariantSet &set) const;
    /// The step.
    QJsonObject of(const qxVariantKind &kind, const qxVariant &variant, const QString &state) const;
    ///@}

    const qxPlaces &places() const { return m_effects.places(); }
    const qxClippings &clippings() const { return m_clippings; }
    /// Which clips of the scene have that name, by their places.
    static std::vector<int> clipsOf(const QString &name);

private:
    typedef qxSelectionEffects::Request Request;
    struct Selection {
        std::vector<osg::NodePtr> targets; ///< that are shown first
        std::vector<Request> requests;
        int turn = -1; ///< the slot of the clip that started last, of clips that start in turn
        qxAssignments::Table turns;
    };

    void addTurn(const qxVariantSet &set, Selection &selection);
    QJsonObject clipsAt(const qxVariantSet &set, const Selection &selection) const;

    qxSlots &m_slots;
    qxSelectionEffects m_effects;
    qxClippings m_clippings;
    std::vector<const qxVariantSet *> m_order;
    QHash<const qxVariantSet *, Selection> m_selections;
    QHash<QString, Request> m_options;
};
