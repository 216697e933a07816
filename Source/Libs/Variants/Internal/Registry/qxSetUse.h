#pragma once

class qxVariantSet;

/// Keeps a set alive for one scope in which listeners or scripts run: they may remove any set.
class qxSetUse {
public:
    explicit qxSetUse(qxVariantSet &set);
    ~qxSetUse();
    qxSetUse(const qxSetUse &) = delete;
    qxSetUse &operator=(const qxSetUse &) = delete;

    /// Deletes a set that left the registry: at once or, while it is in use, when its last use
    /// ends. It leaves its group in either case.
    static void destroy(qxVariantSet *set);

private:
    qxVariantSet &m_set;
};
