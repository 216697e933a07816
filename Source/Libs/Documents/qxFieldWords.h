#pragma once

#include "qxDocument.h"

/// What comparing and merging call the fields of a set of which there are several.
namespace qxFieldWords {

///@{
/// The word for one of them.
QLatin1String of(qxNameList list);
QLatin1String of(qxInclusion what);
///@}

} // namespace qxFieldWords
