#pragma once

#include <QString>

class qxVariant;

/// The state of a variant as people see it.
namespace qxShownState {

/// The current state. A transform switch reports no more than that it is shown: here that is the
/// transform in which it stands.
QString of(const qxVariant &variant);
/// Whether `state` is current in a variant of which `shown` is the shown state.
bool isCurrent(const QString &state, const QString &shown);

} // namespace qxShownState
