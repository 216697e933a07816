#pragma once

#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <gtest/gtest.h>

#include <functional>

/// A new container of class T that lives as long as the test holds it.
template <class T>
auto held()
{
    return osg::RefPtr<decltype(T::create())>(T::create());
}

/// Whether the container that had this id still exists.
bool isAlive(osg::UInt32 id);

/// Empties the list of changes, so that a test sees its own only.
void forgetRecords();

/// How often the list of changes holds exactly this pair.
std::size_t timesRecorded(const osg::FieldContainerPtr &container, osg::BitVector mask);

/// True when the call wrote to standard error and nothing to standard output.
bool warns(const std::function<void()> &call);
