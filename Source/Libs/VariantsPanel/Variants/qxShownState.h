#pragma once

#include <QString>

class qxVariant;

/// The state of a variant as people see it.
namespace qxShownState {

/// The current state. For a transform switch, whose variant reports only that it is visible, its
/// current transform.
QString of(const qxVariant &variant);
/// Whether `state` is current in a variant of which `shown` is the shown state.
bool isCurrent(const QString &state, const QString &shown);

} // namespace qxShownState
