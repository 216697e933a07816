#pragma once

/// \file
/// Namespace macros of the scene graph. Declares no names, only macros.

/// The namespace under its short name; therefore never an identifier.
#define OSG osg

#define OSG_BEGIN_NAMESPACE namespace osg {
#define OSG_END_NAMESPACE }
#define OSG_USING_NAMESPACE using namespace osg;

/// Export marks. Everything is visible by default, so they are empty here.
#define OSG_BASELIB_DLLMAPPING
#define OSG_SYSTEMLIB_DLLMAPPING
#define OSG_SYSTEMLIB_DLLTMPLMAPPING
