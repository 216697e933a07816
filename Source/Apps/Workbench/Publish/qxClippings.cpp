#include "qxClippings.h"

#include "qxAnalyzerVariant.h"

#include <algorithm>

namespace {

qxClipping after(const qxClipping &before, qxAnalyzerVariant &settings)
{
    qxClipping::the() = before;
    settings.execute();
    return qxClipping::the();
}

osg::Color3f otherThan(const osg::Color3f &colour)
{
    const auto other = [](float part) { return part < 0.5f ? 1.0f : 0.0f; };
    return osg::Color3f(other(colour.red()), other(colour.green()), other(colour.blue()));
}

/// One that differs from another in everything.
qxClipping otherThan(const qxClipping &one)
{
    qxClipping other;
    other.enabled = !one.enabled;
    other.position = one.position + osg::Vec3f(1, 1, 1);
    other.normal = one.normal + osg::Vec3f(1, 1, 1);
    other.invert = !one.invert;
    other.hideScene = !one.hideScene;
    other.showPlane = !one.showPlane;
    other.planeColor = otherThan(one.planeColor);
    other.showGrid = !one.showGrid;
    other.gridColor = otherThan(one.gridColor);
    other.showContour = !one.showContour;
    other.contourColor = otherThan(one.contourColor);
    other.contourWidth = one.contourWidth + 1;
    return other;
}

} // namespace

qxClippings::qxClippings(qxSlots &slots)
    : m_slots(slots), m_slot(slots.add(0)), m_all{qxClipping::the()}
{
}

void qxClippings::add(const qxAnalyzerVariant &settings)
{
    const std::string script = settings.script();
    if (!script.empty() && m_changes.count(script) == 0)
        m_changes[script].settings = std::make_shared<qxAnalyzerVariant>(settings);
}

/// Settings that leave nothing of what was there are tried twice, the others with every plane.
void qxClippings::close()
{
    const qxClipping start = m_all.front();
    for (auto &[script, change] : m_changes) {
        const qxClipping result = after(start, *change.settings);
        if (result == after(otherThan(start), *change.settings))
            change.value = placeOf(result);
    }
    for (std::size_t i = 0; i < m_all.size(); ++i) {
        for (auto &[script, change] : m_changes) {
            if (!change.value)
                change.table[qxSlots::Value(i)] = placeOf(after(m_all[i], *change.settings));
        }
    }
}

void qxClippings::apply(const qxAnalyzerVariant &settings, qxAssignments &assignments) const
{
    const auto found = m_changes.find(settings.script());
    if (found == m_changes.end())
        return;
    if (found->second.value)
        assignments.set(m_slot, *found->second.value);
    else
        assignments.look(m_slot, m_slot, found->second.table);
}

qxSlots::Value qxClippings::placeOf(const qxClipping &clipping)
{
    const auto found = std::find(m_all.begin(), m_all.end(), clipping);
    const auto place = qxSlots::Value(found - m_all.begin());
    if (found == m_all.end())
        m_all.push_back(clipping);
    m_slots.note(m_slot, place);
    return place;
}
