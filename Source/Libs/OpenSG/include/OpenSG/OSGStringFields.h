#pragma once

/// \file
/// Fields that hold texts.

#include <OpenSG/OSGMField.h>

#include <string>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(std::string, String)

} // namespace osg
