#pragma once

/// \file
/// Fields that hold numbers of the common kinds.

#include <OpenSG/OSGBoolFields.h>
#include <OpenSG/OSGInt32Fields.h>
#include <OpenSG/OSGReal32Fields.h>
#include <OpenSG/OSGReal64Fields.h>
#include <OpenSG/OSGUInt16Fields.h>
#include <OpenSG/OSGUInt32Fields.h>
#include <OpenSG/OSGUInt8Fields.h>
