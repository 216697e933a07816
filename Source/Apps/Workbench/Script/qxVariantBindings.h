#pragma once

#include <QStringList>

/// What scripts can say in this program about variants, beyond what host and module give them.
/// They are there whenever the interpreter starts.
namespace qxVariantBindings {

/// What scripts find in sys.argv; the first one is the script. Its folder, if it is a file, is
/// where they may import others from. To be called before the first script runs.
void setArguments(const QStringList &arguments);

} // namespace qxVariantBindings
