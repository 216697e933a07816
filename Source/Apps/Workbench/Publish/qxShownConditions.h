#pragma once

#include "qxSlots.h"

class qxVariant;
struct qxVariantKind;

/// When people see a variant in a state, as conditions of published.ts: the variant is asked with
/// every value that its slots can have.
class qxShownConditions {
public:
    /// The slots must be finished. While the variant is asked, the scene shows other states; then
    /// it shows those that it had, but transforms may stand elsewhere.
    qxShownConditions(const qxSlots &slots, const qxVariantKind &kind, const qxVariant &variant);

    /// The condition that it is seen in that state; none when it takes more than a condition.
    std::optional<QJsonArray> of(const QString &state) const;

private:
    /// A slot that what is shown may depend on.
    struct Axis {
        qxSceneObject object;
        qxAspect aspect;
        int slot;
    };
    /// One value for each axis.
    typedef std::vector<qxSlots::Value> Moment;

    void askAll(std::size_t axis);
    void ask();
    static void put(const Axis &axis, qxSlots::Value value);

    const qxSlots &m_slots;
    const qxVariant &m_variant;
    std::vector<Axis> m_axes;
    Moment m_moment; ///< the present one
    QHash<QString, std::vector<Moment>> m_shown; ///< by state
};
