#pragma once

/// \file
/// Fields that hold matrices.

#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGMatrix.h>

namespace osg {

/// One value, and a list of values.
OSG_FIELD_TYPEDEFS(Matrix, Matrix)

} // namespace osg
