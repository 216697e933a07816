#pragma once

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodeCore.h>

#include <string>

/// The node's core if it is of that class, else null.
template <class Core>
typename Core::Ptr coreOf(const osg::NodePtr &node)
{
    typedef typename Core::Ptr Ptr;
    return node == osg::NullFC ? Ptr() : Ptr::dcast(node->getCore());
}

/// The only object of its class. It stays to the end: modules unregister after the statics of this
/// program are destroyed.
template <class Class>
Class *single()
{
    static Class *const object = new Class;
    return object;
}

/// The name, with the first number behind it that makes it free if it is taken.
template <class IsTaken>
std::string numbered(const std::string &name, const IsTaken &isTaken)
{
    std::string free = name;
    for (int number = 2; isTaken(free); ++number)
        free = name + ' ' + std::to_string(number);
    return free;
}

/// Starts the services that the module looks up, and what answers its notifications.
void registerServices();

/// The name, numbered if a material has it already.
std::string uniqueMaterialName(const std::string &name);

/// Starts the interpreter, for the rest of the process; before that, scripts are not run.
void startScripts();
/// Tells the modules that it ends.
void endScripts();
