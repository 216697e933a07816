#pragma once

#include <QStringList>

/// What scripts can say in this program about variants, beyond what host and module give them.
/// They are there whenever the interpreter starts.
namespace qxVariantBindings {

/// Sets sys.argv; the first argument is the script. If it is a file, modules can be imported from
/// its folder. Call it before the first script runs.
void setArguments(const QStringList &arguments);

} // namespace qxVariantBindings
