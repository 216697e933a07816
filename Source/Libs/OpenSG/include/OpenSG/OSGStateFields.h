#pragma once

/// \file
/// State by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGFieldContainerFields.h>

namespace osg {

class State;
typedef FCPtr<FieldContainerPtr, State> StatePtr;

OSG_FIELD_TYPEDEFS(StatePtr, StatePtr)

} // namespace osg
