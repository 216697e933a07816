#pragma once

/// \file
/// State by name: its pointer and the fields that hold it, without its definition.

#include <OpenSG/OSGFieldContainerFields.h>

namespace osg {

class State;
/// Null at first. Converts to FieldContainerPtr; down from there by dcast().
typedef FCPtr<FieldContainerPtr, State> StatePtr;

/// One pointer, and a list of pointers; neither counts references.
OSG_FIELD_TYPEDEFS(StatePtr, StatePtr)

} // namespace osg
