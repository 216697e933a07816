#pragma once

#include <QStringList>

/// What somebody may have meant who wrote a name that there is not.
namespace qxSuggestions {

/// The few of `names` that are most like `wanted`, the best first; none when none is like it.
/// Case and accents do not count.
QStringList of(const QString &wanted, const QStringList &names);
/// The same as a question to be put behind a reason, such as `; did you mean "Desk" or "Disk"?`;
/// empty when nothing is near.
QString question(const QString &wanted, const QStringList &names);
/// The question for names that were found; empty for none.
QString question(const QStringList &names);

} // namespace qxSuggestions
